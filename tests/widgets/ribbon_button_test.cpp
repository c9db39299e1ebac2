#include "widgets/ribbon_button.h"

#include <gtest/gtest.h>

#include <QImage>

#include "tests/support/form_support.h"

namespace halvane {
namespace {

TEST(RibbonButton, WrapsACaptionThatIsLong) {
  const RibbonButton shortOne("a", "3");
  const RibbonButton longOne("b", "Substantial effort; changes facial expression");
  EXPECT_GE(longOne.sizeHint().height(), 2 * longOne.fontMetrics().lineSpacing());
  EXPECT_LT(longOne.sizeHint().width(), longOne.fontMetrics().horizontalAdvance(longOne.text()));
  EXPECT_LT(shortOne.sizeHint().height(), 2 * shortOne.fontMetrics().lineSpacing());
  EXPECT_EQ(longOne.minimumSizeHint(), longOne.sizeHint());
}

/// The colour that fills a ribbon, near its corner.
QColor FillOf(RibbonButton& ribbon) { return ribbon.grab().toImage().pixelColor(3, 3); }

TEST(RibbonButton, IsFilledWithTheHighlightColourWhileDown) {
  QPalette palette;
  palette.setColor(QPalette::Highlight, QColor(10, 20, 200));
  palette.setColor(QPalette::Button, QColor(220, 221, 222));
  RibbonButton ribbon("a", "");
  ribbon.setPalette(palette);
  ribbon.resize(60, 40);
  EXPECT_EQ(FillOf(ribbon), QColor(220, 221, 222));
  ribbon.setChecked(true);
  EXPECT_EQ(FillOf(ribbon), QColor(10, 20, 200));
}

TEST(RibbonButton, ShowsItsFocus) {
  RibbonButton ribbon("a", "");
  ribbon.resize(60, 40);
  ShowActive(ribbon);
  ribbon.clearFocus();
  const QImage without = ribbon.grab().toImage();
  ribbon.setFocus();
  EXPECT_NE(ribbon.grab().toImage(), without);
}

/// The colours of a ribbon that is seen without colour: fill and text are the same in every state.
QPalette WithoutColor() {
  QPalette palette(Qt::black, Qt::lightGray);
  palette.setColor(QPalette::Button, Qt::lightGray);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Highlight, Qt::lightGray);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

/// How many pixels two pictures do not share.
int Differences(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) count += one.pixel(x, y) != other.pixel(x, y);
  }
  return count;
}

TEST(RibbonButton, TellsItsStatesApartWithoutColor) {
  RibbonButton ribbon("a", "Caption");
  ribbon.setPalette(WithoutColor());
  ribbon.resize(100, 60);
  ShowActive(ribbon);
  ribbon.clearFocus();
  // Wherever the pointer is.
  const auto look = [&ribbon](bool near = false) {
    ribbon.setAttribute(Qt::WA_UnderMouse, near);
    return ribbon.grab().toImage();
  };
  const QImage plain = look();
  ribbon.setChecked(true);
  const QImage pressed = look();
  ribbon.setFocus();
  const QImage pressedFocused = look();
  ribbon.setChecked(false);
  const QImage focused = look();
  ribbon.clearFocus();
  const QImage hovered = look(true);
  const std::vector<QImage> looks{plain, pressed, focused, pressedFocused, hovered};
  for (std::size_t i = 0; i < looks.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_GE(Differences(looks[i], looks[j]), 15) << i << j;
  }
  // The tick: in the upper right corner, and nowhere else.
  const QRect corner(84, 0, 16, 16);
  EXPECT_EQ(Differences(plain.copy(0, 16, 100, 44), pressed.copy(0, 16, 100, 44)), 0);
  EXPECT_GE(Differences(plain.copy(corner), pressed.copy(corner)), 15);
}

TEST(RibbonButton, GivesWayUnderTheMouse) {
  RibbonButton ribbon("a", "Caption");
  ribbon.setPalette(WithoutColor());
  ribbon.resize(100, 60);
  // Where the caption is dark.
  const auto caption = [&ribbon](QPoint moved) {
    const QImage grey = ribbon.grab(QRect(10, 10, 79, 39).translated(moved)).toImage();
    return grey.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
  };
  const QImage before = caption({0, 0});
  ribbon.setDown(true);
  // The shade of the fill lets the edges of letters seem a little darker.
  EXPECT_LT(5 * Differences(caption({1, 1}), before), Differences(caption({0, 0}), before));
  EXPECT_EQ(FillOf(ribbon).rgb(), QColor(Qt::lightGray).darker(108).rgb());
}

TEST(RibbonButton, ShowsTheCaptionThatItHasNow) {
  const auto shown = [](RibbonButton& button) { return button.grab().toImage(); };
  const auto fresh = [&](const QString& caption, int width, const QFont& font) {
    RibbonButton button("Ribbon", caption, nullptr);
    button.setFont(font);
    button.resize(width, 90);
    return shown(button);
  };
  RibbonButton button("Ribbon", "Radial Deviation", nullptr);
  const QFont font = button.font();
  button.resize(80, 90);
  const QImage first = shown(button);
  EXPECT_EQ(first, fresh("Radial Deviation", 80, font));
  button.setText("Ulnar Deviation");
  EXPECT_EQ(shown(button), fresh("Ulnar Deviation", 80, font));
  EXPECT_NE(shown(button), first);
  button.resize(180, 90);
  EXPECT_EQ(shown(button), fresh("Ulnar Deviation", 180, font));
  QFont larger = font;
  larger.setPointSizeF(1.5 * font.pointSizeF());
  button.setFont(larger);
  EXPECT_EQ(shown(button), fresh("Ulnar Deviation", 180, larger));
  EXPECT_NE(shown(button), fresh("Ulnar Deviation", 180, font));
}

}  // namespace
}  // namespace halvane
