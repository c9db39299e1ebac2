#include "core/rich_text.h"

#include "core/checked_array.h"

namespace halvane {

RichText::RichText() { Clear(); }

void RichText::Clear() {
  font_ = {};
  inForce_ = {};
  paragraphs_.assign(1, {});
}

void RichText::SetTab(int stop, int twips) {
  inForce_.tabStops[CheckedSubscript(stop, inForce_.tabStops.size())] = twips;
}

void RichText::Append(std::string_view text) {
  while (!text.empty()) {
    const std::size_t lineLength = text.find_first_of(kNewLine);
    AppendToLine(text.substr(0, lineLength));
    if (lineLength == std::string_view::npos) return;
    text.remove_prefix(lineLength);
    const std::string_view lineEnd = text.substr(0, text.starts_with(kNewLine) ? 2 : 1);
    EndParagraph(lineEnd);
    text.remove_prefix(lineEnd.size());
  }
}

void RichText::AppendToLine(std::string_view text) {
  if (text.empty()) return;
  Paragraph& paragraph = paragraphs_.back();
  paragraph.format = inForce_;
  const bool continuesRun = !paragraph.runs.empty() && paragraph.runs.back().picture.empty() &&
                            paragraph.runs.back().format == font_;
  if (continuesRun) {
    paragraph.runs.back().text += text;
  } else {
    paragraph.runs.push_back({std::string(text), font_, {}});
  }
}

void RichText::EndParagraph(std::string_view lineEnd) {
  paragraphs_.back().lineEnd = lineEnd;
  paragraphs_.push_back({inForce_, {}, {}});
}

void RichText::AppendPicture(std::string_view assetName) {
  Paragraph& paragraph = paragraphs_.back();
  paragraph.format = inForce_;
  paragraph.runs.push_back({std::string(kPictureCharacter), font_, std::string(assetName)});
}

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
