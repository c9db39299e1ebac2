#include "benchmarks/action.h"

#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "benchmarks/cpu_seconds.h"
#include "core/tool_names.h"
#include "shell/halvane_application.h"
#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr int kBodyParts = 4;

/// Counts what is painted in a window.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isPaint = event->type() == QEvent::Paint && watched->isWidgetType();
    if (isPaint && static_cast<QWidget*>(watched)->window() == &window_) ++count_;
    return QObject::eventFilter(watched, event);
  }

  [[nodiscard]] int count() const { return count_; }

 private:
  QWidget& window_;
  int count_ = 0;
};

void SendMouse(QWidget& widget, QEvent::Type type, QPoint place) {
  const bool isMove = type == QEvent::MouseMove;
  const Qt::MouseButton button = isMove ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QCoreApplication::postEvent(&widget, new QMouseEvent(type, place, widget.mapToGlobal(place),
                                                       button, down, Qt::NoModifier));
}

void ShowTab(QTabWidget& tabs, int tab) {
  Click(*tabs.tabBar(), tabs.tabBar()->tabRect(tab).center());
  FinishTurn();
}

/// The body parts of the tool that shows their frames one after the other, where they are on view.
QList<RibbonButton*> BodyParts(const ToolForm& form) {
  QList<RibbonButton*> parts;
  if (form.objectName() != "frmCTD") return parts;
  for (int part = 0; part < kBodyParts; ++part) {
    auto* button = form.findChild<RibbonButton*>(ElementName("SSRibbon3", part));
    if (button->isVisible()) parts.append(button);
  }
  return parts;
}

}  // namespace

void PrintSample(const QString& what, double amount) {
  std::printf("%s\t%.9f\n", qUtf8Printable(what), amount);
}

void Require(bool isSo, const char* complaint) {
  if (isSo) return;
  std::fprintf(stderr, "%s\n", complaint);
  std::_Exit(1);
}

void FinishTurn() {
  // A layout that gives a caption another width may need another height.
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

double SecondsOf(QWidget& form, const std::function<void()>& action) {
  const PaintCount painted(form);
  const double start = CpuSeconds();
  action();
  FinishTurn();
  const double seconds = CpuSeconds() - start;
  Require(painted.count() > 0, "nothing was painted");
  return seconds;
}

void Press(QWidget& widget, QPoint place) { SendMouse(widget, QEvent::MouseButtonPress, place); }

void DragTo(QWidget& widget, QPoint place) { SendMouse(widget, QEvent::MouseMove, place); }

void Release(QWidget& widget, QPoint place) {
  SendMouse(widget, QEvent::MouseButtonRelease, place);
}

void Click(QWidget& widget, QPoint place) {
  Press(widget, place);
  Release(widget, place);
}

void OnEveryPage(ToolForm& form, const std::function<void(const QString& page)>& use) {
  if (auto* tree = form.findChild<TaskTree*>()) {
    tree->scrollToTop();
    Click(*tree->viewport(), tree->visualItemRect(tree->topLevelItem(0)).center());
    FinishTurn();
  }
  auto* tabs = form.findChild<QTabWidget*>("SSTab1");
  if (tabs == nullptr) {
    use("page");
    return;
  }
  for (int tab = 0; tab + 1 < tabs->count(); ++tab) {
    ShowTab(*tabs, tab);
    const QList<RibbonButton*> parts = BodyParts(form);
    if (parts.isEmpty()) use(tabs->tabText(tab).trimmed());
    for (RibbonButton* part : parts) {
      Click(*part, part->rect().center());
      FinishTurn();
      use(tabs->tabText(tab).trimmed() + ", " + part->objectName());
    }
  }
}

int RunOnTool(int argc, char** argv,
              const std::function<void(Tool tool, const std::string& argument)>& measure) {
  const HalvaneApplication application(argc, argv);
  for (const ToolName& name : kToolNames) {
    if (argc < 2 || argc > 3 || name.key != argv[1]) continue;
    measure(name.tool, argc == 3 ? argv[2] : "");
    return 0;
  }
  return 2;
}

}  // namespace halvane
