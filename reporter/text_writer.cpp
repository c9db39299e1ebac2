#include "reporter/text_writer.h"

#include <algorithm>
#include <cstddef>

#include "core/job_text_encoding.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

/// One column of characters in size 10.
constexpr int kTwipsPerColumn = 120;
/// Tab stops behind the last one of a paragraph.
constexpr std::size_t kDefaultTabColumns = 720 / kTwipsPerColumn;
/// The page that titles are centred on: 6 inches between its margins.
constexpr std::size_t kPageColumns = 6 * 1440 / kTwipsPerColumn;

std::size_t ColumnOf(int twips) {
  return static_cast<std::size_t>(std::max(0, twips + kTwipsPerColumn / 2) / kTwipsPerColumn);
}

/// One line under way. Characters here are wider than on the printed page, so a text can pass a
/// stop that it does not reach there; the next tab still goes to the stop of its number, which
/// keeps the columns behind it in their places.
class Line {
 public:
  explicit Line(const std::vector<int>& tabStops) : tabStops_(tabStops) {}

  void Append(std::string_view text) {
    while (true) {
      const std::size_t length = text.find(kTab);
      AppendPiece(PrintableText(text.substr(0, length)));
      if (length == std::string_view::npos) return;
      Tab();
      text.remove_prefix(length + 1);
    }
  }

  void AppendPiece(const std::string& piece) {
    text_ += piece;
    column_ += CharacterCount(piece);
  }

  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] std::size_t width() const { return column_; }

 private:
  void Tab() {
    const std::size_t stop =
        nextStop_ < tabStops_.size() ? ColumnOf(tabStops_[nextStop_]) : NextDefaultStop();
    ++nextStop_;
    // Texts of two columns never touch.
    const std::size_t blanks = stop > column_ ? stop - column_ : 1;
    text_.append(blanks, ' ');
    column_ += blanks;
  }

  [[nodiscard]] std::size_t NextDefaultStop() const {
    return (column_ / kDefaultTabColumns + 1) * kDefaultTabColumns;
  }

  const std::vector<int>& tabStops_;
  std::string text_;
  std::size_t column_ = 0;
  std::size_t nextStop_ = 0;
};

std::size_t Indent(Alignment alignment, std::size_t width) {
  const std::size_t room = kPageColumns - std::min(width, kPageColumns);
  switch (alignment) {
    case Alignment::Center: return room / 2;
    case Alignment::Right: return room;
    case Alignment::Left: break;
  }
  return 0;
}

void AppendParagraph(std::string& out, const Paragraph& paragraph) {
  Line line(paragraph.format.tabStops);
  for (const Run& run : paragraph.runs) {
    if (run.picture.empty()) {
      line.Append(run.text);
    } else {
      line.AppendPiece("[picture: " + run.picture + "]");
    }
  }
  if (line.width() > 0) out.append(Indent(paragraph.format.alignment, line.width()), ' ');
  out += line.text();
  out += kPlatformLineEnd;
}

}  // namespace

void TextWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& /*results*/) {
  if (withHeadings_) {
    if (!isFirst_) out += kPlatformLineEnd;
    isFirst_ = false;
    out += "===== " + PrintableText(file) + ": " + std::string(tool.key) + " =====";
    out += kPlatformLineEnd;
    out += kPlatformLineEnd;
  }
  for (const Paragraph& paragraph : report.paragraphs()) AppendParagraph(out, paragraph);
}

}  // namespace halvane
