#pragma once

#include <QColor>

namespace halvane {

/// How far apart two colours stand for the eye: from 1, the same, to 21, black on white. The ratio
/// of relative luminances that WCAG 2 defines; what a colour lets through does not count.
double Contrast(const QColor& one, const QColor& other);

/// The least contrast of a text with what is behind it.
inline constexpr double kTextContrast = 4.5;
/// The least contrast of a part of a picture, and of the outline of a control.
inline constexpr double kPartContrast = 3;

/// `fill`, or the next colour to it, darker or lighter, that has this contrast with what is painted
/// on it.
QColor FillUnder(const QColor& painted, QColor fill, double contrast = kTextContrast);

}  // namespace halvane
