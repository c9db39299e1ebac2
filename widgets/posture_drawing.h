#pragma once

#include <QByteArray>
#include <stdexcept>
#include <vector>

#include "widgets/posture_outlines.h"

namespace halvane {

/// A drawing has something that postures are not drawn with.
class UnknownDrawing : public std::runtime_error {
 public:
  explicit UnknownDrawing(const QString& what) : std::runtime_error(what.toStdString()) {}
};

/// The areas that the drawing of a posture, an SVG document, consists of: its lines are outlines
/// too, and a silhouette that is drawn limb by limb is one. Throws UnknownDrawing.
[[nodiscard]] std::vector<PostureOutline> OutlinesOf(const QByteArray& svg);

}  // namespace halvane
