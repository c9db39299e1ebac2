#include "help/help_window.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeWidgetItemIterator>
#include <QWheelEvent>
#include <algorithm>

#include "help/help_commands.h"
#include "help/help_viewer.h"
#include "shell/frm_hand_main.h"
#include "shell/tool_form.h"
#include "tests/help/help_support.h"
#include "tests/support/spoken_tree.h"

namespace halvane {
namespace {

class HelpViewing : public HelpWindowTest {};
class HelpLinks : public HelpWindowTest {};
class HelpFinding : public HelpWindowTest {};
class HelpSizes : public HelpWindowTest {};
class HelpBesideTools : public HelpWindowTest {};

TEST_F(HelpViewing, NothingIsMadeBeforeTheFirstCommand) {
  const auto main = IdleMainWindow();
  EXPECT_EQ(viewer.window(), nullptr);
}

TEST_F(HelpViewing, ContentsComeWithTheFirstPageAndTheFocusInTheTree) {
  ShowContents();
  EXPECT_EQ(window().windowTitle(), "A little help");
  EXPECT_EQ(Topic(), "home.htm");
  EXPECT_TRUE(tree().hasFocus());
  EXPECT_EQ(CurrentLine(), "Home & more");
  EXPECT_TRUE(page().toPlainText().startsWith("A little help\nFirst page."));
}

TEST_F(HelpViewing, ContentsLeaveThePageThatIsOnView) {
  Show("sub/two.htm");
  ShowContents();
  EXPECT_EQ(Topic(), "sub/two.htm");
  EXPECT_TRUE(tree().hasFocus());
}

TEST_F(HelpViewing, ASecondCommandReplacesTheTopicInTheOpenWindow) {
  HelpWindow* first = &Show("home.htm");
  HelpWindow* second = &Show("Three (with a blank)2.htm");
  EXPECT_EQ(first, second);
  EXPECT_EQ(Topic(), "Three (with a blank)2.htm");
  EXPECT_TRUE(page().toPlainText().contains("Written in UTF-8: ≤ 30°, Łódź."));
  EXPECT_TRUE(page().hasFocus());
}

TEST_F(HelpViewing, AMinimisedWindowComesBack) {
  Show("home.htm").showMinimized();
  Show("home.htm");
  EXPECT_FALSE(window().isMinimized());
  EXPECT_TRUE(window().isVisible());
}

TEST_F(HelpViewing, InANarrowWindowTheContentsGiveWayToThePage) {
  platform.SetAvailableArea({0, 0, 440, 384});
  Show("home.htm");
  EXPECT_LE(window().width(), 440);
  const int columns = 40 * page().fontMetrics().averageCharWidth();
  EXPECT_GE(page().width(), std::min(columns, window().width() / 2));
  EXPECT_GT(tree().width(), 100);
}

TEST_F(HelpViewing, TheTreeFollowsThePageAndItsAnchor) {
  Show("SUB\\TWO.HTM");
  EXPECT_EQ(CurrentLine(), "Second");
  Show("sub/two.htm#end");
  EXPECT_EQ(CurrentLine(), "Its end");
  Show("sub/two.htm#elsewhere");
  EXPECT_EQ(CurrentLine(), "Second");
  Show("none.htm");
  EXPECT_EQ(CurrentLine(), "");
}

TEST_F(HelpViewing, EachLineOfTheTreeIsShownWhole) {
  ShowContents();
  for (QTreeWidgetItemIterator at(&tree()); *at != nullptr; ++at) {
    const QRect line = tree().visualItemRect(*at);
    EXPECT_GT(line.width(), tree().fontMetrics().horizontalAdvance((*at)->text(0)));
    EXPECT_GT(line.height(), tree().fontMetrics().height());
  }
}

TEST_F(HelpViewing, TheTreeIsWalkedWithTheKeys) {
  ShowContents();
  Press(Qt::Key_Down);
  EXPECT_EQ(CurrentLine(), "Chapter");
  EXPECT_EQ(Topic(), "home.htm");
  Press(Qt::Key_Down);
  EXPECT_EQ(Topic(), "sub/two.htm");
  Press(Qt::Key_F6);
  EXPECT_TRUE(page().hasFocus());
  Press(Qt::Key_F6);
  EXPECT_TRUE(tree().hasFocus());
}

TEST_F(HelpViewing, APageIsScrolledWithTheKeys) {
  Show("sub/two.htm");
  Press(Qt::Key_Down);
  const int oneLine = page().verticalScrollBar()->value();
  EXPECT_GT(oneLine, 0);
  Press(Qt::Key_PageDown);
  EXPECT_GT(page().verticalScrollBar()->value(), 5 * oneLine);
}

TEST_F(HelpViewing, ATopicWithAnAnchorIsScrolledToIt) {
  Show("sub/two.htm");
  EXPECT_EQ(page().verticalScrollBar()->value(), 0);
  Show("sub/two.htm#end");
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
}

TEST_F(HelpViewing, Windows1252IsReadable) {
  Show("sub/two.htm");
  EXPECT_TRUE(page().toPlainText().contains("Said “in Windows-1252”: 30°, café."));
}

TEST_F(HelpViewing, BackForwardAndHome) {
  Show("home.htm");
  EXPECT_FALSE(Find<QAction>(window(), "HelpBack").isEnabled());
  Show("sub/two.htm");
  Show("Three (with a blank)2.htm");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic(), "sub/two.htm");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic(), "home.htm");
  EXPECT_FALSE(Find<QAction>(window(), "HelpBack").isEnabled());
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Topic(), "sub/two.htm");
  EXPECT_EQ(CurrentLine(), "Second");
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Topic(), "home.htm");
}

