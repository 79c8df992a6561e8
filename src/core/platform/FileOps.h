#pragma once
// Host file steps shared by the batch runner and the services: whole-file writes and copies that
// go through a temporary file in the target's folder and a rename, and the read-only mark.

#include <QByteArray>
#include <QString>

namespace platform
{

class FileOps
{
public:
    // Writes bytes to a temporary beside the target and renames it over; false on any failure.
    static bool writeReplacing(const QString &hostPath, const QByteArray &bytes);
    // Copies in slices through a temporary beside the target, keeping the modification time.
    static bool copyReplacing(const QString &sourceHost, const QString &targetHost);

    // Read-only is a file or folder without write permission, as Wine shows it.
    static bool isReadOnly(const QString &hostPath);
    static bool setReadOnly(const QString &hostPath, bool readOnly);
};

} // namespace platform
