#pragma once
// The host for tests and macros: prompts are answered from queues that a test or macro fills
// beforehand, and every prompt, answer, window shown and window closed is written to a transcript.

#include "ui/Host.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>

namespace ui
{

// A prompt came that nothing had answered; it ends a macro run.
class Unanswered : public std::runtime_error
{
public:
    explicit Unanswered(const QString &prompt)
        : std::runtime_error(prompt.toStdString())
        , m_prompt(prompt)
    {
    }

    const QString &prompt() const { return m_prompt; }

private:
    QString m_prompt;
};

class ScriptedHost : public Host
{
public:
    explicit ScriptedHost(QString appTitle = QStringLiteral("Brakevan Max"));

    void queueAnswer(Answer answer) { m_answers.push_back(answer); }

    // An empty optional is a cancelled input box.
    void queueInput(std::optional<QString> text) { m_inputs.push_back(std::move(text)); }

    // An empty path is a cancelled dialog.
    void queueFile(const QString &winPath) { m_files.push_back(winPath); }

    bool hasQueuedAnswers() const
    {
        return !m_answers.empty() || !m_inputs.empty() || !m_files.empty();
    }

    const QStringList &transcript() const { return m_transcript; }

    QStringList takeTranscript();
    void write(const QString &line);

    // Also hands each line to a sink as it is written (the --transcript file).
    void setSink(std::function<void(const QString &)> sink) { m_sink = std::move(sink); }

    Answer msgBox(const QString &text, Buttons buttons, Icon icon, const QString &title) override;
    QString
    inputBox(const QString &prompt, const QString &title, const QString &defaultText) override;
    QString fileDialog(const FileDialogRequest &request) override;
    void show(Window &window, bool modal) override;
    void close(Window &window) override;

    void yield() override { }

    void setBusy(bool) override { }

    void beep() override { write(QStringLiteral("beep")); }

    bool print(const PrintJob &job) override;
    void showPicture(const QString &winPath, bool fullScreen) override;

    QString appTitle() const override { return m_appTitle; }

    bool isShown(const Window &window) const;

private:
    QString m_appTitle;
    std::deque<Answer> m_answers;
    std::deque<std::optional<QString>> m_inputs;
    std::deque<QString> m_files;
    QStringList m_transcript;
    std::function<void(const QString &)> m_sink;
    std::vector<const Window *> m_shown;
};

} // namespace ui
