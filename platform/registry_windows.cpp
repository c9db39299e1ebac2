#include <windows.h>

#include <array>
#include <vector>

#include "platform/registry_access.h"

namespace halvane {
namespace {

std::wstring Wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string Utf8(const wchar_t* text, int length) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

class WindowsKey : public RegistryKey {
 public:
  explicit WindowsKey(HKEY key) : key_(key) {}
  ~WindowsKey() override { RegCloseKey(key_); }

  std::optional<RegistryValue> Query(const std::string& name, std::size_t capacity) override {
    std::vector<wchar_t> buffer(capacity);
    DWORD type = 0;
    DWORD size = static_cast<DWORD>(capacity * sizeof(wchar_t));
    auto* bytes = reinterpret_cast<BYTE*>(buffer.data());
    if (RegQueryValueExW(key_, Wide(name).c_str(), nullptr, &type, bytes, &size) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    if (type == kRegistryString) {
      return RegistryValue{type, Utf8(buffer.data(), static_cast<int>(size / sizeof(wchar_t)))};
    }
    return RegistryValue{type, std::string(reinterpret_cast<const char*>(bytes), size)};
  }

 private:
  HKEY key_;
};

class WindowsRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                    std::uint32_t access) override {
    const std::array roots{HKEY_LOCAL_MACHINE};
    HKEY key = nullptr;
    if (RegOpenKeyExW(roots.at(static_cast<std::size_t>(root)), Wide(path).c_str(), 0, access,
                      &key) != ERROR_SUCCESS) {
      return nullptr;
    }
    return std::make_unique<WindowsKey>(key);
  }
};

}  // namespace

Registry& SystemRegistry() {
  static WindowsRegistry registry;
  return registry;
}

}  // namespace halvane
