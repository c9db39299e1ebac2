#include "reporter/input.h"

#include "core/file_calls.h"

namespace halvane {
namespace {

constexpr std::size_t kBlockSize = 65536;
/// Far longer than the names that a system takes; input without line ends is cut here instead of
/// filling the memory.
constexpr std::size_t kLongestName = 65536;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

std::error_code InputLines::Open(const std::string& path) {
  name_ = path;
  return bytes_->Open(path);
}

/// Takes from a line what is there for the sake of some systems and belongs to no name.
void InputLines::TakeMarks(std::string& text) {
  if (isFirst_ && text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  isFirst_ = false;
  if (text.ends_with('\r')) text.pop_back();
}

InputLines::Line InputLines::Read(std::vector<std::string>& complaints) {
  Line line;
  while (true) {
    if (rest_.empty()) {
      block_.resize(kBlockSize);
      std::error_code error;
      const std::size_t count = bytes_->Read(block_, error);
      rest_ = std::string_view(block_.data(), count);
      if (error) {
        complaints.push_back(name_ + ": " + files::ReasonOf(error));
        // It may be half a name.
        line.text.clear();
      }
      line.atEnd = count == 0;
      if (line.atEnd) return line;
    }
    const std::size_t end = rest_.find(endOfName());
    line.text += rest_.substr(0, end);
    line.isTooLong = line.isTooLong || line.text.size() > kLongestName;
    if (line.isTooLong) line.text.clear();
    const bool isWhole = end != std::string_view::npos;
    rest_.remove_prefix(isWhole ? end + 1 : rest_.size());
    if (isWhole) return line;
  }
}

bool InputLines::IsAtHand() const {
  return rest_.find(endOfName()) != std::string_view::npos || bytes_->IsReady();
}

std::optional<std::string> InputLines::Next(std::vector<std::string>& complaints) {
  while (true) {
    Line line = Read(complaints);
    if (end_ == End::Line) TakeMarks(line.text);
    if (line.isTooLong) {
      complaints.push_back(name_ + ": a line is longer than any file name");
    } else if (line.text.find('\0') != std::string::npos) {
      complaints.push_back(
          name_ + ": a line holds a zero byte; file names are expected one a line, or with --null");
    } else if (!line.text.empty()) {
      return std::move(line.text);
    }
    if (line.atEnd) return std::nullopt;
  }
}

}  // namespace halvane
