#include "tools/task_list/task_list_frame.h"

#include <QGridLayout>
#include <QPushButton>
#include <QShortcutEvent>

#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

/// A button whose key works at once. The toolkit's own waits a moment, in which the user can have
/// gone on to another job.
class TaskPushButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  bool event(QEvent* event) override {
    const bool isItsKey =
        event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous();
    if (!isItsKey) return QPushButton::event(event);
    click();
    return true;
  }
};

}  // namespace

TaskListFrame::TaskListFrame(const QString& name, const std::array<TaskButton, 3>& buttons,
                             QWidget* parent)
    : QGroupBox("Task Information", parent), tree_(new TaskTree(this)) {
  setObjectName(name);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kGap / 2);
  grid->setVerticalSpacing(kGap);
  grid->addWidget(tree_, 0, 0, 1, static_cast<int>(buttons.size()));
  int index = 0;
  for (const TaskButton& row : buttons) {
    const QString caption = ScreenText(row.caption);
    auto* button = new TaskPushButton(caption, this);
    button->setObjectName(ElementName("SSCommand1", index));
    button->setToolTip(ScreenText(row.tip));
    button->setAutoDefault(false);
    // The style's own least width would make the list wider than the names in it need.
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + 2 * kMargin);
    connect(button, &QPushButton::clicked, this, [this, index] {
      // A button pressed by its key leaves the focus, and so what is being typed, where it was.
      TextBox::CountKeysDown();
      tree_->FinishEdit();
      emit buttonClicked(index);
    });
    grid->addWidget(button, 1, index++);
  }
}

}  // namespace halvane
