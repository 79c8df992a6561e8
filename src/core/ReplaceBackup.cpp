#include "core/ReplaceBackup.h"

#include <QDir>
#include <QFileInfo>

namespace core
{

namespace
{

constexpr int NumberedBackups = 50;

} // namespace

ReplaceBackup::ReplaceBackup(const platform::PathMap &paths)
    : m_paths(paths)
{
}

platform::Result<QString> ReplaceBackup::keep(const QString &winPath) const
{
    const QString host = m_paths.toHost(winPath);
    for (int n = 0; n <= NumberedBackups; ++n) {
        const QString backup =
            winPath + QStringLiteral(".bak") + (n == 0 ? QString() : QString::number(n));
        const QString backupHost = m_paths.toHost(backup);
        if (QFileInfo::exists(backupHost)) {
            continue;
        }
        if (!QFileInfo::exists(host)) {
            return platform::Error{platform::FileNotFound,
                                   platform::standardDescription(platform::FileNotFound)};
        }
        if (!QDir().rename(host, backupHost)) {
            return platform::Error{platform::PathFileAccess,
                                   platform::standardDescription(platform::PathFileAccess)};
        }
        return backup;
    }
    // Every name is taken: the file stays, and the caller's write replaces it.
    return QString();
}

} // namespace core
