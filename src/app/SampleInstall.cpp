#include "app/SampleInstall.h"

#include "core/Preferences.h"
#include "core/platform/Cp1252.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace app
{

QString sampleInstallFolder()
{
    QDir dir(QCoreApplication::applicationDirPath());
    // The build writes programs to build/bin and the installation to build/SampleInstall.
    for (const QString &candidate : {u"../SampleInstall"_s, u"SampleInstall"_s}) {
        if (dir.exists(candidate)) {
            return QDir::cleanPath(dir.absoluteFilePath(candidate));
        }
    }
    return {};
}

bool seedPreferences(const QString &appFolder, const QString &railSimWinPath)
{
    const QString path = QDir(appFolder).filePath(u"preferences.txt"_s);
    if (QFile::exists(path)) {
        return false;
    }
    core::Preferences prefs;
    prefs.width = 12000;
    prefs.height = 9000;
    prefs.top = 600;
    prefs.left = 600;
    prefs.RailSimPath = railSimWinPath;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(platform::Cp1252::encode(core::formatPreferences(prefs)));
    return true;
}

} // namespace app