TEST_F(HelpViewing, AnotherFileReplacesAllOfTheFirst) {
  const QString other = File("other.chm");
  ASSERT_TRUE(QFile::copy(HALVANE_HELP_DATA "/large_entry.chm", other));
  Show("a.htm");
  EXPECT_TRUE(page().toPlainText().contains("not in the help file"));
  viewer.Show(nullptr, other + ">main", HelpCommand::DisplayTopic, "a.htm");
  EXPECT_EQ(page().toPlainText().trimmed(), "a");
  EXPECT_EQ(window().windowTitle(), "Big - Help");
  EXPECT_FALSE(tree().isVisible());
  EXPECT_FALSE(Find<QAction>(window(), "HelpBack").isEnabled());
}

TEST_F(HelpViewing, OnlyTheNameOfAHelpWindowIsTakenOffTheFile) {
  ASSERT_TRUE(QDir(File("")).mkdir("a>b"));
  const QString file = File("a>b/c.CHM");
  ASSERT_TRUE(QFile::copy(HALVANE_HELP_DATA "/large_entry.chm", file));
  for (const char* name : {"", ">main", ">chm"}) {
    viewer.Show(nullptr, file + name, HelpCommand::DisplayTopic, "a.htm");
    EXPECT_EQ(page().toPlainText().trimmed(), "a") << name;
  }
}

TEST_F(HelpViewing, AFileInstalledMeanwhileIsReadAnew) {
  const QString path = File("help.chm");
  WriteBytes(path.toStdString(), "none");
  viewer.Show(nullptr, path, HelpCommand::DisplayContents, "");
  EXPECT_TRUE(page().toPlainText().contains("The help cannot be shown"));
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::copy(little, path));
  viewer.Show(nullptr, path, HelpCommand::DisplayContents, "");
  EXPECT_EQ(Topic(), "home.htm");
}

TEST_F(HelpViewing, EachCommandOfTheBarHasItsNameKeysAndPicture) {
  Show("home.htm");
  struct Row {
    const char* name;
    const char* caption;
    const char* keys;
  };
  for (const Row& row :
       {Row{"HelpBack", "Back", "Alt+Left"}, Row{"HelpForward", "Forward", "Alt+Right"},
        Row{"HelpHome", "Home", "Alt+Home"}, Row{"HelpFind", "Find", "Ctrl+F"},
        Row{"HelpCopy", "Copy", "Ctrl+C"}, Row{"HelpPrint", "Print", "Ctrl+P"},
        Row{"HelpLarger", "Larger", "Ctrl++"}, Row{"HelpSmaller", "Smaller", "Ctrl+-"}}) {
    const auto& button = Find<QToolButton>(window(), QString(row.name) + "Button");
    EXPECT_EQ(button.accessibleName(), row.caption);
    EXPECT_EQ(button.text(), row.caption);
    EXPECT_EQ(button.toolTip(), QString("%1 (%2)").arg(row.caption, row.keys));
    EXPECT_FALSE(button.icon().isNull()) << row.name;
    EXPECT_EQ(button.focusPolicy(), Qt::TabFocus) << row.name;
  }
  EXPECT_EQ(tree().accessibleName(), "Contents");
  EXPECT_EQ(page().accessibleName(), "Help page");
}

