#include "core/platform/FileOps.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace platform
{

namespace
{

constexpr QFileDevice::Permissions WriteBits = QFileDevice::WriteOwner | QFileDevice::WriteUser
    | QFileDevice::WriteGroup | QFileDevice::WriteOther;

} // namespace

bool FileOps::writeReplacing(const QString &hostPath, const QByteArray &bytes)
{
    QSaveFile file(hostPath);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

bool FileOps::copyReplacing(const QString &sourceHost, const QString &targetHost)
{
    QFile source(sourceHost);
    if (!source.open(QIODevice::ReadOnly)) {
        return false;
    }
    QSaveFile target(targetHost);
    if (!target.open(QIODevice::WriteOnly)) {
        return false;
    }
    QByteArray slice;
    while (!(slice = source.read(1 << 20)).isEmpty()) {
        if (target.write(slice) != slice.size()) {
            target.cancelWriting();
            return false;
        }
    }
    if (source.error() != QFileDevice::NoError || !target.commit()) {
        return false;
    }
    // A copy keeps its source's time, as the system's copy commands do.
    const QDateTime modified = QFileInfo(sourceHost).lastModified();
    QFile written(targetHost);
    if (written.open(QIODevice::ReadWrite)) {
        written.setFileTime(modified, QFileDevice::FileModificationTime);
    }
    return true;
}

bool FileOps::isReadOnly(const QString &hostPath)
{
    const QFileInfo info(hostPath);
    return info.exists() && !(info.permissions() & QFileDevice::WriteOwner);
}

bool FileOps::setReadOnly(const QString &hostPath, bool readOnly)
{
    const QFileDevice::Permissions now = QFile::permissions(hostPath);
    const QFileDevice::Permissions wanted =
        readOnly ? (now & ~WriteBits) : (now | QFileDevice::WriteOwner | QFileDevice::WriteUser);
    return now == wanted || QFile::setPermissions(hostPath, wanted);
}

} // namespace platform
