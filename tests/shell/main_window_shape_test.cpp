// The outline of the main window, what stands inside it, and the gradient of its two panels.
#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <cmath>

#include "app/tool_forms.h"
#include "shell/frm_hand_main.h"
#include "tests/support/form_support.h"
#include "widgets/gradient_panel.h"
#include "widgets/picture_inks.h"

namespace halvane {
namespace {

class MainWindowShape : public ShellTest {};
class Gradient : public ShellTest {};

constexpr int kLeastDistance = 6;
/// The rounding of title strip and opening panel.
constexpr int kCorner = 5;

QImage Mask(const char* file) {
  return QImage(QString(":/assets/main_window/") + file).convertToFormat(QImage::Format_Grayscale8);
}

bool Inside(const QImage& mask, int x, int y) {
  return mask.valid(x, y) && qGray(mask.pixel(x, y)) >= 128;
}

/// How many pixels of a rectangle are not inside the mask, the rectangle being in logical pixels.
int Outside(const QImage& mask, const QRect& place) {
  const int scale = mask.width() / 306;
  int outside = 0;
  for (int y = place.top() * scale; y <= place.bottom() * scale + scale - 1; ++y) {
    for (int x = place.left() * scale; x <= place.right() * scale + scale - 1; ++x) {
      if (!Inside(mask, x, y)) ++outside;
    }
  }
  return outside;
}

void ExpectControlsInside(const QWidget& window, const QStringList& names) {
  for (const char* file : {"hand_mask.png", "hand_mask@2x.png"}) {
    const QImage mask = Mask(file);
    for (const QString& name : names) {
      const auto& control = Find<QWidget>(window, name);
      ASSERT_TRUE(control.isVisible()) << name.toStdString();
      const QRect place(control.mapTo(&window, QPoint()), control.size());
      const QRect wide =
          place.adjusted(-kLeastDistance, -kLeastDistance, kLeastDistance, kLeastDistance);
      EXPECT_EQ(Outside(mask, wide), 0) << name.toStdString() << " in " << file;
    }
  }
}

TEST_F(MainWindowShape, PictureAndMaskHaveTheWindowsSize) {
  const FrmHandMain window(MakeToolForm);
  EXPECT_EQ(window.minimumSize(), QSize(306, 501));
  EXPECT_EQ(window.maximumSize(), QSize(306, 501));
  EXPECT_EQ(Find<QWidget>(window, "SSSplash1").geometry(), QRect(0, 0, 306, 501));
  for (const char* name : {"hand", "hand_mask"}) {
    const QString path = QString(":/assets/main_window/") + name;
    EXPECT_EQ(QImage(path + ".png").size(), QSize(306, 501)) << name;
    EXPECT_EQ(QImage(path + "@2x.png").size(), QSize(612, 1002)) << name;
  }
}

TEST_F(MainWindowShape, WindowHasNoFrame) {
  const FrmHandMain window(MakeToolForm);
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(MainWindowShape, OutlineIsThatOfTheMask) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  QImage drawn(306, 501, QImage::Format_Grayscale8);
  drawn.fill(Qt::black);
  QPainter painter(&drawn);
  for (const QRect& part : window.mask()) painter.fillRect(part, Qt::white);
  painter.end();
  const QImage mask = Mask("hand_mask.png");
  int different = 0;
  for (int y = 0; y < 501; ++y) {
    for (int x = 0; x < 306; ++x) different += Inside(mask, x, y) != Inside(drawn, x, y) ? 1 : 0;
  }
  EXPECT_EQ(different, 0);
}

TEST_F(MainWindowShape, NothingIsPaintedOutsideTheOutline) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  const QImage shown = window.grab().toImage();
  const QImage mask = Mask("hand_mask.png");
  int different = 0;
  for (int y = 0; y < 501; ++y) {
    for (int x = 0; x < 306; ++x) {
      different += Inside(mask, x, y) != (qAlpha(shown.pixel(x, y)) == 255) ? 1 : 0;
    }
  }
  EXPECT_EQ(different, 0);
}

TEST_F(MainWindowShape, FingersAreThoseOfThePicture) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  const QImage shown = window.grab().toImage();
  const QImage picture(":/assets/main_window/hand.png");
  const QImage mask = Mask("hand_mask.png");
  const int strip = Find<QWidget>(window, "Picture1").y();
  int different = 0;
  for (int y = 0; y < strip; ++y) {
    for (int x = 0; x < 306; ++x) {
      if (Inside(mask, x, y) && shown.pixel(x, y) != picture.pixel(x, y)) ++different;
    }
  }
  EXPECT_EQ(different, 0);
}

