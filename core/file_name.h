#pragma once

#include <cstddef>
#include <string_view>

namespace halvane {

/// What stands behind the last slash of a path.
std::string_view FileNameOf(std::string_view path);

/// What stands up to the last slash of a path, slash included; empty where there is none.
std::string_view FolderOf(std::string_view path);

/// The beginning of a name, `bytes` bytes at most, that cuts no UTF-8 character in two.
std::string_view ShortenedName(std::string_view name, std::size_t bytes);

}  // namespace halvane
