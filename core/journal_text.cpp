#include "core/job_fields.h"
#include "core/journal.h"

namespace halvane {
namespace {

// The line behind the job: kStart, the path with what is no plain character escaped, an end.
constexpr std::string_view kStart = "\"halvane-journal\",1,\"";
constexpr std::string_view kEndOfChanged = "\",-1\r\n";
constexpr std::string_view kEndOfUnsaved = "\",0\r\n";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// Plain ASCII, so that it stands in a line of its own whatever encoding the job has.
std::string Escaped(std::string_view path) {
  std::string text;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && byte < 0x7F && c != '"' && c != '%') {
      text += c;
    } else {
      text += '%';
      text += kHexDigits[byte >> 4U];
      text += kHexDigits[byte & 0xFU];
    }
  }
  return text;
}

std::optional<std::string> Unescaped(std::string_view text) {
  std::string path;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      path += text[i];
      continue;
    }
    const std::size_t high = i + 2 < text.size() ? kHexDigits.find(text[i + 1]) : text.npos;
    const std::size_t low = i + 2 < text.size() ? kHexDigits.find(text[i + 2]) : text.npos;
    if (high == text.npos || low == text.npos) return std::nullopt;
    path += static_cast<char>(high * kHexDigits.size() + low);
    i += 2;
  }
  return path;
}

}  // namespace

std::string JournalText(const JournalEntry& entry) {
  std::string text = entry.job;
  text += kStart;
  text += Escaped(entry.jobFile);
  text += entry.markedChanged ? kEndOfChanged : kEndOfUnsaved;
  return text;
}

std::optional<JournalEntry> ReadJournal(std::string_view text) {
  const std::string marker = '"' + std::string(kJobFileMarker) + "\",";
  const bool changed = text.ends_with(kEndOfChanged);
  if (!text.starts_with(marker) || (!changed && !text.ends_with(kEndOfUnsaved))) {
    return std::nullopt;
  }
  const std::size_t lineStart = text.rfind(kLineEnd, text.size() - kLineEnd.size() - 1);
  if (lineStart == std::string_view::npos) return std::nullopt;
  const std::string_view job = text.substr(0, lineStart + kLineEnd.size());
  std::string_view line = text.substr(job.size());
  const std::string_view end = changed ? kEndOfChanged : kEndOfUnsaved;
  if (!line.starts_with(kStart) || line.size() < kStart.size() + end.size()) return std::nullopt;
  line.remove_prefix(kStart.size());
  line.remove_suffix(end.size());
  auto jobFile = Unescaped(line);
  if (!jobFile) return std::nullopt;
  return JournalEntry{std::string(job), *std::move(jobFile), changed};
}

}  // namespace halvane
