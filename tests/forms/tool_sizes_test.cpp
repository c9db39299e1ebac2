// How large the windows of the tools are, and what they do on a small screen.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "app/tool_forms.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
#include "shell/hand_frame.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/tool_table.h"
#include "widgets/scroll_page.h"

namespace halvane {
namespace {

class ToolSizes : public ShellTest {
 protected:
  ToolSizes() { AddTaskRecord(); }

  static std::unique_ptr<ToolForm> Shown(Tool tool) {
    auto form = MakeToolForm(tool, nullptr);
    form->load();
    ShowActive(*form);
    QCoreApplication::processEvents();
    return form;
  }

  /// Runs `check` for each page that is not the report, while it is on view.
  template <typename Check>
  static void OnEveryPage(ToolForm& form, const Check& check) {
    int pages = 0;
    for (auto* page : form.findChildren<ScrollPage*>()) {
      if (auto* tabs = form.findChild<QTabWidget*>("SSTab1")) tabs->setCurrentWidget(page);
      QCoreApplication::processEvents();
      SCOPED_TRACE(form.objectName().toStdString() + ", page " + std::to_string(pages));
      ASSERT_TRUE(page->isVisible());
      check(*page);
      ++pages;
    }
    EXPECT_GE(pages, 1);
  }
};

TEST_F(ToolSizes, OpenInTheStandardSizeWhereThereIsRoom) {
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    EXPECT_EQ(form->size(), QSize(1120, 700)) << form->objectName().toStdString();
  }
}

TEST_F(ToolSizes, HaveNoScrollBarFromTheLeastSizeOn) {
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
      form->resize(size);
      ASSERT_EQ(form->size(), size);
      OnEveryPage(*form, [](const ScrollPage& page) {
        EXPECT_FALSE(page.verticalScrollBar()->isVisible());
        EXPECT_FALSE(page.horizontalScrollBar()->isVisible());
        EXPECT_EQ(page.widget()->size(), page.viewport()->size());
      });
    }
  }
}

TEST_F(ToolSizes, FitASmallScreenWhosePagesScroll) {
  const QRect screen(0, 0, 640, 400);
  platform.SetAvailableArea(screen);
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    EXPECT_TRUE(screen.contains(form->frameGeometry())) << form->objectName().toStdString();
    OnEveryPage(*form, [](ScrollPage& page) {
      EXPECT_TRUE(page.verticalScrollBar()->isVisible());
      // All of the page is there and can be reached.
      EXPECT_GE(page.widget()->width(), page.minimumSizeHint().width());
      EXPECT_GE(page.widget()->height(), page.heightForWidth(page.widget()->width()));
      EXPECT_EQ(page.horizontalScrollBar()->maximum(),
                page.widget()->width() - page.viewport()->width());
      EXPECT_EQ(page.verticalScrollBar()->maximum(),
                page.widget()->height() - page.viewport()->height());
      // It stands in the window, whatever needs room beside it.
      const QRect place(page.mapTo(page.window(), QPoint()), page.size());
      EXPECT_TRUE(page.window()->rect().contains(place));
    });
  }
}

/// What is shown of a window and has less room than its text needs, or none of its window.
QStringList Clipped(const QWidget& window) {
  QStringList clipped;
  for (const auto* control : window.findChildren<QWidget*>()) {
    // The tabs have buttons of their own where they do not fit.
    const bool ofTabs = qobject_cast<const QTabBar*>(control->parentWidget()) != nullptr;
    if (!control->isVisible() || ofTabs) continue;
    const auto* label = qobject_cast<const QLabel*>(control);
    const bool isButton = qobject_cast<const QAbstractButton*>(control) != nullptr;
    const bool isInput = qobject_cast<const QLineEdit*>(control) != nullptr ||
                         qobject_cast<const QComboBox*>(control) != nullptr;
    const bool isSlider = qobject_cast<const QSlider*>(control) != nullptr;
    if (label == nullptr && !isButton && !isInput && !isSlider) continue;
    const bool wraps = label != nullptr && label->wordWrap();
    const QSize needed(
        control->minimumSizeHint().width(),
        wraps ? label->heightForWidth(label->width()) : control->minimumSizeHint().height());
    const QWidget* around = control->parentWidget();
    if (control->size().expandedTo(needed) == control->size() &&
        around->rect().contains(control->geometry())) {
      continue;
    }
    clipped.append(control->objectName() + " " + (label != nullptr ? label->text() : QString()));
  }
  return clipped;
}

TEST_F(ToolSizes, TheLeastSizeKnowsTheFontAndCaptionsThatWrap) {
  const QFont usual = QApplication::font();
  platform.SetAvailableArea({0, 0, 4000, 3000});
  for (const double points : {8.0, 10.0, 12.0, 14.0, 20.0}) {
    QFont font = usual;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    for (const ToolRow& row : Tools()) {
      const auto form = Shown(row.tool);
      form->resize(form->minimumSize());
      OnEveryPage(*form, [&](const ScrollPage& page) {
        EXPECT_FALSE(page.verticalScrollBar()->isVisible()) << points;
        EXPECT_FALSE(page.horizontalScrollBar()->isVisible()) << points;
        EXPECT_EQ(Clipped(page).join("; "), "") << points;
      });
    }
  }
  QApplication::setFont(usual);
}

