// The pictures on ribbons: one family, each showing what its caption names.
#include <gtest/gtest.h>

#include <QImage>
#include <QMap>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "tests/assets/picture_files.h"
#include "tools/ctd/ctd_controls.h"
#include "widgets/picture_inks.h"

namespace halvane {
namespace {

constexpr int kSide = 56;  // logical pixels of a picture

/// The picture in the middle of a canvas three times its size, `scale` pixels a logical pixel.
QImage OnCanvas(const QString& asset, int scale) {
  QSvgRenderer renderer(SourceFile("assets/" + asset + ".svg"));
  EXPECT_TRUE(renderer.isValid()) << asset.toStdString();
  EXPECT_EQ(renderer.defaultSize(), QSize(kSide, kSide)) << asset.toStdString();
  const int side = kSide * scale;
  QImage image(3 * side, 3 * side, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter, QRectF(side, side, side, side));
  return image;
}

/// The picture, `scale` pixels a logical pixel.
QImage Picture(const QString& asset, int scale) {
  const int side = kSide * scale;
  return OnCanvas(asset, scale).copy(side, side, side, side);
}

/// How many pixels of two pictures differ clearly, on white paper.
int PixelsApart(const QImage& a, const QImage& b) {
  const auto onWhite = [](QRgb pixel, int part) {
    return 255 - qAlpha(pixel) + part * qAlpha(pixel) / 255;
  };
  int apart = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      apart += std::max({std::abs(onWhite(p, qRed(p)) - onWhite(q, qRed(q))),
                         std::abs(onWhite(p, qGreen(p)) - onWhite(q, qGreen(q))),
                         std::abs(onWhite(p, qBlue(p)) - onWhite(q, qBlue(q)))}) > 64;
    }
  }
  return apart;
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Pictures that stand in one row of buttons, by the name of the row.
QMap<QString, QStringList> Rows() {
  QMap<QString, QStringList> rows;
  const auto add = [&rows](std::string_view row, std::span<const CtdRibbon> ribbons) {
    for (const CtdRibbon& ribbon : ribbons) rows[Text(row)] << Text(ribbon.picture);
  };
  for (const CtdGroupRow& group : kCtdGroups) add(group.objectName, group.ribbons);
  for (const CtdSlot& slot : kCtdSlots) add(slot.objectName, slot.categories);
  for (const CtdBodyPart& part : kCtdBodyParts) rows["SSRibbon3"] << Text(part.picture);
  for (const QString& name : PosturePictures()) {
    if (!name.startsWith("ctd/")) rows[name.section('_', 0, 0)] << name;
  }
  return rows;
}

TEST(PosturePictures, EveryOneStandsInARowOfButtons) {
  QSet<QString> shown;
  for (const QStringList& row : Rows()) shown += QSet<QString>(row.begin(), row.end());
  const QStringList drawn = PosturePictures();
  EXPECT_EQ(shown, QSet<QString>(drawn.begin(), drawn.end()));
}

TEST(PosturePictures, AreDrawnInInksThatTheProgramKnows) {
  const QRegularExpression colour("#[0-9a-f]{6}");
  QSet<QString> seen;
  for (const QString& name : PosturePictures()) {
    auto hits = colour.globalMatch(ContentOf(SourceFile("assets/" + name + ".svg")));
    while (hits.hasNext()) seen << hits.next().captured();
  }
  QSet<QString> inks{"#ffffff"};
  for (const PictureInk& ink : PictureInks()) inks << ink.onLight;
  EXPECT_EQ(seen, inks);
}

TEST(PosturePictures, TheGeneratorKnowsTheSameInks) {
  const QRegularExpression row("\"(\\w+)\": \\(\"(#[0-9a-f]{6})\", \"(#[0-9a-f]{6})\"\\)");
  QStringList known;
  auto rows = row.globalMatch(ContentOf(SourceFile("scripts/pictures/inks.py")));
  while (rows.hasNext()) known << rows.next().capturedTexts().mid(1).join(' ');
  QStringList wanted;
  for (const PictureInk& ink : PictureInks()) {
    wanted << QString("%1 %2 %3").arg(ink.name, ink.onLight, ink.onDark);
  }
  wanted.prepend("edge #ffffff #2d2d30");
  EXPECT_EQ(known, wanted);
}

TEST(PosturePictures, HaveAMovingSegmentAndNoWords) {
  for (const QString& name : PosturePictures()) {
    const QByteArray text = ContentOf(SourceFile("assets/" + name + ".svg"));
    EXPECT_TRUE(text.contains("<g fill=\"#082a84\">")) << name.toStdString();
    EXPECT_FALSE(text.contains("<text")) << name.toStdString();
  }
}

TEST(PosturePictures, LeaveTheirGroundClearAndStayInside) {
  constexpr int kScale = 2;
  const QRect square(kSide * kScale, kSide * kScale, kSide * kScale, kSide * kScale);
  // The thin light border of a limb that ends at the edge may lie outside, where it is cut off.
  const QRect bordered = square.adjusted(-kScale, -kScale, kScale, kScale);
  for (const QString& name : PosturePictures()) {
    const QImage image = OnCanvas(name, kScale);
    int clear = 0;
    int outside = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const bool empty = qAlpha(image.pixel(x, y)) == 0;
        if (square.contains(x, y)) clear += empty;
        if (!bordered.contains(x, y)) outside += !empty;
      }
    }
    const int all = square.width() * square.height();
    EXPECT_GT(clear, all / 4) << name.toStdString();
    EXPECT_LT(clear, all * 9 / 10) << name.toStdString();
    EXPECT_EQ(outside, 0) << name.toStdString();
  }
}

