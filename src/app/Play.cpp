#include "app/Play.h"

#include "ui/MacroRunner.h"
#include "ui/ScriptedHost.h"
#include "ui/Transcript.h"
#include "workbench/Workbench.h"

#include <QFile>
#include <QTextStream>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace app
{

namespace
{

bool isAnswerLine(const QString &line)
{
    return line.startsWith(u"answer"_s) || line.startsWith(u"input"_s)
        || line.startsWith(u"file"_s);
}

} // namespace

int play(const AppFolders &folders,
         const QString &macroPath,
         const QString &transcriptPath,
         const QString &commandLineFile)
{
    QFile macro(macroPath);
    if (!macro.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "brakevan: cannot read macro %s\n", qPrintable(macroPath));
        return 2;
    }
    QStringList lines = QString::fromUtf8(macro.readAll()).split(u'\n');
    for (QString &line : lines) {
        line = line.trimmed();
    }

    QFile out(transcriptPath);
    const bool toFile = !transcriptPath.isEmpty();
    if (toFile && !out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "brakevan: cannot write transcript %s\n", qPrintable(transcriptPath));
        return 2;
    }
    ui::ScriptedHost host;
    host.setSink([&](const QString &line) {
        const QByteArray bytes = line.toUtf8() + '\n';
        if (toFile) {
            out.write(bytes);
            out.flush();
        } else {
            std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
        }
    });

    workbench::Workbench workbench(host, folders, commandLineFile);
    ui::MacroRunner runner(workbench.forms(), host, u"frmEditor"_s);
    runner.setFileLister([&workbench](const QString &pattern) {
        const qsizetype slash = pattern.lastIndexOf(u'\\');
        return workbench.session().services.listFiles(pattern.left(slash), pattern.mid(slash + 1));
    });
    // Answers that stand before the first action answer the prompts of the start-up itself.
    int first = 0;
    QStringList startAnswers;
    while (first < lines.size()
           && (lines.at(first).isEmpty() || lines.at(first).startsWith(u'#')
               || isAnswerLine(lines.at(first)))) {
        startAnswers.append(lines.at(first));
        ++first;
    }
    if (runner.run(startAnswers) != 0) {
        return 2;
    }
    try {
        workbench.start();
    } catch (const ui::Unanswered &unanswered) {
        host.write(u"error line 0: no answer for "_s + unanswered.prompt());
        return 2;
    }
    QStringList rest = lines;
    for (int i = 0; i < first; ++i) {
        rest[i] = QString(); // keep the numbering of the file
    }
    return runner.run(rest);
}

} // namespace app
