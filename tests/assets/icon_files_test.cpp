// The product's icon in every size of the icon theme.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

#include "tests/assets/picture_files.h"

namespace halvane {
namespace {

QString Icon(const QString& name) { return SourceFile("assets/icon/" + name); }

const int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};
const char* const kNames[] = {"apps/halvane-tools", "mimetypes/application-x-halvane-job"};

TEST(IconFiles, AreOfTheSizeThatTheirFolderSays) {
  QStringList wanted;
  for (const int side : kSizes) {
    for (const char* name : kNames) wanted << QString("%1x%1/%2.png").arg(side).arg(name);
  }
  wanted.sort();
  const QStringList found = FilesBelow(Icon("hicolor"), ".png");
  ASSERT_EQ(found, wanted);
  for (const QString& name : found) {
    const int side = name.section('x', 0, 0).toInt();
    EXPECT_EQ(QImage(Icon("hicolor/" + name)).size(), QSize(side, side)) << name.toStdString();
  }
}

TEST(IconFiles, WereRenderedFromTheDrawingOfTheirSize) {
  for (const QString& name : FilesBelow(Icon("hicolor"), ".png")) {
    const QString stem = QFileInfo(name).completeBaseName();
    QString drawing = Icon(QString("small/%1-%2.svg").arg(stem, name.section('x', 0, 0)));
    if (!QFileInfo::exists(drawing)) {
      drawing = Icon("hicolor/scalable/" + name.section('/', 1).replace(".png", ".svg"));
    }
    const QByteArray checksum =
        QCryptographicHash::hash(ContentOf(drawing), QCryptographicHash::Sha256).toHex();
    EXPECT_TRUE(ContentOf(Icon("hicolor/" + name)).contains("sha256 of the SVG: " + checksum))
        << name.toStdString() << ": the drawing has changed: run scripts/make_icons";
  }
}

/// The most light stretches that one row of pixels has within the upper two thirds.
int FingersApart(const QImage& icon) {
  int most = 0;
  for (int y = 0; y < icon.height() * 2 / 3; ++y) {
    int stretches = 0;
    bool light = false;
    for (int x = 0; x < icon.width(); ++x) {
      const QRgb pixel = icon.pixel(x, y);
      const bool now = qAlpha(pixel) > 200 && qRed(pixel) > 150;
      stretches += now && !light;
      light = now;
    }
    most = std::max(most, stretches);
  }
  return most;
}

TEST(IconFiles, FourFingersStandApartAtEverySize) {
  for (const int side : kSizes) {
    const QImage icon(Icon(QString("hicolor/%1x%1/apps/halvane-tools.png").arg(side)));
    EXPECT_GE(FingersApart(icon), 4) << side;
    EXPECT_LT(qAlpha(icon.pixel(0, 0)), 128) << side;
    EXPECT_EQ(qAlpha(icon.pixel(side / 2, side / 2)), 255) << side;
  }
}

bool IsTile(QRgb pixel) { return qBlue(pixel) > qRed(pixel) + 60; }

/// The most white stretches that one row of pixels has between two of the tile.
int FingersOnTile(const QImage& icon) {
  int most = 0;
  for (int y = 0; y < icon.height(); ++y) {
    int fingers = 0;
    bool afterTile = false;
    for (int x = 1; x < icon.width(); ++x) {
      const bool ends = IsTile(icon.pixel(x, y)) && !IsTile(icon.pixel(x - 1, y));
      fingers += ends && afterTile;
      afterTile = afterTile || IsTile(icon.pixel(x, y));
    }
    most = std::max(most, fingers);
  }
  return most;
}

TEST(IconFiles, SmallJobFileHasTheHandOnWholePixels) {
  for (const int side : {16, 22, 24, 32}) {
    const QString name = QString("hicolor/%1x%1/mimetypes/application-x-halvane-job.png").arg(side);
    const QImage icon = QImage(Icon(name)).convertToFormat(QImage::Format_ARGB32);
    EXPECT_GE(FingersOnTile(icon), 4) << side;
    int blended = 0;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        const int alpha = qAlpha(icon.pixel(x, y));
        if (alpha != 0 && alpha != 255) ++blended;
      }
    }
    // Along the folded corner alone.
    EXPECT_LE(blended, side / 4) << side;
  }
}

TEST(IconFiles, DesktopProgramNamesEachSizeByItsAlias) {
  const QString list = QString::fromUtf8(ContentOf(SourceFile("assets/assets.qrc")));
  auto hits = QRegularExpression("alias=\"([^\"]+)\">([^<]+)<").globalMatch(list);
  QStringList sides;
  while (hits.hasNext()) {
    const auto hit = hits.next();
    const QString side = hit.captured(2).section('/', 2, 2).section('x', 0, 0);
    EXPECT_EQ(hit.captured(1), "icon/halvane-tools-" + side + ".png");
    sides << side;
  }
  EXPECT_EQ(sides, (QStringList{"16", "24", "32", "48", "64", "128", "256"}));
}

}  // namespace
}  // namespace halvane
