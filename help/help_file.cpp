#include "help/help_file.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "core/ascii.h"
#include "core/job_text_encoding.h"
#include "help/help_markup.h"

namespace halvane {
namespace {

constexpr auto kSystemEntry = "#SYSTEM";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The description: four bytes of version, then records of a number, a length and so many bytes.
constexpr std::size_t kVersionBytes = 4;
enum Record : unsigned {
  ContentsFile = 0,
  DefaultTopic = 2,
  Title = 3,
  Language = 4,
};

/// Takes a number of `size` bytes, the lowest first; nothing when there are not so many.
std::optional<unsigned> TakeNumber(std::string_view& bytes, std::size_t size) {
  if (bytes.size() < size) return std::nullopt;
  unsigned number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(bytes[i]);
  }
  bytes.remove_prefix(size);
  return number;
}

std::string TextOf(std::string_view record) {
  return DecodeHelpText(std::string(record.substr(0, record.find('\0'))));
}

HelpFileDescription ReadDescription(std::string_view bytes) {
  HelpFileDescription description;
  bytes.remove_prefix(std::min(kVersionBytes, bytes.size()));
  for (;;) {
    const auto number = TakeNumber(bytes, 2);
    const auto length = TakeNumber(bytes, 2);
    if (!number || !length || *length > bytes.size()) return description;
    std::string_view record = bytes.substr(0, *length);
    bytes.remove_prefix(*length);
    switch (*number) {
      case ContentsFile: description.contentsFile = TextOf(record); break;
      case DefaultTopic: description.defaultTopic = TextOf(record); break;
      case Title: description.title = TextOf(record); break;
      case Language: description.language = TakeNumber(record, 4).value_or(0); break;
      default: break;
    }
  }
}

/// The entry that has the table of contents: the named one, else the first that looks like one,
/// since some files name none.
std::string ContentsEntry(const HelpArchive& archive, const HelpFileDescription& description) {
  if (archive.entries().contains(description.contentsFile)) return description.contentsFile;
  for (const auto& [name, place] : archive.entries()) {
    if (LowerCase(name).ends_with(".hhc")) return name;
  }
  return {};
}

}  // namespace

HelpFile::HelpFile(std::string bytes) : archive_(std::move(bytes)) {
  if (const auto description = archive_.Read(kSystemEntry))
    description_ = ReadDescription(*description);
  if (auto text = archive_.Read(ContentsEntry(archive_, description_))) {
    contents_ = ReadHelpContents(DecodeHelpText(*std::move(text)));
  }
}

std::vector<std::string> HelpFile::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, place] : archive_.entries()) names.push_back(name);
  return names;
}

std::string DecodeHelpText(std::string bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  return DecodeJobText(std::move(bytes));
}

}  // namespace halvane
