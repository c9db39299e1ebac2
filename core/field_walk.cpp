#include "core/field_walk.h"

#include <algorithm>

namespace halvane {

std::optional<FieldPlace> FieldWalk::Next() {
  FieldPlace field;
  field.start = BlanksEnd(position_);
  const std::string_view first = From(field.start);
  if (first.empty()) {
    position_ = field.start;
    return std::nullopt;
  }
  field.isQuoted = first.front() == '"';
  if (field.isQuoted) {
    field.textStart = field.start + 1;
    // Without a closing quote the field takes the rest of the file.
    field.textEnd =
        FindFrom(field.textStart, [](std::string_view block) { return block.find('"'); });
    position_ = BehindSeparator(Separator(field.textEnd + (From(field.textEnd).empty() ? 0 : 1)));
  } else {
    field.textStart = field.start;
    field.textEnd = Separator(field.start);
    position_ = BehindSeparator(field.textEnd);
  }
  field.next = position_;
  return field;
}

std::string_view FieldWalk::From(std::uint64_t position) {
  if (position < blockStart_ || position >= blockStart_ + blockSize_) {
    blockSize_ = file_.ReadAt(position, block_.data(), block_.size());
    blockStart_ = position;
  }
  const std::size_t passed = position - blockStart_;
  return {block_.data() + passed, blockSize_ - passed};
}

template <typename Find>
std::uint64_t FieldWalk::FindFrom(std::uint64_t from, const Find& find) {
  for (;;) {
    const std::string_view block = From(from);
    if (block.empty()) return from;
    const std::size_t found = find(block);
    if (found < block.size()) return from + found;
    from += block.size();
  }
}

std::uint64_t FieldWalk::BlanksEnd(std::uint64_t from) {
  return FindFrom(from, [](std::string_view block) { return block.find_first_not_of(" \t"); });
}

std::uint64_t FieldWalk::Separator(std::uint64_t from) {
  return FindFrom(from, [](std::string_view block) {
    const auto* const found = std::ranges::find_if(
        block, [](char c) { return c <= ',' && (c == ',' || c == '\r' || c == '\n'); });
    return static_cast<std::size_t>(found - block.begin());
  });
}

std::uint64_t FieldWalk::BehindSeparator(std::uint64_t separator) {
  const std::string_view block = From(separator);
  if (block.empty()) return separator;
  // One of two characters may stand at the end of a block.
  const bool isReturn = block.front() == '\r';
  return separator + (isReturn && From(separator + 1).starts_with('\n') ? 2 : 1);
}

}  // namespace halvane
