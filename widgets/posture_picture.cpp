#include "widgets/posture_picture.h"

#include <QApplication>
#include <QCache>
#include <QFile>
#include <QPainter>
#include <QPointer>

#include "widgets/picture_inks.h"
#include "widgets/posture_outlines.h"

namespace halvane {
namespace {

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

QString KeyOf(const QString& assetName, const QColor& ground, int side) {
  return QString("%1 %2 %3").arg(assetName, ground.name()).arg(side);
}

QPixmap Draw(const QByteArray& outlines, const QColor& ground, int side) {
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.scale(side / kPostureSide, side / kPostureSide);
  DrawPosture(painter, outlines, ColorsOn(ground));
  return picture;
}

}  // namespace

QPixmap PosturePicture(const QString& assetName, const QColor& ground, int side) {
  const QString key = KeyOf(assetName, ground, side);
  if (const QPixmap* known = Drawn().object(key)) return *known;
  QFile file(":/postures/" + assetName + ".outlines");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QPixmap picture = Draw(file.readAll(), ground, side);
  Drawn().insert(key, new QPixmap(picture), side * side * picture.depth() / 8);
  return picture;
}

bool IsPostureDrawn(const QString& assetName, const QColor& ground, int side) {
  return Drawn().contains(KeyOf(assetName, ground, side));
}

}  // namespace halvane
