// The outlines that the build makes of the postures: what the program shows is what the files have.
#include "widgets/posture_outlines.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <string>
#include <vector>

#include "tests/assets/picture_files.h"
#include "widgets/picture_inks.h"
#include "widgets/posture_drawing.h"

namespace halvane {
namespace {

constexpr int kScale = 4;
constexpr int kSide = 56 * kScale;
/// Of 50,176: where dashes run round a narrow bend, both roads measure its length in steps.
constexpr int kMostApart = 100;

template <typename Draw>
QImage Painted(const QColor& ground, const Draw& draw) {
  QImage image(kSide, kSide, QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  draw(painter);
  return image;
}

/// The drawing as the toolkit's reader of such files draws it, in the inks of a ground.
QImage FromFile(QByteArray svg, const QColor& ground) {
  const PostureColors colors = ColorsOn(ground);
  svg.replace(kEdgeInk, ground.name().toLatin1());
  for (std::size_t i = 0; i < PictureInks().size(); ++i)
    svg.replace(PictureInks()[i].onLight, colors.at(i + 1).name().toLatin1());
  QSvgRenderer renderer(svg);
  EXPECT_TRUE(renderer.isValid());
  return Painted(ground, [&renderer](QPainter& painter) { renderer.render(&painter); });
}

QImage FromOutlines(const QByteArray& svg, const QColor& ground) {
  const QByteArray bytes = BytesOf(OutlinesOf(svg));
  return Painted(ground, [&](QPainter& painter) {
    painter.scale(kScale, kScale);
    DrawPosture(painter, bytes, ColorsOn(ground));
  });
}

int Difference(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

/// Where two pictures differ by more than an edge that lies half a pixel off: pixels of one that
/// are like none of those around the same place of the other.
int PlacesApart(const QImage& a, const QImage& b) {
  constexpr int kSame = 40;
  int apart = 0;
  for (int y = 1; y < kSide - 1; ++y) {
    for (int x = 1; x < kSide - 1; ++x) {
      bool found = Difference(a.pixel(x, y), b.pixel(x, y)) <= kSame;
      for (int place = 0; place < 9 && !found; ++place) {
        found = Difference(a.pixel(x, y), b.pixel(x + place % 3 - 1, y + place / 3 - 1)) <= kSame;
      }
      apart += found ? 0 : 1;
    }
  }
  return apart;
}

QByteArray Drawing(const QByteArray& elements) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.2\" baseProfile=\"tiny\" "
         "width=\"56\" height=\"56\" viewBox=\"0 0 56 56\">" +
         elements + "</svg>";
}

TEST(PostureOutlines, ShowWhatTheFilesHave) {
  const QStringList postures = CompiledPictures();
  ASSERT_EQ(postures.size(), 100);
  for (const QString& posture : postures) {
    const QByteArray svg = ContentOf(SourceFile("assets/" + posture + ".svg"));
    for (const char* name : {"#efefef", "#2d2d30"}) {
      const QColor ground(name);
      const QImage file = FromFile(svg, ground);
      const QImage outlines = FromOutlines(svg, ground);
      EXPECT_LE(PlacesApart(file, outlines), kMostApart) << posture.toStdString() << " on " << name;
      EXPECT_LE(PlacesApart(outlines, file), kMostApart) << posture.toStdString() << " on " << name;
    }
  }
}

TEST(PostureOutlines, OfAFileThatIsDrawnOtherwiseShowIt) {
  const QByteArray plain = Drawing("<path d=\"M8 8L48 8L48 48Z\" fill=\"#082a84\"/>");
  const QByteArray moved = Drawing("<path d=\"M8 8L48 8L48 46Z\" fill=\"#082a84\"/>");
  EXPECT_EQ(PlacesApart(FromFile(plain, Qt::white), FromOutlines(plain, Qt::white)), 0);
  EXPECT_GT(PlacesApart(FromFile(plain, Qt::white), FromOutlines(moved, Qt::white)), kMostApart);
}

TEST(PostureOutlines, ShowEveryKindOfLine) {
  for (const QByteArray line :
       {"<path d=\"M8 28L48 28\" fill=\"none\" stroke=\"#082a84\" stroke-width=\"6\"/>",
        "<path d=\"M8 28L48 28\" fill=\"none\" stroke=\"#082a84\" stroke-width=\"6\" "
        "stroke-linecap=\"round\"/>",
        "<path d=\"M8 48L28 8L48 48\" fill=\"none\" stroke=\"#082a84\" stroke-width=\"6\"/>",
        "<path d=\"M8 48L28 8L48 48\" fill=\"none\" stroke=\"#082a84\" stroke-width=\"6\" "
        "stroke-linejoin=\"round\"/>",
        "<path d=\"M8 28L48 28\" fill=\"none\" stroke=\"#082a84\" stroke-width=\"3\" "
        "stroke-dasharray=\"4,4\" stroke-dashoffset=\"4\"/>",
        "<rect x=\"8\" y=\"12\" width=\"30\" height=\"20\" fill=\"#3a72ee\"/>",
        "<path d=\"M8 8C8 40 48 40 48 8Z\" fill=\"#b9cdf5\" fill-opacity=\"0.45\"/>",
        "<g transform=\"translate(56 0) scale(-1 1)\"><path d=\"M8 8L48 8L48 48Z\" "
        "fill=\"#797d85\"/></g>",
        "<g fill=\"none\" stroke=\"#14171c\" stroke-width=\"3\"><path d=\"M8 8L40 8L40 40Z\"/>"
        "<path d=\"M20 4L50 4L50 50Z\"/></g><g fill=\"#797d85\"><path d=\"M8 8L40 8L40 40Z\"/>"
        "<path d=\"M20 4L50 4L50 50Z\"/></g>"}) {
    const QByteArray svg = Drawing(line);
    EXPECT_EQ(PlacesApart(FromFile(svg, Qt::white), FromOutlines(svg, Qt::white)), 0)
        << line.toStdString();
  }
}

TEST(PostureOutlines, AreRefusedWithWhatPosturesAreNotDrawnWith) {
  const auto failure = [](const QByteArray& svg) -> std::string {
    try {
      (void)OutlinesOf(svg);
    } catch (const UnknownDrawing& unknown) {
      return unknown.what();
    }
    return "none";
  };
  const auto failureOf = [&](const QByteArray& element) { return failure(Drawing(element)); };
  EXPECT_EQ(failureOf("<path d=\"M0 0L8 8\" fill=\"#082a84\"/>"), "none");
  EXPECT_EQ(failureOf("<circle r=\"8\"/>"), "the element circle");
  EXPECT_EQ(failureOf("<path d=\"M0 0L8 8\" filter=\"x\"/>"), "the attribute filter");
  EXPECT_EQ(failureOf("<path d=\"M0 0L8 8\" fill=\"#123456\"/>"), "the colour #123456");
  EXPECT_EQ(failureOf("<path d=\"M0 0A8 8\" fill=\"#082a84\"/>"), "in a path: A");
  EXPECT_EQ(failureOf("<path d=\"M0 0L8\" fill=\"#082a84\"/>"), "a path that ends too early");
  EXPECT_EQ(failureOf("<path d=\"M0 0L8 1.2.3\" fill=\"#082a84\"/>"), "the number 1.2.3");
  EXPECT_EQ(failureOf("<g transform=\"scale(2)\" fill=\"#082a84\"><path d=\"M0 0L8 8\"/></g>"),
            "the place scale(2)");
  EXPECT_NE(failure("<svg><path"), "none");
}

TEST(PostureOutlines, ThatEndTooEarlyAreDrawnUpToThere) {
  const QByteArray bytes =
      BytesOf(OutlinesOf(Drawing("<path d=\"M8 8L48 8L48 48Z\" fill=\"#082a84\"/>")));
  for (qsizetype size = 0; size < bytes.size(); ++size) {
    const QImage image = Painted(Qt::white, [&](QPainter& painter) {
      DrawPosture(painter, bytes.left(size), ColorsOn(Qt::white));
    });
    EXPECT_EQ(image.pixelColor(0, kSide - 1), QColor(Qt::white)) << size;
  }
}

}  // namespace
}  // namespace halvane
