#pragma once

#include <QAccessible>
#include <QObject>
#include <QTextCursor>

namespace halvane {

class RichTextBox;

/// What a report pane has for screen readers beside its text: the sense of a picture, or the news
/// that the report is another one.
class ReportNote : public QObject {
  Q_OBJECT
 public:
  /// The picture behind `place`.
  ReportNote(RichTextBox& pane, QString sense, const QTextCursor& place);
  /// News.
  ReportNote(RichTextBox& pane, QString news);

  [[nodiscard]] RichTextBox& pane() const { return pane_; }
  [[nodiscard]] QAccessible::Role role() const { return role_; }
  [[nodiscard]] const QString& words() const { return words_; }
  /// Where a picture's character stands in the document, whatever is typed before it.
  [[nodiscard]] int position() const { return place_.position(); }

 private:
  RichTextBox& pane_;
  QAccessible::Role role_;
  QString words_;
  QTextCursor place_;
};

}  // namespace halvane
