#include "core/long_job_text.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "core/field_walk.h"
#include "core/job_fields.h"
#include "core/job_text_encoding.h"
#include "core/job_text_reader.h"
#include "core/runtime_failure.h"

namespace halvane {
LongJobText::LongJobText(const InputFile& file, std::size_t block) : file_(file), block_(block) {
  FindFields();
  isUtf8_ = FindWhetherUtf8();
  file_.TestUnchanged();
}

void LongJobText::FindFields() {
  FieldWalk walk(file_, block_);
  const auto findUpTo = [&](std::size_t count) {
    while (fields_.size() < count) {
      const auto field = walk.Next();
      if (!field) break;
      fields_.push_back(*field);
    }
    end_ = walk.position();
  };
  // The task count tells how many more there are.
  findUpTo(kMarkerLineFields + 1);
  JobTextReader reader(*this);
  findUpTo(CountJobFields(TaskCountAt(reader)));
}

bool LongJobText::FindWhetherUtf8() const {
  bool isUtf8 = true;
  std::string cut;  // the begin of a character that the block before ended with
  ForEachBlock(0, end_, [&](std::string_view block) {
    // What a block begins with may belong to a character of the block before.
    while (!cut.empty() && !block.empty() && WholeCharacters(cut) < cut.size()) {
      cut += block.front();
      block.remove_prefix(1);
    }
    const std::size_t whole = WholeCharacters(block);
    isUtf8 = IsUtf8(cut) && IsUtf8(block.substr(0, whole));
    cut = block.substr(whole);
    return isUtf8;
  });
  return isUtf8 && cut.empty();
}

std::string LongJobText::TextOf(const FieldPlace& field) const {
  std::string text;
  if (isUtf8_) {
    text.resize(field.textEnd - field.textStart);
    if (file_.ReadAt(field.textStart, text.data(), text.size()) < text.size()) {
      file_.FailAsChanged();
    }
    return text;
  }
  // Letters grow when they become UTF-8. Measured first, so that the text gets the room that it
  // needs and no more.
  std::size_t size = 0;
  ForEachBlock(field.textStart, field.textEnd, [&size](std::string_view block) {
    size += Utf8SizeOfWindows1252(block);
    return true;
  });
  text.reserve(size);
  ForEachBlock(field.textStart, field.textEnd, [&text](std::string_view block) {
    AppendFromWindows1252(text, block);
    return true;
  });
  return text;
}

int LongJobText::LinesBetween(std::uint64_t from, std::uint64_t to) const {
  std::uint64_t lineEnds = 0;
  char before = '\0';
  ForEachBlock(from, to, [&](std::string_view block) {
    for (const char c : block) {
      if (c == '\r' || (c == '\n' && before != '\r')) ++lineEnds;
      before = c;
    }
    return true;
  });
  // One more is the number of a line.
  constexpr std::uint64_t kMostLines = std::numeric_limits<int>::max() - 1;
  return static_cast<int>(std::min(lineEnds, kMostLines));
}

/// Runs `action` over what stands between two positions, for as long as it gives true.
template <typename Action>
void LongJobText::ForEachBlock(std::uint64_t from, std::uint64_t to, const Action& action) const {
  if (from >= to) return;
  std::string block(static_cast<std::size_t>(std::min<std::uint64_t>(to - from, block_)), '\0');
  while (from < to) {
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(to - from, block.size()));
    if (file_.ReadAt(from, block.data(), size) < size) file_.FailAsChanged();
    if (!action(std::string_view(block).substr(0, size))) return;
    from += size;
  }
}

}  // namespace halvane
