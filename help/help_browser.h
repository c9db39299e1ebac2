#pragma once

#include <QTextBrowser>
#include <memory>

#include "help/help_document.h"

namespace halvane {

class HelpPages;

/// The pane that shows one page of the help. Links inside the help file are followed, all others
/// are told of and left alone.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT
 public:
  static constexpr int kLeastZoom = 50;
  static constexpr int kMostZoom = 400;

  explicit HelpBrowser(QWidget* parent);

  /// Takes another help file and forgets the pages shown before. `pages` has to outlive the pane or
  /// the next call.
  void SetPages(const HelpPages* pages);

  /// Shows a page of the help file.
  void ShowPage(const QUrl& url);
  /// In percent of the size of the program's text, held within the bounds.
  void SetZoom(int percent);
  /// By so many steps, negative ones for smaller.
  void ZoomBy(int steps);
  [[nodiscard]] int zoom() const { return zoom_; }

  /// Selects the next place where `text` stands, the one before when `backward`, beyond the end of
  /// the page from its other end. False when it stands nowhere.
  bool FindText(const QString& text, bool backward, bool& wrapped);
  /// Marks every place of these words, on this page and on those shown after it; none for no words.
  void MarkWords(const QStringList& words);
  /// Scrolls to the first mark, where there is one.
  void ShowFirstMark();
  /// A copy of the page to be printed, dark on white and in the size as written.
  [[nodiscard]] std::unique_ptr<HelpDocument> PageToPrint() const;

  QVariant loadResource(int type, const QUrl& name) override;

 signals:
  /// A link leads outside the help file and was not followed.
  void notFollowed(const QString& link);
  void zoomChanged();

 protected:
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void FollowLink(const QUrl& link);
  void AdaptPage(const QUrl& url);
  void ShowAgain();
  void BrightenSelection();
  void DrawMarks();
  [[nodiscard]] HelpLook Look() const;

  HelpDocument document_;
  QStringList words_;
  int zoom_ = 100;
  bool anew_ = false;
};

}  // namespace halvane
