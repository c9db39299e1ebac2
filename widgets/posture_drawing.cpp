#include "widgets/posture_drawing.h"

#include <QMap>
#include <QPainterPathStroker>
#include <QPen>
#include <QRegularExpression>
#include <QTransform>
#include <QXmlStreamReader>
#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>
#include <utility>

#include "core/number_text.h"
#include "widgets/picture_inks.h"

namespace halvane {
namespace {

/// Attributes by their names.
using Look = QMap<QString, QString>;

const Look kPlain{
    {"fill", "#000000"},      {"fill-opacity", "1"},      {"stroke", "none"},
    {"stroke-width", "1"},    {"stroke-linecap", "butt"}, {"stroke-linejoin", "miter"},
    {"stroke-dasharray", ""}, {"stroke-dashoffset", "0"}, {"transform", ""},
};
/// What attributes that tell the shape of an element, and its name, are called.
const QStringList kShapes{"d", "id", "x", "y", "width", "height"};
constexpr const char* kMirror = "translate(56 0) scale(-1 1)";
constexpr double kMiterLimit = 4;
/// How far the outline of a line may lie beside it, in the picture's pixels: a tenth of a pixel
/// where it is drawn four times as large, on a screen of 200 %, which nobody sees.
constexpr double kCurveThreshold = 0.025;

double Number(const QString& text) {
  const std::optional<double> value = WholeTextAsNumber(text.toStdString());
  if (!value) throw UnknownDrawing("the number " + text);
  return *value;
}

/// The path of a "d" attribute.
class PathText {
 public:
  explicit PathText(const QString& text) {
    static const QRegularExpression token("[A-Za-z]|-?[0-9.]+");
    for (auto found = token.globalMatch(text); found.hasNext();) tokens_ << found.next().captured();
  }

  QPainterPath Path() {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    while (!tokens_.isEmpty()) AddPiece(path);
    return path;
  }

 private:
  QString Next() {
    if (tokens_.isEmpty()) throw UnknownDrawing("a path that ends too early");
    return tokens_.takeFirst();
  }

  QPointF Point() {
    const double x = Number(Next());
    return {x, Number(Next())};
  }

  void AddPiece(QPainterPath& path) {
    const QString piece = Next();
    if (piece == "M") {
      path.moveTo(Point());
    } else if (piece == "L") {
      path.lineTo(Point());
    } else if (piece == "C") {
      const QPointF first = Point();
      const QPointF second = Point();
      path.cubicTo(first, second, Point());
    } else if (piece == "Z") {
      path.closeSubpath();
    } else {
      throw UnknownDrawing("in a path: " + piece);
    }
  }

  QStringList tokens_;
};

QPainterPath Rectangle(const QXmlStreamAttributes& attributes) {
  const auto value = [&attributes](const char* name) {
    return Number(attributes.value(name).toString());
  };
  QPainterPath path;
  path.addRect(value("x"), value("y"), value("width"), value("height"));
  return path;
}

QPainterPath United(const std::vector<QPainterPath>& paths) {
  QPainterPath all;
  for (const QPainterPath& path : paths) all = all.united(path);
  return all;
}

/// The area that a line covers which is drawn along a path.
QPainterPath LineAlong(const QPainterPath& path, const Look& look) {
  const double width = Number(look["stroke-width"]);
  QPen pen(Qt::black, width);
  pen.setCapStyle(look["stroke-linecap"] == "round" ? Qt::RoundCap : Qt::FlatCap);
  pen.setJoinStyle(look["stroke-linejoin"] == "round" ? Qt::RoundJoin : Qt::SvgMiterJoin);
  pen.setMiterLimit(kMiterLimit);
  if (!look["stroke-dasharray"].isEmpty()) {
    QList<qreal> dashes;
    for (const QString& dash : look["stroke-dasharray"].split(',')) dashes << Number(dash) / width;
    pen.setDashPattern(dashes);
    pen.setDashOffset(Number(look["stroke-dashoffset"]) / width);
  }
  QPainterPathStroker stroker(pen);
  stroker.setCurveThreshold(kCurveThreshold);
  return stroker.createStroke(path);
}

quint8 ColorOf(const QString& name) {
  if (name == kEdgeInk) return 0;
  if (name == kSignInk) return static_cast<quint8>(std::tuple_size_v<PostureColors> - 1);
  const auto inks = PictureInks();
  const auto ink = std::find_if(inks.begin(), inks.end(), [&name](const PictureInk& candidate) {
    return name == candidate.onLight;
  });
  if (ink == inks.end()) throw UnknownDrawing("the colour " + name);
  return static_cast<quint8>(std::distance(inks.begin(), ink) + 1);
}

class DrawingReader {
 public:
  explicit DrawingReader(const QByteArray& svg) : in_(svg) {}

