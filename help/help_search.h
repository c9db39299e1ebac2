#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "help/help_index.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace halvane {

/// The left side of the help: a box to search all pages, and below it their list of contents or,
/// while there is something in the box, the pages that have it.
class HelpSearch : public QWidget {
  Q_OBJECT
 public:
  /// Takes `contents` over.
  HelpSearch(QWidget* contents, QWidget* parent);

  /// Forgets what was looked for. `pages` has to outlive the next call; they are read at the first
  /// search.
  void SetPages(const HelpPages* pages);
  /// Empties the box, so that the contents are on view.
  void ShowContents();
  /// Goes to the box with its text selected, ready to be typed over.
  void Open();
  /// What the keys walk through on this side: the pages found, else the contents.
  [[nodiscard]] QWidget& List() const;

 signals:
  void pageChosen(const QUrl& page);
  /// The words that are looked for, none when the box is empty.
  void wordsChanged(const QStringList& words);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Search();
  void ShowHits(const QStringList& words);
  void Choose();

  const HelpPages* pages_ = nullptr;
  std::unique_ptr<HelpIndex> index_;
  std::vector<HelpHit> hits_;
  QWidget* contents_;
  QLineEdit* text_;
  QLabel* result_;
  QListWidget* list_;
};

}  // namespace halvane
