#pragma once

#include <QTreeWidget>

namespace halvane {

/// The task list on screen, the same in both tools that have one: one flat node a task, its name
/// edited in place. It keeps nothing but nodes; what a task is stands in the job.
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
  /// Ends an edit that is going on and takes the name as typed so far.
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
  /// The user gave the selected task another name.
  void taskRenamed(const QString& name);

 protected:
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event) const override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
