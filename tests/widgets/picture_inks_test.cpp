// The inks of the posture pictures: each stands out on every ground that a picture lies on.
#include "widgets/picture_inks.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QPixmapCache>
#include <QSet>
#include <QStringList>
#include <array>
#include <string>
#include <vector>

#include "tests/support/palettes.h"
#include "widgets/contrast.h"
#include "widgets/posture_picture.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr std::array kLightGrounds{"#ffffff", "#efefef", "#dddddd"};
constexpr std::array kDarkGrounds{"#000000", "#1e1e20", "#2d2d30", "#313134"};

/// Buttons, hovered ones, those that the mouse holds down, and the plates of pressed ones.
QSet<QString> GroundsOf(const QPalette& palette) {
  const QColor button = palette.color(QPalette::Button);
  return {button.name(), button.lighter(108).name(), button.darker(108).name(),
          palette.color(QPalette::Base).name()};
}

QMap<QString, QColor> InksOn(const QColor& ground, bool dark) {
  QMap<QString, QColor> inks{{"ground", ground}};
  for (const PictureInk& ink : PictureInks())
    inks[ink.name] = QColor(dark ? ink.onDark : ink.onLight);
  return inks;
}

TEST(PictureInks, ThoseThatTouchStandOutFromEachOther) {
  // What lies side by side without a gap between: all but the reference line and the accent, which
  // a gap in the colour of the ground parts.
  const std::vector<std::pair<const char*, const char*>> touching{
      {"ground", "figure"}, {"ground", "accent"}, {"ground", "guide"},
      {"figure", "accent"}, {"figure", "guide"},  {"range", "accent"},
      {"range", "guide"},   {"object", "guide"},  {"object", "accent"},
  };
  const auto check = [&touching](const QString& ground) {
    const bool dark = RelativeLuminance(ground) < 0.5;
    const QMap<QString, QColor> inks = InksOn(QColor(ground), dark);
    for (const auto& [a, b] : touching) {
      EXPECT_GE(Contrast(inks[a], inks[b]), kPartContrast)
          << a << " and " << b << " on " << ground.toStdString();
    }
  };
  QSet<QString> grounds;
  for (const NamedPalette& palette : kPalettes) grounds += GroundsOf(palette.make());
  EXPECT_GE(grounds.size(), 6);
  for (const QString& ground : grounds) check(ground);
  for (const char* ground : kLightGrounds) check(ground);
  for (const char* ground : kDarkGrounds) check(ground);
}

TEST(PictureInks, AreChosenByTheGround) {
  const auto names = [](const char* ground) {
    QStringList colors;
    for (const QColor& color : ColorsOn(QColor(ground))) colors << color.name();
    return colors.join(' ').toStdString();
  };
  for (const char* ground : kLightGrounds)
    EXPECT_EQ(names(ground),
              std::string(ground) + " #797d85 #082a84 #14171c #b9cdf5 #e3e6ea #3a72ee");
  for (const char* ground : kDarkGrounds)
    EXPECT_EQ(names(ground),
              std::string(ground) + " #757a83 #cae0ff #ffffff #36599b #565c66 #3a72ee");
}

TEST(PictureInks, APictureIsDrawnInThem) {
  for (const char* ground : {"#efefef", "#2d2d30"}) {
    const bool dark = QColor(ground) == QColor("#2d2d30");
    const QMap<QString, QColor> inks = InksOn(QColor(ground), dark);
    const QImage image = PosturePicture("ctd/back_0", QColor(ground), 112).toImage();
    ASSERT_EQ(image.size(), QSize(112, 112));
    QMap<QRgb, int> found;
    for (int y = 0; y < 112; ++y) {
      for (int x = 0; x < 112; ++x) ++found[image.pixel(x, y)];
    }
    EXPECT_GT(found[inks["accent"].rgb()], 100) << ground;
    EXPECT_GT(found[inks["figure"].rgb()], 100) << ground;
    EXPECT_EQ(found[InksOn(QColor(ground), !dark)["accent"].rgb()], 0) << ground;
  }
}

TEST(PictureInks, APictureThatIsNotThereIsNone) {
  EXPECT_TRUE(PosturePicture("ctd/no_such_picture", Qt::white, 56).isNull());
}

TEST(PictureInks, APictureIsDrawnOnce) {
  const qint64 drawn = PosturePicture("ctd/back_0", Qt::white, 56).cacheKey();
  // What the toolkit's own cache does by itself after a while.
  QPixmapCache::clear();
  EXPECT_EQ(PosturePicture("ctd/back_0", Qt::white, 56).cacheKey(), drawn);
  EXPECT_NE(PosturePicture("ctd/back_0", Qt::white, 64).cacheKey(), drawn);
  EXPECT_NE(PosturePicture("ctd/back_0", Qt::black, 56).cacheKey(), drawn);
  EXPECT_NE(PosturePicture("ctd/neck_45", Qt::white, 56).cacheKey(), drawn);
}

TEST(PictureInks, AButtonTakesThoseOfItsOwnGround) {
  RibbonButton button("SSRibbon1", "Caption");
  button.SetPicture("ctd/back_0");
  button.resize(120, 120);
  const auto count = [&button](const char* colour) {
    const QImage image = button.grab().toImage().convertToFormat(QImage::Format_RGB32);
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) pixels += image.pixel(x, y) == QColor(colour).rgb();
    }
    return pixels;
  };
  const auto setGround = [&button](QPalette::ColorRole role, const char* colour) {
    QPalette palette = button.palette();
    palette.setColor(role, QColor(colour));
    button.setPalette(palette);
  };
  setGround(QPalette::Button, "#efefef");
  EXPECT_GT(count("#082a84"), 20);
  setGround(QPalette::Button, "#2d2d30");
  EXPECT_EQ(count("#082a84"), 0);
  EXPECT_GT(count("#cae0ff"), 20);
  // The plate of a pressed one is light again.
  button.setChecked(true);
  setGround(QPalette::Base, "#ffffff");
  EXPECT_GT(count("#082a84"), 20);
  EXPECT_EQ(count("#cae0ff"), 0);
}

}  // namespace
}  // namespace halvane
