// memory_of_openings TOOL [OPENINGS]: opens and closes the form of a tool with a job of 40 tasks in
// the main window so many times, 500 if not given. Prints lines "TOOL OPENINGS RESIDENT HEAP" of
// what the program holds then, in KiB, and last "TOOL growth RESIDENT HEAP" from the 50th opening
// on.
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/memory.h"
#include "benchmarks/paint_watch.h"
#include "benchmarks/quick_platform.h"
#include "core/tool_names.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kOpenings = 500;
constexpr int kFirst = 50;
constexpr int kStep = 50;

/// Closes each tool as soon as it has been painted.
class Closer : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* form = qobject_cast<ToolForm*>(watched);
    if (form != nullptr && event->type() == QEvent::Paint) {
      QTimer::singleShot(0, form, &QWidget::close);
    }
    return QObject::eventFilter(watched, event);
  }
};

/// Opens a tool as its launch button does. The one without a button is kept as the others are.
class Opener {
 public:
  explicit Opener(Tool tool) : tool_(tool), window_(MakeToolForm) {
    PaintWatch watch(window_);
    window_.show();
    watch.WaitForPaint();
    window_.Timer1_Timer();
    FillJob(kTasks, 1);
  }

  void Open() {
    int button = 0;
    for (const ToolName& name : kToolNames) {
      if (name.buttonCaption.empty()) continue;
      if (name.tool == tool_) return window_.SSCommand2_Click(button);
      ++button;
    }
    if (!form_) form_ = MakeToolForm(tool_, &window_);
    form_->load();
    form_->exec();
  }

 private:
  Tool tool_;
  FrmHandMain window_;
  std::unique_ptr<ToolForm> form_;
};

void Measure(const ToolRow& tool, int openings) {
  Opener opener(tool.tool);
  Closer closer;
  qApp->installEventFilter(&closer);
  const std::string key(tool.key);
  MemoryHeld first;
  for (int opening = 1; opening <= openings; ++opening) {
    opener.Open();
    if (opening % kStep != 0) continue;
    const MemoryHeld now = MemoryNow();
    if (opening == kFirst) first = now;
    std::printf("%s %d %ld %ld\n", key.c_str(), opening, now.resident, now.heap);
    if (opening + kStep > openings) {
      std::printf("%s growth %ld %ld\n", key.c_str(), now.resident - first.resident,
                  now.heap - first.heap);
    }
  }
}

}  // namespace
}  // namespace halvane

int main(int argc, char** argv) {
  const halvane::HalvaneApplication application(argc, argv);
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  const halvane::QuickPlatform platform;
  for (const halvane::ToolRow& row : halvane::Tools()) {
    if (argc < 2 || row.key != argv[1]) continue;
    halvane::Measure(row, argc > 2 ? std::atoi(argv[2]) : halvane::kOpenings);
    return 0;
  }
  return 2;
}
