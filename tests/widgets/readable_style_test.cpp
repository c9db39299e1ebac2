// Texts of every palette can be read, and controls are seen on palettes of high contrast.
#include "widgets/readable_style.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionGroupBox>
#include <QStyleOptionTabWidgetFrame>
#include <QTabBar>
#include <algorithm>

#include "tests/support/form_support.h"
#include "tests/support/palettes.h"
#include "widgets/contrast.h"

namespace halvane {
namespace {

QPalette Polished(QPalette palette) {
  ReadableStyle().polish(palette);
  return palette;
}

double ContrastIn(const QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole one,
                  QPalette::ColorRole other) {
  return Contrast(palette.color(group, one), palette.color(group, other));
}

TEST(ReadableStyle, GivesEveryPaletteTextsThatCanBeRead) {
  for (const NamedPalette& row : kPalettes) {
    SCOPED_TRACE(row.name);
    const QPalette palette = Polished(row.make());
    const auto contrast = [&palette](QPalette::ColorRole one, QPalette::ColorRole other) {
      return ContrastIn(palette, QPalette::Active, one, other);
    };
    EXPECT_GE(contrast(QPalette::WindowText, QPalette::Window), 4.5);
    EXPECT_GE(contrast(QPalette::Text, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::ButtonText, QPalette::Button), 4.5);
    EXPECT_GE(contrast(QPalette::HighlightedText, QPalette::Highlight), 4.5);
    EXPECT_GE(contrast(QPalette::Link, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::LinkVisited, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::PlaceholderText, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::ToolTipText, QPalette::ToolTipBase), 4.5);
    EXPECT_GE(ContrastIn(palette, QPalette::Disabled, QPalette::ButtonText, QPalette::Button), 3);
    EXPECT_GE(ContrastIn(palette, QPalette::Disabled, QPalette::WindowText, QPalette::Window), 3);
  }
}

TEST(ReadableStyle, LeavesColorsThatCanBeReadAsTheyAre) {
  QPalette good = ContrastWhitePalette();
  const QPalette polished = Polished(good);
  for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Highlight,
                          QPalette::HighlightedText, QPalette::Link, QPalette::PlaceholderText}) {
    EXPECT_EQ(polished.color(role), good.color(role)) << role;
  }
}

TEST(ReadableStyle, AHintIsMeasuredAsItIsSeenThroughItsGround) {
  QPalette hint = LightPalette();
  QColor faint(Qt::black);
  faint.setAlphaF(0.4F);
  hint.setColor(QPalette::PlaceholderText, faint);
  EXPECT_GE(ContrastIn(Polished(hint), QPalette::Active, QPalette::PlaceholderText, QPalette::Base),
            4.5);
}

TEST(ReadableStyle, KnowsPalettesOfHighContrast) {
  EXPECT_FALSE(HasHighContrast(LightPalette()));
  EXPECT_FALSE(HasHighContrast(DarkPalette()));
  EXPECT_TRUE(HasHighContrast(ContrastWhitePalette()));
  EXPECT_TRUE(HasHighContrast(ContrastBlackPalette()));
}

/// The highest contrast of a line of pixels through the edge of a control with what is beside it.
double EdgeContrast(QWidget& control, const QPalette& palette) {
  control.setPalette(palette);
  control.setFocusPolicy(Qt::NoFocus);
  control.resize(120, 40);
  const QImage image = control.grab().toImage();
  double highest = 1;
  for (int x = 0; x < 10; ++x) {
    highest = std::max(highest, Contrast(image.pixelColor(x, 20), palette.color(QPalette::Window)));
  }
  return highest;
}

TEST(ReadableStyle, ControlsHaveAnOutlineOnPalettesOfHighContrast) {
  for (const QPalette& raw : {ContrastWhitePalette(), ContrastBlackPalette()}) {
    const QPalette palette = Polished(raw);
    QLineEdit box;
    QComboBox list;
    QCheckBox tick;
    QRadioButton option;
    QGroupBox frame;
    QPushButton button;
    QSlider slider(Qt::Horizontal);
    for (QWidget* control :
         std::initializer_list<QWidget*>{&box, &list, &tick, &option, &frame, &button, &slider}) {
      EXPECT_GE(EdgeContrast(*control, palette), 3) << control->metaObject()->className();
    }
  }
}

