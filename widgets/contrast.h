#pragma once

#include <QColor>

namespace halvane {

/// How light the eye finds a colour, from 0 (black) to 1 (white), as WCAG 2 measures it. What a
/// colour lets through does not count.
[[nodiscard]] double RelativeLuminance(const QColor& color);

/// How far apart two colours stand for the eye by WCAG 2: from 1, the same, to 21, black on white.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);

/// The least contrast of a text with what is behind it.
inline constexpr double kTextContrast = 4.5;
/// The least contrast of a part of a picture, and of the outline of a control.
inline constexpr double kPartContrast = 3;

/// `color`, or the next one to it, darker or lighter, that has this contrast with `other`.
[[nodiscard]] QColor ApartFrom(const QColor& other, QColor color, double contrast = kTextContrast);

}  // namespace halvane
