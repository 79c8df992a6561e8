// The host for people: modal windows that end when a handler hides them, the run-time error box
// for a failure no trap caught, the close box going through the unload events, the dialogs'
// answers and the filter and path forms they take.

#include "EveryKindWindow.h"
#include "core/platform/Failure.h"
#include "ui/qt/FileFilter.h"
#include "ui/qt/QtHost.h"
#include "ui/qt/WindowView.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testqt::settle;

namespace
{

// A small dialog: OK hides it, Fail raises a failure that nothing traps.
class dlgAsk : public ui::Window
{
public:
    explicit dlgAsk(ui::Host &host)
        : Window(u"dlgAsk"_s)
        , m_host(host)
    {
        setCaption(u"Ask"_s);
        add(u"Text1"_s, Text1);
        add(u"cmdOK"_s, cmdOK).setCaption(u"OK"_s);
        cmdOK.onClick([this] { m_host.close(*this); });
        add(u"cmdFail"_s, cmdFail).setCaption(u"Fail"_s);
        cmdFail.onClick([] { platform::raise(platform::FileNotFound); });
    }

    void Form_Activate() override { ++activations; }

    void Form_QueryUnload(bool &cancel) override
    {
        ++queries;
        cancel = refuseToClose;
    }

    ui::TextBox Text1;
    ui::Button cmdOK, cmdFail;
    int activations = 0;
    int queries = 0;
    bool refuseToClose = false;

private:
    ui::Host &m_host;
};

QPushButton *buttonOf(uiqt::QtHost &host, const ui::Window &window, const QString &name)
{
    uiqt::WindowView *view = host.view(window);
    return view ? qobject_cast<QPushButton *>(view->controlWidget(name)) : nullptr;
}

} // namespace

class QtHostTest : public testing::Test
{
protected:
    void SetUp() override { testqt::app(); }

