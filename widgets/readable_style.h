#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

namespace halvane {

/// Whether a palette is one of a desktop for people who see little, which knows no shades between
/// its ground and its text.
[[nodiscard]] bool HasHighContrast(const QPalette& palette);

/// The desktop's own style, and where its colours are too near to each other, others: texts of
/// every palette can be read on what is behind them; and with a palette of high contrast, whose
/// shades for edges are lost on its ground, controls have an outline.
class ReadableStyle : public QProxyStyle {
  Q_OBJECT
 public:
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  /// A frame's box that can't be ticked has no place: its caption would be measured for it.
  [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                     SubControl part, const QWidget* widget) const override;

 private:
  void DrawGroupFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
  void DrawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                     const QWidget* widget) const;
};

}  // namespace halvane
