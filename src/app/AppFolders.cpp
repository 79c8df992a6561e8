#include "app/AppFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace app
{

AppFolders locateFolders(const QString &overrideFolder)
{
    AppFolders folders;
    folders.systemFolder = QCoreApplication::applicationDirPath();
    if (!overrideFolder.isEmpty()) {
        folders.appFolder = QDir(overrideFolder).absolutePath();
    } else if (QFileInfo(folders.systemFolder).isWritable()) {
        folders.appFolder = folders.systemFolder;
    } else {
        folders.appFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    }
    QDir().mkpath(folders.appFolder);
    return folders;
}

} // namespace app
