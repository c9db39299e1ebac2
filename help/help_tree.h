#pragma once

#include <QHash>
#include <QTreeWidget>
#include <QUrl>

namespace halvane {

class HelpPages;

/// The table of contents. Tells of the topic that the user goes to, by mouse or keys, and shows
/// where the page stands that is on view.
class HelpTree : public QTreeWidget {
  Q_OBJECT
 public:
  explicit HelpTree(QWidget* parent);

  void SetPages(const HelpPages& pages);
  /// Selects the line of that page, of its anchor where there is one; none where the contents do
  /// not have it.
  void Follow(const QUrl& url);

 signals:
  void topicChosen(const QUrl& url);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Choose(const QTreeWidgetItem* item);

  QHash<QString, QTreeWidgetItem*> items_;
  bool following_ = false;
};

}  // namespace halvane
