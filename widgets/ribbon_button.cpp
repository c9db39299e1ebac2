#include "widgets/ribbon_button.h"

#include <QButtonGroup>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "widgets/picture_inks.h"

namespace halvane {
namespace {

constexpr int kPadding = 4;
/// What of a pressed ribbon has the highlight all round.
constexpr int kEdge = 2;
/// Beside a picture, where there is room.
constexpr int kPictureSide = 8;
/// Beside a caption that is wider than its picture, where there is room.
constexpr int kCaptionSide = 6;
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
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
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
  if (oneLine_) return fontMetrics().horizontalAdvance(ShownText()) + 1;
  if (!icon().isNull()) {
    // As narrow as picture and words allow, so that a row of pictures fits a small window.
    int width = 0;
    for (const QString& word : text().split(' ')) {
      width = std::max(width, fontMetrics().horizontalAdvance(word) + 1);
    }
    return std::max(width, iconSize().width());
  }
  return std::min(fontMetrics().horizontalAdvance(text()) + 1,
                  kWidestLine * fontMetrics().averageCharWidth());
}

int RibbonButton::SideRoom() const {
  // A caption in one line may come close to the edges.
  return oneLine_ ? kPadding / 2 : kPadding;
}

int RibbonButton::LeastWidth() const {
  const int caption = CaptionWidth();
  const QRect box =
      fontMetrics().boundingRect(0, 0, caption, QWIDGETSIZE_MAX, CaptionFlags(), ShownText());
  const int picture = icon().isNull() ? 0 : iconSize().width();
  return std::max({caption, box.width(), picture}) + 2 * SideRoom();
}

QSize RibbonButton::CaptionSize(int buttonWidth) const {
  const int width = buttonWidth - 2 * SideRoom();
  return fontMetrics()
      .boundingRect(0, 0, width, QWIDGETSIZE_MAX, CaptionFlags(), ShownText())
      .size();
}

std::vector<const RibbonButton*> RibbonButton::Alike() const {
  if (icon().isNull() || group() == nullptr) return {this};
  std::vector<const RibbonButton*> alike;
  for (const QAbstractButton* button : group()->buttons()) {
    const auto* ribbon = qobject_cast<const RibbonButton*>(button);
    if (ribbon != nullptr && !ribbon->icon().isNull()) alike.push_back(ribbon);
  }
  return alike;
}

int RibbonButton::CaptionRoom(int buttonWidth) const {
  int height = 0;
  for (const RibbonButton* ribbon : Alike()) {
    height = std::max(height, ribbon->CaptionSize(buttonWidth).height());
  }
  return height;
}

QSize RibbonButton::sizeHint() const {
  QSize hint = minimumSizeHint();
  if (icon().isNull()) return hint;
  for (const RibbonButton* ribbon : Alike()) {
    const int picture = ribbon->iconSize().width() + 2 * kPictureSide;
    const int caption = ribbon->CaptionWidth() + 2 * kCaptionSide;
    hint = hint.expandedTo({std::max(picture, caption), 0});
  }
  return hint;
}

QSize RibbonButton::minimumSizeHint() const {
  int width = 0;
  for (const RibbonButton* ribbon : Alike()) width = std::max(width, ribbon->LeastWidth());
  const int picture = icon().isNull() ? 0 : iconSize().height() + kPadding;
  return {width, picture + CaptionRoom(width) + 2 * kPadding};
}

QPalette::ColorGroup RibbonButton::Group() const {
  return isEnabled() ? QPalette::Active : QPalette::Disabled;
}

QColor RibbonButton::TextColor() const {
  return palette().color(Group(), isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
}

void RibbonButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintGround(painter);
  painter.setPen(TextColor());
  QRect caption = rect().adjusted(SideRoom(), kPadding, -SideRoom(), -kPadding);
  if (!icon().isNull()) {
    const int room = CaptionRoom(width());
    const int top = (height() - iconSize().height() - kPadding - room) / 2;
    PaintPicture(painter, {(width() - iconSize().width()) / 2, top});
    // From below the picture on, so that first lines of a row stand level.
    const int captionTop = top + iconSize().height() + kPadding;
    caption = QRect(caption.left(), captionTop, caption.width(), CaptionSize(width()).height());
  }
  painter.drawText(caption, CaptionFlags(), ShownText());
  if (hasFocus()) PaintFocus(painter);
}

QColor RibbonButton::GroundColor() const {
  const bool near = underMouse() && isEnabled() && !isChecked();
  const QColor fill =
      palette().color(Group(), isChecked() ? QPalette::Highlight : QPalette::Button);
  return near ? fill.lighter(108) : fill;
}

void RibbonButton::PaintGround(QPainter& painter) const {
  painter.fillRect(rect(), GroundColor());
  // Lines of whole logical pixels, which end at the edge at every scale.
  const QColor line = palette().color(Group(), QPalette::Mid);
  painter.fillRect(0, 0, width(), 1, line);
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(0, 0, 1, height(), line);
  painter.fillRect(width() - 1, 0, 1, height(), line);
}

void RibbonButton::PaintPicture(QPainter& painter, QPoint corner) const {
  // The inks of a picture would be lost on the highlight.
  const QColor ground = isChecked() ? palette().color(Group(), QPalette::Base) : GroundColor();
  if (isChecked()) {
    const QRect place = QRect(corner, iconSize()).adjusted(-kEdge, -kEdge, kEdge, kEdge);
    const QRect inside = rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    painter.fillRect(place.intersected(inside), ground);
  }
  const qreal ratio = painter.device()->devicePixelRatio();
  QPixmap picture = InkedPicture(picture_, ground, qRound(iconSize().width() * ratio));
  picture.setDevicePixelRatio(ratio);
  if (!isEnabled()) picture = QIcon(picture).pixmap(iconSize(), ratio, QIcon::Disabled);
  // Between two device pixels it would blur.
  const QTransform toDevice = painter.deviceTransform();
  const QPointF pixel = toDevice.map(QPointF(corner)).toPoint();
  painter.drawPixmap(toDevice.inverted().map(pixel), picture);
}

void RibbonButton::PaintFocus(QPainter& painter) const {
  painter.setPen(QPen(TextColor(), 1, Qt::DashLine));
  // Between the edge and what is behind a picture.
  painter.drawRect(rect().adjusted(1, 1, -kEdge, -kEdge));
}

}  // namespace halvane
