#include <QKeyEvent>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 5;
/// A number of so many digits is one in every box.
constexpr int kDigits = 2;

void Send(QWidget& widget, QEvent::Type type) {
  QCoreApplication::postEvent(&widget, new QKeyEvent(type, Qt::Key_1, Qt::NoModifier, "1"));
}

void TypeInto(ToolForm& form, TextBox& box, const QString& page) {
  box.setFocus();
  FinishTurn();
  for (int turn = 0; turn < kTurns; ++turn) {
    // What is typed takes the place of what stood there.
    box.selectAll();
    FinishTurn();
    for (int digit = 0; digit < kDigits; ++digit) {
      const double seconds = SecondsOf(form, [&box] {
        Send(box, QEvent::KeyPress);
        Send(box, QEvent::KeyRelease);
      });
      PrintSample(page + ", " + box.objectName(), seconds);
    }
  }
}

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  opened.OpenFor(tool, [](ToolForm& form) {
    OnEveryPage(form, [&form](const QString& page) {
      for (TextBox* box : UsableOnView<TextBox>(form)) {
        if (!box->isReadOnly()) TypeInto(form, *box, page);
      }
    });
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// key_press TOOL: a digit typed in each box of the tool, from its press to what it changes,
/// painted.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
