#include "widgets/picture_inks.h"

#include <QApplication>
#include <QCache>
#include <QFile>
#include <QPainter>
#include <QPointer>
#include <QSvgRenderer>
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
/// What parts limbs from each other in the files.
constexpr const char* kEdge = "#ffffff";
/// A ground below this is nearer to black than to white in contrast.
constexpr double kDarkGround = 0.179;
/// Room for all pictures at their largest on a screen of 200 %, pressed ones too.
constexpr int kMostBytes = 48 << 20;

/// Pictures that have been drawn, for as long as the program runs: the toolkit's own cache forgets
/// a quarter of them every half minute.
struct DrawnPictures : QObject {
  using QObject::QObject;
  QCache<QString, QPixmap> pictures{kMostBytes};
};

QCache<QString, QPixmap>& Drawn() {
  static QPointer<DrawnPictures> drawn;
  if (drawn == nullptr) drawn = new DrawnPictures(qApp);
  return drawn->pictures;
}

QPixmap Draw(const QByteArray& svg, int side) {
  QSvgRenderer renderer(svg);
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  return picture;
}

}  // namespace

std::span<const PictureInk> PictureInks() { return kInks; }

QByteArray InkedDrawing(QByteArray svg, const QColor& ground) {
  // First, since an ink of dark grounds is the colour of the edge.
  svg.replace(kEdge, ground.name().toLatin1());
  if (RelativeLuminance(ground) < kDarkGround) {
    for (const PictureInk& ink : kInks) svg.replace(ink.onLight, ink.onDark);
  }
  return svg;
}

QPixmap InkedPicture(const QString& assetName, const QColor& ground, int side) {
  const QString key = QString("%1 %2 %3").arg(assetName, ground.name()).arg(side);
  if (const QPixmap* known = Drawn().object(key)) return *known;
  QFile file(":/assets/" + assetName + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QPixmap picture = Draw(InkedDrawing(file.readAll(), ground), side);
  Drawn().insert(key, new QPixmap(picture), side * side * picture.depth() / 8);
  return picture;
}

}  // namespace halvane