    void TearDown() override
    {
        host.close(dialog);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    uiqt::QtHost host{u"Brakevan Max"_s};
    dlgAsk dialog{host};
};

TEST_F(QtHostTest, AModalShowReturnsWhenTheWindowsHandlerHidesIt)
{
    QTimer::singleShot(
        50, [&] { QTest::mouseClick(buttonOf(host, dialog, u"cmdOK"_s), Qt::LeftButton); });
    host.show(dialog, true);
    EXPECT_EQ(host.view(dialog), nullptr);
    EXPECT_EQ(dialog.activations, 1);

    // The window shows again, rendered anew, after it was closed.
    QTimer::singleShot(
        50, [&] { QTest::mouseClick(buttonOf(host, dialog, u"cmdOK"_s), Qt::LeftButton); });
    host.show(dialog, true);
    EXPECT_EQ(dialog.activations, 2);
}

TEST_F(QtHostTest, AFailureNoTrapCaughtShowsTheRuntimeErrorBoxAndTheProgramGoesOn)
{
    host.show(dialog, false);
    settle();
    QString title;
    QString text;
    testqt::onNextModal([&](QWidget &modal) {
        auto *box = qobject_cast<QMessageBox *>(&modal);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    QTest::mouseClick(buttonOf(host, dialog, u"cmdFail"_s), Qt::LeftButton);
    EXPECT_EQ(title, u"Brakevan Max"_s);
    EXPECT_EQ(text, u"Run-time error '53':\nFile not found"_s);
    EXPECT_NE(host.view(dialog), nullptr);
}

TEST_F(QtHostTest, TheCloseBoxRunsTheUnloadEventsWhichMayKeepTheWindow)
{
    host.show(dialog, false);
    settle();
    dialog.refuseToClose = true;
    host.view(dialog)->close();
    EXPECT_EQ(dialog.queries, 1);
    ASSERT_NE(host.view(dialog), nullptr);
    EXPECT_TRUE(host.view(dialog)->isVisible());

    dialog.refuseToClose = false;
    host.view(dialog)->close();
    EXPECT_EQ(host.view(dialog), nullptr);

    // A program that hands in its own unload gets the request instead.
    host.show(dialog, false);
    QStringList asked;
    host.setCloseRequest([&](ui::Window &w) { asked.append(w.name()); });
    host.view(dialog)->close();
    EXPECT_EQ(asked, QStringList{u"dlgAsk"_s});
}

TEST_F(QtHostTest, MessageBoxesGiveTheButtonPressedAndTheAppTitleWhenNoneIsGiven)
{
    struct Case {
        ui::Buttons buttons;
        QMessageBox::StandardButton press;
        ui::Answer expected;
    };

    const std::vector<Case> cases{
        {ui::Buttons::YesNo, QMessageBox::No, ui::Answer::No},
        {ui::Buttons::YesNoCancel, QMessageBox::Cancel, ui::Answer::Cancel},
        {ui::Buttons::AbortRetryIgnore, QMessageBox::Ignore, ui::Answer::Ignore},
        {ui::Buttons::OKCancel, QMessageBox::Ok, ui::Answer::OK}};
    for (const Case &c : cases) {
        SCOPED_TRACE(int(c.expected));
        QString title;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        testqt::onNextModal([&](QWidget &modal) {
            auto *box = qobject_cast<QMessageBox *>(&modal);
            title = box->windowTitle();
            icon = box->icon();
            box->button(c.press)->click();
        });
        EXPECT_EQ(host.msgBox(u"Delete this node?"_s, c.buttons, ui::Icon::Question, {}),
                  c.expected);
        EXPECT_EQ(title, u"Brakevan Max"_s);
        EXPECT_EQ(icon, QMessageBox::Question);
    }
}

TEST_F(QtHostTest, AnInputBoxGivesTheTypedTextOrNothingWhenCancelled)
{
    testqt::onNextModal([](QWidget &modal) {
        auto *input = qobject_cast<QInputDialog *>(&modal);
        input->setTextValue(u"MyRoute"_s);
        input->accept();
    });
    EXPECT_EQ(host.inputBox(u"Name:"_s, u"Clone"_s, u"Route"_s), u"MyRoute"_s);
    testqt::onNextModal([](QWidget &modal) { qobject_cast<QInputDialog *>(&modal)->reject(); });
    EXPECT_EQ(host.inputBox(u"Name:"_s, u"Clone"_s, u"Route"_s), QString());
}

TEST_F(QtHostTest, AFileDialogTakesAndGivesWindowsPaths)
{
    QTemporaryDir root;
    QDir(root.path()).mkpath(u"Content"_s);
    QFile file(root.filePath(u"Content/Routes.XML"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    auto toHost = [&](const QString &win) {
        return root.path() + u"/"_s + win.mid(3).replace(u"\\"_s, u"/"_s);
    };
    auto toWindows = [&](const QString &path) {
        return u"Z:\\"_s + QDir(root.path()).relativeFilePath(path).replace(u"/"_s, u"\\"_s);
    };
    uiqt::QtHost mapped(u"Brakevan Max"_s, toHost, toWindows);
    QString folder;
    QStringList filters;
    testqt::onNextModal([&](QWidget &modal) {
        auto *picker = qobject_cast<QFileDialog *>(&modal);
        ASSERT_NE(picker, nullptr);
        folder = picker->directory().absolutePath();
        filters = picker->nameFilters();
        // Typed, as a person would: the dialog may not have read the folder yet.
        picker->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"Routes.XML"_s);
        static_cast<QDialog *>(picker)->accept();
    });
    const QString chosen = mapped.fileDialog({ui::FileDialogKind::Open,
                                              u"Open"_s,
                                              u"XML files (*.xml)|*.xml|All files|*.*"_s,
                                              u"C:\\Content"_s,
                                              {}});
    EXPECT_EQ(folder, QDir(root.filePath(u"Content"_s)).absolutePath());
    EXPECT_EQ(filters, (QStringList{u"XML files (*.xml)"_s, u"All files (*)"_s}));
    EXPECT_EQ(chosen, u"Z:\\Content\\Routes.XML"_s);

    testqt::onNextModal([](QWidget &modal) { qobject_cast<QFileDialog *>(&modal)->reject(); });
    EXPECT_EQ(mapped.fileDialog({ui::FileDialogKind::Save, {}, {}, {}, u"new.xml"_s}), QString());
}

TEST(FileFilter, ProgramFiltersBecomeQtFilters)
{
    const std::vector<std::pair<QString, QString>> cases{
        {u"Bin files|*.bin;*.BIN|All files|*.*"_s, u"Bin files (*.bin *.BIN);;All files (*)"_s},
        {u"Textures (*.TgPcDx)|*.TgPcDx"_s, u"Textures (*.TgPcDx)"_s},
        {u"*.xml"_s, u"(*.xml)"_s},
        {u"Odd|"_s, u"Odd (*)"_s},
        {QString(), QString()},
    };
    for (const auto &[program, qt] : cases) {
        SCOPED_TRACE(program.toStdString());
        EXPECT_EQ(uiqt::toQtFilter(program), qt);
    }
}
