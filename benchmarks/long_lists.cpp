// long_lists TOOL TASKS...: what a list of so many tasks costs, TOOL being ocra or ctd. A line a
// thing that the user does: "TOOL TASKS THING MEDIAN PERCENTILE_90 WORST", in seconds of work until
// it is painted. Numbers of tasks beyond 32,717 leave no room for the tasks that are added.
// long_lists --spoken TOOL TASKS...: the same while a screen reader listens.
#include <QAbstractButton>
#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/cpu_time.h"
#include "benchmarks/paint_watch.h"
#include "benchmarks/quick_platform.h"
#include "core/job_state.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tools/task_list/task_tree.h"
#include "tools/tool_table.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

constexpr int kOpenings = 11;
constexpr int kTurns = 21;
/// Of each kind; the shortest list has 40 tasks.
constexpr int kDeletions = 11;
constexpr int kRoundsToSettle = 5;

void Settle() {
  for (int round = 0; round < kRoundsToSettle; ++round) QCoreApplication::processEvents();
}

void PostKey(QWidget& widget, int key, const QString& text = {}) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QCoreApplication::postEvent(&widget, new QKeyEvent(type, key, Qt::NoModifier, text));
  }
}

void PostClick(QWidget& widget, QPointF place) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QCoreApplication::postEvent(&widget, new QMouseEvent(type, place, widget.mapToGlobal(place),
                                                         Qt::LeftButton, buttons, Qt::NoModifier));
  }
}

/// The form of a tool, filled with a job, and what the user does on it.
class LongList {
 public:
  LongList(const ToolRow& tool, int tasks) : tool_(tool), tasks_(tasks) {}

  void MeasureAll() {
    FillJob(tasks_, 1);
    Open();
    if (tool_.tool == Tool::Ocra) Report();
    Select();
    Change();
    Keep();
  }

 private:
  /// Seconds of work from `act` until `painted` is painted.
  static double Seconds(QWidget& painted, const std::function<void()>& act) {
    PaintWatch watch(painted);
    const double start = CpuSeconds();
    act();
    Settle();
    if (!watch.painted()) std::fputs("not painted\n", stderr);
    return CpuSeconds() - start;
  }

  void Print(const char* thing, std::vector<double> seconds) const {
    std::sort(seconds.begin(), seconds.end());
    std::printf("%s %d %s %.6f %.6f %.6f\n", std::string(tool_.key).c_str(), tasks_, thing,
                seconds[seconds.size() / 2], seconds[seconds.size() * 9 / 10], seconds.back());
    std::fflush(stdout);
  }

  void Measure(const char* thing, QWidget& painted, const std::function<void(int turn)>& act,
               int turns = kTurns) const {
    std::vector<double> seconds;
    for (int turn = 0; turn < turns; ++turn) {
      seconds.push_back(Seconds(painted, [&] { act(turn); }));
    }
    Print(thing, std::move(seconds));
  }

  void Open() {
    const double start = CpuSeconds();
    form_ = MakeToolForm(tool_.tool, nullptr);
    const double making = CpuSeconds() - start;
    std::vector<double> seconds;
    for (int turn = 0; turn < kOpenings; ++turn) {
      const double opening = Seconds(*form_, [this] {
        form_->load();
        form_->show();
      });
      if (turn == 0) {
        Print("opening_first", {making + opening});
      } else {
        seconds.push_back(opening);
      }
      if (turn < kOpenings - 1) form_->hide();
    }
    Print("opening", std::move(seconds));
    QApplication::setActiveWindow(form_.get());
    Settle();
    tree_ = form_->findChild<TaskTree*>("TreeView1");
  }

  void Report() {
    auto* tabs = form_->findChild<QTabWidget*>("SSTab1");
    auto& pane = *form_->findChild<RichTextBox*>();
    const auto click = [tabs](int tab) {
      PostClick(*tabs->tabBar(), tabs->tabBar()->tabRect(tab).center());
    };
    std::vector<double> there;
    std::vector<double> back;
    for (int turn = 0; turn < kOpenings; ++turn) {
      const double seconds = Seconds(*pane.viewport(), [&] { click(tabs->count() - 1); });
      if (turn == 0) {
        Print("report_first", {seconds});
      } else {
        there.push_back(seconds);
      }
      back.push_back(Seconds(*tree_->viewport(), [&] { click(0); }));
    }
    Print("report", std::move(there));
    Print("back_from_report", std::move(back));
    click(tabs->count() - 1);
    Settle();
    auto* bar = pane.verticalScrollBar();
    Measure("report_scrolled", *pane.viewport(), [bar](int turn) {
      bar->setValue(turn % 2 == 0 ? bar->maximum() : bar->maximum() / 2);
    });
    Measure("report_select_all", *pane.viewport(), [this, &pane](int turn) {
      if (turn % 2 == 0) {
        form_->mnuEditSelect_Click();
      } else {
        pane.Select(0, 0);
      }
    });
    form_->mnuEditSelect_Click();
    Settle();
    std::vector<double> copied;
    for (int turn = 0; turn < kOpenings; ++turn) {
      const double start = CpuSeconds();
      form_->mnuEditCopy_Click();
      copied.push_back(CpuSeconds() - start);
    }
    Print("report_copy", std::move(copied));
    click(0);
    Settle();
  }

  [[nodiscard]] QPoint PlaceOfRow(int row) const {
    return tree_->visualItemRect(tree_->topLevelItem(row)).center();
  }

