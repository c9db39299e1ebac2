#include "widgets/ribbon_button.h"

#include <QButtonGroup>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "widgets/posture_picture.h"

namespace halvane {
namespace {

constexpr int kPadding = 4;
/// What of a pressed ribbon has the highlight all round.
constexpr int kEdge = 2;
/// The room beside a picture gets wider by this part of what the picture does.
constexpr int kGrowingSide = 4;
/// The corner that has the tick of a pressed ribbon.
constexpr int kCorner = 15;
/// A ribbon that is held down moves so far and has so wide a shade.
constexpr int kGivesWay = 1;
constexpr int kShade = 3;
/// A caption wider than this many average characters wraps.
constexpr int kWidestLine = 17;

}  // namespace

RibbonButton::RibbonButton(const QString& name, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
  setObjectName(name);
  setText(caption);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RibbonButton::SetPicture(const QString& assetName, int size) {
  picture_ = assetName;
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
  return oneLine_ || picture_.isEmpty() ? width : std::max(width, iconSize().width());
}

int RibbonButton::MeasureCaption() const {
  if (oneLine_) return fontMetrics().horizontalAdvance(ShownText()) + 1;
  if (picture_.isEmpty()) {
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
  if (picture_.isEmpty()) return 0;
  // The least one fits a small window by standing close to the edges.
  const int size = iconSize().width();
  return size + std::max(size - kLeastPicture, 0) / kGrowingSide;
}

int RibbonButton::LeastWidth() const {
  const int caption = CaptionWidth();
  return std::max({caption, CaptionSize(caption).width(), PictureRoom()}) + 2 * SideRoom();
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
  int even = std::min(CaptionSize(0).width(), room);  // of the widest word
  int enough = room;
  // A wider caption is never higher.
  while (even < enough) {
    const int middle = (even + enough) / 2;
    if (CaptionSize(middle).height() > height) {
      even = middle + 1;
    } else {
      enough = middle;
    }
  }
  return even;
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
  const int picture = picture_.isEmpty() ? 0 : iconSize().height() + kPadding;
  return {GroupWidth(), picture + CaptionRoom() + 2 * kPadding};
}

QPalette::ColorGroup RibbonButton::Group() const {
  return isEnabled() ? QPalette::Active : QPalette::Disabled;
}

QColor RibbonButton::TextColor() const {
  return palette().color(Group(), isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
}

QColor RibbonButton::Fill() const {
  const QColor fill =
      palette().color(Group(), isChecked() ? QPalette::Highlight : QPalette::Button);
  if (isDown()) return fill.darker(108);
  const bool near = underMouse() && isEnabled() && !isChecked();
  return near ? fill.lighter(108) : fill;
}

void RibbonButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PaintGround(painter);
  const int way = isDown() ? kGivesWay : 0;
  const int captionWidth = EvenWidth(width() - 2 * SideRoom());
  QRect caption((width() - captionWidth) / 2, 0, captionWidth, height());
  if (!picture_.isEmpty()) {
    const int top = (height() - iconSize().height() - kPadding - CaptionRoom()) / 2;
    PaintPicture(painter, {(width() - iconSize().width()) / 2 + way, top + way});
    // From below the picture on, so that first lines of a row stand level.
    caption.setTop(top + iconSize().height() + kPadding);
    caption.setHeight(CaptionSize(captionWidth).height());
  }
  if (isChecked()) PaintTick(painter);
  painter.setPen(TextColor());
  PaintCaption(painter, caption.translated(way, way));
  if (hasFocus()) PaintFocus(painter);
}

void RibbonButton::PaintCaption(QPainter& painter, const QRect& place) const {
  QStaticText& caption = Known().shown;
  if (caption.textWidth() != place.width()) {
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(oneLine_ ? QTextOption::ManualWrap : QTextOption::WordWrap);
    caption.setTextFormat(Qt::PlainText);
    caption.setTextOption(option);
    caption.setTextWidth(place.width());
    caption.setText(ShownText());
  }
  const double above = (place.height() - caption.size().height()) / 2;
  painter.drawStaticText(QPointF(place.left(), place.top() + above), caption);
}

void RibbonButton::PaintGround(QPainter& painter) const {
  painter.fillRect(rect(), Fill());
  // Lines of whole logical pixels, which end at the edge at every scale.
  const QColor line = palette().color(Group(), QPalette::Mid);
  const bool near = underMouse() && isEnabled();
  const int wide = near ? 2 : 1;
  const int shade = isDown() ? kShade : wide;
  painter.fillRect(0, 0, width(), shade, line);
  painter.fillRect(0, height() - wide, width(), wide, line);
  painter.fillRect(0, 0, shade, height(), line);
  painter.fillRect(width() - wide, 0, wide, height(), line);
}

void RibbonButton::PaintTick(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF corner(width() - 1, 1);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(Group(), QPalette::Highlight));
  painter.drawPolygon(
      QPolygonF{corner, corner - QPointF(kCorner, 0), corner + QPointF(0, kCorner)});
  painter.setPen(QPen(TextColor(), 1.5));
  const QPointF foot = corner + QPointF(-5, 6);
  painter.drawPolyline(QPolygonF{foot - QPointF(2.5, 2.5), foot, foot + QPointF(3, -4.5)});
  painter.restore();
}

bool RibbonButton::DrawAhead() const {
  const int side = PictureSide(devicePixelRatioF());
  if (picture_.isEmpty() || IsPostureDrawn(picture_, PictureGround(), side)) return false;
  (void)PosturePicture(picture_, PictureGround(), side);
  return true;
}

QColor RibbonButton::PictureGround() const {
  // The inks of a picture would be lost on the highlight.
  return isChecked() ? palette().color(Group(), QPalette::Base) : Fill();
}

int RibbonButton::PictureSide(double ratio) const { return qRound(iconSize().width() * ratio); }

void RibbonButton::PaintPicture(QPainter& painter, QPoint corner) const {
  const QColor ground = PictureGround();
  if (isChecked()) {
    const QRect place = QRect(corner, iconSize()).adjusted(-kEdge, -kEdge, kEdge, kEdge);
    const QRect inside = rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    painter.fillRect(place.intersected(inside), ground);
  }
  const double ratio = painter.device()->devicePixelRatio();
  const QIcon inked(PosturePicture(picture_, ground, PictureSide(ratio)));
  QPixmap picture =
      inked.pixmap(iconSize() * ratio, 1.0, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  picture.setDevicePixelRatio(ratio);
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
