// How large the windows of the tools are, and what they do on a small screen.
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include "app/tool_forms.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
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
  const QRect screen(0, 0, 800, 480);
  for (const ToolRow& row : Tools()) {
    platform.SetAvailableArea({0, 0, 1920, 1080});
    auto form = Shown(row.tool);
    form->resize(960, 620);
    std::vector<QSize> made;
    OnEveryPage(*form, [&made](const ScrollPage& page) { made.push_back(page.size()); });
    platform.SetAvailableArea(screen);
    form = Shown(row.tool);
    std::size_t index = 0;
    EXPECT_TRUE(screen.contains(form->frameGeometry())) << form->objectName().toStdString();
    OnEveryPage(*form, [&](ScrollPage& page) {
      EXPECT_TRUE(page.verticalScrollBar()->isVisible());
      // All of the page is there, in the size that it is made for, and can be reached.
      const QSize needed = made.at(index++);
      EXPECT_EQ(page.horizontalScrollBar()->maximum(),
                page.widget()->width() - page.viewport()->width());
      EXPECT_GE(page.widget()->width(), needed.width());
      EXPECT_GE(page.widget()->height(), needed.height());
      EXPECT_EQ(page.verticalScrollBar()->maximum(),
                page.widget()->height() - page.viewport()->height());
      // It stands in the window, whatever needs room beside it.
      const QRect place(page.mapTo(page.window(), QPoint()), page.size());
      EXPECT_TRUE(page.window()->rect().contains(place));
    });
  }
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
