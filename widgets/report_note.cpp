#include "widgets/report_note.h"

#include "widgets/rich_text_box.h"

namespace halvane {

ReportNote::ReportNote(RichTextBox& pane, const QString& sense, const QTextCursor& place)
    : QObject(&pane), pane_(pane), role_(QAccessible::Graphic), words_(sense), place_(place) {
  // Stays before the picture when something is typed there.
  place_.setKeepPositionOnInsert(false);
}

ReportNote::ReportNote(RichTextBox& pane, const QString& news)
    : QObject(&pane), pane_(pane), role_(QAccessible::Notification), words_(news) {}

}  // namespace halvane