/// By how much the hand is darker as shown than in its picture.
int Darker(const QImage& shown, QPoint place) {
  const QImage picture(":/assets/main_window/hand.png");
  return qGray(picture.pixel(place)) - qGray(shown.pixel(place));
}

TEST_F(MainWindowShape, WhateverLiesOnTheHandCastsOneShadowToTheLowerRight) {
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  const auto window = IdleMainWindow();
  const auto expectShadow = [](QWidget& of, const char* name) {
    const QImage shown = of.grab().toImage();
    const QRect place = Find<QWidget>(of, name).geometry();
    EXPECT_GT(Darker(shown, {place.right() + 2, place.bottom() - 8}), 25) << name;
    EXPECT_GT(Darker(shown, {place.center().x(), place.bottom() + 2}), 25) << name;
    EXPECT_EQ(Darker(shown, {place.left() - 2, place.bottom() - 8}), 0) << name;
  };
  for (const char* name : {"Picture1", "Picture3"}) expectShadow(opening, name);
  for (const char* name : {"Picture1", "SSCommand2(0)", "SSCommand2(4)", "SSRibbon1(0)"}) {
    expectShadow(*window, name);
  }
}

TEST_F(MainWindowShape, OpeningPanelTakesItsShadowAlong) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  const QRect panel = Find<QWidget>(window, "Picture3").geometry();
  const QPoint below(panel.left() + 10, panel.bottom() + 3);
  EXPECT_GT(Darker(window.grab().toImage(), below), 25);
  const auto idle = IdleMainWindow();
  EXPECT_EQ(Darker(idle->grab().toImage(), below), 0);
}

TEST_F(MainWindowShape, EveryControlStandsWellInsideTheOutline) {
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  ExpectControlsInside(opening, {"Picture1", "Label1", "Picture3", "Hyperlink1"});
  const auto window = IdleMainWindow();
  QStringList names{"Picture1", "Label1"};
  for (const auto* button : window->findChildren<QAbstractButton*>()) {
    if (button->isVisible()) names.append(button->objectName());
  }
  EXPECT_EQ(names.size(), 11);
  ExpectControlsInside(*window, names);
}

TEST_F(MainWindowShape, NoTwoControlsOverlapButTheTitleStripAndItsButtons) {
  const auto window = IdleMainWindow();
  QList<QWidget*> controls;
  for (auto* child : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (child->isVisible() && child->objectName() != "SSSplash1") controls.append(child);
  }
  ASSERT_EQ(controls.size(), 10);
  QStringList overlaps;
  for (const QWidget* one : controls) {
    for (const QWidget* other : controls) {
      if (one < other && one->geometry().intersects(other->geometry())) {
        QStringList pair{one->objectName(), other->objectName()};
        pair.sort();
        overlaps.append(pair.join(" "));
      }
    }
  }
  overlaps.sort();
  EXPECT_EQ(overlaps, (QStringList{"Picture1 SSCommand3(0)", "Picture1 SSCommand3(1)"}));
}

TEST_F(MainWindowShape, HandIsBehindEverything) {
  const FrmHandMain window(MakeToolForm);
  QStringList names;
  for (const auto* child : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!child->isWindow()) names.append(child->objectName());
  }
  EXPECT_EQ(names,
            (QStringList{"SSSplash1", "Picture1", "Picture3", "SSCommand2(0)", "SSCommand2(1)",
                         "SSCommand2(2)", "SSCommand2(3)", "SSCommand2(4)", "SSRibbon1(0)",
                         "SSRibbon1(1)", "SSCommand3(0)", "SSCommand3(1)", "SSCommand1"}));
}

