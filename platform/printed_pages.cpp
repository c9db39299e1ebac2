#include "platform/printed_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>
#include <algorithm>
#include <memory>

namespace halvane {
namespace {

constexpr double kMillimetersPerInch = 25.4;
/// What the printers' usual margins leave of A4. A row that needs more is broken there as well.
constexpr double kWidestRow = 200 / kMillimetersPerInch;

/// A copy to be laid out anew, with the layout's own ways to draw objects, which copies lack.
std::unique_ptr<QTextDocument> CopyFor(const QTextDocument& document, QPagedPaintDevice& paper) {
  // What the original loads, as pictures, is asked for at the parent.
  std::unique_ptr<QTextDocument> pages(document.clone(const_cast<QTextDocument*>(&document)));
  QAbstractTextDocumentLayout& layout = *pages->documentLayout();
  layout.setPaintDevice(&paper);
  for (const QTextFormat& format : document.allFormats()) {
    const int type = format.objectType();
    QTextObjectInterface* const handler = document.documentLayout()->handlerForObject(type);
    if (type < QTextFormat::UserObject || handler == nullptr) continue;
    layout.registerHandler(type, dynamic_cast<QObject*>(handler));
  }
  QTextFrameFormat frame = pages->rootFrame()->frameFormat();
  frame.setMargin(0);
  // A line that touched the end of the page before would be drawn there too, outside its margins.
  frame.setTopMargin(1);
  pages->rootFrame()->setFrameFormat(frame);
  return pages;
}

bool IsRow(const QTextBlock& block) { return block.isValid() && block.text().contains('\t'); }

/// The width of the widest row that is not broken.
double WidthOfRows(QTextDocument& pages) {
  constexpr double kUnbroken = 1e6;
  pages.setPageSize({kUnbroken, kUnbroken});
  double widest = 0;
  for (QTextBlock block = pages.begin(); block.isValid(); block = block.next()) {
    if (!IsRow(block)) continue;
    for (int line = 0; line < block.layout()->lineCount(); ++line) {
      widest = std::max(widest, block.layout()->lineAt(line).naturalTextWidth());
    }
  }
  return widest;
}

/// Begins a new page before each row that would stand on two, and before the first row of a table
/// that would stand alone.
void KeepRowsWhole(QTextDocument& pages) {
  const double height = pages.pageSize().height();
  const auto place = [&pages](const QTextBlock& block) {
    return pages.documentLayout()->blockBoundingRect(block);
  };
  const auto pageAt = [height](double y) { return static_cast<int>(y / height); };
  for (QTextBlock block = pages.begin(); block.isValid(); block = block.next()) {
    if (!IsRow(block)) continue;
    QTextBlock last = block;
    if (!IsRow(block.previous()) && IsRow(block.next())) last = block.next();
    const double top = place(block).top();
    const double bottom = place(last).bottom() - 1;
    if (pageAt(top) == pageAt(bottom) || bottom - top > height) continue;
    QTextBlockFormat atTop;
    atTop.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).mergeBlockFormat(atTop);
  }
}

}  // namespace

void PrintPages(const QTextDocument& document, QPagedPaintDevice& paper) {
  const auto pages = CopyFor(document, paper);
  const QSizeF page(paper.width(), paper.height());
  const double needed = std::min(WidthOfRows(*pages), kWidestRow * paper.logicalDpiX());
  // The toolkit draws pages of another size than the paper's to its scale, and numbers none.
  pages->setPageSize(page * std::max(1.0, needed / page.width()));
  KeepRowsWhole(*pages);
  pages->print(&paper);
}

}  // namespace halvane
