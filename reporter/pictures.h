#pragma once

#include <string_view>

namespace halvane {

/// The SVG text of a picture that a report names ("strain_index/risk_chart"); empty for a name that
/// is none. The pictures of assets/ are embedded by the build.
std::string_view PictureSvg(std::string_view assetName);

}  // namespace halvane