TEST_F(MainWindowShape, ButtonsStandInTheirOrder) {
  const auto window = IdleMainWindow();
  const auto place = [&](const char* name) { return Find<QWidget>(*window, name).geometry(); };
  const QRect strip = place("Picture1");
  EXPECT_TRUE(strip.contains(place("SSCommand3(0)")));
  EXPECT_TRUE(strip.contains(place("SSCommand3(1)")));
  EXPECT_LT(place("SSCommand3(1)").right(), place("SSCommand3(0)").left());
  int above = strip.bottom();
  for (const char* name :
       {"SSCommand2(0)", "SSCommand2(1)", "SSCommand2(2)", "SSCommand2(3)", "SSCommand2(4)"}) {
    EXPECT_GT(place(name).top(), above) << name;
    EXPECT_EQ(place(name).width(), strip.width()) << name;
    above = place(name).bottom();
  }
  EXPECT_GT(place("SSRibbon1(0)").top(), above);
  EXPECT_EQ(place("SSRibbon1(0)").top(), place("SSRibbon1(1)").top());
  EXPECT_LT(place("SSRibbon1(0)").right(), place("SSRibbon1(1)").left());
}

TEST_F(MainWindowShape, FileAndHelpHaveTheirSigns) {
  const auto window = IdleMainWindow();
  for (const char* name : {"SSRibbon1(0)", "SSRibbon1(1)"}) {
    const QImage image = Find<QWidget>(*window, name).grab().toImage();
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) pixels += image.pixelColor(x, y) == QColor(kSignInk);
    }
    EXPECT_GT(pixels, 10) << name;
  }
}

TEST_F(MainWindowShape, LargeFontsAreNotClipped) {
  const QFont usual = QApplication::font();
  for (const double scale : {1.0, 1.5, 2.5}) {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    const auto window = IdleMainWindow();
    Find<QWidget>(*window, "Picture3").show();
    QCoreApplication::processEvents();
    for (const auto* control : window->findChildren<QWidget*>()) {
      const auto* label = qobject_cast<const QLabel*>(control);
      const auto* button = qobject_cast<const QAbstractButton*>(control);
      if (!control->isVisible() || (label == nullptr && button == nullptr)) continue;
      const QString text = label != nullptr ? label->text() : button->text();
      if (text.isEmpty()) continue;
      const QSize needed = control->fontMetrics().size(Qt::TextSingleLine, text);
      EXPECT_LE(needed.width(), control->width()) << control->objectName().toStdString() << scale;
      EXPECT_LE(needed.height(), control->height()) << control->objectName().toStdString() << scale;
    }
  }
  QApplication::setFont(usual);
}

TEST_F(MainWindowShape, TextsFollowTheFontAsFarAsThereIsRoom) {
  const QFont usual = QApplication::font();
  const auto setPoints = [&usual](double points) {
    QFont font = usual;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  };
  setPoints(8);
  const auto window = IdleMainWindow();
  QList<double> before;
  for (const double points : {8.0, 10.0, 12.0, 20.0, 8.0}) {
    setPoints(points);
    QList<double> sizes;
    for (const char* name : {"SSCommand2(0)", "SSCommand2(1)", "SSRibbon1(0)", "Label1"}) {
      const auto& control = Find<QWidget>(*window, name);
      const QString text = control.property("text").toString();
      const QSize needed = control.fontMetrics().size(Qt::TextSingleLine, text);
      EXPECT_LE(needed.width(), control.width()) << name << points;
      EXPECT_LE(needed.height(), control.height()) << name << points;
      const double size = control.font().pointSizeF();
      EXPECT_LE(size, points + 0.01) << name;
      // What has the room takes the font as it is.
      if (points <= 10 || QString(name) == "SSCommand2(0)") {
        if (points < 20) {
          EXPECT_NEAR(size, points, 0.1) << name;
        }
      }
      sizes.append(size);
    }
    if (points == 20.0) {
      EXPECT_GT(sizes[0], 13) << "a launch button has room for more than 13 points";
    }
    before = sizes;
  }
  EXPECT_NEAR(before[0], 8, 0.1) << "and back";
  QApplication::setFont(usual);
}

