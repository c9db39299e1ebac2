#include "reporter/html_report.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "core/number_text.h"
#include "reporter/html_text.h"
#include "reporter/pictures.h"

namespace halvane {
namespace {

constexpr int kDefaultTabTwips = 720;
constexpr int kTwipsPerPoint = 20;
constexpr std::string_view kPictureTag = "<svg";

using Paragraphs = std::span<const Paragraph>;
/// What stands between the tabs of a paragraph.
using Cells = std::vector<std::string>;

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

/// A picture is one thing, which is spoken as its sense; the words in it are for eyes.
void AppendPicture(std::string& out, const Run& run) {
  const std::string_view svg = PictureSvg(run.picture);
  if (!svg.starts_with(kPictureTag)) {
    AppendHtml(out, "[picture: " + run.picture + "]");
    return;
  }
  out += "<span role=\"img\" aria-label=\"";
  AppendHtml(out, run.sense);
  out.append("\">").append(kPictureTag).append(" aria-hidden=\"true\"");
  out += svg.substr(kPictureTag.size(), svg.find_last_not_of('\n') + 1 - kPictureTag.size());
  out += "</span>";
}

enum class Look { Own, OfPlace };

/// `Look::OfPlace`: a heading or the head of a table has its look from the page.
Cells CellsOf(const Paragraph& paragraph, Look look) {
  Cells cells(1);
  for (const Run& run : paragraph.runs) {
    if (!run.picture.empty()) {
      AppendPicture(cells.back(), run);
      continue;
    }
    std::string_view text = run.text;
    while (true) {
      const std::size_t length = text.find(kTab);
      const std::string_view piece = text.substr(0, length);
      if (look == Look::Own) {
        AppendStyled(cells.back(), piece, run.format);
      } else {
        AppendHtml(cells.back(), piece);
      }
      if (length == std::string_view::npos) break;
      cells.emplace_back();
      text.remove_prefix(length + 1);
    }
  }
  return cells;
}

bool HasTab(const Paragraph& paragraph) {
  return std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                     [](const Run& run) { return run.text.find(kTab) != std::string::npos; });
}

bool IsHeading(const Paragraph& paragraph) {
  const auto stands = [](const Run& run) {
    return run.picture.empty() && run.format.bold && run.format.underline;
  };
  return !paragraph.runs.empty() &&
         std::all_of(paragraph.runs.begin(), paragraph.runs.end(), stands);
}

/// How many of the paragraphs are a table, its head included: 0 where none begins.
std::size_t TableLength(Paragraphs paragraphs) {
  if (!HasTab(paragraphs.front()) || !IsHeading(paragraphs.front())) return 0;
  const auto isRow = [](const Paragraph& each) { return HasTab(each) && !IsHeading(each); };
  const auto end = std::find_if_not(paragraphs.begin() + 1, paragraphs.end(), isRow);
  return static_cast<std::size_t>(end - paragraphs.begin());
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// "Level, SI Score by Job Factors": eyes have it in the head below, screen readers tell tables
/// apart by it.
std::string CaptionOf(const Cells& head) {
  std::string caption;
  for (std::size_t i = 1; i < head.size(); ++i) {
    if (i > 1) caption += ", ";
    caption += WithoutBlanks(head[i]);
  }
  return caption.append(" by ").append(WithoutBlanks(head.front()));
}

void AppendTable(std::string& out, Paragraphs paragraphs) {
  const Cells head = CellsOf(paragraphs.front(), Look::OfPlace);
  out += "<table>\n<caption>" + CaptionOf(head) + "</caption>\n<thead>\n<tr>";
  for (const std::string& cell : head) out += "<th scope=\"col\">" + cell + "</th>";
  out += "</tr>\n</thead>\n<tbody>\n";
  for (const Paragraph& paragraph : paragraphs.subspan(1)) {
    const Cells cells = CellsOf(paragraph, Look::Own);
    out += "<tr><th scope=\"row\">" + cells.front() + "</th>";
    for (std::size_t i = 1; i < cells.size(); ++i) out += "<td>" + cells[i] + "</td>";
    out += "</tr>\n";
  }
  out += "</tbody>\n</table>\n";
}

std::string_view ClassOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Center: return " class=\"center\"";
    case Alignment::Right: return " class=\"right\"";
    case Alignment::Left: break;
  }
  return {};
}

/// Tabs in front are an indent, so that a long text stays behind them when it is wrapped. A text
/// before a tab further on is a column that is as wide as the way from one stop to the next, or
/// wider where its text is.
void AppendParagraph(std::string& out, const Paragraph& paragraph) {
  const Cells cells = CellsOf(paragraph, Look::Own);
  const std::vector<int>& stops = paragraph.format.tabStops;
  std::string columns;
  int end = 0;  // twips from the left edge
  int indent = 0;
  for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
    const int stop = i < stops.size() ? stops[i] : end + kDefaultTabTwips;
    const int width = std::max(0, stop - end);
    end = std::max(end, stop);
    if (cells[i].empty() && columns.empty()) {
      indent = end;
      continue;
    }
    // The tab itself has no width; it is there for those who copy the columns into a table.
    columns += "<span class=\"column\" style=\"min-width: " + PlainText(width / kTwipsPerPoint) +
               "pt\">" + cells[i] + "&#9;</span>";
  }
  out.append("<p").append(ClassOf(paragraph.format.alignment));
  if (indent > 0) out += " style=\"padding-left: " + PlainText(indent / kTwipsPerPoint) + "pt\"";
  out.append(">").append(columns).append(cells.back()).append("</p>\n");
}

}  // namespace

void AppendReportHeading(std::string& out, std::string_view title) {
  out += "<h3>";
  AppendHtml(out, title);
  out += "</h3>\n";
}

void AppendReportHtml(std::string& out, const RichText& report, std::string_view title) {
  Paragraphs rest = report.paragraphs();
  if (!HasTab(rest.front()) && IsHeading(rest.front())) {
    out += "<h3>" + CellsOf(rest.front(), Look::OfPlace).front() + "</h3>\n";
    rest = rest.subspan(1);
  } else {
    AppendReportHeading(out, title);
  }
  while (!rest.empty()) {
    const std::size_t rows = TableLength(rest);
    if (rows > 0) {
      AppendTable(out, rest.first(rows));
    } else if (IsHeading(rest.front())) {
      out += "<h4>" + CellsOf(rest.front(), Look::OfPlace).front() + "</h4>\n";
    } else {
      AppendParagraph(out, rest.front());
    }
    rest = rest.subspan(std::max<std::size_t>(rows, 1));
  }
}

}  // namespace halvane
