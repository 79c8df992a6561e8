#pragma once
// A window with one control of every kind, for the view's tests, and the small helpers they share:
// the application object, waiting for the window system, answering a modal box from a timer.

#include "ui/Button.h"
#include "ui/CheckBox.h"
#include "ui/FileList.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/Menu.h"
#include "ui/OptionButton.h"
#include "ui/PictureBox.h"
#include "ui/ProgressBar.h"
#include "ui/RichText.h"
#include "ui/StatusBar.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/TreeView.h"
#include "ui/Window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <memory>
#include <ostream>

// Texts in failure messages as text, not as code units.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '{' << texts.join(QStringLiteral(", ")).toStdString() << '}';
}

namespace testqt
{

using namespace Qt::StringLiterals;

inline QApplication &app()
{
    static int argc = 1;
    static char name[] = "bv_uiqt_tests";
    static char *argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static QApplication *application = new QApplication(argc, argv);
    return *application;
}

// Lets queued repaints and posted events run.
inline void settle()
{
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
    }
}

// Runs an action on the next modal box or popup menu that opens, polling from a timer. A busy
// machine may take seconds to show a file dialog; the timer gives up only after the test's limit.
inline void onNextModal(std::function<void(QWidget &)> action)
{
    auto *timer = new QTimer;
    auto clock = std::make_shared<QElapsedTimer>();
    clock->start();
    QObject::connect(timer, &QTimer::timeout, [timer, clock, action] {
        QWidget *modal = QApplication::activePopupWidget();
        if (!modal) {
            modal = QApplication::activeModalWidget();
        }
        if (modal || clock->elapsed() > 20000) {
            timer->stop();
            timer->deleteLater();
            if (modal) {
                action(*modal);
            }
        }
    });
    timer->start(10);
}

class EveryKindWindow : public ui::Window
{
public:
    EveryKindWindow()
        : Window(u"frmEveryKind"_s)
    {
        setCaption(u"Every kind"_s);
        setGeometry(0, 0, 9600, 7200);
        addMenu(u"mnuFile"_s, mnuFile, {}, u"&File"_s);
        addMenu(u"mnuOpen"_s, mnuOpen, u"mnuFile"_s, u"&Open..."_s).onClick([this] {
            log(u"mnuOpen_Click"_s);
        });
        addMenu(u"mnuSep"_s, mnuSep, u"mnuFile"_s, u"-"_s);
        addMenu(u"mnuQuit"_s, mnuQuit, u"mnuFile"_s, u"E&xit"_s);
        addMenu(u"mnuPopup"_s, mnuPopup, {}, u"Node"_s);
        addMenu(u"mnuRename"_s, mnuRename, u"mnuPopup"_s, u"Rename Node"_s).onClick([this] {
            log(u"mnuRename_Click"_s);
            Tree1.startLabelEdit();
        });
        mnuPopup.setVisible(false);

        add(u"Label1"_s, Label1).setCaption(u"Name:"_s);
        add(u"Text1"_s, Text1).onChange([this] { log(u"Text1_Change"_s); });
        add(u"Frame1"_s, Frame1).setCaption(u"Options"_s);
        add(u"Check1"_s, Check1).onClick([this] { log(u"Check1_Click"_s); });
        Check1.setCaption(u"Keep backup"_s);
        add(u"Option1(0)"_s, Option1a).setCaption(u"Fast"_s);
        add(u"Option1(1)"_s, Option1b).onClick([this] { log(u"Option1_Click"_s); });
        Option1b.setCaption(u"Thorough"_s);
        place(u"Check1"_s, {u"Frame1"_s, -1, 120, 300, 2400, 285});
        place(u"Option1(0)"_s, {u"Frame1"_s, -1, 120, 600, 2400, 285});
        place(u"Option1(1)"_s, {u"Frame1"_s, -1, 120, 900, 2400, 285});
        add(u"Combo1"_s, Combo1).onClick([this] { log(u"Combo1_Click"_s); });
        add(u"Drive1"_s, Drive1).onChange([this] { log(u"Drive1_Change"_s); });
        add(u"Tab1"_s, Tab1).onClick([this] { log(u"Tab1_Click"_s); });
        Tab1.setTabCaptions({u"Lists"_s, u"Text"_s, u"Grid"_s});
        add(u"List1"_s, List1).onClick([this] { log(u"List1_Click"_s); });
        add(u"File1"_s, File1);
        add(u"Dir1"_s, Dir1);
        place(u"List1"_s, {u"Tab1"_s, 0});
        place(u"File1"_s, {u"Tab1"_s, 0});
        place(u"Dir1"_s, {u"Tab1"_s, 0});
        add(u"Text2"_s, Text2).onChange([this] { log(u"Text2_Change"_s); });
        Text2.setMultiLine(true);
        add(u"RichText1"_s, RichText1);
        place(u"Text2"_s, {u"Tab1"_s, 1});
        place(u"RichText1"_s, {u"Tab1"_s, 1});
        add(u"Grid1"_s, Grid1).onClick([this] { log(u"Grid1_Click"_s); });
        place(u"Grid1"_s, {u"Tab1"_s, 2});
        add(u"Tree1"_s, Tree1).onRightClick([this] { mnuPopup.requestPopup(); });
        Tree1.onNodeClick([this](const QString &key) { log(u"Tree1_NodeClick "_s + key); });
        Tree1.onAfterLabelEdit([this](const QString &key, QString &text, bool &cancel) {
            log(u"Tree1_AfterLabelEdit "_s + key + u" "_s + text);
            cancel = text.contains(QLatin1Char(' '));
        });
        add(u"Slider1"_s, Slider1).onChange([this] { log(u"Slider1_Change"_s); });
        add(u"Progress1"_s, Progress1);
        add(u"Picture1"_s, Picture1);
        place(u"Picture1"_s, {{}, -1, -1, -1, 960, 960});
        add(u"Command1"_s, Command1).setCaption(u"&Check"_s);
        add(u"Command2"_s, Command2).setCaption(u"Close"_s);
        add(u"StatusBar1"_s, StatusBar1);
        StatusBar1.addPanel({u"msg"_s, u"Ready"_s, ui::StatusPanel::Style::Text, true, 0});
        fill();
    }

