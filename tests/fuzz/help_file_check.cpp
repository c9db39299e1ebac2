#include "tests/fuzz/help_file_check.h"

#include <cstddef>

#include "core/job_text_encoding.h"
#include "help/help_file.h"

namespace halvane {
namespace {

// A file of many large entries would keep the fuzzer busy with copying.
constexpr std::size_t kMostBytesRead = std::size_t{8} << 20U;

std::string LowerCased(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

void CheckContents(const std::vector<HelpContentsEntry>& list, std::size_t level,
                   HelpFileVerdict& verdict) {
  if (level > help_limits::kContentsDepth) verdict.problem = "the contents are too deep";
  for (const HelpContentsEntry& entry : list) {
    ++verdict.contentsEntries;
    if (entry.title.empty()) verdict.problem = "a line of the contents without a title";
    if (!IsUtf8(entry.title) || !IsUtf8(entry.topic)) verdict.problem = "contents are no UTF-8";
    CheckContents(entry.children, level + 1, verdict);
  }
}

void CheckEntries(const HelpFile& help, HelpFileVerdict& verdict) {
  std::size_t read = 0;
  for (const std::string& name : help.Names()) {
    ++verdict.entries;
    if (name.empty() || name.front() == '/') verdict.problem = "the entry name '" + name + "'";
    if (!help.Has(LowerCased(name))) verdict.problem = "no entry by the lower case of " + name;
    if (read > kMostBytesRead) continue;
    try {
      const auto bytes = help.Entry(name);
      if (!bytes) {
        verdict.problem = "no bytes of the entry " + name;
      } else if (bytes->size() > help_limits::kEntryBytes) {
        verdict.problem = "too many bytes of the entry " + name;
      } else {
        read += bytes->size();
        if (!IsUtf8(DecodeHelpText(*bytes))) verdict.problem = "the text of " + name;
      }
    } catch (const HelpFileFailure&) {
      ++verdict.damagedEntries;
    }
  }
}

}  // namespace

HelpFileVerdict CheckHelpFile(std::string_view bytes) {
  HelpFileVerdict verdict;
  try {
    const HelpFile help{std::string(bytes)};
    verdict.outcome = "Read";
    const HelpFileDescription& description = help.description();
    for (const std::string* text :
         {&description.title, &description.defaultTopic, &description.contentsFile}) {
      if (!IsUtf8(*text)) verdict.problem = "the description is no UTF-8";
    }
    CheckContents(help.contents(), 1, verdict);
    CheckEntries(help, verdict);
  } catch (const HelpFileFailure& failure) {
    verdict.outcome = failure.what();
  }
  return verdict;
}

}  // namespace halvane
