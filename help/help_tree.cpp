#include "help/help_tree.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include "help/help_pages.h"

namespace halvane {
namespace {

constexpr int kRowGap = 8;
constexpr int kAddress = Qt::UserRole;
/// Contents of more lines are shown with their chapters closed.
constexpr int kMostOpenLines = 60;

/// Names of pages do not tell capitals from small letters.
QString KeyOf(const QUrl& url) {
  const QString path = url.path(QUrl::FullyDecoded).toLower();
  return url.hasFragment() ? path + "#" + url.fragment(QUrl::FullyDecoded) : path;
}

/// Lines with some air between them.
class Lines : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowGap);
  }
};

}  // namespace

HelpTree::HelpTree(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("HelpContents");
  setAccessibleName(tr("Contents"));
  setHeaderHidden(true);
  setColumnCount(1);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  setTextElideMode(Qt::ElideNone);
  setItemDelegate(new Lines(this));
  connect(this, &QTreeWidget::currentItemChanged, this, &HelpTree::Choose);
  // A click on the line that is current already comes back to its page.
  connect(this, &QTreeWidget::itemClicked, this, &HelpTree::Choose);
  connect(this, &QTreeWidget::itemActivated, this, &HelpTree::Choose);
}

void HelpTree::SetPages(const HelpPages& pages) {
  const QScopedValueRollback guard(following_, true);
  clear();
  items_.clear();
  int lines = 0;
  const auto add = [&](const auto& self, const std::vector<HelpContentsEntry>& list,
                       QTreeWidgetItem* parent) -> void {
    for (const HelpContentsEntry& entry : list) {
      ++lines;
      auto* item = new QTreeWidgetItem(parent);
      item->setText(0, QString::fromStdString(entry.title));
      if (!entry.topic.empty()) {
        const QUrl url = pages.UrlOf(QString::fromStdString(entry.topic));
        item->setData(0, kAddress, url);
        if (!items_.contains(KeyOf(url))) items_.insert(KeyOf(url), item);
      }
      self(self, entry.children, item);
    }
  };
  add(add, pages.contents(), invisibleRootItem());
  if (lines <= kMostOpenLines) expandAll();
}

void HelpTree::Follow(const QUrl& url) {
  QTreeWidgetItem* item = items_.value(KeyOf(url));
  if (item == nullptr) item = items_.value(KeyOf(url.adjusted(QUrl::RemoveFragment)));
  const QScopedValueRollback guard(following_, true);
  setCurrentItem(item);
  if (item == nullptr) {
    clearSelection();
  } else {
    scrollToItem(item);
  }
}

void HelpTree::resizeEvent(QResizeEvent* event) {
  // A short line is as wide as the tree, and so is its selection.
  header()->setMinimumSectionSize(viewport()->width());
  QTreeWidget::resizeEvent(event);
}

void HelpTree::Choose(const QTreeWidgetItem* item) {
  if (following_ || item == nullptr) return;
  const QUrl url = item->data(0, kAddress).toUrl();
  if (!url.isEmpty()) emit topicChosen(url);
}

}  // namespace halvane