  void Select() {
    QWidget& view = *tree_->viewport();
    tree_->setFocus();
    tree_->scrollToTop();
    Settle();
    Measure("click_task", view, [&](int turn) { PostClick(view, PlaceOfRow(1 - turn % 2)); });
    const auto key = [&](const char* thing, int first, int second, const QString& text = {}) {
      Measure(thing, view,
              [&](int turn) { PostKey(*tree_, turn % 2 == 0 ? first : second, text); });
    };
    key("key_down_up", Qt::Key_Down, Qt::Key_Up);
    key("key_page_down_up", Qt::Key_PageDown, Qt::Key_PageUp);
    key("key_end_home", Qt::Key_End, Qt::Key_Home);
    auto* bar = tree_->verticalScrollBar();
    Measure("scrolled_by_bar", view, [bar](int turn) {
      bar->setValue(turn % 2 == 0 ? bar->maximum() / 2 : bar->maximum());
    });
    Measure("wheel", view, [&](int turn) {
      QCoreApplication::postEvent(
          &view, new QWheelEvent(QPointF(9, 9), view.mapToGlobal(QPointF(9, 9)), {},
                                 QPoint(0, turn % 2 == 0 ? 120 : -120), Qt::NoButton,
                                 Qt::NoModifier, Qt::NoScrollPhase, false));
    });
    std::vector<double> sought;
    for (int turn = 0; turn < kTurns; ++turn) {
      const double start = CpuSeconds();
      PostKey(*tree_, Qt::Key_Z, "z");
      Settle();
      sought.push_back(CpuSeconds() - start);
    }
    Print("letter_of_no_task", std::move(sought));
    Measure("window_resized", *form_, [this](int turn) {
      form_->resize(form_->size() + (turn % 2 == 0 ? QSize(2, 1) : QSize(-2, -1)));
    });
  }

  void Change() {
    QWidget& view = *tree_->viewport();
    auto* box = form_->findChild<QLineEdit*>("Text1(5)");
    box->setFocus();
    Settle();
    Measure("key_in_a_box", *box, [&](int /*turn*/) { PostKey(*box, Qt::Key_4, "4"); });
    const auto press = [this](int index) {
      form_->findChild<QAbstractButton*>(QString("SSCommand1(%1)").arg(index))->click();
    };
    const auto go = [this](int row) {
      tree_->setCurrentItem(tree_->topLevelItem(row));
      Settle();
    };
    go(tree_->topLevelItemCount() / 2);
    std::vector<double> renamed;
    for (int turn = 0; turn < kTurns; ++turn) {
      renamed.push_back(Seconds(view, [&] {
        press(2);
        Settle();
        PostKey(*QApplication::focusWidget(), Qt::Key_N, "n");
        PostKey(*QApplication::focusWidget(), Qt::Key_Return, "\r");
      }));
    }
    Print("rename", std::move(renamed));
    Measure(
        "delete_in_the_middle", view, [&](int /*turn*/) { press(1); }, kDeletions);
    go(0);
    Measure(
        "delete_the_first", view, [&](int /*turn*/) { press(1); }, kDeletions);
    go(tree_->topLevelItemCount() - 1);
    Measure(
        "delete_the_last", view, [&](int /*turn*/) { press(1); }, kDeletions);
    Measure("add", view, [&](int /*turn*/) { press(0); });
    std::vector<double> added;
    for (int turn = 0; turn < kTurns; ++turn) {
      go(tree_->topLevelItemCount() / 2);
      added.push_back(Seconds(view, [&] { press(0); }));
    }
    Print("add_from_the_middle", std::move(added));
  }

  void Keep() {
    auto* journal = qApp->findChild<QTimer*>("JournalTimer");
    const int pause = journal->interval();
    std::vector<double> kept;
    for (int turn = 0; turn < kTurns; ++turn) {
      Module1.JobName = std::string("Line ") + std::to_string(turn);
      const double start = CpuSeconds();
      journal->start(0);
      Settle();
      kept.push_back(CpuSeconds() - start);
    }
    journal->setInterval(pause);
    Print("journal", std::move(kept));
    std::vector<double> saved;
    for (int turn = 0; turn < kTurns; ++turn) {
      const double start = CpuSeconds();
      form_->mnuSaveAs_Click();
      saved.push_back(CpuSeconds() - start);
      // A job of more tasks than a file takes leaves its file open.
      Module1.JobFileOpen = false;
    }
    Print("save_as", std::move(saved));
    Module1.JobDirty = kFalse;
    const double start = CpuSeconds();
    form_->mnuFileNew_Click();
    Print("new", {CpuSeconds() - start});
    form_->hide();
  }

  const ToolRow& tool_;
  int tasks_;
  std::unique_ptr<ToolForm> form_;
  TaskTree* tree_ = nullptr;
};

}  // namespace
}  // namespace halvane

int main(int argc, char** argv) {
  const halvane::HalvaneApplication application(argc, argv);
  const halvane::QuickPlatform platform;
  std::vector<std::string> words(argv + 1, argv + argc);
  if (!words.empty() && words.front() == "--spoken") {
    QAccessible::setActive(true);
    words.erase(words.begin());
  }
  for (const halvane::ToolRow& row : halvane::Tools()) {
    const bool hasTasks = row.tool == halvane::Tool::Ocra || row.tool == halvane::Tool::Ctd;
    if (words.size() < 2 || !hasTasks || row.key != words.front()) continue;
    for (std::size_t i = 1; i < words.size(); ++i) {
      halvane::LongList(row, std::stoi(words[i])).MeasureAll();
    }
    return 0;
  }
  return 2;
}
