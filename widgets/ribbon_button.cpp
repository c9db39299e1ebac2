#include "widgets/ribbon_button.h"

#include <QButtonGroup>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace halvane {
namespace {

constexpr int kPadding = 4;
/// What of a pressed ribbon has the highlight all round.
constexpr int kEdge = 2;
/// The room beside a picture gets wider by this part of what the picture does.
constexpr int kGrowingSide = 4;
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
  setIcon(QIcon(":/assets/" + assetName + ".svg"));
  setIconSize({size, size});
  measured_ = {};
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RibbonButton::SetOneLine() {
  oneLine_ = true;
  measured_ = {};
  updateGeometry();
}

void RibbonButton::StandLevelWith(const RibbonButton& other) {
  neighbours_.emplace_back(&other);
  updateGeometry();
}

void RibbonButton::SetLargestHeight(int height) {
  largestHeight_ = height;
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
}

QString RibbonButton::ShownText() const {
  // Blanks around a caption would only push it out of the middle.
  return text().trimmed();
}

int RibbonButton::CaptionFlags() const {
  return Qt::AlignCenter | (oneLine_ ? Qt::TextSingleLine : Qt::TextWordWrap);
}

RibbonButton::Measured& RibbonButton::Known() const {
  if (measured_.font != font() || measured_.text != text()) measured_ = {font(), text()};
  return measured_;
}

int RibbonButton::CaptionWidth() const {
  int& width = Known().width;
  if (width == 0) width = MeasureCaption();
  // As narrow as picture and words allow, so that a row of pictures fits a small window.
  return oneLine_ || icon().isNull() ? width : std::max(width, iconSize().width());
}

int RibbonButton::MeasureCaption() const {
  if (oneLine_) return fontMetrics().horizontalAdvance(ShownText()) + 1;
  if (icon().isNull()) {
    return std::min(fontMetrics().horizontalAdvance(text()) + 1,
                    kWidestLine * fontMetrics().averageCharWidth());
  }
  int width = 0;
  for (const QString& word : text().split(' ')) {
    width = std::max(width, fontMetrics().horizontalAdvance(word) + 1);
  }
  return width;
}

int RibbonButton::SideRoom() const {
  // A caption in one line may come close to the edges.
  return oneLine_ ? kPadding / 2 : kPadding;
}

int RibbonButton::PictureRoom() const {
  if (icon().isNull()) return 0;
  // The least one fits a small window by standing close to the edges.
  const int size = iconSize().width();
  return size + std::max(size - kLeastPicture, 0) / kGrowingSide;
}

int RibbonButton::LeastWidth() const {
  const int caption = CaptionWidth();
  const QRect box =
      fontMetrics().boundingRect(0, 0, caption, QWIDGETSIZE_MAX, CaptionFlags(), ShownText());
  return std::max({caption, box.width(), PictureRoom()}) + 2 * SideRoom();
}

QSize RibbonButton::CaptionSize(int width) const {
  QSize& size = Known().sizes[width];
  if (size.isEmpty()) {
    size = fontMetrics()
               .boundingRect(0, 0, width, QWIDGETSIZE_MAX, CaptionFlags(), ShownText())
               .size();
  }
  return size;
}

int RibbonButton::EvenWidth(int room) const {
  if (oneLine_) return room;
  const int height = CaptionSize(room).height();
  int width = CaptionSize(0).width();  // of the widest word
  while (width < room && CaptionSize(width).height() > height) ++width;
  return std::min(width, room);
}

std::vector<const RibbonButton*> RibbonButton::Alike() const {
  if (group() == nullptr) return {this};
  std::vector<const RibbonButton*> alike;
  for (const QAbstractButton* button : group()->buttons()) {
    const auto* ribbon = qobject_cast<const RibbonButton*>(button);
    if (ribbon != nullptr) alike.push_back(ribbon);
  }
  return alike;
}

int RibbonButton::GroupWidth() const {
  int width = 0;
  for (const RibbonButton* ribbon : Alike()) width = std::max(width, ribbon->LeastWidth());
  return width;
}

int RibbonButton::GroupCaption() const {
  const int width = GroupWidth() - 2 * SideRoom();
  int height = 0;
  for (const RibbonButton* ribbon : Alike()) {
    height = std::max(height, ribbon->CaptionSize(width).height());
  }
  return height;
}

int RibbonButton::CaptionRoom() const {
  int height = GroupCaption();
  for (const auto& neighbour : neighbours_) {
    if (neighbour != nullptr) height = std::max(height, neighbour->GroupCaption());
  }
  return height;
}

QSize RibbonButton::sizeHint() const { return minimumSizeHint().expandedTo({0, largestHeight_}); }

QSize RibbonButton::minimumSizeHint() const {
  const int picture = icon().isNull() ? 0 : iconSize().height() + kPadding;
  return {GroupWidth(), picture + CaptionRoom() + 2 * kPadding};
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
  const int captionWidth = EvenWidth(width() - 2 * SideRoom());
  QRect caption((width() - captionWidth) / 2, 0, captionWidth, height());
  if (!icon().isNull()) {
    const int top = (height() - iconSize().height() - kPadding - CaptionRoom()) / 2;
    PaintPicture(painter, {(width() - iconSize().width()) / 2, top});
    // From below the picture on, so that first lines of a row stand level.
    caption.setTop(top + iconSize().height() + kPadding);
    caption.setHeight(CaptionSize(captionWidth).height());
  }
  painter.drawText(caption, CaptionFlags(), ShownText());
  if (hasFocus()) PaintFocus(painter);
}

void RibbonButton::PaintGround(QPainter& painter) const {
  const bool near = underMouse() && isEnabled() && !isChecked();
  const QColor fill =
      palette().color(Group(), isChecked() ? QPalette::Highlight : QPalette::Button);
  painter.fillRect(rect(), near ? fill.lighter(108) : fill);
  // Lines of whole logical pixels, which end at the edge at every scale.
  const QColor line = palette().color(Group(), QPalette::Mid);
  painter.fillRect(0, 0, width(), 1, line);
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(0, 0, 1, height(), line);
  painter.fillRect(width() - 1, 0, 1, height(), line);
}

void RibbonButton::PaintPicture(QPainter& painter, QPoint corner) const {
  // The accent of a picture would be lost on the highlight.
  if (isChecked()) {
    const QRect place = QRect(corner, iconSize()).adjusted(-kEdge, -kEdge, kEdge, kEdge);
    const QRect inside = rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    painter.fillRect(place.intersected(inside), palette().color(Group(), QPalette::Base));
  }
  const QPixmap picture = icon().pixmap(iconSize(), painter.device()->devicePixelRatio(),
                                        isEnabled() ? QIcon::Normal : QIcon::Disabled);
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