TEST(ReadableStyle, TheTabThatIsChosenIsToldFromTheOthers) {
  const QPalette palette = Polished(ContrastBlackPalette());
  QTabBar tabs;
  tabs.setPalette(palette);
  tabs.addTab("One");
  tabs.addTab("Two");
  tabs.resize(tabs.sizeHint());
  const QImage image = tabs.grab().toImage();
  const auto topOf = [&](int tab) {
    return image.pixelColor(tabs.tabRect(tab).center().x(), tabs.tabRect(tab).top() + 1);
  };
  EXPECT_EQ(topOf(0), palette.color(QPalette::Highlight));
  EXPECT_NE(topOf(1), palette.color(QPalette::Highlight));
}

TEST(ReadableStyle, FramesHaveABoxWhereTheyCanBeTicked) {
  QGroupBox frame("Caption");
  ReadableStyle style;
  frame.setStyle(&style);
  QStyleOptionGroupBox option;
  option.initFrom(&frame);
  option.text = frame.title();
  option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  const auto box = [&] {
    return style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, &frame);
  };
  EXPECT_TRUE(box().isEmpty());
  option.subControls |= QStyle::SC_GroupBoxCheckBox;
  EXPECT_FALSE(box().isEmpty());
}

/// Measures how high the largest piece is that it is asked to draw.
class MeasuringStyle : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    Measure(*option, *painter);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const bool isLong = option->subControls & (SC_ScrollBarSlider | SC_ScrollBarGroove);
    if (isLong) Measure(*option, *painter);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  mutable double highest = 0;

 private:
  void Measure(const QStyleOption& option, const QPainter& painter) const {
    const QRectF device(0, 0, painter.device()->width(), painter.device()->height());
    const QRectF drawn = painter.hasClipping() ? painter.clipBoundingRect() : option.rect;
    const QRectF seen = painter.worldTransform().inverted().mapRect(device) & drawn;
    highest = std::max(highest, (seen & QRectF(option.rect)).height());
  }
};

TEST(ReadableStyle, FramesAreDrawnWithoutWakingThreads) {
  for (const auto element : {QStyle::PE_FrameGroupBox, QStyle::PE_FrameTabWidget}) {
    SCOPED_TRACE(element);
    auto* base = new MeasuringStyle;
    ReadableStyle style;
    style.setBaseStyle(base);  // which is the style's from now on
    QImage ground(200, 500, QImage::Format_RGB32);
    ground.fill(Qt::white);
    QStyleOptionTabWidgetFrame option;
    option.rect = ground.rect();
    QPainter painter(&ground);
    style.drawPrimitive(element, &option, &painter, nullptr);
    EXPECT_GT(base->highest, 0);
    EXPECT_LT(base->highest, 96);
  }
}

TEST(ReadableStyle, ScrollBarsAreTheToolkitsWithoutWakingThreads) {
  QScrollBar bar(Qt::Vertical);
  bar.resize(16, 500);
  bar.setRange(0, 30);
  bar.setPageStep(60);
  QStyleOptionSlider option;
  option.initFrom(&bar);
  option.orientation = bar.orientation();
  option.maximum = bar.maximum();
  option.pageStep = bar.pageStep();
  for (const int place : {0, 10, 30}) {
    SCOPED_TRACE(place);
    option.sliderPosition = place;
    option.subControls = QStyle::SC_All;
    const auto drawn = [&](QStyle& style) {
      QImage ground(bar.size(), QImage::Format_RGB32);
      ground.fill(Qt::white);
      QPainter painter(&ground);
      style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, nullptr);
      return ground;
    };
    MeasuringStyle whole;
    auto* base = new MeasuringStyle;
    ReadableStyle style;
    style.setBaseStyle(base);
    EXPECT_EQ(drawn(style), drawn(whole));
    EXPECT_EQ(whole.highest, bar.height());
    EXPECT_GT(base->highest, 0);
    EXPECT_LT(base->highest, 96);
  }
}

}  // namespace
}  // namespace halvane
