#include "core/file_name.h"

namespace halvane {

std::size_t LengthOfFolder(std::string_view path) { return path.rfind('/') + 1; }

std::string WithSeparator(std::string folder) {
  if (!folder.empty() && !folder.ends_with('/')) folder += '/';
  return folder;
}

}  // namespace halvane
