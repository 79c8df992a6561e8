#pragma once
// The host's running processes by image name, and ending them by the tail of that name.

#include <QList>
#include <QString>

namespace platform
{

struct ProcessEntry {
    qint64 pid = 0;
    QString imageName; // "RailSim.exe", "sleep"
};

class ProcessList
{
public:
    static QList<ProcessEntry> snapshot();

    // True when the lower-cased name equals the lower-cased entry name's tail of the same length.
    static bool tailMatches(const QString &imageName, const QString &name);

    // Ends every process whose image name matches; an empty name does nothing. The number ended.
    static int killProcess(const QString &name);
};

} // namespace platform
