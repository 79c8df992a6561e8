#include "ui/ScriptedHost.h"

#include "ui/Transcript.h"
#include "ui/Window.h"

#include <algorithm>

namespace ui
{

namespace
{

bool allows(Buttons buttons, Answer answer)
{
    switch (buttons) {
    case Buttons::OK:
        return answer == Answer::OK;
    case Buttons::OKCancel:
        return answer == Answer::OK || answer == Answer::Cancel;
    case Buttons::AbortRetryIgnore:
        return answer == Answer::Abort || answer == Answer::Retry || answer == Answer::Ignore;
    case Buttons::YesNoCancel:
        return answer == Answer::Yes || answer == Answer::No || answer == Answer::Cancel;
    case Buttons::YesNo:
        return answer == Answer::Yes || answer == Answer::No;
    case Buttons::RetryCancel:
        return answer == Answer::Retry || answer == Answer::Cancel;
    }
    return false;
}

QString dialogKind(FileDialogKind kind)
{
    switch (kind) {
    case FileDialogKind::Save:
        return QStringLiteral("save");
    case FileDialogKind::Folder:
        return QStringLiteral("folder");
    case FileDialogKind::Open:
        break;
    }
    return QStringLiteral("open");
}

} // namespace

ScriptedHost::ScriptedHost(QString appTitle)
    : m_appTitle(std::move(appTitle))
{
}

QStringList ScriptedHost::takeTranscript()
{
    QStringList lines;
    lines.swap(m_transcript);
    return lines;
}

void ScriptedHost::write(const QString &line)
{
    m_transcript.append(line);
    if (m_sink) {
        m_sink(line);
    }
}

Answer ScriptedHost::msgBox(const QString &text, Buttons buttons, Icon icon, const QString &title)
{
    const QString prompt = QStringLiteral("msgbox ") + iconName(icon) + QLatin1Char(' ')
        + quoted(title) + QLatin1Char(' ') + quoted(text);
    Answer answer = Answer::OK;
    // A box with only OK needs no queued answer; it takes one only when OK stands next.
    if (buttons == Buttons::OK && (m_answers.empty() || m_answers.front() != Answer::OK)) {
        answer = Answer::OK;
    } else if (m_answers.empty()) {
        write(prompt + QStringLiteral(" -> ?"));
        throw Unanswered(prompt);
    } else {
        answer = m_answers.front();
        m_answers.pop_front();
        if (!allows(buttons, answer)) {
            write(prompt + QStringLiteral(" -> ?"));
            throw Unanswered(prompt + QStringLiteral(" cannot be answered ") + answerName(answer));
        }
    }
    write(prompt + QStringLiteral(" -> ") + answerName(answer));
    return answer;
}

QString
ScriptedHost::inputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    const QString line = QStringLiteral("inputbox ") + quoted(title) + QLatin1Char(' ')
        + quoted(prompt) + QLatin1Char(' ') + quoted(defaultText);
    if (m_inputs.empty()) {
        write(line + QStringLiteral(" -> ?"));
        throw Unanswered(line);
    }
    const std::optional<QString> answer = m_inputs.front();
    m_inputs.pop_front();
    const QString text = answer.value_or(QString());
    write(line + QStringLiteral(" -> ") + quoted(text));
    return text;
}

QString ScriptedHost::fileDialog(const FileDialogRequest &request)
{
    const QString line = QStringLiteral("dialog ") + dialogKind(request.kind) + QLatin1Char(' ')
        + quoted(request.title) + QLatin1Char(' ') + quoted(request.filter);
    if (m_files.empty()) {
        write(line + QStringLiteral(" -> ?"));
        throw Unanswered(line);
    }
    const QString path = m_files.front();
    m_files.pop_front();
    write(line + QStringLiteral(" -> ") + quoted(path));
    return path;
}

void ScriptedHost::show(Window &window, bool modal)
{
    write((modal ? QStringLiteral("showmodal ") : QStringLiteral("show ")) + window.name()
          + QLatin1Char(' ') + quoted(window.caption()));
    if (!isShown(window)) {
        m_shown.push_back(&window);
    }
    window.Form_Activate();
}

void ScriptedHost::close(Window &window)
{
    if (!isShown(window)) {
        return;
    }
    m_shown.erase(std::remove(m_shown.begin(), m_shown.end(), &window), m_shown.end());
    write(QStringLiteral("close ") + window.name());
}

bool ScriptedHost::print(const PrintJob &job)
{
    static const char *const kinds[] = {"text", "image", "grid"};
    const QString what = job.kind == PrintJob::Kind::Image ? job.imagePath
        : job.kind == PrintJob::Kind::Grid
        ? QString::number(job.rows.size()) + QStringLiteral(" rows")
        : job.text;
    write(QStringLiteral("print ") + QString::fromLatin1(kinds[int(job.kind)]) + QLatin1Char(' ')
          + quoted(job.title) + QLatin1Char(' ') + quoted(what));
    return true;
}

void ScriptedHost::showPicture(const QString &winPath, bool fullScreen)
{
    write((fullScreen ? QStringLiteral("picture fullscreen ") : QStringLiteral("picture "))
          + quoted(winPath));
}

bool ScriptedHost::isShown(const Window &window) const
{
    return std::find(m_shown.begin(), m_shown.end(), &window) != m_shown.end();
}

} // namespace ui
