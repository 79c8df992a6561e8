#include "authoring/fEZPrint.h"

namespace authoring
{

fEZPrint::fEZPrint(core::Session &session, ui::Forms &forms)
    : Window(QStringLiteral("fEZPrint"))
    , m_session(session)
    , m_forms(forms)
{
    setCaption(QStringLiteral("Print Preview"));
    add(QStringLiteral("Command1"), Command1).setCaption(QStringLiteral("Pre&view"));
    add(QStringLiteral("Command2"), Command2).setCaption(QStringLiteral("&Exit"));
    add(QStringLiteral("Command5"), Command5).setCaption(QStringLiteral("Cancel"));
    add(QStringLiteral("Label1"), Label1);
    Command1.onClick([this] { Command1_Click(); });
    Command2.onClick([this] { Command2_Click(); });
    Command5.onClick([this] { Command5_Click(); });
    Command1.setVisible(false);
    Command2.setVisible(false);
}

// The caller sets the print type, report kind and grid between loading and showing the window, so
// the preview starts when it is first shown.
void fEZPrint::Form_Activate()
{
    if (m_started) {
        return;
    }
    m_started = true;
    Command1_Click();
}

void fEZPrint::Command1_Click()
{
    Command1.setVisible(false);
    ui::PrintJob job;
    job.kind = ui::PrintJob::Kind::Grid;
    job.title = caption();
    job.fontName = QStringLiteral("MS Serif");
    job.fontSize = 7;
    job.preview = PrintType == 1;
    if (ReportKind == GridReport && Source != nullptr) {
        job.fontSize = 8;
        job.header = QStringLiteral("||Page %d");
        for (int row = 0; row < Source->rows(); ++row) {
            job.rows.append(Source->rowCells(row));
        }
    }
    Label1.setCaption(QString());
    if (m_cancel) {
        Command5.setVisible(false);
        return;
    }
    m_session.host.print(job);
    Command2.setVisible(true);
}

void fEZPrint::Command2_Click()
{
    m_forms.unload(*this);
}

void fEZPrint::Command5_Click()
{
    m_cancel = true;
    Command5.setVisible(false);
}

} // namespace authoring
