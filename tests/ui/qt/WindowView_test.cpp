// The rendered window: a widget for every control, model changes painted, user edits carried to
// the model with its events, right-click popups and in-place label editing.

#include "EveryKindWindow.h"
#include "ui/qt/QtHost.h"
#include "ui/qt/WindowView.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testqt::settle;

class WindowViewTest : public testing::Test
{
protected:
    void SetUp() override
    {
        testqt::app();
        host.show(window, false);
        settle();
        view = host.view(window);
        ASSERT_NE(view, nullptr);
    }

    void TearDown() override
    {
        host.close(window);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <typename W> W *widget(const QString &name) const
    {
        return qobject_cast<W *>(view->controlWidget(name));
    }

    uiqt::QtHost host{u"Brakevan Max"_s};
    testqt::EveryKindWindow window;
    uiqt::WindowView *view = nullptr;
};

TEST_F(WindowViewTest, EveryControlHasAWidgetOfItsKind)
{
    const std::map<QString, const char *> classes{
        {u"Label1"_s, "QLabel"},           {u"Text1"_s, "QLineEdit"},
        {u"Frame1"_s, "QGroupBox"},        {u"Check1"_s, "QCheckBox"},
        {u"Option1(0)"_s, "QRadioButton"}, {u"Combo1"_s, "QComboBox"},
        {u"Drive1"_s, "QComboBox"},        {u"Tab1"_s, "QTabWidget"},
        {u"List1"_s, "QListWidget"},       {u"File1"_s, "QListWidget"},
        {u"Dir1"_s, "QListWidget"},        {u"Text2"_s, "QPlainTextEdit"},
        {u"RichText1"_s, "QTextEdit"},     {u"Grid1"_s, "QTableWidget"},
        {u"Tree1"_s, "QTreeWidget"},       {u"Slider1"_s, "QSlider"},
        {u"Progress1"_s, "QProgressBar"},  {u"Picture1"_s, "QLabel"},
        {u"Command1"_s, "QPushButton"},    {u"StatusBar1"_s, "QWidget"}};
    for (const ui::Window::Entry &entry : window.controls()) {
        SCOPED_TRACE(entry.name.toStdString());
        if (entry.control->kind() == u"Menu"_s) {
            EXPECT_NE(view->findChild<QAction *>(entry.name), nullptr);
            continue;
        }
        QWidget *made = view->controlWidget(entry.name);
        ASSERT_NE(made, nullptr);
        const auto it = classes.find(entry.name);
        if (it != classes.end()) {
            EXPECT_TRUE(made->inherits(it->second)) << made->metaObject()->className();
        }
    }
    // Controls placed in a frame or on a tab page sit inside it.
    EXPECT_TRUE(widget<QGroupBox>(u"Frame1"_s)->isAncestorOf(widget<QCheckBox>(u"Check1"_s)));
    EXPECT_TRUE(
        widget<QTabWidget>(u"Tab1"_s)->widget(2)->isAncestorOf(widget<QTableWidget>(u"Grid1"_s)));
    EXPECT_EQ(widget<QCheckBox>(u"Check1"_s)->geometry(), QRect(8, 20, 160, 19));
    EXPECT_EQ(view->windowTitle(), u"Every kind"_s);
}

TEST_F(WindowViewTest, ModelChangesArePaintedOnTheNextTurn)
{
    struct Case {
        const char *what;
        std::function<void()> change;
        std::function<bool()> shown;
    };

    const std::vector<Case> cases{
        {"caption",
         [&] { window.Label1.setCaption(u"Route:"_s); },
         [&] {
             return widget<QLabel>(u"Label1"_s)->text() == u"Route:"_s;
         }},
        {"text",
         [&] { window.Text1.setText(u"Woodhead"_s); },
         [&] {
             return widget<QLineEdit>(u"Text1"_s)->text() == u"Woodhead"_s;
         }},
        {"check",
         [&] { window.Check1.setValue(1); },
         [&] {
             return widget<QCheckBox>(u"Check1"_s)->isChecked();
         }},
        {"option group",
         [&] { window.Option1b.setValue(true); },
         [&] {
             return widget<QRadioButton>(u"Option1(1)"_s)->isChecked()
                 && !widget<QRadioButton>(u"Option1(0)"_s)->isChecked();
         }},
        {"list rows and selection",
         [&] {
             window.List1.addItem(u"Cornwall"_s);
             window.List1.setListIndex(3);
         },
         [&] {
             auto *l = widget<QListWidget>(u"List1"_s);
             return l->count() == 4 && l->item(3)->isSelected() && l->currentRow() == 3;
         }},
        {"list rows removed above and added below",
         [&] {
             window.List1.removeItem(0);
             window.List1.addItem(u"Tarka"_s);
         },
         [&] {
             auto *l = widget<QListWidget>(u"List1"_s);
             QStringList shown;
             for (int i = 0; i < l->count(); ++i) {
                 shown.append(l->item(i)->text());
             }
             return shown == window.List1.rows();
         }},
        {"combo row",
         [&] { window.Combo1.setListIndex(2); },
         [&] {
             return widget<QComboBox>(u"Combo1"_s)->currentText() == u"Autumn"_s;
         }},
        {"multi-line text",
         [&] { window.Text2.setText(u"a\r\nb\r\nc"_s); },
         [&] {
             return widget<QPlainTextEdit>(u"Text2"_s)->toPlainText() == u"a\nb\nc"_s;
         }},
        {"grid cell",
         [&] { window.Grid1.setTextMatrix(2, 2, u"Woodhead"_s); },
         [&] {
             return widget<QTableWidget>(u"Grid1"_s)->item(1, 1)->text() == u"Woodhead"_s;
         }},
        {"tree node",
         [&] {
             window.Tree1.add(u"nod2"_s, u"nod3"_s, u"Entity"_s);
             window.Tree1.setBold(u"nod2"_s, true);
         },
         [&] {
             auto *top = widget<QTreeWidget>(u"Tree1"_s)->topLevelItem(0);
             return top->child(0)->font(0).bold()
                 && top->child(0)->child(0)->text(0) == u"Entity"_s;
         }},
        {"tab",
         [&] { window.Tab1.setTab(1); },
         [&] {
             return widget<QTabWidget>(u"Tab1"_s)->currentIndex() == 1;
         }},
        {"progress",
         [&] { window.Progress1.setValue(75); },
         [&] {
             return widget<QProgressBar>(u"Progress1"_s)->value() == 75;
         }},
        {"hidden and disabled",
         [&] {
             window.Command2.setVisible(false);
             window.Command1.setEnabled(false);
         },
         [&] {
             return widget<QPushButton>(u"Command2"_s)->isHidden()
                 && !widget<QPushButton>(u"Command1"_s)->isEnabled();
         }},
        {"fore colour and bold",
         [&] {
             window.Label1.setForeColor(0x0000FF);
             window.Label1.setBold(true);
         },
         [&] {
             auto *l = widget<QLabel>(u"Label1"_s);
             return l->palette().color(QPalette::WindowText) == QColor(255, 0, 0)
                 && l->font().bold();
         }},
        {"status panel",
         [&] { window.StatusBar1.setPanelText(1, u"Converting"_s); },
         [&] {
             return view->controlWidget(u"StatusBar1"_s)->findChild<QLabel *>()->text()
                 == u"Converting"_s;
         }},
        {"menu item",
         [&] {
             window.mnuOpen.setEnabled(false);
             window.mnuOpen.setCaption(u"&Load"_s);
         },
         [&] {
             auto *a = view->findChild<QAction *>(u"mnuOpen"_s);
             return !a->isEnabled() && a->text() == u"&Load"_s;
         }},
        {"window caption",
         [&] { window.setCaption(u"Checking"_s); },
         [&] {
             return view->windowTitle() == u"Checking"_s;
         }},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        c.change();
        settle();
        EXPECT_TRUE(c.shown());
    }
}

TEST_F(WindowViewTest, RichTextShowsTheRunsColoursAndKeepsThemThroughTyping)
{
    auto *edit = widget<QTextEdit>(u"RichText1"_s);
    QTextCursor cursor(edit->document());
    cursor.setPosition(2);
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0, 0, 255));
    const QFontMetrics metrics(edit->font());
    EXPECT_EQ(metrics.horizontalAdvance(u"iiii"_s), metrics.horizontalAdvance(u"WWWW"_s));

    // Typing at the end replaces only that span: the blue tag stays blue in the model.
    edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(edit, u"!"_s);
    settle();
    EXPECT_EQ(window.RichText1.text(), u"<Route>text\r\n!"_s);
    ASSERT_FALSE(window.RichText1.runs().isEmpty());
    EXPECT_EQ(window.RichText1.runs().first().color, 0xFF0000);
    EXPECT_EQ(window.RichText1.selStart(), int(window.RichText1.text().size()));
}

