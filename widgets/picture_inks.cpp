#include "widgets/picture_inks.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
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
  const QString key = QString("ink %1 %2 %3").arg(assetName, ground.name()).arg(side);
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  QFile file(":/assets/" + assetName + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  QSvgRenderer renderer(InkedDrawing(file.readAll(), ground));
  picture = QPixmap(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  QPixmapCache::insert(key, picture);
  return picture;
}

}  // namespace halvane
