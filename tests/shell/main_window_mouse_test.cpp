// What the mouse does on the main window: drags, and the release of the two ribbons.
#include <QAbstractButton>
#include <QMenu>
#include <QTest>

#include "app/tool_forms.h"
#include "shell/frm_hand_main.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

class MainWindowMouse : public ShellTest {
 protected:
  MainWindowMouse() : window(IdleMainWindow()) {}

  QAbstractButton& Ribbon(int index) {
    return Find<QAbstractButton>(*window, QString("SSRibbon1(%1)").arg(index));
  }
  void PressRibbons() {
    Ribbon(0).setChecked(true);
    Ribbon(1).setChecked(true);
  }
  /// The two ribbons, a P for one that is pressed and an R for a released one.
  QString Ribbons() {
    return QString(Ribbon(0).isChecked() ? "P" : "R") + (Ribbon(1).isChecked() ? "P" : "R");
  }
  QWidget& Area(const QString& name) {
    return name.isEmpty() ? *window : Find<QWidget>(*window, name);
  }

  std::unique_ptr<FrmHandMain> window;
};

void Send(QWidget& widget, QEvent::Type type, Qt::MouseButton button) {
  const QPointF place(3, 3);
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

struct AreaRow {
  const char* label;
  const char* area;
  bool releases;
};

const std::vector<AreaRow> kAreas{
    {"the bare form", "", true},
    {"the hand", "SSSplash1", true},
    {"the title strip", "Picture1", false},
    {"the title", "Label1", false},
};

TEST_F(MainWindowMouse, AnyButtonDragsTheWindowByItsPictureAreas) {
  for (const AreaRow& row : kAreas) {
    for (const Qt::MouseButton button :
         {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::BackButton}) {
      const std::size_t before = platform.moves().size();
      Send(Area(row.area), QEvent::MouseButtonPress, button);
      ASSERT_EQ(platform.moves().size(), before + 1) << row.label;
      EXPECT_EQ(platform.moves().back(), button) << row.label;
      Send(Area(row.area), QEvent::MouseButtonRelease, button);
      EXPECT_EQ(platform.moves().size(), before + 1) << row.label;
    }
  }
}

TEST_F(MainWindowMouse, SecondPressOfADoubleClickDragsToo) {
  for (const AreaRow& row : kAreas) {
    const std::size_t before = platform.moves().size();
    Send(Area(row.area), QEvent::MouseButtonDblClick, Qt::LeftButton);
    EXPECT_EQ(platform.moves().size(), before + 1) << row.label;
  }
}

TEST_F(MainWindowMouse, PressOnFormOrHandReleasesTheRibbonsAndOnTheTitleDoesNot) {
  for (const AreaRow& row : kAreas) {
    PressRibbons();
    Send(Area(row.area), QEvent::MouseButtonPress, Qt::LeftButton);
    EXPECT_EQ(Ribbons(), row.releases ? "RR" : "PP") << row.label;
  }
}

TEST_F(MainWindowMouse, ClickOnFormOrHandReleasesTheRibbonsAndOnTheTitleDoesNot) {
  for (const AreaRow& row : kAreas) {
    Send(Area(row.area), QEvent::MouseButtonPress, Qt::LeftButton);
    PressRibbons();
    Send(Area(row.area), QEvent::MouseButtonRelease, Qt::LeftButton);
    EXPECT_EQ(Ribbons(), row.releases ? "RR" : "PP") << row.label;
  }
}

TEST_F(MainWindowMouse, MoveReleasesTheRibbonsOverTheHandOnly) {
  for (const char* area :
       {"Picture1", "Label1", "SSCommand2(0)", "SSCommand3(1)", "SSRibbon1(1)"}) {
    PressRibbons();
    Send(Area(area), QEvent::MouseMove, Qt::NoButton);
    EXPECT_EQ(Ribbons(), "PP") << area;
  }
  PressRibbons();
  Send(Area("SSSplash1"), QEvent::MouseMove, Qt::NoButton);
  EXPECT_EQ(Ribbons(), "RR");
  EXPECT_TRUE(platform.moves().empty());
}

TEST_F(MainWindowMouse, MoveOverTheHandIsSeenWithoutAButtonHeld) {
  EXPECT_TRUE(Area("SSSplash1").hasMouseTracking());
  PressRibbons();
  // Over the wrist, where nothing but the hand is.
  QTest::mouseMove(window->windowHandle(), QPoint(180, 490));
  QTest::mouseMove(window->windowHandle(), QPoint(181, 491));
  QCoreApplication::processEvents();
  EXPECT_EQ(Ribbons(), "RR");
}

TEST_F(MainWindowMouse, DragFromTheTitleLeavesARibbonPressed) {
  PressRibbons();
  Send(Area("Label1"), QEvent::MouseButtonPress, Qt::LeftButton);
  Send(Area("Label1"), QEvent::MouseMove, Qt::LeftButton);
  Send(Area("Label1"), QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(Ribbons(), "PP");
  EXPECT_EQ(platform.moves().size(), 1U);
}

TEST_F(MainWindowMouse, PressOnAButtonDragsNothing) {
  for (const char* name : {"SSCommand2(4)", "SSCommand3(1)", "SSRibbon1(0)"}) {
    Send(Area(name), QEvent::MouseButtonPress, Qt::LeftButton);
  }
  EXPECT_TRUE(platform.moves().empty());
}

TEST_F(MainWindowMouse, OpeningPanelDragsNothingAndTheStripDoes) {
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  for (const char* name : {"Picture3", "lblProductName(0)", "lblMaker"}) {
    Send(Find<QWidget>(opening, name), QEvent::MouseButtonPress, Qt::LeftButton);
  }
  EXPECT_TRUE(platform.moves().empty());
  Send(Find<QWidget>(opening, "Label1"), QEvent::MouseButtonPress, Qt::LeftButton);
  EXPECT_EQ(platform.moves().size(), 1U);
}

TEST_F(MainWindowMouse, ClickThatClosesTheMenuOnItsRibbonReleasesIt) {
  ModalSteps steps;
  steps.Then<QMenu>("mnuPopUp1", [&](QMenu& menu) {
    // What the user's click does: it closes the menu, then reaches the ribbon.
    menu.close();
    QTest::mouseClick(&Ribbon(0), Qt::LeftButton);
  });
  QTest::mouseClick(&Ribbon(0), Qt::LeftButton);
  EXPECT_EQ(Ribbons(), "RR");
}

TEST_F(MainWindowMouse, ItemOfTheMenuLeavesTheRibbonPressed) {
  ModalSteps steps;
  steps.Then<QMenu>("mnuPopUp1", [](QMenu& menu) {
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
  });
  Module1.JobName = "left over";
  QTest::mouseClick(&Ribbon(0), Qt::LeftButton);
  EXPECT_EQ(Module1.JobName.AsText(), "");
  EXPECT_EQ(Ribbons(), "PR");
}

}  // namespace
}  // namespace halvane
