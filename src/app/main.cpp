// brakevan: the workbench. With --play it runs a macro headless through the scripted host;
// otherwise it starts the Qt view.

#include "app/AppFolders.h"
#include "app/Play.h"
#include "app/SampleInstall.h"

#ifdef BV_HAVE_QT_VIEW
#include "app/GuiMain.h"
#endif

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

struct Options {
    QString play;
    QString transcript;
    QString appFolder;
    QString file;
    bool sample = false;
    bool help = false;
};

Options parseOptions(const QStringList &args)
{
    Options options;
    for (int i = 1; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        auto next = [&]() {
            return i + 1 < args.size() ? args.at(++i) : QString();
        };
        if (arg == u"--play"_s) {
            options.play = next();
        } else if (arg == u"--transcript"_s) {
            options.transcript = next();
        } else if (arg == u"--app-folder"_s) {
            options.appFolder = next();
        } else if (arg == u"--sample"_s) {
            options.sample = true;
        } else if (arg == u"--help"_s || arg == u"-h"_s) {
            options.help = true;
        } else {
            options.file = arg;
        }
    }
    return options;
}

const char usage[] = "usage: brakevan [FILE] [--app-folder DIR] [--sample]\n"
                     "       brakevan --play MACRO [--transcript OUT] [--app-folder DIR] [FILE]\n";

} // namespace

int main(int argc, char *argv[])
{
    QStringList args;
    for (int i = 0; i < argc; ++i) {
        args.append(QString::fromLocal8Bit(argv[i]));
    }
    const Options options = parseOptions(args);
    if (options.help) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (!options.play.isEmpty()) {
        QCoreApplication core(argc, argv);
        const app::AppFolders folders = app::locateFolders(options.appFolder);
        return app::play(folders, options.play, options.transcript, options.file);
    }
#ifdef BV_HAVE_QT_VIEW
    return app::guiMain(argc, argv, options.appFolder, options.file, options.sample);
#else
    std::fputs("brakevan: this build has no window system view; use --play\n", stderr);
    return 1;
#endif
}
