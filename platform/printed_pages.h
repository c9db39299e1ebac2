#pragma once

class QPagedPaintDevice;
class QTextDocument;

namespace halvane {

/// Prints `document` on `paper` as it stands on the screen: from edge to edge of what the page's
/// own margins leave, with nothing added. Rows with tab stops are not broken: paper narrower than
/// A4 takes them smaller, as A4 has them. No row, heading of a table or picture is cut by a page's
/// end.
void PrintPages(const QTextDocument& document, QPagedPaintDevice& paper);

}  // namespace halvane
