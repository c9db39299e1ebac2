#include <QApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QRegion>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include "app/tool_forms.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

/// Counts what happens to a form and how much of it is drawn.
class FormWatch : public QObject {
 public:
  explicit FormWatch(QWidget& form) : form_(form) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &form_ && event->type() == QEvent::Hide) ++hidden;
    if (watched == &form_ && event->type() == QEvent::Show) ++shown;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget != nullptr && widget->window() == &form_) {
      const QPoint place = widget->mapTo(&form_, QPoint());
      drawn += static_cast<QPaintEvent*>(event)->region().translated(place);
    }
    return QObject::eventFilter(watched, event);
  }

  int hidden = 0;
  int shown = 0;
  QRegion drawn;

 private:
  QWidget& form_;
};

int AreaOf(const QRegion& region) {
  int area = 0;
  for (const QRect& rect : region) area += rect.width() * rect.height();
  return area;
}

/// New and Open on a tool put another job onto the form that is on the screen.
class FormThatStays : public ShellTest, public testing::WithParamInterface<Tool> {
 protected:
  void SetUp() override {
    form_ = MakeToolForm(GetParam(), nullptr);
    WriteBytes(folder.File("job.qjt"), EmptyJobText());
  }

  /// Runs the form as the main window does.
  void Run() {
    do {
      form_->load();
      Module1.JobDirty = kFalse;
      ++loads_;
    } while (form_->exec() == ToolForm::Reload);
  }

  /// Lays out and draws all that is to be.
  static void Draw() { QCoreApplication::sendPostedEvents(); }

  /// Gives a form the rounds that its first layout takes behind its first picture.
  void LetRest(ModalSteps& steps) {
    for (int round = 0; round < 5; ++round) {
      steps.Then(form_->objectName(), [](QWidget&) { Draw(); });
    }
  }

  std::unique_ptr<ToolForm> form_;
  int loads_ = 0;
};

TEST_P(FormThatStays, IsNeitherHiddenNorDrawnWholeForAnotherJob) {
  ModalSteps steps;
  std::unique_ptr<FormWatch> watch;
  const QString name = form_->objectName();
  steps.Then(name, [&](QWidget& form) { watch = std::make_unique<FormWatch>(form); });
  LetRest(steps);
  steps.Then(name, [&](QWidget& form) {
    watch = std::make_unique<FormWatch>(form);
    Choose(form, "mnuFileNew");
    // Typed before the new job is shown.
    QTest::keyClick(form.focusWidget(), 'x');
  });
  steps.Then(name, [&](QWidget& form) {
    Draw();
    EXPECT_EQ(loads_, 2);
    EXPECT_EQ(Module1.JobAnalyst, TaggedField(""));
    EXPECT_EQ(Module1.JobName, TaggedField(""));
    EXPECT_EQ(Module1.JobWorkstationId, "");
    EXPECT_LT(AreaOf(watch->drawn), form.width() * form.height() / 2);
    platform.WillOpen(File("job.qjt"));
    Choose(form, "mnuFileOpen");
  });
  steps.Then(name, [&](QWidget& form) {
    Draw();
    EXPECT_EQ(loads_, 3);
    EXPECT_EQ(watch->hidden, 0);
    EXPECT_EQ(watch->shown, 0);
    EXPECT_TRUE(form.isActiveWindow());
    Choose(form, "mnuFileExit");
  });
  Run();
  EXPECT_EQ(watch->hidden, 1);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(FormThatStays, LooksLikeAFreshOne) {
  QApplication::setCursorFlashTime(0);
  const auto fresh = MakeToolForm(GetParam(), nullptr);
  const QString name = form_->objectName();
  QImage expected;
  ModalSteps steps;
  LetRest(steps);
  steps.Then(name, [&](QWidget& form) {
    expected = form.grab().toImage();
    form.close();
  });
  fresh->load();
  fresh->exec();

  // A job of twenty tasks, answers everywhere and another tab leave nothing behind.
  for (int task = 1; task <= 20; ++task) {
    Module1.TaskCount = static_cast<Integer>(task);
    NewTaskRecord();
  }
  LetRest(steps);
  steps.Then(name, [&](QWidget& form) {
    for (auto* tabs : form.findChildren<QTabWidget*>()) tabs->setCurrentIndex(tabs->count() - 1);
    for (auto* ribbon : form.findChildren<RibbonButton*>()) {
      if (ribbon->isEnabled()) ribbon->click();
    }
    for (auto* box : form.findChildren<QLineEdit*>()) {
      if (box->isEnabled() && !box->isReadOnly()) QTest::keyClick(box, '7');
    }
    Draw();
    platform.WillAnswer(Answer::No);
    Choose(form, "mnuFileNew");
  });
  LetRest(steps);
  steps.Then(name, [&](QWidget& form) {
    EXPECT_TRUE(form.grab().toImage() == expected);
    form.close();
  });
  Run();
}

TEST_P(FormThatStays, ShowsAnotherJobFromItsTop) {
  const QString name = form_->objectName();
  ModalSteps steps;
  steps.Then(name, [](QWidget& form) {
    form.setMinimumSize(1, 1);
    form.resize(500, 300);
  });
  LetRest(steps);
  steps.Then(name, [](QWidget& form) {
    int scrolled = 0;
    for (auto* page : form.findChildren<QScrollArea*>()) {
      page->verticalScrollBar()->setValue(page->verticalScrollBar()->maximum());
      scrolled += page->verticalScrollBar()->value();
    }
    ASSERT_GT(scrolled, 0);
    Choose(form, "mnuFileNew");
  });
  steps.Then(name, [](QWidget& form) {
    for (auto* page : form.findChildren<QScrollArea*>()) {
      EXPECT_EQ(page->verticalScrollBar()->value(), 0);
      EXPECT_EQ(page->horizontalScrollBar()->value(), 0);
    }
    form.close();
  });
  Run();
}

TEST_P(FormThatStays, EndsWhenItIsHiddenOrClosed) {
  for (const bool isClosed : {false, true}) {
    ModalSteps steps;
    steps.Then(form_->objectName(), [isClosed](QWidget& form) {
      if (isClosed) {
        form.close();
      } else {
        form.hide();
      }
    });
    form_->load();
    EXPECT_EQ(form_->exec(), QDialog::Rejected);
    EXPECT_FALSE(form_->isVisible());
  }
}

INSTANTIATE_TEST_SUITE_P(EveryTool, FormThatStays,
                         testing::Values(Tool::Ocra, Tool::Ctd, Tool::StrainIndex, Tool::Reba,
                                         Tool::Rula, Tool::Hal),
                         [](const auto& tool) {
                           std::string name(NameOf(tool.param).key);
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace halvane
