#include "widgets/ribbon_button.h"

#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "widgets/picture_inks.h"

namespace halvane {
namespace {

constexpr int kPadding = 4;
/// A button with a picture is so wide where there is room.
constexpr int kPictureButtonWidth = 72;
/// A caption wider than this many average characters wraps.
constexpr int kWidestLine = 17;

}  // namespace

RibbonButton::RibbonButton(const QString& name, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
  setObjectName(name);
  setText(caption);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RibbonButton::SetPicture(const QString& assetName, int size) {
  picture_ = assetName;
  setIcon(QIcon(":/assets/" + assetName + ".svg"));
  setIconSize({size, size});
}

void RibbonButton::SetOneLine() {
  oneLine_ = true;
  updateGeometry();
}

QString RibbonButton::ShownText() const {
  // Blanks around a caption would only push it out of the middle.
  return text().trimmed();
}

int RibbonButton::CaptionFlags() const {
  return Qt::AlignCenter | (oneLine_ ? Qt::TextSingleLine : Qt::TextWordWrap);
}

int RibbonButton::CaptionWidth() const {
  if (oneLine_) {
    const int line = fontMetrics().horizontalAdvance(ShownText()) + 1;
    return icon().isNull() ? line : std::max(iconSize().width(), line);
  }
  if (!icon().isNull()) {
    // As narrow as picture and words allow, so that a row of pictures fits a small window.
    int width = iconSize().width();
    for (const QString& word : text().split(' ')) {
      width = std::max(width, fontMetrics().horizontalAdvance(word) + 1);
    }
    return width;
  }
  return std::min(fontMetrics().horizontalAdvance(text()) + 1,
                  kWidestLine * fontMetrics().averageCharWidth());
}

QSize RibbonButton::sizeHint() const {
  const QSize least = minimumSizeHint();
  if (icon().isNull()) return least;
  return {std::max(kPictureButtonWidth, CaptionWidth() + 3 * kPadding), least.height()};
}

QSize RibbonButton::minimumSizeHint() const {
  const int width = CaptionWidth();
  const QRect box = fontMetrics().boundingRect(0, 0, width, 10000, CaptionFlags(), ShownText());
  const int picture = icon().isNull() ? 0 : iconSize().width() + kPadding;
  // A caption in one line may come close to the edges.
  const int sides = oneLine_ ? kPadding : 2 * kPadding;
  return {std::max(width, box.width()) + sides, picture + box.height() + 2 * kPadding};
}

void RibbonButton::DrawPicture(QPainter& painter, const QRect& place, const QColor& ground) const {
  const int side = qRound(place.width() * devicePixelRatioF());
  const QIcon inked(InkedPicture(picture_, ground, side));
  inked.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void RibbonButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  const bool down = isChecked();
  const bool near = underMouse() && isEnabled() && !down;
  const QColor fill = palette().color(group, down ? QPalette::Highlight : QPalette::Button);
  const QColor shown = near ? fill.lighter(108) : fill;
  painter.fillRect(rect(), shown);
  // Lines of whole logical pixels, which end at the edge at every scale.
  const QColor line = palette().color(group, QPalette::Mid);
  painter.fillRect(0, 0, width(), 1, line);
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(0, 0, 1, height(), line);
  painter.fillRect(width() - 1, 0, 1, height(), line);
  painter.setPen(palette().color(group, down ? QPalette::HighlightedText : QPalette::ButtonText));
  QRect inside = rect().adjusted(kPadding, kPadding, -kPadding, -kPadding);
  if (!icon().isNull()) {
    const QRect place((width() - iconSize().width()) / 2, inside.top(), iconSize().width(),
                      iconSize().width());
    // The inks of a picture would be lost on the highlight.
    const QColor ground = down ? palette().color(group, QPalette::Base) : shown;
    if (down) painter.fillRect(place.adjusted(-2, -2, 2, 2), ground);
    DrawPicture(painter, place, ground);
    inside.setTop(place.bottom() + kPadding);
  }
  if (oneLine_) inside.adjust(-kPadding, 0, kPadding, 0);
  painter.drawText(inside, CaptionFlags(), ShownText());
  if (hasFocus()) {
    QPen pen(painter.pen().color(), 1, Qt::DashLine);
    painter.setPen(pen);
    painter.drawRect(rect().adjusted(3, 3, -4, -4));
  }
}

}  // namespace halvane
