#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace halvane {

/// The part of a system's registry that a key stands under.
enum class RegistryRoot { LocalMachine };

/// What is asked for when a key is opened: every right but that to tie it to another key.
inline constexpr std::uint32_t kRegistryAccess = 0x2003F;

/// Kinds of values that are read.
inline constexpr std::uint32_t kRegistryString = 1;
inline constexpr std::uint32_t kRegistryDoubleWord = 4;

/// A value as it lies in the registry: its kind, and its bytes, which are UTF-8 in a string.
struct RegistryValue {
  std::uint32_t type = 0;
  std::string bytes;
};

/// An open key. Closes itself.
class RegistryKey {
 public:
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  virtual ~RegistryKey() = default;

  /// Reads a value into a buffer of so many characters, the closing zero included; nothing when
  /// there is none of that name or it does not fit.
  virtual std::optional<RegistryValue> Query(const std::string& name, std::size_t capacity) = 0;
};

/// The registry of a system. Names are UTF-8. Stands apart from the toolkit, so that a system's own
/// headers and the toolkit's do not meet.
class Registry {
 public:
  Registry() = default;
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;
  virtual ~Registry() = default;

  /// Opens a key; null when it is not there or the access is refused.
  virtual std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                            std::uint32_t access) = 0;
};

/// The registry of the system that the program runs on; an empty one where there is none.
Registry& SystemRegistry();

}  // namespace halvane