TEST(PosturePictures, TheLeftSideIsTheMirrorImageOfTheRight) {
  constexpr int kScale = 4;
  int pairs = 0;
  for (const QString& name : PosturePictures()) {
    if (!name.contains("_right_")) continue;
    ++pairs;
    const QImage mirrored = Picture(name, kScale).mirrored(true, false);
    const QImage left = Picture(QString(name).replace("_right_", "_left_"), kScale);
    EXPECT_LT(PixelsApart(mirrored, left), 20 * kScale) << name.toStdString();
    EXPECT_GT(PixelsApart(Picture(name, kScale), left), 300 * kScale * kScale)
        << name.toStdString();
  }
  EXPECT_EQ(pairs, 11);
}

/// The grey of the figure alone, without lines, arc and sector.
QImage Silhouette(const QString& asset) {
  const QRegularExpression solid("<svg[^>]*>|<g (?:fill|transform)=.*|</g>|</svg>");
  QString figure;
  auto elements = solid.globalMatch(ContentOf(SourceFile("assets/" + asset + ".svg")));
  while (elements.hasNext()) figure += elements.next().captured() + "\n";
  QSvgRenderer renderer(figure.toUtf8());
  EXPECT_TRUE(renderer.isValid()) << asset.toStdString();
  QImage image(kSide, kSide, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

/// How many pixels of two pictures differ clearly in grey.
int GreysApart(const QImage& a, const QImage& b) {
  int apart = 0;
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      apart += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64;
    }
  }
  return apart;
}

TEST(PosturePictures, NoTwoOfARowHaveOneSilhouette) {
  // A twentieth of the picture, or a strip five pixels wide along a head. The steps of the neck are
  // the smallest that captions ask for; they say how large its head has to be.
  constexpr int kLeastApart = kSide * kSide / 20;
  const QMap<QString, QStringList> rows = Rows();
  for (auto row = rows.begin(); row != rows.end(); ++row) {
    ASSERT_GE(row->size(), 3) << row.key().toStdString();
    for (qsizetype i = 0; i < row->size(); ++i) {
      for (qsizetype j = 0; j < i; ++j) {
        EXPECT_GE(GreysApart(Silhouette(row->at(i)), Silhouette(row->at(j))), kLeastApart)
            << row->at(i).toStdString() << " and " << row->at(j).toStdString();
      }
    }
  }
}

/// The picture at button size on white paper, in grey.
QImage OnPaper(const QByteArray& svg) {
  QSvgRenderer renderer(svg);
  QImage image(kSide, kSide, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

/// How many pixels of a range's tint are seen, and not hidden by what stands before it.
int TintSeen(const QByteArray& svg) {
  const QImage tinted = OnPaper(svg);
  const QImage plain = OnPaper(QByteArray(svg).replace("#b9cdf5", "#ffffff"));
  int seen = 0;
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      seen += qGray(plain.pixel(x, y)) - qGray(tinted.pixel(x, y)) > 12;
    }
  }
  return seen;
}

TEST(PosturePictures, ARangeIsSeenAtButtonSize) {
  // The smallest patches, beside a shank or beyond a head, are about four pixels by five.
  constexpr int kLeastSeen = 20;
  int ranges = 0;
  for (const QString& name : PosturePictures()) {
    const QByteArray svg = ContentOf(SourceFile("assets/" + name + ".svg"));
    if (!svg.contains("id=\"sector\"")) continue;
    ++ranges;
    EXPECT_GE(TintSeen(svg), kLeastSeen) << name.toStdString();
  }
  EXPECT_GT(ranges, 50);
}

/// The angle that a picture says it shows; no number in its title is 0.
int ShownAngle(const QString& asset) {
  const auto hit = QRegularExpression("(\\d+) degrees").match(TitleOf(asset));
  return hit.hasMatch() ? hit.captured(1).toInt() : 0;
}

/// The degrees that a caption of the CTD form names: "Greater Than 20" from 20 on, ">15 deg."
/// from 15 on, "5-15 deg." from 5 to 15, any other none.
std::pair<int, int> NamedDegrees(const QString& caption) {
  const auto range = QRegularExpression("(\\d+)-(\\d+) deg").match(caption);
  if (range.hasMatch()) return {range.captured(1).toInt(), range.captured(2).toInt()};
  const auto above = QRegularExpression("(?:>|Than) ?(\\d+)").match(caption);
  if (above.hasMatch()) return {above.captured(1).toInt(), 180};
  return {-1, 1};
}