  std::vector<PostureOutline> Outlines() {
    in_.readNextStartElement();
    const double side = Number(in_.attributes().value("width").toString());
    toOwnSide_ = QTransform::fromScale(kPostureSide / side, kPostureSide / side);
    ReadInside(kPlain);
    if (in_.hasError()) throw UnknownDrawing(in_.errorString());
    return std::move(outlines_);
  }

 private:
  void ReadInside(const Look& look) {
    std::vector<QPainterPath> silhouette;
    while (in_.readNextStartElement()) {
      const QXmlStreamAttributes attributes = in_.attributes();
      if (in_.name() == QString("g")) {
        ReadInside(With(look, attributes));
      } else if (in_.name() == QString("path")) {
        QPainterPath path = PathText(attributes.value("d").toString()).Path();
        if (attributes.size() == 1)
          silhouette.push_back(path);
        else
          Add({path}, With(look, attributes));
        in_.skipCurrentElement();
      } else if (in_.name() == QString("rect")) {
        Add({Rectangle(attributes)}, With(look, attributes));
        in_.skipCurrentElement();
      } else if (in_.name() == QString("title")) {
        in_.skipCurrentElement();
      } else {
        throw UnknownDrawing("the element " + in_.name().toString());
      }
    }
    if (!silhouette.empty()) Add(silhouette, look);
  }

  static Look With(Look look, const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& attribute : attributes) {
      const QString name = attribute.name().toString();
      if (kShapes.contains(name)) continue;
      if (!look.contains(name)) throw UnknownDrawing("the attribute " + name);
      look[name] = attribute.value().toString();
    }
    return look;
  }

  void Add(const std::vector<QPainterPath>& paths, const Look& look) {
    if (look["fill"] != "none") AddSilhouette(paths, look);
    if (look["stroke"] != "none") AddLines(paths, look);
  }

  void AddSilhouette(const std::vector<QPainterPath>& paths, const Look& look) {
    const QPainterPath area = PlaceOf(look).map(United(paths));
    // What it covers needs no line below, so that of its edge becomes simpler.
    if (paths == lined_) outlines_.back().path = outlines_.back().path.united(area);
    outlines_.push_back({ColorOf(look["fill"]), Number(look["fill-opacity"]), area});
    lined_.clear();
  }

  void AddLines(const std::vector<QPainterPath>& paths, const Look& look) {
    std::vector<QPainterPath> lines(paths.size());
    std::transform(paths.begin(), paths.end(), lines.begin(),
                   [&look](const QPainterPath& path) { return LineAlong(path, look); });
    outlines_.push_back({ColorOf(look["stroke"]), 1, PlaceOf(look).map(United(lines))});
    lined_ = paths;
  }

  [[nodiscard]] QTransform PlaceOf(const Look& look) const {
    const QString place = look["transform"];
    if (place == kMirror) return {-1, 0, 0, 1, kPostureSide, 0};
    if (!place.isEmpty()) throw UnknownDrawing("the place " + place);
    return toOwnSide_;
  }

  QXmlStreamReader in_;
  std::vector<PostureOutline> outlines_;
  /// From the width of the document; postures have it as their own, signs on buttons a smaller one.
  QTransform toOwnSide_;
  /// What the lines that came last were drawn along; empty when an area came last.
  std::vector<QPainterPath> lined_;
};

}  // namespace

std::vector<PostureOutline> OutlinesOf(const QByteArray& svg) {
  return DrawingReader(svg).Outlines();
}

}  // namespace halvane
