#include "core/job_text_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "core/long_job_text.h"

namespace halvane {
namespace {

/// From this size on, in bytes, the text of a field is handed over to the job rather than copied.
constexpr std::size_t kHandedOver = 4096;

/// How much of a field a message shows, in bytes.
constexpr std::size_t kShownLength = 40;

std::string Where(int line, const FieldName& name, std::string_view found) {
  std::string where = "line " + std::to_string(line) + ", field " + name.text();
  if (!found.empty()) where += ": \"" + ShownField(found) + "\"";
  return where;
}

/// Where the blanks and tabs from position `from` on end. Fields have none in front as a rule, so
/// this is much faster than a search by a set of characters.
std::size_t BlanksEnd(std::string_view text, std::size_t from) {
  while (from < text.size() && (text[from] == ' ' || text[from] == '\t')) ++from;
  return from;
}

/// The number in the text of a field; 0 where it holds nothing but blanks.
double NumberIn(std::string_view text) {
  if (const auto number = WholeTextAsNumber(text)) return *number;
  if (BlanksEnd(text, 0) == text.size()) return 0;
  throw RuntimeFailure(FailureKind::TypeMismatch);
}

/// Where the comma or line end behind position `from` stands, the end of `text` where there is
/// none. Most fields are a digit or two, for which a plain loop is fastest.
std::size_t SeparatorFrom(std::string_view text, std::size_t from) {
  while (from < text.size() && !IsFieldEnd(text[from])) ++from;
  return from;
}

}  // namespace

std::string ShownField(std::string_view found) {
  if (found.size() <= kShownLength) return std::string(found);
  std::size_t end = kShownLength;
  while (end > 0 && (static_cast<unsigned char>(found[end]) & 0xC0U) == 0x80U) --end;
  return std::string(found.substr(0, end)) + "...";
}

JobReadFailure::JobReadFailure(FailureKind kind, int line, const FieldName& name, std::string found)
    : RuntimeFailure(kind, Where(line, name, found)),
      line_(line),
      field_(name.text()),
      found_(std::move(found)) {}

bool JobTextReader::ReadMarkerLine() {
  const bool isJobFile = ReadMarker();
  ReadConstants();
  return isJobFile;
}

bool JobTextReader::ReadMarker() {
  TaggedField marker;
  ReadField({"marker"}, marker);
  return marker == TaggedField(kJobFileMarker);
}

void JobTextReader::ReadConstants() {
  static constexpr std::array<std::string_view, kMarkerLineFields - 1> kNames{
      "constant 1", "constant 2", "constant 3", "constant 4"};
  for (const std::string_view name : kNames) {
    TaggedField scratch;
    ReadField({name}, scratch);
  }
}

JobTextReader::FieldText JobTextReader::NextField(const FieldName& name) {
  const std::size_t start = BlanksEnd(text_, position_);
  // Of a file nothing is here, and positions are those in the file.
  if (start >= text_.size()) return NextFieldOfFile(name);
  fieldStart_ = start;
  if (text_[start] != '"') {
    const std::size_t end = SeparatorFrom(text_, start);
    PassSeparator(end);
    lastText_ = text_.substr(start, end - start);
    return {lastText_, false};
  }
  // Without a closing quote the field takes the rest of the file.
  const std::size_t close = std::min(text_.find('"', start + 1), text_.size());
  PassSeparator(SeparatorFrom(text_, std::min(close + 1, text_.size())));
  lastText_ = text_.substr(start + 1, close - start - 1);
  return {lastText_, true};
}

JobTextReader::FieldText JobTextReader::NextFieldOfFile(const FieldName& name) {
  // What the field before has taken, which may be as long as the file, makes room first.
  std::string().swap(textOfFile_);
  if (file_ == nullptr || nextOfFile_ == file_->fields().size()) {
    fieldStart_ = position_ = file_ == nullptr ? text_.size() : file_->end();
    throw JobReadFailure(FailureKind::InputPastEnd, fieldLine(), name, {});
  }
  const FieldPlace& field = file_->fields()[nextOfFile_++];
  fieldStart_ = field.start;
  position_ = field.next;
  textOfFile_ = file_->TextOf(field);
  lastText_ = textOfFile_;
  return {lastText_, field.isQuoted};
}

void JobTextReader::PassSeparator(std::size_t separator) {
  const bool lineEndOfTwo =
      separator + 1 < text_.size() && text_[separator] == '\r' && text_[separator + 1] == '\n';
  position_ = std::min(separator + (lineEndOfTwo ? 2 : 1), text_.size());
}

JobReadFailure JobTextReader::FailureAtLastField(FailureKind kind, const FieldName& name) const {
  return {kind, fieldLine(), name, std::string(lastText_)};
}

JobReadFailure JobTextReader::FailureAtNextField(FailureKind kind, const FieldName& name) {
  const int line = LineAt(position_);
  std::string found;
  try {
    NextField(name);
    found = TakeLastText();
  } catch (const JobReadFailure&) {
    // There is none.
  }
  return {kind, line, name, std::move(found)};
}

/// Stores the text of the field that was read last. Handed over, it stands where it stood, so that
/// `lastText_` is right in the job too.
template <typename T>
void JobTextReader::StoreText(std::string_view text, T& target) {
  if (textOfFile_.size() < kHandedOver) {
    target = text;
  } else {
    target = std::move(textOfFile_);
  }
}

std::string JobTextReader::TakeLastText() {
  return file_ == nullptr ? std::string(lastText_) : std::move(textOfFile_);
}

int JobTextReader::LineAt(std::size_t position) const { return 1 + LinesBetween(0, position); }

int JobTextReader::LinesBetween(std::size_t from, std::size_t to) const {
  if (file_ != nullptr) return file_->LinesBetween(from, to);
  int lines = 0;
  for (std::size_t i = from; i < to; ++i) {
    const bool returnAlone = text_[i] == '\r' && (i + 1 == text_.size() || text_[i + 1] != '\n');
    if (text_[i] == '\n' || returnAlone) ++lines;
  }
  return lines;
}

template void JobTextReader::StoreText(std::string_view text, std::string& target);

void JobTextReader::Store(const FieldText& field, Integer& target) {
  target = ToInteger(NumberIn(field.text));
}

void JobTextReader::Store(const FieldText& field, double& target) { target = NumberIn(field.text); }

void JobTextReader::Store(const FieldText& field, TaggedField& target) {
  if (field.quoted) {
    StoreText(field.text, target);
  } else if (field.text.empty()) {
    target = TaggedField();
  } else if (const auto number = WholeTextAsNumber(field.text)) {
    StoreNumber(*number, field.text.find_first_of(".Ee") == std::string_view::npos, target);
  } else {
    StoreText(field.text, target);
  }
}

double TaskCountAt(JobTextReader& reader) {
  try {
    TaggedField taskCount;
    reader.HeaderLine();
    reader.Line(Named("TaskCount", taskCount));
    return taskCount.AsDouble();
  } catch (const JobReadFailure&) {
    return 0;
  } catch (const RuntimeFailure& failure) {
    // A text that reads as a number beyond a double.
    if (failure.kind() != FailureKind::Overflow) throw;
    return 0;
  }
}

}  // namespace halvane