TEST_F(WindowViewTest, UserEditsReachTheModelAndFireItsEvents)
{
    window.events.clear();
    auto *text = widget<QLineEdit>(u"Text1"_s);
    text->selectAll();
    QTest::keyClicks(text, u"Peak"_s);
    EXPECT_EQ(window.Text1.text(), u"Peak"_s);
    EXPECT_EQ(window.Text1.selStart(), 4);

    QTest::mouseClick(widget<QCheckBox>(u"Check1"_s), Qt::LeftButton);
    EXPECT_EQ(window.Check1.value(), 1);
    QTest::mouseClick(widget<QRadioButton>(u"Option1(1)"_s), Qt::LeftButton);
    EXPECT_TRUE(window.Option1b.value());

    auto *list = widget<QListWidget>(u"List1"_s);
    QTest::mouseClick(
        list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(window.List1.listIndex(), 1);

    window.Tab1.setTab(1);
    settle();
    auto *lines = widget<QPlainTextEdit>(u"Text2"_s);
    lines->moveCursor(QTextCursor::End);
    QTest::keyClick(lines, Qt::Key_Return);
    QTest::keyClicks(lines, u"third"_s);
    EXPECT_EQ(window.Text2.text(), u"first line\r\nsecond line\r\nthird"_s);

    window.Tab1.setTab(2);
    settle();
    auto *grid = widget<QTableWidget>(u"Grid1"_s);
    const QRect cell = grid->visualRect(grid->model()->index(1, 1));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(window.Grid1.row(), 2);
    EXPECT_EQ(window.Grid1.col(), 2);

    widget<QSlider>(u"Slider1"_s)->setValue(7);
    EXPECT_EQ(window.Slider1.value(), 7);
    widget<QTabWidget>(u"Tab1"_s)->setCurrentIndex(0);
    EXPECT_EQ(window.Tab1.tab(), 0);
    view->findChild<QAction *>(u"mnuOpen"_s)->trigger();
    settle();

    // Each user step fired its event once (typing over a selection replaces it with the first
    // key); the repaints that followed, and focus moving to the tree as a page hid, fired none.
    EXPECT_EQ(window.events,
              (QStringList{u"Text1_Change"_s,
                           u"Text1_Change"_s,
                           u"Text1_Change"_s,
                           u"Text1_Change"_s,
                           u"Check1_Click"_s,
                           u"Option1_Click"_s,
                           u"List1_Click"_s,
                           u"Tab1_Click"_s,
                           u"Text2_Change"_s,
                           u"Text2_Change"_s,
                           u"Text2_Change"_s,
                           u"Text2_Change"_s,
                           u"Text2_Change"_s,
                           u"Text2_Change"_s,
                           u"Tab1_Click"_s,
                           u"Grid1_Click"_s,
                           u"Slider1_Change"_s,
                           u"Tab1_Click"_s,
                           u"mnuOpen_Click"_s}));
}

TEST_F(WindowViewTest, RightClickOnANodeSelectsItAndOpensThePopupWhoseItemStartsLabelEditing)
{
    auto *tree = widget<QTreeWidget>(u"Tree1"_s);
    window.events.clear();
    QString popupTitle;
    testqt::onNextModal([&](QWidget &popup) {
        auto *menu = qobject_cast<QMenu *>(&popup);
        ASSERT_NE(menu, nullptr);
        popupTitle = menu->objectName();
        menu->findChild<QAction *>(u"mnuRename"_s)->trigger();
        menu->close();
    });
    const QRect node = tree->visualItemRect(tree->topLevelItem(0)->child(0));
    QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, node.center());
    EXPECT_EQ(popupTitle, u"mnuPopup"_s);
    EXPECT_EQ(window.Tree1.selectedKey(), u"nod2"_s);
    settle();

    // The editor opened on the node; Enter ends the edit through AfterLabelEdit.
    auto *editor = tree->findChild<QLineEdit *>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, u"Consist"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(window.Tree1.node(u"nod2"_s).text, u"Consist"_s);
    EXPECT_FALSE(window.Tree1.labelEditRequested());
    EXPECT_EQ(window.events,
              (QStringList{u"Tree1_NodeClick nod2"_s,
                           u"mnuRename_Click"_s,
                           u"Tree1_AfterLabelEdit nod2 Consist"_s}));
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), u"Consist"_s);
}

