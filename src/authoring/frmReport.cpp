#include "authoring/frmReport.h"

#include "core/Services.h"
#include "core/platform/Cp1252.h"

namespace authoring
{

frmReport::frmReport(core::Session &session, ui::Forms &forms)
    : Window(QStringLiteral("frmReport"))
    , m_session(session)
    , m_forms(forms)
{
    setCaption(QStringLiteral("Report:-"));
    setGeometry(0, 0, 10800, 7200);
    add(QStringLiteral("List1"), List1);
    add(QStringLiteral("RTB1"), RTB1);
    add(QStringLiteral("Command1"), Command1).setCaption(QStringLiteral("Exit"));
    add(QStringLiteral("Command2"), Command2).setCaption(QStringLiteral("Save"));
    add(QStringLiteral("Command3"), Command3).setCaption(QStringLiteral("Print"));
    add(QStringLiteral("Command4"), Command4).setCaption(QStringLiteral("Remove Dupes from List"));
    Command1.onClick([this] { Command1_Click(); });
    Command2.onClick([this] { Command2_Click(); });
    Command3.onClick([this] { Command3_Click(); });
    Command4.onClick([this] { Command4_Click(); });
}

// The window is hidden, not unloaded: its rows stay for the next caller.
void frmReport::Command1_Click()
{
    m_forms.hide(*this);
}

void frmReport::Command2_Click()
{
    QString reports = m_session.appFolder + QStringLiteral("\\Reports");
    ui::FileDialogRequest request;
    request.kind = ui::FileDialogKind::Save;
    request.title = QStringLiteral("Save Object File");
    request.filter = QStringLiteral("Text Files (*.txt)|*.txt");
    request.initialDir = m_session.services.FolderExists(reports) ? reports : QString();
    const QString name = m_session.host.fileDialog(request);
    if (name.isEmpty()) {
        return;
    }
    QString text = RTB1.text();
    if (text.isEmpty()) {
        for (const QString &row : List1.rows()) {
            text += row + QStringLiteral("\r\n");
        }
    }
    m_session.services.WriteBinary(name, platform::Cp1252::encode(text));
}

void frmReport::Command3_Click()
{
    if (RTB1.selLength() == 0) {
        RTB1.setSelection(0, int(RTB1.text().size()));
    }
    ui::PrintJob job;
    job.kind = ui::PrintJob::Kind::Text;
    job.title = caption();
    job.text = RTB1.selText();
    m_session.host.print(job);
}

void frmReport::Command4_Click()
{
    for (int row = List1.listCount() - 1; row >= 1; --row) {
        if (List1.list(row) == List1.list(row - 1)) {
            List1.removeItem(row);
        }
    }
}

} // namespace authoring
