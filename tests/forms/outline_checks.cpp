#include "tests/forms/outline_checks.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "widgets/contrast.h"
#include "widgets/picture_inks.h"
#include "widgets/posture_picture.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

/// An outline is looked for from so far outside of its control to so far inside.
constexpr int kOutside = 2;
constexpr int kInside = 5;
/// A part of a picture has at least so much of it; less is an edge between two parts.
constexpr double kLeastPart = 0.003;
/// Pixels of a mixed colour between two parts.
constexpr int kEdge = 2;

/// The place of a control's own box, in the control.
QRect BoxOf(const QWidget& control) {
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  if (button == nullptr) return control.rect();
  QStyleOptionButton option;
  option.initFrom(button);
  option.text = button->text();
  const bool isTick = qobject_cast<const QCheckBox*>(button) != nullptr;
  return button->style()->subElementRect(
      isTick ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option, button);
}

/// The highest contrast of the pixels on a line with its first one.
double HighestOnLine(const QImage& image, QPointF from, QPointF to) {
  const double ratio = image.devicePixelRatio();
  // Half a pixel each, so that none is left out.
  const int steps = static_cast<int>(2 * (kOutside + kInside) * ratio);
  const QColor ground = image.pixelColor((from * ratio).toPoint());
  double highest = 1;
  for (int step = 1; step <= steps; ++step) {
    const QPoint at = ((from + (to - from) * step / steps) * ratio).toPoint();
    if (image.rect().contains(at)) {
      highest = std::max(highest, Contrast(ground, image.pixelColor(at)));
    }
  }
  return highest;
}

/// The least of the four sides.
double OutlineContrast(const QImage& image, const QRect& box) {
  const QRectF place(box);
  const QPointF middle = place.center();
  const double left = place.left();
  const double right = place.right();
  const double top = place.top();
  const double bottom = place.bottom();
  return std::min({
      HighestOnLine(image, {left - kOutside, middle.y()}, {left + kInside, middle.y()}),
      HighestOnLine(image, {right + kOutside, middle.y()}, {right - kInside, middle.y()}),
      HighestOnLine(image, {middle.x(), top - kOutside}, {middle.x(), top + kInside}),
      HighestOnLine(image, {middle.x(), bottom + kOutside}, {middle.x(), bottom - kInside}),
  });
}

Findings CheckOutline(const QWidget& window, const QWidget& control, const QImage& image) {
  const QRect box = BoxOf(control).translated(control.mapTo(&window, QPoint()));
  const double contrast = OutlineContrast(image, box);
  if (contrast >= kPartContrast) return {};
  return {
      {NameOfControl(control), "has an outline of contrast " + QString::number(contrast, 'f', 2)}};
}

template <typename Kind>
void CheckAll(QWidget& window, const QImage& image, Findings& findings) {
  for (const Kind* control : window.findChildren<Kind*>()) {
    const QRect place(control->mapTo(&window, QPoint()), control->size());
    const bool isSeen = control->isVisible() && !control->visibleRegion().isEmpty() &&
                        control->visibleRegion().boundingRect() == control->rect() &&
                        window.rect().contains(place);
    const auto* box = qobject_cast<const QLineEdit*>(control);
    // A result is read like a text, and has no edge to aim at.
    const bool isResult = box != nullptr && box->isReadOnly();
    if (isSeen && control->isEnabled() && !isResult) {
      Append(findings, CheckOutline(window, *control, image));
    }
  }
}

/// Whether a pixel lies within a part and not on the edge of one, where colours mix.
bool IsInside(const QImage& picture, int x, int y) {
  const QRgb pixel = picture.pixel(x, y);
  return pixel == picture.pixel(x - 1, y) && pixel == picture.pixel(x + 1, y) &&
         pixel == picture.pixel(x, y - 1) && pixel == picture.pixel(x, y + 1);
}

/// The colours of a picture that cover a part of it worth its name.
std::set<QRgb> PartsOf(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 1; y < picture.height() - 1; ++y) {
    for (int x = 1; x < picture.width() - 1; ++x) {
      if (IsInside(picture, x, y)) ++counts[picture.pixel(x, y)];
    }
  }
  std::set<QRgb> parts;
  const double least = kLeastPart * picture.width() * picture.height();
  for (const auto& [color, count] : counts) {
    if (count >= least) parts.insert(color);
  }
  return parts;
}