QRgb Blue(int level) { return qRgb(0, 0, level); }

/// The level of blue of one row: the boxes are two rows high, the first of them one row.
int LevelOfRow(int row, int panelHeight) {
  const int box = (row + 1) / 2;
  const double level = 255 - box * 510.0 / (panelHeight + 10);
  return level < 0 ? 0 : static_cast<int>(std::lround(level));
}

/// `corner` is the side of the squares at the corners that are left out.
void ExpectGradient(const QImage& shown, int corner = 0) {
  const QRect across = shown.rect().adjusted(corner, 0, -corner, 0);
  const QRect down = shown.rect().adjusted(0, corner, 0, -corner);
  int different = 0;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      if (!across.contains(x, y) && !down.contains(x, y)) continue;
      if (shown.pixel(x, y) != Blue(LevelOfRow(y, shown.height()))) ++different;
    }
  }
  EXPECT_EQ(different, 0) << shown.width() << " by " << shown.height();
}

TEST_F(Gradient, GoesFromFullBlueDownInBoxesOfTwoRows) {
  GradientPanel panel("panel", nullptr);
  panel.resize(3, 10);
  const QImage shown = panel.grab().toImage();
  const std::vector<int> rows{255, 230, 230, 204, 204, 178, 178, 153, 153, 128};
  ASSERT_EQ(shown.height(), 10);
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      EXPECT_EQ(shown.pixel(x, y), Blue(rows.at(static_cast<std::size_t>(y)))) << x << ", " << y;
    }
  }
}

TEST_F(Gradient, FillsPanelsOfEverySize) {
  for (const QSize& size : {QSize(1, 1), QSize(200, 27), QSize(200, 28), QSize(90, 203)}) {
    GradientPanel panel("panel", nullptr);
    panel.resize(size);
    ExpectGradient(panel.grab().toImage());
  }
}

TEST_F(Gradient, IsTheSameAfterTheWindowWasCovered) {
  GradientPanel panel("panel", nullptr);
  panel.resize(40, 60);
  ShowActive(panel);
  const QImage before = panel.grab().toImage();
  QImage after = before;
  after.fill(Qt::red);
  panel.render(&after, QPoint(0, 20), QRect(0, 20, 40, 15));
  for (const int y : {20, 27, 34}) EXPECT_EQ(after.pixel(5, y), before.pixel(5, y)) << y;
  panel.hide();
  ShowActive(panel);
  EXPECT_EQ(panel.grab().toImage(), before);
}

TEST_F(Gradient, IsOnTitleStripAndOpeningPanelUnderWhiteText) {
  FrmHandMain window(MakeToolForm);
  for (const char* name : {"Picture1", "Picture3"}) {
    auto& panel = Find<GradientPanel>(window, name);
    EXPECT_EQ(panel.palette().color(QPalette::WindowText), QColor(Qt::white)) << name;
    for (auto* child : panel.findChildren<QWidget*>()) child->hide();
    ExpectGradient(panel.grab().toImage(), kCorner);
  }
}

TEST_F(Gradient, LeavesItsCornersToTheHand) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  const QImage shown = window.grab().toImage();
  for (const char* name : {"Picture1", "Picture3"}) {
    const QRect place = Find<QWidget>(window, name).geometry();
    for (const QPoint& corner :
         {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()}) {
      // The hand has as much red as green, the gradient has none.
      EXPECT_GT(qRed(shown.pixel(corner)), 40) << name;
    }
  }
}

}  // namespace
}  // namespace halvane