TEST_F(HelpViewing, EveryControlHasANameForScreenReaders) {
  Show("home.htm");
  QTest::keyClick(&page(), Qt::Key_F, Qt::ControlModifier);
  const auto tree = SpokenTree(window());
  QStringList names;
  for (const SpokenItem& item : tree) {
    const QAccessible::Role role = item.role();
    const bool isControl = role == QAccessible::Button || role == QAccessible::EditableText ||
                           role == QAccessible::Tree || role == QAccessible::TreeItem ||
                           role == QAccessible::Window;
    if (isControl && item.state().focusable) names.append(item.name);
    EXPECT_TRUE(item.description.isEmpty() || item.description != item.name);
  }
  EXPECT_FALSE(names.contains(QString())) << SpokenLines(tree).toStdString();
  for (const char* name : {"Contents", "Text to find in this page", "Next", "Close", "Print"}) {
    EXPECT_TRUE(names.contains(name)) << name;
  }
}

TEST_F(HelpViewing, PicturesOfTheBarHaveTheTextColourOfThePalette) {
  Show("home.htm");
  const QIcon icon = Find<QAction>(window(), "HelpHome").icon();
  const QPalette before = QApplication::palette();
  for (const QPalette& palette : {before, DarkPalette()}) {
    QApplication::setPalette(palette);
    const QImage drawn = icon.pixmap(48, 48).toImage();
    QColor strongest = Qt::transparent;
    for (int y = 0; y < drawn.height(); ++y) {
      for (int x = 0; x < drawn.width(); ++x) {
        if (drawn.pixelColor(x, y).alpha() > strongest.alpha()) strongest = drawn.pixelColor(x, y);
      }
    }
    EXPECT_EQ(strongest.name(), palette.color(QPalette::ButtonText).name());
  }
  QApplication::setPalette(before);
}

TEST_F(HelpViewing, TheSelectionIsCopiedThroughThePlatform) {
  Show("home.htm");
  EXPECT_FALSE(Find<QAction>(window(), "HelpCopy").isEnabled());
  bool wrapped = false;
  ASSERT_TRUE(page().FindText("wrists", false, wrapped));
  Choose(window(), "HelpCopy");
  EXPECT_EQ(platform.clipboard(), (QStringList{"clear", "text: wrists"}));
}

