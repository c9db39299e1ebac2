#include "core/wide_text_windows.h"

#include <windows.h>

namespace halvane {
namespace {

constexpr std::wstring_view kLongPath = L"\\\\?\\";
constexpr std::wstring_view kLongShare = L"\\\\?\\UNC\\";
constexpr std::wstring_view kDevice = L"\\\\.\\";
constexpr std::wstring_view kShare = L"\\\\";

/// A relative path from the root, with the separators of the system and without "..".
std::wstring FullPath(const std::wstring& path) {
  std::wstring full(MAX_PATH, L'\0');
  while (true) {
    const auto room = static_cast<DWORD>(full.size());
    const DWORD length = GetFullPathNameW(path.c_str(), room, full.data(), nullptr);
    const bool fits = length < room;
    full.resize(length);
    if (fits) return full;
  }
}

}  // namespace

std::wstring WideText(std::string_view text) {
  if (text.empty()) return {};
  const auto size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string Utf8Text(std::wstring_view text) {
  if (text.empty()) return {};
  const auto size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring WidePath(std::string_view path) {
  if (path.empty()) return {};
  const std::wstring full = FullPath(WideText(path));
  if (full.starts_with(kLongPath) || full.starts_with(kDevice)) return full;
  if (full.starts_with(kShare)) return std::wstring(kLongShare) + full.substr(kShare.size());
  return std::wstring(kLongPath) + full;
}

std::string Utf8Path(std::wstring_view path) {
  if (path.starts_with(kLongShare)) {
    return Utf8Text(std::wstring(kShare).append(path.substr(kLongShare.size())));
  }
  if (path.starts_with(kLongPath)) path.remove_prefix(kLongPath.size());
  return Utf8Text(path);
}

}  // namespace halvane
