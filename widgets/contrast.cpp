#include "widgets/contrast.h"

#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

/// A part of a colour, 0 to 1, in proportion to its light.
double Linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// One of `steps` steps from a colour to black or white.
QColor Step(const QColor& from, const QColor& to, int step, int steps) {
  const auto between = [&](int start, int end) { return start + (end - start) * step / steps; };
  return {between(from.red(), to.red()), between(from.green(), to.green()),
          between(from.blue(), to.blue())};
}

}  // namespace

double RelativeLuminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({RelativeLuminance(one), RelativeLuminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor ApartFrom(const QColor& other, QColor color, double contrast) {
  constexpr int kSteps = 64;
  // Towards the side where there is more room.
  const QColor end =
      Contrast(other, Qt::black) >= Contrast(other, Qt::white) ? Qt::black : Qt::white;
  const QColor start = color;
  for (int step = 1; step <= kSteps && Contrast(other, color) < contrast; ++step) {
    color = Step(start, end, step, kSteps);
  }
  return color;
}

}  // namespace halvane