    void log(const QString &event) { events.append(event); }

    QStringList events;

    ui::Menu mnuFile, mnuOpen, mnuSep, mnuQuit, mnuPopup, mnuRename;
    ui::Label Label1;
    ui::TextBox Text1, Text2;
    ui::Frame Frame1;
    ui::CheckBox Check1;
    ui::OptionButton Option1a, Option1b;
    ui::ComboBox Combo1;
    ui::DriveList Drive1;
    ui::TabStrip Tab1;
    ui::ListBox List1;
    ui::FileList File1;
    ui::DirList Dir1;
    ui::RichText RichText1;
    ui::Grid Grid1;
    ui::TreeView Tree1;
    ui::Slider Slider1;
    ui::ProgressBar Progress1;
    ui::PictureBox Picture1;
    ui::Button Command1, Command2;
    ui::StatusBar StatusBar1;

private:
    void fill()
    {
        Text1.setText(u"Castle Line"_s);
        Combo1.setRows({u"Spring"_s, u"Summer"_s, u"Autumn"_s, u"Winter"_s});
        Drive1.setRows({u"c: [System]"_s, u"z: [Root]"_s});
        Drive1.setDrive(u"c:"_s);
        List1.setRows({u"Bristol - Exeter"_s, u"Settle - Carlisle"_s, u"Woodhead"_s});
        auto lister = [](const QString &, const QString &pattern) {
            return pattern == u"*"_s ? QStringList{u"Content"_s, u"Assets"_s}
                                     : QStringList{u"Scenario.bin"_s, u"Routes.xml"_s};
        };
        File1.setLister(lister);
        File1.setPath(u"Z:\\game"_s);
        Dir1.setLister(lister);
        Dir1.setPath(u"Z:\\game"_s);
        Text2.setText(u"first line\r\nsecond line"_s);
        RichText1.setTextRtf(
            u"{\\rtf1{\\colortbl;\\red0\\green0\\blue255;}\\cf1 <Route>\\cf0 text\\par}"_s);
        Grid1.setCols(3);
        Grid1.setRows(1);
        Grid1.setTextMatrix(0, 1, u"Provider"_s);
        Grid1.setTextMatrix(0, 2, u"Product"_s);
        Grid1.addItem(u"1\tKuJu\tRailSimulator"_s);
        Grid1.addItem(u"2\tRSC\tCastleLine"_s);
        Tree1.add({}, u"nod1"_s, u"cDocument"_s);
        Tree1.add(u"nod1"_s, u"nod2"_s, u"Record"_s);
        Tree1.setBold(u"nod1"_s, true);
        Tree1.setExpanded(u"nod1"_s, true);
        Slider1.setRange(0, 10);
        Progress1.setValue(40);
    }
};

} // namespace testqt
