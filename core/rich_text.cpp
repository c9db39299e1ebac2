#include "core/rich_text.h"

#include <algorithm>
#include <limits>

#include "core/checked_array.h"
#include "core/job_text_encoding.h"

namespace halvane {
namespace {

/// Characters `first` to `end` - 1 of a text.
struct Span {
  std::size_t first;
  std::size_t end;

  [[nodiscard]] bool Overlaps(Span other) const {
    return std::max(first, other.first) < std::min(end, other.end);
  }
};

/// How many bytes of `text`, whose first character has the number `first`, stand before the
/// character with the number `at`.
std::size_t BytesBefore(std::string_view text, std::size_t first, std::size_t at) {
  return at <= first ? 0 : FirstCharacters(text, at - first).size();
}

/// What stands before the first line end; a plain loop, since reports are appended in short pieces.
std::size_t LineLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && text[length] != '\r' && text[length] != '\n') ++length;
  return length;
}

}  // namespace

RichText::RichText(Appended appended) : drops_(appended == Appended::Dropped) { Clear(); }

void RichText::Clear() {
  font_ = {};
  inForce_ = {};
  paragraphs_.assign(1, {});
}

void RichText::SetTab(int stop, int twips) {
  inForce_.tabStops[CheckedSubscript(stop, inForce_.tabStops.size())] = twips;
}

void RichText::Append(std::string_view text) {
  if (drops_) return;
  while (!text.empty()) {
    const std::size_t lineLength = LineLength(text);
    AppendToLine(text.substr(0, lineLength));
    text.remove_prefix(lineLength);
    if (text.empty()) return;
    const std::string_view lineEnd = text.substr(0, text.starts_with(kNewLine) ? 2 : 1);
    EndParagraph(lineEnd);
    text.remove_prefix(lineEnd.size());
  }
}

void RichText::AppendText(std::vector<Run>& runs, std::string_view text, CharacterFormat format) {
  if (text.empty()) return;
  const bool continuesRun =
      !runs.empty() && runs.back().picture.empty() && runs.back().format == format;
  if (continuesRun) {
    runs.back().text += text;
  } else {
    runs.push_back({std::string(text), format, {}});
  }
}

void RichText::AppendToLine(std::string_view text) {
  if (text.empty()) return;
  Paragraph& paragraph = paragraphs_.back();
  paragraph.format = inForce_;
  AppendText(paragraph.runs, text, font_);
}

void RichText::EndParagraph(std::string_view lineEnd) {
  paragraphs_.back().lineEnd = lineEnd;
  paragraphs_.push_back({inForce_, {}, {}});
}

void RichText::AppendPicture(std::string_view assetName, std::string_view sense) {
  if (drops_) return;
  Paragraph& paragraph = paragraphs_.back();
  paragraph.format = inForce_;
  paragraph.runs.push_back(
      {std::string(kPictureCharacter), font_, std::string(assetName), std::string(sense)});
}

void RichText::FormatSelection(std::size_t start, std::size_t length, CharacterFormat format,
                               Alignment alignment) {
  const std::size_t most = std::numeric_limits<std::size_t>::max() - start;
  const Span selection{start, start + std::min(length, most)};
  std::size_t position = 0;
  for (Paragraph& paragraph : paragraphs_) {
    const std::size_t first = position;
    std::vector<Run> runs;
    for (Run& run : paragraph.runs) {
      const Span place{position, position + CharacterCount(run.text)};
      position = place.end;
      const bool covered = selection.Overlaps(place);
      if (covered && run.picture.empty()) {
        const std::string_view text = run.text;
        const std::size_t from = BytesBefore(text, place.first, selection.first);
        const std::size_t to = BytesBefore(text, place.first, selection.end);
        AppendText(runs, text.substr(0, from), run.format);
        AppendText(runs, text.substr(from, to - from), format);
        AppendText(runs, text.substr(to), run.format);
      } else if (run.picture.empty()) {
        AppendText(runs, run.text, run.format);
      } else {
        if (covered) run.format = format;
        runs.push_back(std::move(run));
      }
    }
    paragraph.runs = std::move(runs);
    position += paragraph.lineEnd.size();
    if (selection.Overlaps({first, position})) paragraph.format.alignment = alignment;
  }
}

std::size_t RichText::length() const { return CharacterCount(text()); }

std::string RichText::text() const {
  std::string text;
  for (const Paragraph& paragraph : paragraphs_) {
    for (const Run& run : paragraph.runs) text += run.text;
    text += paragraph.lineEnd;
  }
  return text;
}

std::vector<std::string> RichText::pictures() const {
  std::vector<std::string> names;
  for (const Paragraph& paragraph : paragraphs_) {
    for (const Run& run : paragraph.runs) {
      if (!run.picture.empty()) names.push_back(run.picture);
    }
  }
  return names;
}

}  // namespace halvane
