#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "help/help_archive.h"
#include "help/help_contents.h"

namespace halvane {

/// What the help file says of itself, in UTF-8; each may be empty.
struct HelpFileDescription {
  std::string title;
  std::string defaultTopic;
  std::string contentsFile;
  /// Number of the language and country, 0 where the file names none.
  unsigned language = 0;
};

/// A compiled HTML help file: its entries, what it says of itself, its table of contents.
class HelpFile {
 public:
  /// Reads the whole of `bytes`; pages are unpacked when asked for. Throws `HelpFileFailure` when
  /// they are no help file or a damaged one. A file without a description of itself or without
  /// contents is read; these are then empty.
  explicit HelpFile(std::string bytes);

  [[nodiscard]] const HelpFileDescription& description() const { return description_; }
  [[nodiscard]] const std::vector<HelpContentsEntry>& contents() const { return contents_; }

  /// The names of all entries, sorted.
  [[nodiscard]] std::vector<std::string> Names() const;
  /// Whether there is an entry of that name, whatever the case of its ASCII letters.
  [[nodiscard]] bool Has(std::string_view name) const { return archive_.entries().contains(name); }
  /// The bytes of that entry, nothing where there is none. Throws `HelpFileFailure` for a damaged
  /// one.
  [[nodiscard]] std::optional<std::string> Entry(std::string_view name) const {
    return archive_.Read(name);
  }

 private:
  HelpArchive archive_;
  HelpFileDescription description_;
  std::vector<HelpContentsEntry> contents_;
};

/// The text of a page or of contents in UTF-8: bytes that are well-formed UTF-8 are taken as such,
/// a mark in front left away, all others as Windows-1252.
std::string DecodeHelpText(std::string bytes);

}  // namespace halvane
