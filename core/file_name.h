#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace halvane {

/// How much of a path is its folder with the separator behind it, where the system has several
/// whichever stands there; 0 for none.
std::size_t LengthOfFolder(std::string_view path);

/// What stands behind the last separator of a path.
std::string_view FileNameOf(std::string_view path);

/// What stands up to the last separator of a path, separator included; empty where there is none.
std::string_view FolderOf(std::string_view path);

/// A folder with a separator behind it; empty, which is the current one, stays empty.
std::string WithSeparator(std::string folder);

/// The beginning of a name, `bytes` bytes at most, that cuts no UTF-8 character in two.
std::string_view ShortenedName(std::string_view name, std::size_t bytes);

}  // namespace halvane
