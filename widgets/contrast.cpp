#include "widgets/contrast.h"

#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

/// A part of a colour, 0 to 1, in proportion to its light.
double Linear(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

/// One of `steps` steps from a colour to black or white.
QColor Step(const QColor& from, const QColor& to, int step, int steps) {
  const auto between = [&](int start, int end) { return start + (end - start) * step / steps; };
  return {between(from.red(), to.red()), between(from.green(), to.green()),
          between(from.blue(), to.blue())};
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor FillUnder(const QColor& painted, QColor fill, double contrast) {
  constexpr int kSteps = 64;
  // Towards the side where there is more room.
  const bool darker = Contrast(painted, Qt::black) >= Contrast(painted, Qt::white);
  const QColor start = fill;
  for (int step = 1; step <= kSteps && Contrast(painted, fill) < contrast; ++step) {
    fill = Step(start, darker ? Qt::black : Qt::white, step, kSteps);
  }
  return fill;
}

}  // namespace halvane
