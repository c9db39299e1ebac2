// The hand that the main window has the shape of, its masks, and the signs on its buttons.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/assets/picture_files.h"

namespace halvane {
namespace {

const QSize kWindow{306, 501};
const QRect kControls[] = {{78, 206, 200, 234}, {100, 440, 156, 32}};
constexpr double kMargin = 7;  // pixels from a control to the outline
constexpr int kRounded = 14;   // pixels that the hand's rounding reaches under the controls

QString Asset(const QString& name) { return SourceFile("assets/main_window/" + name); }

bool Inside(const QImage& mask, int x, int y) { return qGray(mask.pixel(x, y)) > 127; }

/// How many connected regions the pixels form that are inside, or that are not.
int Regions(const QImage& mask, bool inside) {
  QImage seen(mask.size(), QImage::Format_Grayscale8);
  seen.fill(0);
  int regions = 0;
  std::vector<QPoint> open;
  const auto visit = [&](int x, int y) {
    if (!mask.rect().contains(x, y) || qGray(seen.pixel(x, y)) != 0) return false;
    if (Inside(mask, x, y) != inside) return false;
    seen.setPixelColor(x, y, Qt::white);
    open.emplace_back(x, y);
    return true;
  };
  for (int y = 0; y < mask.height(); ++y) {
    for (int x = 0; x < mask.width(); ++x) {
      regions += visit(x, y);
      while (!open.empty()) {
        const QPoint at = open.back();
        open.pop_back();
        visit(at.x() + 1, at.y());
        visit(at.x() - 1, at.y());
        visit(at.x(), at.y() + 1);
        visit(at.x(), at.y() - 1);
      }
    }
  }
  return regions;
}

struct ScaleRow {
  const char* suffix;
  int scale;
};
const ScaleRow kScales[] = {{"", 1}, {"@2x", 2}};

QImage Hand(const ScaleRow& row) { return QImage(Asset(QString("hand%1.png").arg(row.suffix))); }
QImage Mask(const ScaleRow& row) {
  return QImage(Asset(QString("hand_mask%1.png").arg(row.suffix)));
}

struct PngKind {
  int width, height, bits, colourType;
  bool operator==(const PngKind&) const = default;
};

/// What the file itself says: Qt widens pixels when it reads them.
PngKind KindOf(const QByteArray& png) {
  EXPECT_TRUE(png.startsWith("\x89PNG\r\n\x1a\n"));
  return {qFromBigEndian<qint32>(png.constData() + 16),
          qFromBigEndian<qint32>(png.constData() + 20), png[24], png[25]};
}

TEST(MainWindowHand, IsPlainColourAndItsMaskOneBitAPixel) {
  for (const ScaleRow& row : kScales) {
    const QSize size = kWindow * row.scale;
    EXPECT_EQ(KindOf(ContentOf(Asset(QString("hand%1.png").arg(row.suffix)))),
              (PngKind{size.width(), size.height(), 8, 2}))
        << row.suffix;
    EXPECT_EQ(KindOf(ContentOf(Asset(QString("hand_mask%1.png").arg(row.suffix)))),
              (PngKind{size.width(), size.height(), 1, 0}))
        << row.suffix;
  }
}

TEST(MainWindowHand, MaskIsOneRegionWithoutHoles) {
  for (const ScaleRow& row : kScales) {
    const QImage mask = Mask(row);
    EXPECT_EQ(Regions(mask, true), 1) << row.suffix;
    // Everything outside hangs together round the fingertips; the wrist parts it at the lower edge.
    QImage framed(mask.size() + QSize(2, 2), QImage::Format_Grayscale8);
    framed.fill(0);
    QPainter(&framed).drawImage(1, 1, mask);
    EXPECT_EQ(Regions(framed, false), 1) << row.suffix;
  }
}

TEST(MainWindowHand, ReachesAllEdgesOfItsWindow) {
  const QImage mask = Mask(kScales[0]);
  QRect extent;
  for (int y = 0; y < mask.height(); ++y) {
    for (int x = 0; x < mask.width(); ++x) {
      if (Inside(mask, x, y)) extent |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_TRUE(extent.contains(mask.rect().adjusted(4, 4, -4, 0)))
      << extent.left() << " " << extent.top() << " " << extent.right() << " " << extent.bottom();
}

TEST(MainWindowHand, ControlsStandWellInside) {
  const QImage mask = Mask(kScales[0]);
  for (const QRect& control : kControls) {
    double least = 1000;
    for (int y = 0; y < mask.height(); ++y) {
      for (int x = 0; x < mask.width(); ++x) {
        if (Inside(mask, x, y)) continue;
        const int across = std::max({control.left() - x - 1, x - control.right() - 1, 0});
        const int down = std::max({control.top() - y - 1, y - control.bottom() - 1, 0});
        least = std::min(least, control.contains(x, y) ? -1 : std::hypot(across, down));
      }
    }
    EXPECT_GE(least, kMargin) << control.left() << " " << control.top();
  }
}

TEST(MainWindowHand, IsCalmWhereControlsStand) {
  const QImage hand = Hand(kScales[0]);
  for (const QRect& control : kControls) {
    const QRect ground = control.adjusted(kRounded, kRounded, -kRounded, -kRounded);
    int low = 255;
    int high = 0;
    for (int y = ground.top(); y <= ground.bottom(); ++y) {
      for (int x = ground.left(); x <= ground.right(); ++x) {
        low = std::min(low, qGray(hand.pixel(x, y)));
        high = std::max(high, qGray(hand.pixel(x, y)));
      }
    }
    EXPECT_LE(high - low, 24) << control.left() << " " << control.top();
    EXPECT_GE(high - low, 4) << "no knuckle or tendon is seen";
  }
}

TEST(MainWindowHand, MaskFollowsTheDrawnOutline) {
  const QString svg = QString::fromUtf8(ContentOf(Asset("hand.svg")));
  const auto outline = QRegularExpression("<path id=\"outline\" d=\"([^\"]+)\"").match(svg);
  ASSERT_TRUE(outline.hasMatch());
  QSvgRenderer renderer(QString("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 306 501\">"
                                "<path d=\"%1\"/></svg>")
                            .arg(outline.captured(1))
                            .toUtf8());
  ASSERT_TRUE(renderer.isValid());
  for (const ScaleRow& row : kScales) {
    const QImage mask = Mask(row);
    QImage drawn(mask.size(), QImage::Format_ARGB32);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    renderer.render(&painter, QRectF(drawn.rect()));
    painter.end();
    int astray = 0;
    for (int y = 0; y < mask.height(); ++y) {
      for (int x = 0; x < mask.width(); ++x) {
        // Two renderers may disagree where the outline covers about half of a pixel.
        const int covered = qAlpha(drawn.pixel(x, y));
        if (std::abs(covered - 128) > 40) astray += Inside(mask, x, y) != (covered > 128);
      }
    }
    EXPECT_EQ(astray, 0) << row.suffix;
  }
}

TEST(MainWindowHand, BothMasksAreOfOneShape) {
  const QImage mask = Mask(kScales[0]);
  const QImage twice = Mask(kScales[1]);
  int astray = 0;
  for (int y = 0; y < mask.height(); ++y) {
    for (int x = 0; x < mask.width(); ++x) {
      const int quarters = Inside(twice, 2 * x, 2 * y) + Inside(twice, 2 * x + 1, 2 * y) +
                           Inside(twice, 2 * x, 2 * y + 1) + Inside(twice, 2 * x + 1, 2 * y + 1);
      if (quarters != 2) astray += Inside(mask, x, y) != (quarters > 2);
    }
  }
  // A quarter that is covered by half counts whole or not at all.
  EXPECT_LE(astray, 30);
}

TEST(MainWindowHand, HasNoFringeOfAnotherColour) {
  for (const ScaleRow& row : kScales) {
    const QImage hand = Hand(row);
    const QImage mask = Mask(row);
    const QRgb outside = hand.pixel(0, 0);
    int spots = 0;
    int bright = 0;
    for (int y = 0; y < mask.height(); ++y) {
      for (int x = 0; x < mask.width(); ++x) {
        if (!Inside(mask, x, y)) {
          spots += hand.pixel(x, y) != outside;
          continue;
        }
        const bool atEdge = (x > 0 && !Inside(mask, x - 1, y)) ||
                            (x + 1 < mask.width() && !Inside(mask, x + 1, y)) ||
                            (y > 0 && !Inside(mask, x, y - 1));
        // The contour is as dark as what lies outside.
        if (atEdge) bright += qGray(hand.pixel(x, y)) > qGray(outside) + 12;
      }
    }
    EXPECT_EQ(spots, 0) << row.suffix;
    EXPECT_EQ(bright, 0) << row.suffix;
  }
}

TEST(MainWindowHand, WasRenderedFromItsDrawingAsItIs) {
  const QByteArray checksum =
      QCryptographicHash::hash(ContentOf(Asset("hand.svg")), QCryptographicHash::Sha256).toHex();
  for (const QString& name : FilesBelow(SourceFile("assets/main_window"), ".png")) {
    EXPECT_TRUE(ContentOf(Asset(name)).contains("sha256 of the SVG: " + checksum))
        << name.toStdString() << ": hand.svg has changed: run scripts/make_hand";
  }
}

TEST(MainWindowHand, IsWhatTheScriptRenders) {
  if (QStandardPaths::findExecutable("rsvg-convert").isEmpty()) {
    GTEST_SKIP() << "rsvg-convert is not installed";
  }
  const QTemporaryDir fresh;
  ASSERT_TRUE(QFile::copy(Asset("hand.svg"), fresh.filePath("hand.svg")));
  QProcess script;
  script.start(HALVANE_PYTHON, {SourceFile("scripts/make_hand"), fresh.path()});
  ASSERT_TRUE(script.waitForFinished(-1));
  ASSERT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();
  const QStringList names = FilesBelow(SourceFile("assets/main_window"), ".png");
  EXPECT_EQ(FilesBelow(fresh.path(), ".png"), names);
  for (const QString& name : names) {
    const QImage kept = QImage(Asset(name)).convertToFormat(QImage::Format_RGB32);
    const QImage made = QImage(fresh.filePath(name)).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(made.size(), kept.size()) << name.toStdString();
    // One renderer rounds a pixel at an edge otherwise than the next; a changed drawing changes
    // thousands.
    int apart = 0;
    for (int y = 0; y < kept.height(); ++y) {
      for (int x = 0; x < kept.width(); ++x) {
        apart += std::abs(qGray(kept.pixel(x, y)) - qGray(made.pixel(x, y))) > 8;
      }
    }
    EXPECT_LE(apart, kept.width() * kept.height() / 2000) << name.toStdString();
  }
}

struct SignRow {
  const char* name;
  const char* title;
};
const SignRow kSigns[] = {
    {"file", "File"}, {"help", "Help"}, {"close", "Close"}, {"minimize", "Minimize"}};

TEST(MainWindowSigns, StandOutOnLightAndOnDarkAtButtonSize) {
  for (const SignRow& row : kSigns) {
    EXPECT_EQ(TitleOf(QString("main_window/%1").arg(row.name)), row.title);
    QSvgRenderer renderer(Asset(QString("%1.svg").arg(row.name)));
    ASSERT_TRUE(renderer.isValid()) << row.name;
    EXPECT_EQ(renderer.defaultSize(), QSize(20, 20)) << row.name;
    for (const int side : {16, 20}) {
      for (const QColor paper : {QColor("#efefef"), QColor("#2d2d30")}) {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(paper);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(0, 0, side, side));
        painter.end();
        int seen = 0;
        for (int y = 0; y < side; ++y) {
          for (int x = 0; x < side; ++x) {
            seen += std::abs(qGray(image.pixel(x, y)) - qGray(paper.rgb())) > 60;
          }
        }
        EXPECT_GE(seen, side) << row.name << " at " << side << " on " << paper.name().toStdString();
      }
    }
  }
}

}  // namespace
}  // namespace halvane
