#pragma once

#include <QTextEdit>
#include <QTimer>
#include <cstddef>
#include <optional>
#include <vector>

#include "core/rich_text.h"

namespace halvane {

class ReportNote;

/// The report pane on screen: shows a `RichText` as black on white paper, in light and dark
/// palettes alike, since that is how it prints. Nobody types in it unless it is opened to typing.
/// Its frame shows the focus. Screen readers find the sense of its pictures in it, and are told of
/// a report that takes the place of another one.
class RichTextBox : public QTextEdit {
  Q_OBJECT
 public:
  explicit RichTextBox(QWidget* parent = nullptr);

  /// Opens the pane to typing; what is typed stands until the next report.
  void OpenToTyping();

  /// Room for so many letters in a line and so many lines of the text, in any font.
  void SetLeast(int columns, int lines);
  [[nodiscard]] QSize minimumSizeHint() const override;

  /// Shows `report` with the caret at its start. A long one is laid out while it stands there. Of
  /// a short one only the paragraphs are written anew that the report shown before has not.
  void ShowReport(const RichText& report);

  /// Selects `length` characters from `start` on; a line end is one character here.
  void Select(int start, int length);
  /// Selects the whole text.
  void SelectAll();
  /// The selected text, a line a paragraph, without the characters that stand for pictures.
  [[nodiscard]] QString SelectedText() const;

  /// What the pictures show, in the order in which they stand.
  [[nodiscard]] const std::vector<ReportNote*>& pictures() const { return pictures_; }
  /// The same, and the news that the report is another one, where there is any.
  [[nodiscard]] QList<ReportNote*> notes() const;
  /// The place of a character in the viewport, a picture's as large as the picture.
  [[nodiscard]] QRect PlaceOf(int position) const;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

 private:
  /// Lays out what a new size has left as it was.
  void CatchUp();
  /// Whether a report is longer than the pane; a wrong guess costs a second layout.
  [[nodiscard]] bool IsLikelyToScroll(const RichText& report) const;
  /// The paragraphs in which a report differs from the one that is shown, where writing those anew
  /// makes that one of it.
  [[nodiscard]] std::optional<std::vector<std::size_t>> Differences(const RichText& report) const;
  void WriteAgain(const std::vector<std::size_t>& paragraphs, const RichText& report);
  /// Fills the empty pane, whatever its size is.
  void WriteAnew(const RichText& report);
  void Fill(const RichText& report);
  void KeepShown(const RichText& report);
  void InsertPicture(QTextCursor& cursor, const Run& run);
  void ForgetNews();
  void ForgetPictures();
  void TellNews();

  int leastColumns_ = 0;
  int leastLines_ = 0;
  bool isBehind_ = false;         ///< the text is laid out for another size
  QSize laidOut_;                 ///< that size
  std::vector<Paragraph> shown_;  ///< none of a long report
  int dotsPerInch_ = 0;           ///< that they are laid out with
  std::vector<ReportNote*> pictures_;
  ReportNote* news_ = nullptr;
  QTimer newsDelay_;
};

}  // namespace halvane