/// How many pixels long the border of each two parts is.
std::map<std::pair<QRgb, QRgb>, int> BordersOf(const QImage& picture, const std::set<QRgb>& parts) {
  std::map<std::pair<QRgb, QRgb>, int> borders;
  const auto walk = [&](int x, int y, QPoint step) {
    std::optional<QRgb> last;
    for (int gap = 0; picture.valid(x, y); x += step.x(), y += step.y()) {
      const QRgb pixel = picture.pixel(x, y);
      // Between two parts the edge of both is mixed.
      if (!parts.contains(pixel)) {
        if (++gap > kEdge) last.reset();
        continue;
      }
      if (last && *last != pixel) ++borders[std::minmax(*last, pixel)];
      last = pixel;
      gap = 0;
    }
  };
  for (int y = 0; y < picture.height(); ++y) walk(0, y, {1, 0});
  for (int x = 0; x < picture.width(); ++x) walk(x, 0, {0, 1});
  return borders;
}

/// A button as it looks, without its edge.
QImage PictureOf(QAbstractButton& button) {
  constexpr int kEdgeOfButton = 2;
  const QImage image = button.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const int edge = static_cast<int>(kEdgeOfButton * image.devicePixelRatio());
  return image.copy(image.rect().adjusted(edge, edge, -edge, -edge));
}

/// The colour of a picture that covers most of it but for what is around its plate: what the figure
/// stands on.
QColor GroundOf(const QImage& picture, QRgb around) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  counts.erase(around);
  const auto most =
      std::max_element(counts.begin(), counts.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  return QColor::fromRgb(most->first);
}

/// Whether a colour is `tint` at any strength before `ground`.
bool IsStrengthOf(const QColor& tint, const QColor& ground, const QColor& color) {
  constexpr int kRounding = 2;
  const auto at = [&](int from, int to, double strength) {
    return qRound(from + strength * (to - from));
  };
  for (int percent = 1; percent <= 100; ++percent) {
    const double strength = percent / 100.0;
    if (std::abs(color.red() - at(ground.red(), tint.red(), strength)) <= kRounding &&
        std::abs(color.green() - at(ground.green(), tint.green(), strength)) <= kRounding &&
        std::abs(color.blue() - at(ground.blue(), tint.blue(), strength)) <= kRounding) {
      return true;
    }
  }
  return false;
}

/// Tints that repeat what lines around or beside them show. That of an open range fades out.
bool IsTint(QRgb color, const QColor& ground) {
  const QColor shown = QColor::fromRgb(color);
  if (shown == ground) return false;
  const auto inks = PictureInks();
  return std::any_of(inks.begin(), inks.end(), [&](const PictureInk& ink) {
    const bool isTint = QString(ink.name) == "range" || QString(ink.name) == "object";
    return isTint && (IsStrengthOf(QColor(ink.onLight), ground, shown) ||
                      IsStrengthOf(QColor(ink.onDark), ground, shown));
  });
}

}  // namespace

Findings CheckOutlines(QWidget& window) {
  Findings findings;
  const QImage image = window.grab().toImage();
  CheckAll<QLineEdit>(window, image, findings);
  CheckAll<QComboBox>(window, image, findings);
  CheckAll<QCheckBox>(window, image, findings);
  CheckAll<QRadioButton>(window, image, findings);
  return findings;
}

Findings CheckPictures(QWidget& window) {
  constexpr int kLeastBorder = 8;
  Findings findings;
  for (auto* button : window.findChildren<RibbonButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || button->Picture().isEmpty()) continue;
    if (PosturePicture(button->Picture(), Qt::white, RibbonButton::kLeastPicture).isNull()) {
      findings.push_back({NameOfControl(*button), "has a picture that is not there"});
    }
    const QImage picture = PictureOf(*button);
    const QRgb around = button->palette().color(QPalette::Highlight).rgb();
    const QColor ground = GroundOf(picture, around);
    for (const auto& [colors, length] : BordersOf(picture, PartsOf(picture))) {
      const QColor one = QColor::fromRgb(colors.first);
      const QColor other = QColor::fromRgb(colors.second);
      const double contrast = Contrast(one, other);
      if (length < kLeastBorder || contrast >= kPartContrast) continue;
      if (IsTint(colors.first, ground) || IsTint(colors.second, ground)) continue;
      // Where a picture fills its plate, it touches what is around that.
      if (colors.first == around || colors.second == around) continue;
      findings.push_back({NameOfControl(*button),
                          QString("has parts of its picture of contrast %1: %2 beside %3")
                              .arg(QString::number(contrast, 'f', 2), one.name(), other.name())});
    }
  }
  return findings;
}

}  // namespace halvane