TEST_F(HelpViewing, ThePageIsPrintedUnlessThePrinterIsCancelled) {
  Show("home.htm");
  platform.WillChoosePrinter(false);
  Choose(window(), "HelpPrint");
  EXPECT_EQ(platform.printed(), QStringList());
  platform.WillChoosePrinter(true);
  Choose(window(), "HelpPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_EQ(platform.printed().front(), page().toPlainText());
  EXPECT_EQ(platform.printedTitles().front(), page().documentTitle());
  EXPECT_NE(page().documentTitle(), "");
}

TEST_F(HelpViewing, AClosedWindowIsMadeAnewByTheNextCommand) {
  Show("home.htm");
  Press(Qt::Key_W, Qt::ControlModifier);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(viewer.window(), nullptr);
  Show("home.htm");
  EXPECT_TRUE(window().isVisible());
}

TEST_F(HelpViewing, ClosesWhenTheProgramEndsAndDoesNotHoldItUp) {
  Show("home.htm");
  QTimer::singleShot(0, [] { QCoreApplication::exit(3); });
  EXPECT_EQ(QCoreApplication::exec(), 3);
  EXPECT_EQ(viewer.window(), nullptr);
}

TEST_F(HelpLinks, InsideTheFileAreFollowed) {
  Show("home.htm");
  emit page().anchorClicked(QUrl("help:/sub/two.htm#end"));
  EXPECT_EQ(Topic(), "sub/two.htm");
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
  emit page().anchorClicked(QUrl("help:/HOME.HTM"));
  EXPECT_TRUE(page().toPlainText().startsWith("A little help\nFirst page."));
  EXPECT_EQ(CurrentLine(), "Home & more");
  emit page().anchorClicked(QUrl("ms-its:LITTLE.chm::/sub/two.htm"));
  EXPECT_EQ(Topic(), "sub/two.htm");
}

TEST_F(HelpLinks, AreReachedWithTheKeys) {
  Show("home.htm");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(Topic(), "Three (with a blank)2.htm");
}

TEST_F(HelpLinks, OutsideAreToldOfAndNotFollowed) {
  Show("home.htm");
  const QString text = page().toPlainText();
  for (const char* link :
       {"http://example.org/", "https://example.org/a", "file:///etc/passwd", "file:/etc/passwd",
        "javascript:alert(1)", "mailto:a@example.org", "qrc:/pictures/a.svg", "data:text/html,x",
        "help://example.org/home.htm", "ms-its:other.chm::/home.htm",
        "mk:@MSITStore:C:\\other.chm::/home.htm", "ftp://example.org/"}) {
    emit page().anchorClicked(QUrl(link));
    EXPECT_EQ(Topic(), "home.htm") << link;
    EXPECT_EQ(page().toPlainText(), text) << link;
    EXPECT_TRUE(StatusText().startsWith("Not followed, since it leads outside the help: "))
        << link << ": " << StatusText().toStdString();
  }
  Show("sub/two.htm");
  EXPECT_EQ(StatusText(), "");
}

TEST_F(HelpLinks, TellWhereTheyLeadWhileTheMouseIsOverThem) {
  Show("home.htm");
  emit page().highlighted(QUrl("help:/sub/two.htm#end"));
  EXPECT_EQ(StatusText(), "sub/two.htm#end");
  emit page().highlighted(QUrl("http://example.org/"));
  EXPECT_EQ(StatusText(), "Leads outside the help: http://example.org/");
  emit page().highlighted(QUrl());
  EXPECT_EQ(StatusText(), "");
}

TEST_F(HelpFinding, GoesFromPlaceToPlaceAndAroundTheEnd) {
  Show("home.htm");
  auto& bar = Find<QWidget>(window(), "HelpFindBar");
  EXPECT_FALSE(bar.isVisible());
  Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(bar.isVisible());
  auto& text = Find<QLineEdit>(window(), "HelpFindText");
  EXPECT_TRUE(text.hasFocus());
  QTest::keyClicks(&text, "wrists");
  const int first = page().textCursor().selectionStart();
  EXPECT_EQ(page().textCursor().selectedText(), "wrists");
  Press(Qt::Key_F3);
  const int second = page().textCursor().selectionStart();
  EXPECT_GT(second, first);
  const auto& result = Find<QLabel>(window(), "HelpFindResult");
  EXPECT_EQ(result.text(), "");
  Press(Qt::Key_F3);
  EXPECT_EQ(page().textCursor().selectionStart(), first);
  EXPECT_EQ(result.text(), "Went on from the beginning");
  Press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(page().textCursor().selectionStart(), second);
  EXPECT_EQ(result.text(), "Went on from the end");
  Press(Qt::Key_Return);
  EXPECT_EQ(page().textCursor().selectionStart(), first);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_TRUE(page().hasFocus());
}

TEST_F(HelpFinding, SaysWhenNothingIsFound) {
  Show("home.htm");
  Press(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>(window(), "HelpFindText"), "ankle");
  EXPECT_EQ(Find<QLabel>(window(), "HelpFindResult").text(), "Not found on this page");
  EXPECT_FALSE(page().textCursor().hasSelection());
}

TEST_F(HelpFinding, WithoutATextAsksForOne) {
  Show("home.htm");
  Press(Qt::Key_F3);
  EXPECT_TRUE(Find<QLineEdit>(window(), "HelpFindText").hasFocus());
}

/// Width of the first picture of the page.
double PictureWidth(const QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      if (format.isImageFormat()) return format.toImageFormat().width();
    }
  }
  return 0;
}

