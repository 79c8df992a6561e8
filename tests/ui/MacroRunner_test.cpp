// A journey through a small window driven by a macro: prompts answered from the macro, events in
// the transcript, and the failures a macro author meets.

#include "ui/Button.h"
#include "ui/Forms.h"
#include "ui/ListBox.h"
#include "ui/MacroRunner.h"
#include "ui/Menu.h"
#include "ui/ScriptedHost.h"
#include "ui/TextBox.h"
#include "ui/Window.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

class frmPick : public ui::Window
{
public:
    explicit frmPick(ui::Forms &forms)
        : Window(u"frmPick"_s)
        , m_forms(forms)
    {
        setCaption(u"Pick"_s);
        add(u"List1"_s, List1);
        add(u"Text1"_s, Text1);
        add(u"Command1"_s, Command1).onClick([this] { Command1_Click(); });
        addMenu(u"mnuFile"_s, mnuFile, {}, u"File"_s);
        addMenu(u"mnuAdd"_s, mnuAdd, u"mnuFile"_s, u"Add"_s).onClick([this] { mnuAdd_Click(); });
        List1.onClick([this] { Text1.setText(List1.list(List1.listIndex())); });
    }

    ui::ListBox List1;
    ui::TextBox Text1;
    ui::Button Command1;
    ui::Menu mnuFile;
    ui::Menu mnuAdd;

private:
    void Command1_Click()
    {
        ui::Host &host = m_forms.host();
        if (host.msgBox(u"Remove \"all\"?\r\nReally"_s,
                        ui::Buttons::YesNo,
                        ui::Icon::Question,
                        host.appTitle())
            == ui::Answer::Yes) {
            List1.clear();
        }
    }

    void mnuAdd_Click()
    {
        const QString name = m_forms.host().inputBox(u"Name:"_s, u"Add"_s, u"x"_s);
        if (!name.isEmpty()) {
            List1.addItem(name);
        }
    }

    ui::Forms &m_forms;
};

class MacroRunnerTest : public testing::Test
{
protected:
    MacroRunnerTest()
    {
        forms.define<frmPick>([this] { return std::make_unique<frmPick>(forms); });
        forms.show<frmPick>();
    }

    int play(const QString &macro)
    {
        ui::MacroRunner runner(forms, host, u"frmPick"_s);
        return runner.run(macro.split(u'\n'));
    }

    ui::ScriptedHost host;
    ui::Forms forms{host};
};

} // namespace

TEST_F(MacroRunnerTest, AJourneyWritesPromptsAnswersAndDumps)
{
    const int code = play(uR"(input first
menu mnuAdd
input
menu mnuAdd
input second
menu frmPick.mnuAdd
select frmPick.List1 1
dump frmPick.Text1
dump frmPick.List1
answer No
click frmPick.Command1
answer Yes
click frmPick.Command1
dump frmPick.List1
close frmPick)"_s);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(host.transcript(),
              (QStringList{
                  u"show frmPick \"Pick\""_s,
                  u"inputbox \"Add\" \"Name:\" \"x\" -> \"first\""_s,
                  u"inputbox \"Add\" \"Name:\" \"x\" -> \"\""_s,
                  u"inputbox \"Add\" \"Name:\" \"x\" -> \"second\""_s,
                  u"dump frmPick.Text1 = \"second\""_s,
                  u"dump frmPick.List1[0] = \"first\""_s,
                  u"dump frmPick.List1[1] = \"second\" *"_s,
                  u"msgbox question \"Brakevan Max\" \"Remove \\\"all\\\"?\\nReally\" -> No"_s,
                  u"msgbox question \"Brakevan Max\" \"Remove \\\"all\\\"?\\nReally\" -> Yes"_s,
                  u"dump frmPick.List1 (no rows)"_s,
                  u"close frmPick"_s,
              }));
}

TEST_F(MacroRunnerTest, BadLinesStopTheRunWithTheirLineNumber)
{
    struct Case {
        QString macro;
        QString last;
    };

    const Case cases[] = {
        {u"dump frmPick.List9"_s, u"error line 1: no control frmPick.List9"_s},
        {u"# comment\n\nclick frmNone.Command1"_s, u"error line 3: no control frmNone.Command1"_s},
        {u"frobnicate frmPick.List1"_s, u"error line 1: unknown action frobnicate"_s},
        {u"select frmPick.List1 4"_s, u"error line 1: run-time error 9: Subscript out of range"_s},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.macro.toStdString());
        host.takeTranscript();
        EXPECT_EQ(play(c.macro), 2);
        EXPECT_EQ(host.transcript().last(), c.last);
    }
}

TEST_F(MacroRunnerTest, AnUnansweredPromptStopsTheRun)
{
    EXPECT_EQ(play(u"click frmPick.Command1"_s), 2);
    EXPECT_EQ(host.transcript().last(),
              u"error line 1: no answer for msgbox question \"Brakevan Max\" "
              u"\"Remove \\\"all\\\"?\\nReally\""_s);
}
