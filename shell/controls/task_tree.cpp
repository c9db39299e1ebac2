#include "shell/controls/task_tree.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

constexpr int kKeyRole = Qt::UserRole;
constexpr auto kHint = "Add a task to begin";

/// Edits a name in place. A menu that opens ends the edit, as a click elsewhere does: its commands
/// have to find the name in the job.
class NameEditing : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* editor = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusOut && IsMenuOfAnother(*editor)) {
      emit commitData(editor);
      emit closeEditor(editor);
      return false;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
  }

 private:
  static bool IsMenuOfAnother(const QWidget& editor) {
    const QWidget* popup = QApplication::activePopupWidget();
    return popup != nullptr && popup->parentWidget() != &editor;
  }
};

}  // namespace

TaskTree::TaskTree(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("TreeView1");
  setAccessibleName(tr("Tasks"));
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setColumnCount(1);
  setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
  setTabKeyNavigation(false);
  setItemDelegate(new NameEditing(this));
  connect(this, &QTreeWidget::currentItemChanged, this, [this] { emit taskSelected(); });
  connect(this, &QTreeWidget::itemClicked, this, [this] { emit taskSelected(); });
  connect(this, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* node) { emit taskRenamed(node->text(0)); });
}

void TaskTree::Clear() {
  const QSignalBlocker blocker(this);
  clear();
}

void TaskTree::AddNode(int task) {
  const QSignalBlocker blocker(this);
  auto* node = new QTreeWidgetItem(this);
  node->setText(0, QString::fromStdString(Module1.TaskNames.at(task)));
  node->setData(0, kKeyRole, QString::fromStdString(TaskKey(task)));
  node->setIcon(0, QIcon(":/assets/ctd/task.svg"));
  node->setFlags(node->flags() | Qt::ItemIsEditable);
}

void TaskTree::RemoveSelected() {
  const QSignalBlocker blocker(this);
  const int place = indexOfTopLevelItem(currentItem());
  delete takeTopLevelItem(place);
  SelectAt(std::min(place, topLevelItemCount() - 1));
  viewport()->update();
}

void TaskTree::SelectAt(int place) {
  const QSignalBlocker blocker(this);
  setCurrentItem(topLevelItem(place));
}

void TaskTree::EditSelected() {
  if (currentItem() != nullptr) editItem(currentItem(), 0);
}

void TaskTree::FinishEdit() {
  QWidget* editor = indexWidget(currentIndex());
  if (editor == nullptr) return;
  commitData(editor);
  closeEditor(editor, QAbstractItemDelegate::NoHint);
}

int TaskTree::SelectedTask() const {
  if (currentItem() == nullptr) return kNoTask;
  return TaskOfKey(currentItem()->data(0, kKeyRole).toString().toStdString());
}

QItemSelectionModel::SelectionFlags TaskTree::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
  const auto command = QTreeWidget::selectionCommand(index, event);
  // The current node is the one that every command works on, so its mark has to stay, also when
  // the click goes beside the nodes or the Ctrl key is down.
  const bool unmarks = !index.isValid() || command.testFlag(QItemSelectionModel::Deselect);
  return unmarks ? QItemSelectionModel::NoUpdate : command;
}

void TaskTree::mouseReleaseEvent(QMouseEvent* event) {
  QTreeWidget::mouseReleaseEvent(event);
  const bool onNode = itemAt(event->position().toPoint()) != nullptr;
  if (event->button() == Qt::LeftButton && !onNode) emit emptyPartClicked();
}

void TaskTree::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (!isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, kHint);
}

}  // namespace halvane
