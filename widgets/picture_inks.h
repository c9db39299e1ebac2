#pragma once

#include <QByteArray>
#include <QColor>
#include <QPixmap>
#include <QString>
#include <span>

namespace halvane {

/// One ink of the posture pictures. The files have those of light grounds.
struct PictureInk {
  const char* name;
  const char* onLight;  ///< as "#rrggbb"
  const char* onDark;
};

/// The inks, but for the one that parts what touches: that is the ground's own colour.
[[nodiscard]] std::span<const PictureInk> PictureInks();

/// How light the eye finds a colour, from 0 (black) to 1 (white), as WCAG 2 measures it.
[[nodiscard]] double RelativeLuminance(const QColor& colour);

/// The drawing in the inks that stand out on `ground`.
[[nodiscard]] QByteArray InkedDrawing(QByteArray svg, const QColor& ground);

/// The picture of an asset in the inks that stand out on `ground`, so many device pixels wide and
/// high. Pictures are kept, so that a button painted again draws none anew.
[[nodiscard]] QPixmap InkedPicture(const QString& assetName, const QColor& ground, int side);

}  // namespace halvane
