#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace halvane {

/// The picture of a posture, named as its file below assets, in the inks that stand out on
/// `ground`, so many device pixels wide and high; null when there is none. Pictures are kept, so
/// that a button painted again draws none anew.
[[nodiscard]] QPixmap PosturePicture(const QString& assetName, const QColor& ground, int side);
/// Whether that picture is there without having to be drawn.
[[nodiscard]] bool IsPostureDrawn(const QString& assetName, const QColor& ground, int side);

}  // namespace halvane