TEST_F(ToolSizes, TextsStayWholeInASmallWindowAndInALargeFont) {
  const QFont usual = QApplication::font();
  platform.SetAvailableArea({0, 0, 800, 480});
  for (const double points : {9.0, 20.0}) {
    QFont font = usual;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    for (const ToolRow& row : Tools()) {
      const auto form = Shown(row.tool);
      OnEveryPage(*form,
                  [&](const ScrollPage&) { EXPECT_EQ(Clipped(*form).join("; "), "") << points; });
    }
  }
  QApplication::setFont(usual);
}

TEST_F(ToolSizes, AnOpenFormFollowsTheFont) {
  const QFont usual = QApplication::font();
  platform.SetAvailableArea({0, 0, 4000, 3000});
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    QFont font = usual;
    font.setPointSizeF(20);
    QApplication::setFont(font);
    // What hears of the font asks for a layout, which asks for another.
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    form->resize(form->minimumSize());
    OnEveryPage(*form, [&](const ScrollPage& page) {
      EXPECT_FALSE(page.verticalScrollBar()->isVisible());
      EXPECT_FALSE(page.horizontalScrollBar()->isVisible());
      EXPECT_EQ(Clipped(*form).join("; "), "");
    });
    // As large as if it had been made with that font.
    const auto fresh = Shown(row.tool);
    EXPECT_EQ(form->minimumSize(), fresh->minimumSize()) << form->objectName().toStdString();
    QApplication::setFont(usual);
  }
}

TEST_F(ToolSizes, IdentificationAndHandStandOnOneLine) {
  platform.SetAvailableArea({0, 0, 4000, 3000});
  int rows = 0;
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    const auto* strip = form->findChild<IdentificationStrip*>();
    const auto* hand = form->findChild<HandFrame*>();
    // One tool has the hand in a frame of its own.
    if (hand->parentWidget() != strip->parentWidget()) continue;
    ++rows;
    const auto middle = [](const QWidget& widget) {
      return widget.mapTo(widget.window(), QPoint(0, widget.height() / 2)).y();
    };
    const int line = middle(*hand->findChild<QAbstractButton*>());
    for (const auto* child : strip->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      EXPECT_NEAR(middle(*child), line, 1) << form->objectName().toStdString();
    }
  }
  EXPECT_EQ(rows, 5);
}

TEST_F(ToolSizes, TheTabKeyBringsEachControlOfASmallScreenIntoView) {
  platform.SetAvailableArea({0, 0, 800, 480});
  for (const ToolRow& row : Tools()) {
    const auto form = Shown(row.tool);
    OnEveryPage(*form, [&form](ScrollPage& page) {
      int seen = 0;
      for (int key = 0; key < 80; ++key) {
        QTest::keyClick(form->windowHandle(), Qt::Key_Tab);
        const QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        if (!page.isAncestorOf(focused)) continue;
        ++seen;
        const QRect place(focused->mapTo(page.viewport(), QPoint()), focused->size());
        EXPECT_TRUE(page.viewport()->rect().intersects(place))
            << focused->objectName().toStdString();
        const bool fits = place.height() <= page.viewport()->height() &&
                          place.width() <= page.viewport()->width();
        if (fits) {
          EXPECT_TRUE(page.viewport()->rect().contains(place))
              << focused->objectName().toStdString();
        }
      }
      EXPECT_GE(seen, 2);
    });
  }
}

TEST_F(ToolSizes, StayThroughNewAndThroughClosingAndOpening) {
  const auto main = IdleMainWindow();
  const QRect place(60, 70, 1000, 650);
  int shown = 0;
  const auto stands = [&](QWidget& form) {
    ++shown;
    EXPECT_EQ(form.geometry(), place) << "showing " << shown;
    // No question before New.
    Module1.JobDirty = kFalse;
  };
  for (int opened = 0; opened < 3; ++opened) {
    ModalSteps steps;
    steps.Then("frmRULA", [&](QWidget& form) {
      if (opened == 0) form.setGeometry(place);
      stands(form);
      Choose(form, "mnuFileNew");
    });
    steps.Then("frmRULA", [&](QWidget& form) {
      stands(form);
      Choose(form, "mnuFileNew");
    });
    steps.Then("frmRULA", [&](QWidget& form) {
      stands(form);
      Choose(form, "mnuFileExit");
    });
    Find<QAbstractButton>(*main, "SSCommand2(4)").click();
  }
  EXPECT_EQ(shown, 9);
}

}  // namespace
}  // namespace halvane
