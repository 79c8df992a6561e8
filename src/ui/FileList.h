#pragma once
// The folder browser's three lists: a file list (files of one folder matching a pattern), a folder
// list (the sub-folders of one folder) and a drive list. Paths are Windows paths; the window gives
// each list the lister that reads the disk through the program's services.

#include "ui/ListBox.h"

#include <functional>

namespace ui
{

// Lists the names in a folder that match a pattern ("*.bin;*.xml"), sorted as the list shows them.
using FolderLister = std::function<QStringList(const QString &folder, const QString &pattern)>;

class FileList : public ListBox
{
public:
    QString kind() const override { return QStringLiteral("FileList"); }

    void setLister(FolderLister lister) { m_lister = std::move(lister); }

    const QString &path() const { return m_path; }

    const QString &pattern() const { return m_pattern; }

    // Setting the folder or the pattern reads the folder again.
    void setPath(const QString &path);
    void setPattern(const QString &pattern);
    void refresh();

    QString fileName() const { return listIndex() >= 0 ? list(listIndex()) : QString(); }

private:
    FolderLister m_lister;
    QString m_path;
    QString m_pattern = QStringLiteral("*.*");
};

// The sub-folders of a folder; a change of folder fires Change.
class DirList : public ListBox
{
public:
    QString kind() const override { return QStringLiteral("DirList"); }

    void setLister(FolderLister lister) { m_lister = std::move(lister); }

    const QString &path() const { return m_path; }

    void setPath(const QString &path);

private:
    FolderLister m_lister;
    QString m_path;
};

// The drive letters; a change of drive fires Change.
class DriveList : public ListBox
{
public:
    QString kind() const override { return QStringLiteral("DriveList"); }

    const QString &drive() const { return m_drive; }

    void setDrive(const QString &drive);

    QStringList dumpRows() const override { return {m_drive}; }

    bool dumpsAsRows() const override { return false; }

private:
    QString m_drive;
};

} // namespace ui
