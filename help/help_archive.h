#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

struct mschmd_file;

namespace halvane {

/// Bytes that are no compiled help file, or a damaged one. `what()` says what is wrong in words for
/// the user.
class HelpFileFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a help file may ask for. A damaged or hostile file can name any size; none of it is
/// believed beyond these.
namespace help_limits {
inline constexpr std::size_t kFileBytes = std::size_t{256} << 20U;
/// Of one entry.
inline constexpr std::size_t kEntryBytes = std::size_t{32} << 20U;
/// Of all entries one behind the other, which bounds the work to reach any of them.
inline constexpr std::size_t kUnpackedBytes = std::size_t{256} << 20U;
/// Held by the unpacker at one time: lists of entries, windows and tables.
inline constexpr std::size_t kWorkingBytes = std::size_t{64} << 20U;
inline constexpr std::size_t kEntries = 100000;
}  // namespace help_limits

/// The entries of a compiled help file, which is held in memory; no file is touched.
class HelpArchive {
 public:
  /// Throws `HelpFileFailure` when `bytes` are none.
  explicit HelpArchive(std::string bytes);
  ~HelpArchive();
  HelpArchive(const HelpArchive&) = delete;
  HelpArchive& operator=(const HelpArchive&) = delete;

  /// The entries by name. Names compare without regard to the case of ASCII letters and have no
  /// slash in front; "#SYSTEM" is one. Of two entries of one name the first counts.
  struct FoldedLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };
  using Entries = std::map<std::string, mschmd_file*, FoldedLess>;
  [[nodiscard]] const Entries& entries() const { return entries_; }

  /// The bytes of an entry, nothing where there is none of that name. Throws `HelpFileFailure` for
  /// one that is damaged or larger than the limits.
  [[nodiscard]] std::optional<std::string> Read(std::string_view name) const;

 private:
  struct Unpacker;
  std::unique_ptr<Unpacker> unpacker_;
  Entries entries_;
};

}  // namespace halvane