TEST_F(HelpSizes, TextAndPicturesGrowTogether) {
  Show("home.htm");
  const double text = page().document()->defaultFont().pointSizeF();
  EXPECT_EQ(PictureWidth(*page().document()), 64);
  for (int i = 0; i < 5; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(page().zoom(), 150);
  EXPECT_EQ(StatusText(), "Size: 150 %");
  EXPECT_DOUBLE_EQ(page().document()->defaultFont().pointSizeF(), text * 1.5);
  EXPECT_EQ(PictureWidth(*page().document()), 96);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(page().zoom(), 140);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(page().zoom(), 100);
  EXPECT_EQ(PictureWidth(*page().document()), 64);
  EXPECT_EQ(Topic(), "home.htm");
}

TEST_F(HelpSizes, StayForTheNextPageAndHaveBounds) {
  Show("home.htm");
  page().SetZoom(200);
  const double text = page().document()->defaultFont().pointSizeF();
  Show("sub/two.htm");
  EXPECT_DOUBLE_EQ(page().document()->defaultFont().pointSizeF(), text);
  page().SetZoom(10);
  EXPECT_EQ(page().zoom(), HelpBrowser::kLeastZoom);
  page().SetZoom(10000);
  EXPECT_EQ(page().zoom(), HelpBrowser::kMostZoom);
}

TEST_F(HelpSizes, TheWheelChangesThemOnlyWithCtrl) {
  Show("sub/two.htm");
  const auto turn = [&](int degrees, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(QPointF(5, 5), page().viewport()->mapToGlobal(QPointF(5, 5)), QPoint(),
                      QPoint(0, degrees), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(page().viewport(), &event);
  };
  turn(120, Qt::ControlModifier);
  EXPECT_EQ(page().zoom(), 110);
  turn(-120, Qt::ControlModifier);
  EXPECT_EQ(page().zoom(), 100);
  turn(-120, Qt::NoModifier);
  EXPECT_EQ(page().zoom(), 100);
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
}

TEST_F(HelpSizes, ALongPageStaysAtItsPlace) {
  Show("sub/two.htm");
  QScrollBar& bar = *page().verticalScrollBar();
  bar.setValue(bar.maximum());
  page().SetZoom(200);
  EXPECT_EQ(bar.value(), bar.maximum());
  EXPECT_GT(bar.value(), 0);
}

/// Clicks in the middle of a widget as the window system tells it, so that a window that is held up
/// by a dialog gets nothing.
void ClickInWindow(QWidget& widget, QPoint place) {
  QWidget& top = *widget.window();
  QTest::mouseClick(top.windowHandle(), Qt::LeftButton, Qt::NoModifier, widget.mapTo(&top, place));
}

TEST_F(HelpBesideTools, TakesMouseAndKeysWhileAToolIsOpenAndStaysWhenItCloses) {
  platform.SetFolders(folder.path().c_str(), "/none");
  ASSERT_TRUE(QFile::copy(little, File("QJT Tools 1.chm")));
  platform.AddFile(File("QJT Tools 1.chm"));
  const auto main = IdleMainWindow();
  ModalSteps steps;
  steps.Then("frmSI", [&](QWidget& form) {
    Choose(form, "mnuHelpContent");
    ASSERT_NE(viewer.window(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(Topic(), "Strain Index2.htm");
    // The mouse.
    const QRect line = tree().visualItemRect(tree().topLevelItem(0));
    ClickInWindow(*tree().viewport(), line.center());
    EXPECT_EQ(Topic(), "home.htm");
    // The keys.
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Topic(), "Strain Index2.htm");
    // The main window is held up all the same, and the tool is not.
    auto& ribbon = Find<QAbstractButton>(*main, "SSRibbon1(1)");
    bool pressed = false;
    QObject::connect(&ribbon, &QAbstractButton::pressed, [&] { pressed = true; });
    ClickInWindow(ribbon, ribbon.rect().center());
    EXPECT_FALSE(pressed);
    auto& tabs = Find<QWidget>(form, "SSTab1");
    EXPECT_TRUE(tabs.isEnabled());
    Choose(form, "mnuFileExit");
  });
  QTest::mouseClick(&Find<QWidget>(*main, "SSCommand2(2)"), Qt::LeftButton);
  ASSERT_NE(viewer.window(), nullptr);
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(Topic(), "Strain Index2.htm");
}

TEST_F(HelpBesideTools, AMessageOfAToolHoldsUpTheTool) {
  const auto main = IdleMainWindow();
  ModalSteps steps;
  steps.Then("frmSI", [&](QWidget& form) {
    steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
      EXPECT_FALSE(box.windowModality() == Qt::NonModal);
      EXPECT_EQ(QApplication::activeModalWidget(), &box);
      box.accept();
    });
    QMessageBox(QMessageBox::NoIcon, "Title", "Text", QMessageBox::Ok, &form).exec();
    Choose(form, "mnuFileExit");
  });
  QTest::mouseClick(&Find<QWidget>(*main, "SSCommand2(2)"), Qt::LeftButton);
}

}  // namespace
}  // namespace halvane
