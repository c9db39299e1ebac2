#include "widgets/report_note.h"

#include <utility>

#include "widgets/rich_text_box.h"

namespace halvane {

ReportNote::ReportNote(RichTextBox& pane, QString sense, const QTextCursor& place)
    : QObject(&pane),
      pane_(pane),
      role_(QAccessible::Graphic),
      words_(std::move(sense)),
      place_(place) {
  // What is typed there pushes the picture on, and its place with it.
  place_.setKeepPositionOnInsert(false);
}

ReportNote::ReportNote(RichTextBox& pane, QString news)
    : QObject(&pane), pane_(pane), role_(QAccessible::Notification), words_(std::move(news)) {}

}  // namespace halvane
