#include "tools/task_list/task_list_frame.h"

#include <QPushButton>
#include <QShortcutEvent>
#include <QVBoxLayout>

#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/text_box.h"
#include "widgets/wrap_row.h"

namespace halvane {
namespace {

/// A button whose key works at once. The toolkit's own waits a moment, in which the user can have
/// gone on to another job.
class TaskPushButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  /// The style's own least width would make the list wider than the names in it need.
  [[nodiscard]] QSize sizeHint() const override {
    const QString caption = QString(text()).remove('&');
    return {fontMetrics().horizontalAdvance(caption) + 2 * kMargin,
            QPushButton::sizeHint().height()};
  }

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
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addWidget(tree_, 1);
  auto* commands = new WrapRow(1, nullptr);
  commands->setSpacing(kGap / 2);
  column->addLayout(commands);
  int index = 0;
  for (const TaskButton& row : buttons) {
    const QString caption = ScreenText(row.caption);
    auto* button = new TaskPushButton(caption, this);
    button->setObjectName(ElementName("SSCommand1", index));
    button->setToolTip(ScreenText(row.tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, index] {
      // A button pressed by its key leaves the focus, and so what is being typed, where it was.
      TextBox::CountKeysDown();
      tree_->FinishEdit();
      emit buttonClicked(index);
    });
    commands->Add(button, 1);
    ++index;
  }
}

}  // namespace halvane