TEST(PosturePictures, AnglesOfTheCtdFormAreThoseOfTheirCaptions) {
  EXPECT_EQ(NamedDegrees("Radial Deviation 5-15 deg."), std::pair(5, 15));
  EXPECT_EQ(NamedDegrees(">30 deg Extension"), std::pair(30, 180));
  EXPECT_EQ(NamedDegrees("Greater Than 45"), std::pair(45, 180));
  const auto expectNamed = [](const CtdRibbon& ribbon, int below) {
    const auto [low, high] = NamedDegrees(Text(ribbon.caption));
    EXPECT_GT(ShownAngle(Text(ribbon.picture)), low) << ribbon.picture;
    EXPECT_LT(ShownAngle(Text(ribbon.picture)), std::min(high, below)) << ribbon.picture;
  };
  for (const CtdGroupRow& group : kCtdGroups) {
    for (const CtdRibbon& ribbon : group.ribbons) expectNamed(ribbon, 180);
  }
  for (const CtdSlot& slot : kCtdSlots) {
    // Each step of a joint ends where the next begins, but for flexion and extension of elbows.
    const bool steps = slot.categories.size() == 4;
    for (std::size_t i = 0; i < slot.categories.size(); ++i) {
      const bool last = !steps || i + 1 == slot.categories.size();
      expectNamed(slot.categories[i],
                  last ? 180 : NamedDegrees(Text(slot.categories[i + 1].caption)).first);
    }
  }
}

TEST(PosturePictures, AnglesOfRulaAndRebaAreThoseOfTheirToolTips) {
  struct Row {
    const char* picture;
    int low, high;  // degrees, both inside
    const char* direction;
  };
  for (const Row& row : {
           Row{"rula/ssribbon1_0", 20, 20, "-20 to 20"},
           Row{"rula/ssribbon1_1", 21, 60, "back"},
           Row{"rula/ssribbon1_2", 21, 45, "forward"},
           Row{"rula/ssribbon1_3", 46, 90, "forward"},
           Row{"rula/ssribbon1_4", 91, 180, "forward"},
           Row{"rula/ssribbon2_0", 0, 90, "Elbow bent"},
           Row{"rula/ssribbon2_1", 91, 150, "Elbow bent"},
           Row{"rula/ssribbon3_0", 0, 0, "straight"},
           Row{"rula/ssribbon3_1", 1, 20, "extended"},
           Row{"rula/ssribbon3_2", 21, 70, "extended"},
           Row{"rula/ssribbon3_3", 1, 20, "flexed"},
           Row{"rula/ssribbon3_4", 21, 70, "flexed"},
           Row{"rula/ssribbon4_0", 0, 10, "bent"},
           Row{"rula/ssribbon4_1", 1, 60, "back"},
           Row{"rula/ssribbon4_2", 11, 20, "bent"},
           Row{"rula/ssribbon4_3", 21, 80, "bent"},
           Row{"rula/ssribbon5_0", 0, 0, "upright"},
           Row{"rula/ssribbon5_1", 1, 20, "bent"},
           Row{"rula/ssribbon5_2", 21, 60, "bent"},
           Row{"rula/ssribbon5_3", 61, 90, "bent"},
           Row{"reba/ssribbon1_0", 20, 20, "-20 to 20"},
           Row{"reba/ssribbon1_1", 21, 60, "back"},
           Row{"reba/ssribbon1_2", 21, 45, "forward"},
           Row{"reba/ssribbon1_3", 46, 90, "forward"},
           Row{"reba/ssribbon1_4", 91, 180, "forward"},
           Row{"reba/ssribbon2_0", 60, 100, "Elbow bent"},
           Row{"reba/ssribbon2_1", 101, 150, "Elbow bent"},
           Row{"reba/ssribbon2_2", 0, 59, "Elbow bent"},
           Row{"reba/ssribbon3_0", 0, 0, "straight"},
           Row{"reba/ssribbon3_1", 16, 70, "flexed"},
           Row{"reba/ssribbon3_2", 16, 70, "extended"},
           Row{"reba/ssribbon4_0", 0, 10, "bent"},
           Row{"reba/ssribbon4_1", 21, 60, "back"},
           Row{"reba/ssribbon4_2", 21, 80, "bent"},
           Row{"reba/ssribbon5_0", 0, 0, "upright"},
           Row{"reba/ssribbon5_1", 1, 20, "bent"},
           Row{"reba/ssribbon5_2", 21, 60, "bent"},
           Row{"reba/ssribbon5_3", 61, 90, "bent"},
           Row{"reba/ssribbon5_4", 1, 20, "back"},
           Row{"reba/ssribbon5_5", 21, 60, "back"},
           Row{"reba/ssribbon6_2", 30, 60, "Knees"},
           Row{"reba/ssribbon6_3", 61, 120, "Knees"},
       }) {
    EXPECT_GE(ShownAngle(row.picture), row.low) << row.picture;
    EXPECT_LE(ShownAngle(row.picture), row.high) << row.picture;
    EXPECT_TRUE(TitleOf(row.picture).contains(row.direction)) << row.picture;
  }
}

}  // namespace
}  // namespace halvane
