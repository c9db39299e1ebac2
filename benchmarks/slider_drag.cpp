#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kMostSteps = 20;

/// Where the middle of a slider's handle is at a value.
QPoint HandleAt(const QSlider& slider, int value) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.orientation = Qt::Horizontal;
  option.state |= QStyle::State_Horizontal;
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  option.sliderPosition = option.sliderValue = value;
  return slider.style()
      ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
      .center();
}

/// Drags the handle from one end to the other and back.
void Drag(ToolForm& form, QSlider& slider, const QString& page) {
  const int range = slider.maximum() - slider.minimum();
  const int steps = std::min(range, kMostSteps);
  Press(slider, HandleAt(slider, slider.value()));
  FinishTurn();
  QPoint place;
  for (int step = 0; step <= 2 * steps; ++step) {
    const int share = std::min(step, 2 * steps - step);
    const int value = slider.minimum() + range * share / steps;
    if (value == slider.value()) continue;
    place = HandleAt(slider, value);
    PrintSample(page + ", " + slider.objectName(), SecondsOf(form, [&] { DragTo(slider, place); }));
  }
  Release(slider, place);
  FinishTurn();
}

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  opened.OpenFor(tool, [](ToolForm& form) {
    OnEveryPage(form, [&form](const QString& page) {
      for (QSlider* slider : UsableOnView<QSlider>(form)) Drag(form, *slider, page);
    });
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// slider_drag TOOL: a step of each slider of the tool that is dragged by its handle.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
