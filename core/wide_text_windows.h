#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Text as this system takes it. Bytes that are no UTF-8 become U+FFFD.
std::wstring WideText(std::string_view text);

/// Text of this system as UTF-8. Half a surrogate pair becomes U+FFFD.
std::string Utf8Text(std::wstring_view text);

/// A path as calls on files take it: from the root and in the form that may be longer than 260
/// characters. Names of devices stay names of devices.
std::wstring WidePath(std::string_view path);

/// A path that the system tells, as users know it.
std::string Utf8Path(std::wstring_view path);

}  // namespace halvane
