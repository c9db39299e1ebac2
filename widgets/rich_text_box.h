#pragma once

#include <QTextEdit>

#include "core/rich_text.h"

namespace halvane {

/// The report pane on screen: shows a `RichText` as black on white paper, in light and dark
/// palettes alike, since that is how it prints. Nobody types in it unless it is opened to typing.
/// Its frame shows the focus.
class RichTextBox : public QTextEdit {
  Q_OBJECT
 public:
  explicit RichTextBox(QWidget* parent = nullptr);

  /// Opens the pane to typing; what is typed stands until the next report.
  void OpenToTyping();

  /// Shows `report` with the caret at its start.
  void ShowReport(const RichText& report);

  /// Selects `length` characters from `start` on; a line end is one character here.
  void Select(int start, int length);
  /// Selects the whole text.
  void SelectAll();
  /// The selected text, a line a paragraph, without the characters that stand for pictures.
  [[nodiscard]] QString SelectedText() const;

 protected:
  bool event(QEvent* event) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
};

}  // namespace halvane
