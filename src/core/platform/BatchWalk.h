#pragma once
// What the batch runner's file commands share: a source argument taken apart into folder and
// name pattern, and the walk that finds the files (and folders) matching it.

#include "core/platform/PathMap.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace platform
{

struct Found {
    QString host;
    QString rel; // the Windows sub-folder below the walk's start, empty at the top
    QString name;
};

// A source argument as a folder and a name pattern; a folder alone stands for all its files.
struct Source {
    QString folder; // Windows
    QString pattern;
    bool wasFolder = false;

    static Source of(const PathMap &paths, const QString &argument);
};

class Walk
{
public:
    explicit Walk(QString pattern, bool recurse = false, bool withFolders = false);

    void run(const QString &host, const QString &rel = {});

    QList<Found> found;
    QStringList folders; // every sub-folder passed, for xcopy /E

private:
    QString m_pattern;
    bool m_recurse;
    bool m_withFolders; // folders that match are found too (attrib /D)
};

QString joinWin(const QString &folder, const QString &name);
QString parentOf(const QString &absWin);
QString lastComponent(const QString &absWin);

} // namespace platform
