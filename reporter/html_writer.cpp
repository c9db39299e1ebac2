#include "reporter/html_writer.h"

#include <algorithm>
#include <cstddef>

#include "core/number_text.h"
#include "reporter/html_text.h"
#include "reporter/pictures.h"

namespace halvane {
namespace {

constexpr int kDefaultTabTwips = 720;
constexpr int kTwipsPerPoint = 20;

constexpr std::string_view kStyle =
    R"html(body { margin: 0; background: #eceff1; color: #1f2933; font: 10pt/1.3 sans-serif; }
section { box-sizing: border-box; max-width: 500pt; margin: 18pt auto; padding: 24pt 34pt;
  background: #fff; border: 1px solid #cfd8dc; }
h2 { margin: 0 0 14pt; padding-bottom: 5pt; border-bottom: 1px solid #cfd8dc; color: #52606d;
  font-size: 9pt; font-weight: normal; overflow-wrap: anywhere; }
p { margin: 0; min-height: 1.3em; white-space: pre-wrap; overflow-wrap: anywhere; tab-size: 0; }
p.center { text-align: center; }
p.right { text-align: right; }
p.failure { color: #9b1c1c; font-weight: bold; }
.column { display: inline-block; box-sizing: border-box; padding-right: 4pt; }
svg { max-width: 100%; height: auto; }
@media print {
  body { background: none; }
  section { max-width: none; margin: 0; padding: 0; border: 0; break-after: page; }
  section:last-child { break-after: auto; }
  svg, p { break-inside: avoid; }
}
)html";

void AppendStyled(std::string& out, std::string_view text, const CharacterFormat& format) {
  if (text.empty()) return;
  const bool hasSize = format.size != CharacterFormat{}.size;
  if (hasSize) out += "<span style=\"font-size: " + PlainText(format.size) + "pt\">";
  if (format.bold) out += "<b>";
  if (format.underline) out += "<u>";
  AppendHtml(out, text);
  if (format.underline) out += "</u>";
  if (format.bold) out += "</b>";
  if (hasSize) out += "</span>";
}

void AppendPicture(std::string& out, std::string_view assetName) {
  const std::string_view svg = PictureSvg(assetName);
  if (svg.empty()) {
    AppendHtml(out, "[picture: " + std::string(assetName) + "]");
  } else {
    out += svg.substr(0, svg.find_last_not_of('\n') + 1);
  }
}

/// The pieces of a paragraph between its tabs. What stands before a tab is a column that is as wide
/// as the way from one stop to the next, or wider where its text is.
class Columns {
 public:
  explicit Columns(const Paragraph& paragraph) : tabStops_(paragraph.format.tabStops) {
    for (const Run& run : paragraph.runs) AppendRun(run);
    finished_ += piece_;
  }

  [[nodiscard]] const std::string& html() const { return finished_; }

 private:
  void AppendRun(const Run& run) {
    if (!run.picture.empty()) {
      AppendPicture(piece_, run.picture);
      return;
    }
    std::string_view text = run.text;
    while (true) {
      const std::size_t length = text.find(kTab);
      AppendStyled(piece_, text.substr(0, length), run.format);
      if (length == std::string_view::npos) return;
      EndColumn();
      text.remove_prefix(length + 1);
    }
  }

  void EndColumn() {
    const int stop = column_ < tabStops_.size() ? tabStops_[column_] : end_ + kDefaultTabTwips;
    const int width = std::max(0, stop - end_) / kTwipsPerPoint;
    end_ = std::max(end_, stop);
    ++column_;
    // The tab itself has no width; it is there for those who copy the columns into a table.
    finished_ += "<span class=\"column\" style=\"min-width: " + PlainText(width) + "pt\">" +
                 piece_ + "&#9;</span>";
    piece_.clear();
  }

  const std::vector<int>& tabStops_;
  std::string finished_;
  std::string piece_;
  std::size_t column_ = 0;
  int end_ = 0;  ///< twips from the left edge
};

std::string_view OpeningTag(Alignment alignment) {
  switch (alignment) {
    case Alignment::Center: return "<p class=\"center\">";
    case Alignment::Right: return "<p class=\"right\">";
    case Alignment::Left: break;
  }
  return "<p>";
}

void AppendParagraph(std::string& out, const Paragraph& paragraph) {
  out += OpeningTag(paragraph.format.alignment);
  out += Columns(paragraph).html();
  out += "</p>\n";
}

void BeginSection(std::string& out, std::string_view heading) {
  out += "<section>\n<h2>";
  AppendHtml(out, heading);
  out += "</h2>\n";
}

void EndSection(std::string& out) { out += "</section>\n"; }

void AppendFailure(std::string& out, const ReportFailure& failure) {
  out += "<p class=\"failure\">";
  AppendHtml(out, failure.message);
  out += "</p>\n";
}

std::string HeadingOf(std::string_view file, const ToolRow& tool) {
  return std::string(file) + ": " + std::string(tool.title);
}

}  // namespace

void HtmlWriter::Begin(std::string& out) {
  AppendPageHead(out, "Halvane Tools job reports", kStyle);
}

void HtmlWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& /*results*/) {
  BeginSection(out, HeadingOf(file, tool));
  for (const Paragraph& paragraph : report.paragraphs()) AppendParagraph(out, paragraph);
  EndSection(out);
}

void HtmlWriter::NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                          const ReportFailure& reason) {
  BeginSection(out, HeadingOf(file, tool));
  out += "<p>";
  AppendHtml(out, reason.message);
  out += "</p>\n";
  EndSection(out);
}

void HtmlWriter::ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                            const ReportFailure& failure) {
  BeginSection(out, HeadingOf(file, tool));
  AppendFailure(out, failure);
  EndSection(out);
}

void HtmlWriter::FileFailed(std::string& out, std::string_view file,
                            std::span<const ToolRow* const> /*tools*/,
                            const ReportFailure& failure) {
  BeginSection(out, file);
  AppendFailure(out, failure);
  EndSection(out);
}

void HtmlWriter::End(std::string& out) { out += kPageFoot; }

}  // namespace halvane
