#include "reporter/kept_rows.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

#include "core/runtime_failure.h"

namespace halvane {
namespace {

/// What stands in front of a row in the file.
struct Head {
  double rank;
  std::uint64_t size;
  bool hasRank;
};

/// What a row takes beside its text.
constexpr std::size_t kRowSize = 64;

}  // namespace

void KeptRows::Add(std::optional<double> rank, std::string row) {
  bytes_ += row.size() + kRowSize;
  rows_.push_back({rank, std::move(row)});
  if (bytes_ >= limits_.inMemory) WriteRun();
}

void KeptRows::SortRows() {
  // Nothing is less than any number.
  std::ranges::stable_sort(rows_, std::greater<>(), &Row::rank);
}

void KeptRows::WriteRun() {
  if (!file_) file_ = std::make_unique<NamelessFile>();
  SortRows();
  const std::uint64_t begin = file_->size();
  std::string block;
  for (const Row& row : rows_) {
    Head head{};
    head.rank = row.rank.value_or(0);
    head.size = row.text.size();
    head.hasRank = row.rank.has_value();
    const std::size_t place = block.size();
    block.resize(place + sizeof(head));
    std::memcpy(block.data() + place, &head, sizeof(head));
    block += row.text;
    if (block.size() < limits_.buffer) continue;
    file_->Append(block);
    block.clear();
  }
  file_->Append(block);
  runs_.push_back({begin, file_->size()});
  rows_.clear();
  bytes_ = 0;
}

void KeptRows::BeginTaking() {
  isTaking_ = true;
  if (runs_.empty()) {
    SortRows();
    return;
  }
  if (!rows_.empty()) WriteRun();
  std::vector<Row>().swap(rows_);
  for (Run& run : runs_) Advance(run);
}

void KeptRows::Read(Run& run, char* to, std::size_t size) const {
  while (size > 0) {
    if (run.used == run.buffer.size()) {
      run.buffer.resize(static_cast<std::size_t>(
          std::min<std::uint64_t>(limits_.buffer, run.end - run.position)));
      run.buffer.resize(file_->ReadAt(run.position, run.buffer));
      run.used = 0;
      if (run.buffer.empty()) throw RuntimeFailure(FailureKind::InputPastEnd);
      run.position += run.buffer.size();
    }
    const std::size_t count = std::min(size, run.buffer.size() - run.used);
    std::copy_n(run.buffer.data() + run.used, count, to);
    run.used += count;
    to += count;
    size -= count;
  }
}

/// Reads the next row of a run.
void KeptRows::Advance(Run& run) const {
  run.isOver = run.position == run.end && run.used == run.buffer.size();
  if (run.isOver) return;
  Head head{};
  std::string bytes(sizeof(head), '\0');
  Read(run, bytes.data(), bytes.size());
  std::memcpy(&head, bytes.data(), sizeof(head));
  run.next.rank = head.hasRank ? std::optional(head.rank) : std::nullopt;
  run.next.text.resize(head.size);
  Read(run, run.next.text.data(), run.next.text.size());
}

std::optional<std::string> KeptRows::Next() {
  if (!isTaking_) BeginTaking();
  if (runs_.empty()) {
    if (taken_ == rows_.size()) return std::nullopt;
    return std::move(rows_[taken_++].text);
  }
  Run* first = nullptr;
  for (Run& run : runs_) {
    // Of equal ranks the one of the earlier run was added first.
    if (!run.isOver && (first == nullptr || run.next.rank > first->next.rank)) first = &run;
  }
  if (first == nullptr) return std::nullopt;
  std::string text = std::move(first->next.text);
  first->next.text.clear();
  Advance(*first);
  return text;
}

}  // namespace halvane
