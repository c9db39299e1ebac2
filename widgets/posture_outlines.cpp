#include "widgets/posture_outlines.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <QtEndian>
#include <QtMath>
#include <algorithm>

namespace halvane {
namespace {

constexpr double kSteps = 100;

/// The second and third point of a curve are elements to the toolkit.
bool IsOfPieceBefore(const QPainterPath::Element& element) {
  return element.type == QPainterPath::CurveToDataElement;
}

qint16 Stored(double value) { return static_cast<qint16>(qRound(value * kSteps)); }

void WritePath(QDataStream& out, const QPainterPath& path) {
  std::vector<QPainterPath::Element> elements;
  elements.reserve(static_cast<std::size_t>(path.elementCount()));
  for (int i = 0; i < path.elementCount(); ++i) elements.push_back(path.elementAt(i));
  const auto data = std::count_if(elements.begin(), elements.end(), IsOfPieceBefore);
  out << static_cast<quint16>(path.elementCount() - data);
  for (const QPainterPath::Element& element : elements) {
    if (!IsOfPieceBefore(element)) out << static_cast<quint8>(element.type);
    out << Stored(element.x) << Stored(element.y);
  }
}

/// Reads numbers one by one; what is behind the end is 0.
class NumberReader {
 public:
  explicit NumberReader(const QByteArray& bytes) : next_(bytes.begin()), end_(bytes.end()) {}

  [[nodiscard]] bool AtEnd() const { return next_ == end_; }

  template <typename Number>
  Number Next() {
    if (end_ - next_ < static_cast<qptrdiff>(sizeof(Number))) {
      next_ = end_;
      return 0;
    }
    const auto value = qFromBigEndian<Number>(next_);
    next_ += sizeof(Number);
    return value;
  }

  QPointF Point() {
    const double x = Next<qint16>() / kSteps;
    return {x, Next<qint16>() / kSteps};
  }

 private:
  const char* next_;
  const char* end_;
};

void ReadPiece(NumberReader& in, QPainterPath& path) {
  const auto type = in.Next<quint8>();
  const QPointF point = in.Point();
  if (type == QPainterPath::MoveToElement) {
    path.moveTo(point);
  } else if (type == QPainterPath::LineToElement) {
    path.lineTo(point);
  } else {
    const QPointF second = in.Point();
    path.cubicTo(point, second, in.Point());
  }
}

PostureOutline ReadOutline(NumberReader& in) {
  PostureOutline outline;
  outline.color = in.Next<quint8>();
  outline.opacity = in.Next<quint8>() / kSteps;
  outline.path.setFillRule(in.Next<quint8>() == 1 ? Qt::WindingFill : Qt::OddEvenFill);
  for (int left = in.Next<quint16>(); left > 0; --left) ReadPiece(in, outline.path);
  return outline;
}

}  // namespace

QByteArray BytesOf(const std::vector<PostureOutline>& posture) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  for (const PostureOutline& outline : posture) {
    out << outline.color << static_cast<quint8>(qRound(outline.opacity * kSteps))
        << static_cast<quint8>(outline.path.fillRule() == Qt::WindingFill);
    WritePath(out, outline.path);
  }
  return bytes;
}

void DrawPosture(QPainter& painter, const QByteArray& bytes, const PostureColors& colors) {
  painter.setRenderHint(QPainter::Antialiasing);
  NumberReader in(bytes);
  while (!in.AtEnd()) {
    const PostureOutline outline = ReadOutline(in);
    QColor color = colors.at(outline.color);
    color.setAlphaF(static_cast<float>(outline.opacity));
    painter.fillPath(outline.path, color);
  }
}

}  // namespace halvane
