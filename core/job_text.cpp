#include "core/job_text.h"

#include <algorithm>

#include "core/job_text_encoding.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

/// Where the last field of the job ends in the bytes of its file; all of them where it cannot be
/// told, since the job cannot be read.
std::size_t EndOfJob(std::string_view bytes) {
  try {
    JobTextReader reader(bytes);
    const std::size_t count = CountJobFields(TaskCountAt(reader));
    for (std::size_t passed = kMarkerLineFields + 1; passed < count; ++passed) {
      std::string scratch;
      reader.Line(Named("", scratch));
    }
    return reader.position();
  } catch (const JobReadFailure&) {
    return bytes.size();
  }
}

/// The text of a whole file as UTF-8.
std::string DecodeWhole(std::string bytes) {
  if (IsUtf8(bytes)) return bytes;
  const std::size_t end = EndOfJob(bytes);
  std::string text;
  text.reserve(Utf8SizeOfWindows1252(bytes));
  const std::string_view job = std::string_view(bytes).substr(0, end);
  if (end < bytes.size() && IsUtf8(job)) {
    text += job;
  } else {
    AppendFromWindows1252(text, job);
  }
  AppendFromWindows1252(text, std::string_view(bytes).substr(end));
  return text;
}

}  // namespace

JobText::JobText(InputFile& file, Limits limits) : file_(file), limits_(limits) {
  std::string bytes = file.ReadAll(limits.inMemory);
  isLong_ = bytes.size() == limits.inMemory;
  text_ = isLong_ ? std::move(bytes) : DecodeWhole(std::move(bytes));
}

bool JobText::IsForeign() const {
  if (!isLong_) return false;
  JobTextReader reader(text_);
  try {
    if (reader.ReadMarker()) return false;
    reader.ReadConstants();
  } catch (const JobReadFailure&) {
    // A field that is cut was not seen whole, so what it would read as does not count.
    if (reader.position() < text_.size()) throw;
  }
  return true;
}

void JobText::FindFields() {
  if (isLong_ && !fields_) fields_.emplace(file_, limits_.block);
}

JobTextReader JobText::Reader() const {
  return fields_ ? JobTextReader(*fields_) : JobTextReader(text_);
}

std::string JobText::From(std::uint64_t position) const {
  if (!fields_) return text_.substr(position);
  std::string bytes(limits_.inMemory, '\0');
  bytes.resize(file_.ReadAt(position, bytes.data(), bytes.size()));
  if (fields_->isUtf8() && bytes.size() == limits_.inMemory) bytes.resize(WholeCharacters(bytes));
  if (fields_->isUtf8()) return DecodeJobText(std::move(bytes));
  std::string text;
  AppendFromWindows1252(text, bytes);
  return text;
}

void JobText::TestUnchanged() const {
  if (isLong_) file_.TestUnchanged();
}

}  // namespace halvane
