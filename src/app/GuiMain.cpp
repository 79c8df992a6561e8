#include "app/GuiMain.h"

#include "app/AppFolders.h"
#include "app/SampleInstall.h"
#include "core/platform/PathMap.h"
#include "ui/qt/QtHost.h"
#include "workbench/Workbench.h"
#include "workbench/frmEditor.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace app
{

int guiMain(
    int argc, char *argv[], const QString &appFolderOverride, const QString &file, bool sample)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Brakevan Max"_s);
    const AppFolders folders = locateFolders(appFolderOverride);
    if (sample) {
        const QString install = sampleInstallFolder();
        if (install.isEmpty()) {
            std::fputs("brakevan: the build made no sample installation\n", stderr);
        } else {
            seedPreferences(folders.appFolder, platform::toWindowsPath(install));
        }
    }
    // The host maps dialog paths through the workbench's path map, which exists only after it.
    const platform::PathMap *paths = nullptr;
    uiqt::QtHost host(
        u"Brakevan Max"_s,
        [&paths](const QString &win) { return paths ? paths->toHost(win) : win; },
        [&paths](const QString &hostPath) {
            return paths ? paths->toWindows(hostPath) : hostPath;
        });
    workbench::Workbench bench(host, folders, file);
    paths = &bench.paths();
    host.setCloseRequest([&bench](ui::Window &window) {
        bench.forms().unload(window);
        // Windows are destroyed once no handler of theirs can still be running.
        QTimer::singleShot(0, [&bench] { bench.forms().collect(); });
    });
    bench.start();
    if (!bench.forms().isLoaded<workbench::frmEditor>()) {
        return 0;
    }
    return QApplication::exec();
}

} // namespace app