TEST_F(WindowViewTest, ACancelledLabelEditKeepsTheOldLabelInTheWidgetToo)
{
    auto *tree = widget<QTreeWidget>(u"Tree1"_s);
    window.Tree1.select(u"nod2"_s);
    window.Tree1.startLabelEdit();
    settle();
    auto *editor = tree->findChild<QLineEdit *>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, u"two words"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_EQ(window.Tree1.node(u"nod2"_s).text, u"Record"_s);
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), u"Record"_s);
}

TEST_F(WindowViewTest, APictureShowsItsFileAndNothingWhenTheFileIsMissing)
{
    QTemporaryDir dir;
    QImage image(32, 24, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    const QString path = dir.filePath(u"loading.png"_s);
    ASSERT_TRUE(image.save(path));
    window.Picture1.setPicture(path);
    settle();
    auto *picture = widget<QLabel>(u"Picture1"_s);
    EXPECT_EQ(picture->pixmap().size(), QSize(32, 24));
    window.Picture1.setPicture(dir.filePath(u"missing.png"_s));
    settle();
    EXPECT_TRUE(picture->pixmap().isNull());
}

TEST_F(WindowViewTest, KeyPressHandlersCanSwallowOrReplaceTheKey)
{
    window.Text1.setText({});
    settle();
    window.Text1.onKeyPress([](int &key) {
        if (key == '1') {
            key = 0;
        } else if (key >= 'a' && key <= 'z') {
            key -= 'a' - 'A';
        }
    });
    QTest::keyClicks(widget<QLineEdit>(u"Text1"_s), u"ab1c"_s);
    EXPECT_EQ(window.Text1.text(), u"ABC"_s);
}

TEST_F(WindowViewTest, MeasuresInTwipsFollowTheModelAndTheUser)
{
    window.setGeometry(1500, 750, 12000, 12000);
    settle();
    EXPECT_EQ(view->size(), QSize(800, 800));
    EXPECT_EQ(view->pos(), QPoint(100, 50));
    view->resize(900, 820);
    EXPECT_EQ(window.width(), 13500);
    EXPECT_EQ(window.height(), 12300);
    EXPECT_EQ(window.left(), 1500);
}

TEST_F(WindowViewTest, TheWindowPaintsAsADesktopProgram)
{
    const QPixmap picture = view->grab();
    EXPECT_EQ(picture.size(), view->size());
    // A picture of the window to look at by eye, when asked for.
    const QString shot = qEnvironmentVariable("BV_SCREENSHOT");
    if (!shot.isEmpty()) {
        EXPECT_TRUE(picture.save(shot));
    }
}
