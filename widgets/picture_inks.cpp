#include "widgets/picture_inks.h"

#include <algorithm>
#include <array>

#include "widgets/contrast.h"

namespace halvane {
namespace {

// clang-format off
constexpr std::array kInks{
    // ink,               light,     dark
    PictureInk{"figure", "#797d85", "#757a83"},
    PictureInk{"accent", "#082a84", "#cae0ff"},
    PictureInk{"guide",  "#14171c", "#ffffff"},
    PictureInk{"range",  "#b9cdf5", "#36599b"},
    PictureInk{"object", "#e3e6ea", "#565c66"},
};
// clang-format on
/// A ground below this is nearer to black than to white in contrast.
constexpr double kDarkGround = 0.179;

}  // namespace

std::span<const PictureInk> PictureInks() { return kInks; }

PostureColors ColorsOn(const QColor& ground) {
  const bool isDark = RelativeLuminance(ground) < kDarkGround;
  PostureColors colors{ground};
  colors.back() = QColor(kSignInk);
  std::transform(kInks.begin(), kInks.end(), colors.begin() + 1, [isDark](const PictureInk& ink) {
    return QColor(isDark ? ink.onDark : ink.onLight);
  });
  return colors;
}

}  // namespace halvane
