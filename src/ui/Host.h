#pragma once
// Everything that waits on a person: message and input boxes, file and folder pickers, showing
// windows, yielding to pending events, the busy pointer. QtHost serves people, ScriptedHost tests.

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ui
{

class Window;

// Something to print: a text, a picture file, or a grid of rows with a page header such as
// "||Page %d" (left, centre and right parts; %d is the page number).
struct PrintJob {
    enum class Kind { Text, Image, Grid };
    Kind kind = Kind::Text;
    QString title;
    QString text;
    QString imagePath; // a Windows path
    QList<QStringList> rows;
    QString header;
    QString fontName;
    int fontSize = 10;
    bool preview = false;
};

enum class Buttons { OK, OKCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Answer { OK, Cancel, Abort, Retry, Ignore, Yes, No };
enum class FileDialogKind { Open, Save, Folder };

struct FileDialogRequest {
    FileDialogKind kind = FileDialogKind::Open;
    QString title;
    QString filter; // "Label|*.a;*.b|Label 2|*.*", as the program writes it
    QString initialDir; // a Windows path, empty for the dialog's own choice
    QString initialName; // file name shown at first
};

class Host
{
public:
    virtual ~Host() = default;

    virtual Answer
    msgBox(const QString &text, Buttons buttons, Icon icon, const QString &title) = 0;
    // The typed text, or an empty text when the user cancels, as the input box gives it.
    virtual QString
    inputBox(const QString &prompt, const QString &title, const QString &defaultText) = 0;
    // A Windows path, or an empty text when cancelled.
    virtual QString fileDialog(const FileDialogRequest &request) = 0;

    virtual void show(Window &window, bool modal) = 0;
    virtual void close(Window &window) = 0;
    virtual void yield() = 0;
    virtual void setBusy(bool busy) = 0;

    virtual void beep() { }

    // Prints through the system's printer dialog (or a preview); false when the user cancels.
    virtual bool print(const PrintJob &job)
    {
        (void)job;
        return false;
    }

    // Shows a picture file in a window of its own, or full screen.
    virtual void showPicture(const QString &winPath, bool fullScreen)
    {
        (void)winPath;
        (void)fullScreen;
    }

    // The application's title, the caption of every message box.
    virtual QString appTitle() const = 0;
};

} // namespace ui
