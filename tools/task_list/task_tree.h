#pragma once

#include <QIcon>
#include <QTimer>
#include <QTreeWidget>

namespace halvane {

/// The task list on screen, the same in both tools that have one: one flat node a task, its name
/// edited in place. It keeps nothing but nodes; what a task is stands in the job. Its frame shows
/// the focus.
class TaskTree : public QTreeWidget {
  Q_OBJECT
 public:
  explicit TaskTree(QWidget* parent = nullptr);

  /// Removes all nodes. Tells nobody.
  void Clear();
  /// Adds the node of a task behind the others. Tells nobody.
  void AddNode(int task);
  /// Removes the selected node and selects the next one, else the one before it.
  void RemoveSelected();
  /// Selects the node at a place counted from 0. Tells nobody.
  void SelectAt(int place);
  /// Starts to edit the name of the selected node.
  void EditSelected();
  /// Ends an edit that is going on, taking the name as typed so far, and forgets one that a click
  /// was to start.
  void FinishEdit();

  [[nodiscard]] bool isEmpty() const { return topLevelItemCount() == 0; }
  /// What `SelectedTask` gives when no node is selected.
  static constexpr int kNoTask = -1;
  /// The task number in the key of the selected node.
  [[nodiscard]] int SelectedTask() const;

 signals:
  /// The user selected a node or clicked on it.
  void taskSelected();
  /// The user clicked where no node is.
  void emptyPartClicked();
  /// The user gave a task another name.
  void taskRenamed(int task, const QString& name);

 protected:
  bool event(QEvent* event) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event) const override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Tells screen readers what the empty list shows.
  void SpeakHint();
  [[nodiscard]] static int TaskOf(const QTreeWidgetItem& node);

  QIcon icon_;  ///< of all nodes
  // A click on the selected node starts to edit its name once it can be no double click any more,
  // if nothing has changed until then. The toolkit's own way would open the editor whatever the
  // user has gone on to do, and put the next keys into it.
  QTimer editDelay_;
  bool selectedNodePressed_ = false;
  bool pressEndedEdit_ = false;  ///< the mouse press under way closed the editor
};

}  // namespace halvane
