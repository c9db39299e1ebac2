#include "tools/task_list/task_tree.h"

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <limits>

#include "core/job_state.h"
#include "core/task_list.h"
#include "widgets/focus_frame.h"

namespace halvane {
namespace {

constexpr int kKeyRole = Qt::UserRole;
constexpr auto kHint = "Add a task to begin";

/// Edits a name in place. A menu that opens ends the edit, as a click elsewhere does: its commands
/// have to find the name in the job.
class NameEditing : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    // A name may have any length.
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
      line->setMaxLength(std::numeric_limits<int>::max());
    }
    return editor;
  }

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

TaskTree::TaskTree(QWidget* parent) : QTreeWidget(parent), icon_(":/assets/ctd/task.svg") {
  setObjectName("TreeView1");
  setAccessibleName(tr("Tasks"));
  SetUpFocusFrame(*this);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setColumnCount(1);
  setEditTriggers(QAbstractItemView::EditKeyPressed);
  setTabKeyNavigation(false);
  // Of a long list only what is in view is measured.
  setUniformRowHeights(true);
  // The wheel scrolls and leaves the focus where it is.
  setFocusPolicy(Qt::StrongFocus);
  setItemDelegate(new NameEditing(this));
  connect(this, &QTreeWidget::currentItemChanged, this, [this] { emit taskSelected(); });
  connect(this, &QTreeWidget::itemClicked, this, [this] { emit taskSelected(); });
  connect(this, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* node) { emit taskRenamed(TaskOf(*node), node->text(0)); });
  editDelay_.setSingleShot(true);
  connect(&editDelay_, &QTimer::timeout, this, [this] {
    if (hasFocus() && isActiveWindow()) EditSelected();
  });
  connect(this, &QTreeWidget::currentItemChanged, &editDelay_, &QTimer::stop);
  SpeakHint();
}

void TaskTree::SpeakHint() { setAccessibleDescription(isEmpty() ? tr(kHint) : QString()); }

void TaskTree::Clear() {
  editDelay_.stop();
  const QSignalBlocker blocker(this);
  clear();
  SpeakHint();
}

void TaskTree::AddNode(int task) {
  const QSignalBlocker blocker(this);
  auto* node = new QTreeWidgetItem(this);
  node->setText(0, QString::fromStdString(Module1.TaskNames.at(task)));
  node->setData(0, kKeyRole, QString::fromStdString(TaskKey(task)));
  node->setIcon(0, icon_);
  node->setFlags(node->flags() | Qt::ItemIsEditable);
  SpeakHint();
}

void TaskTree::RemoveSelected() {
  const QSignalBlocker blocker(this);
  const int place = indexOfTopLevelItem(currentItem());
  delete takeTopLevelItem(place);
  SelectAt(std::min(place, topLevelItemCount() - 1));
  SpeakHint();
  viewport()->update();
}

void TaskTree::SelectAt(int place) {
  editDelay_.stop();
  const QSignalBlocker blocker(this);
  setCurrentItem(topLevelItem(place));
}

void TaskTree::EditSelected() {
  if (currentItem() != nullptr) editItem(currentItem(), 0);
}

void TaskTree::FinishEdit() {
  editDelay_.stop();
  QWidget* editor = indexWidget(currentIndex());
  if (editor == nullptr) return;
  commitData(editor);
  closeEditor(editor, QAbstractItemDelegate::NoHint);
}

int TaskTree::SelectedTask() const {
  if (currentItem() == nullptr) return kNoTask;
  return TaskOf(*currentItem());
}

int TaskTree::TaskOf(const QTreeWidgetItem& node) {
  return TaskOfKey(node.data(0, kKeyRole).toString().toStdString());
}

bool TaskTree::event(QEvent* event) {
  const bool handled = QTreeWidget::event(event);
  if (event->type() == QEvent::Paint) PaintFocusFrame(*this);
  return handled;
}

QItemSelectionModel::SelectionFlags TaskTree::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
  const auto command = QTreeWidget::selectionCommand(index, event);
  // The current node is the one that every command works on, so its mark has to stay, also when
  // the click goes beside the nodes or the Ctrl key is down.
  const bool unmarks = !index.isValid() || command.testFlag(QItemSelectionModel::Deselect);
  return unmarks ? QItemSelectionModel::NoUpdate : command;
}

bool TaskTree::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool started = QTreeWidget::edit(index, trigger, event);
  if (started) editDelay_.stop();
  return started;
}

void TaskTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTreeWidget::closeEditor(editor, hint);
  // A press takes the focus from the editor before it gets here itself, without going back to the
  // event loop in between.
  pressEndedEdit_ = true;
  QTimer::singleShot(0, this, [this] { pressEndedEdit_ = false; });
}

void TaskTree::mousePressEvent(QMouseEvent* event) {
  editDelay_.stop();
  const QTreeWidgetItem* node = itemAt(event->position().toPoint());
  selectedNodePressed_ = event->button() == Qt::LeftButton &&
                         event->modifiers() == Qt::NoModifier && node != nullptr &&
                         node == currentItem() && !pressEndedEdit_;
  QTreeWidget::mousePressEvent(event);
}

void TaskTree::mouseReleaseEvent(QMouseEvent* event) {
  QTreeWidget::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton) return;
  const QTreeWidgetItem* node = itemAt(event->position().toPoint());
  if (node == nullptr) emit emptyPartClicked();
  if (selectedNodePressed_ && node != nullptr && node == currentItem()) {
    editDelay_.start(QApplication::doubleClickInterval());
  }
  selectedNodePressed_ = false;
}

void TaskTree::mouseDoubleClickEvent(QMouseEvent* event) {
  editDelay_.stop();
  selectedNodePressed_ = false;
  QTreeWidget::mouseDoubleClickEvent(event);
}

void TaskTree::focusOutEvent(QFocusEvent* event) {
  editDelay_.stop();
  QTreeWidget::focusOutEvent(event);
}

void TaskTree::hideEvent(QHideEvent* event) {
  editDelay_.stop();
  QTreeWidget::hideEvent(event);
}

void TaskTree::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (!isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, kHint);
}

}  // namespace halvane
