#include "widgets/readable_style.h"

#include <QPainter>
#include <QStyleOption>
#include <array>

#include "widgets/contrast.h"
#include "widgets/stretched_frame.h"
#include "widgets/strips.h"

namespace halvane {
namespace {

/// Black on white has 21; no palette that is made to be looked at all day comes near.
constexpr double kHighContrast = 20;
/// A bar at the tab that is chosen, in logical pixels.
constexpr int kTabMark = 3;

/// A text and what it stands on.
struct Pair {
  QPalette::ColorRole text;
  QPalette::ColorRole ground;
};

/// Where the text gives way. A selection's ground does, so that its text stays the one that a
/// picture or a tint on it has been chosen for.
constexpr std::array kTexts{
    Pair{QPalette::WindowText, QPalette::Window},
    Pair{QPalette::Text, QPalette::Base},
    Pair{QPalette::ButtonText, QPalette::Button},
    Pair{QPalette::Link, QPalette::Base},
    Pair{QPalette::LinkVisited, QPalette::Base},
    Pair{QPalette::PlaceholderText, QPalette::Base},
    Pair{QPalette::ToolTipText, QPalette::ToolTipBase},
};

QColor Mixed(const QColor& color, const QColor& ground) {
  const auto mix = [&](float top, float below) {
    return top * color.alphaF() + below * (1 - color.alphaF());
  };
  return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                          mix(color.blueF(), ground.blueF()));
}

void SetTexts(QPalette& palette, QPalette::ColorGroup group, double contrast) {
  for (const Pair& pair : kTexts) {
    const QColor ground = palette.color(group, pair.ground);
    const QColor seen = Mixed(palette.color(group, pair.text), ground);
    if (Contrast(ground, seen) >= contrast) continue;
    palette.setColor(group, pair.text, ApartFrom(ground, seen, contrast));
  }
}

void SetSelection(QPalette& palette, QPalette::ColorGroup group) {
  const QColor text = palette.color(group, QPalette::HighlightedText);
  const QColor ground = palette.color(group, QPalette::Highlight);
  if (Contrast(text, ground) < kTextContrast) {
    palette.setColor(group, QPalette::Highlight, ApartFrom(text, ground));
  }
}

void Outline(QPainter& painter, const QRect& place, const QColor& color) {
  painter.save();
  painter.setClipping(false);
  // Lines of whole logical pixels, which end at the edge at every scale.
  painter.fillRect(QRect(place.topLeft(), QSize(place.width(), 1)), color);
  painter.fillRect(QRect(place.bottomLeft(), QSize(place.width(), 1)), color);
  painter.fillRect(QRect(place.topLeft(), QSize(1, place.height())), color);
  painter.fillRect(QRect(place.topRight(), QSize(1, place.height())), color);
  painter.restore();
}

void OutlineRound(QPainter& painter, const QRect& place, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QRectF(place).adjusted(1, 1, -1, -1));
  painter.restore();
}

/// The colour of an outline: a control that is at hand has that of texts.
QColor OutlineColor(const QStyleOption& option) {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  return option.palette.color(enabled ? QPalette::Active : QPalette::Disabled,
                              QPalette::WindowText);
}

bool IsOutlined(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_FrameMenu:
    case QStyle::PE_FrameTabWidget:
    case QStyle::PE_Frame: return true;
    default: return false;
  }
}

}  // namespace

bool HasHighContrast(const QPalette& palette) {
  return Contrast(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >
         kHighContrast;
}

void ReadableStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    SetTexts(palette, group, kTextContrast);
    SetSelection(palette, group);
  }
  // What is not at hand may be fainter, but not lost.
  SetTexts(palette, QPalette::Disabled, kPartContrast);
  if (!HasHighContrast(palette)) return;
  // The edges of the program's own controls.
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setColor(group, QPalette::Mid, palette.color(group, QPalette::WindowText));
  }
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  const auto draw = [&] { QProxyStyle::drawPrimitive(element, option, painter, widget); };
  if (element == PE_FrameTabWidget) {
    DrawInRectangles(*painter, option->rect, draw);
  } else if (element == PE_FrameGroupBox) {
    DrawGroupFrame(*option, *painter, widget);
  } else {
    draw();
  }
  if (!HasHighContrast(option->palette)) return;
  // The mark of the focus stands where the outline would.
  const bool hasMark =
      element == PE_FrameLineEdit && option->state.testFlag(QStyle::State_HasFocus);
  if (IsOutlined(element) && !hasMark) Outline(*painter, option->rect, OutlineColor(*option));
  if (element == PE_IndicatorRadioButton) {
    OutlineRound(*painter, option->rect, OutlineColor(*option));
  }
}

void ReadableStyle::DrawGroupFrame(const QStyleOption& option, QPainter& painter,
                                   const QWidget* widget) const {
  QStyleOptionFrame frame;
  const auto* given = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (given != nullptr) {
    frame = *given;
  } else {
    frame.QStyleOption::operator=(option);
  }
  // A caption stands above the frame, and may have a box before it.
  const int top = proxy()->pixelMetric(PM_IndicatorHeight) + 2 * option.fontMetrics.height();
  DrawStretched(painter, option.rect, top, [&](QPainter& on, const QRect& place) {
    frame.rect = place;
    QProxyStyle::drawPrimitive(PE_FrameGroupBox, &frame, &on, widget);
  });
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element != CE_TabBarTabShape || !HasHighContrast(option->palette)) return;
  Outline(*painter, option->rect, OutlineColor(*option));
  if (!option->state.testFlag(QStyle::State_Selected)) return;
  painter->fillRect(QRect(option->rect.topLeft(), QSize(option->rect.width(), kTabMark)),
                    option->palette.color(QPalette::Highlight));
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) {
    DrawScrollBar(*bar, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  if (!HasHighContrast(option->palette)) return;
  const QColor color = OutlineColor(*option);
  const auto place = [&](SubControl part) {
    return proxy()->subControlRect(control, option, part, widget);
  };
  if (control == CC_GroupBox) {
    // Its caption stands above.
    QRect frame = place(SC_GroupBoxFrame);
    const QRect caption = place(SC_GroupBoxLabel);
    if (!caption.isEmpty()) frame.setTop(caption.bottom() + 2);
    Outline(*painter, frame, color);
  } else if (control == CC_ComboBox) {
    Outline(*painter, option->rect, color);
  } else if (control == CC_Slider) {
    Outline(*painter, place(SC_SliderHandle), color);
  } else if (control == CC_ScrollBar) {
    Outline(*painter, option->rect, color);
    Outline(*painter, place(SC_ScrollBarSlider), color);
  }
}

void ReadableStyle::DrawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                                  const QWidget* widget) const {
  const auto draw = [&](QPainter& on, SubControls parts) {
    QStyleOptionSlider some = option;
    some.subControls &= parts;
    QProxyStyle::drawComplexControl(CC_ScrollBar, &some, &on, widget);
  };
  // The groove has a clip of its own.
  DrawByStrips(painter, option.rect, [&](QPainter& on) { draw(on, SC_ScrollBarGroove); });
  DrawInStrips(painter, option.rect, [&] { draw(painter, SC_ScrollBarSlider); });
  draw(painter, ~SubControls(SC_ScrollBarGroove | SC_ScrollBarSlider));
}

QRect ReadableStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const {
  if (control == CC_GroupBox && part == SC_GroupBoxCheckBox &&
      !option->subControls.testFlag(SC_GroupBoxCheckBox)) {
    return {};
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

}  // namespace halvane
