#include "widgets/choice_group.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace halvane {
namespace {

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Down;
}

bool GoesBack(int arrow) { return arrow == Qt::Key_Left || arrow == Qt::Key_Up; }

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// How far one has to go from `here` in the direction of an arrow key to be at `there`; 0 where
/// that is not the way. Captions of one column have different middles, so only what stands in line
/// counts.
int WayTo(const QRect& there, const QRect& here, int arrow) {
  const bool alongRow = arrow == Qt::Key_Left || arrow == Qt::Key_Right;
  const bool inLine = alongRow ? there.top() <= here.bottom() && here.top() <= there.bottom()
                               : there.left() <= here.right() && here.left() <= there.right();
  if (!inLine) return 0;
  const QPoint way = there.center() - here.center();
  const int ahead = alongRow ? way.x() : way.y();
  return GoesBack(arrow) ? -ahead : ahead;
}

}  // namespace

ChoiceGroup::ChoiceGroup(Choice choice, QObject* parent) : QButtonGroup(parent), choice_(choice) {
  setExclusive(choice == Choice::One);
  connect(this, &QButtonGroup::buttonToggled, this, &ChoiceGroup::SetStops);
}

void ChoiceGroup::Add(QAbstractButton& button, int id) {
  addButton(&button, id);
  button.installEventFilter(this);
  SetStops();
}

bool ChoiceGroup::eventFilter(QObject* watched, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  // The toolkit has ideas of its own about the stops of a group, which it carries out when the
  // focus comes.
  if (isPress || event->type() == QEvent::FocusOut) SetStops();
  if (!isPress) return QButtonGroup::eventFilter(watched, event);
  const int key = static_cast<const QKeyEvent*>(event)->key();
  if (!IsArrow(key)) return QButtonGroup::eventFilter(watched, event);
  Move(*static_cast<const QAbstractButton*>(watched), key);
  return true;
}

const QAbstractButton& ChoiceGroup::Stop() const {
  const auto members = buttons();
  const QAbstractButton* on = nullptr;
  for (const QAbstractButton* member : members) {
    // Tab and Shift+Tab leave the group from here.
    if (member->hasFocus()) return *member;
    if (on == nullptr && member->isChecked()) on = member;
  }
  return on != nullptr ? *on : *members.first();
}

void ChoiceGroup::SetStops() {
  // The last button takes the focus along when it goes.
  if (buttons().isEmpty()) return;
  const QAbstractButton* stop = &Stop();
  for (QAbstractButton* member : buttons()) {
    const bool stops = choice_ == Choice::Any || member == stop;
    const auto other = member->focusPolicy() & ~Qt::TabFocus;
    member->setFocusPolicy(static_cast<Qt::FocusPolicy>(other | (stops ? Qt::TabFocus : 0)));
  }
}

QAbstractButton* ChoiceGroup::Next(const QAbstractButton& from, int arrow) const {
  QAbstractButton* next = nullptr;
  int least = 0;
  for (QAbstractButton* member : buttons()) {
    if (!member->isVisible() || !member->isEnabled()) continue;
    const int way = WayTo(PlaceOf(*member), PlaceOf(from), arrow);
    if (way <= 0 || (next != nullptr && way >= least)) continue;
    next = member;
    least = way;
  }
  return next;
}

void ChoiceGroup::Move(const QAbstractButton& from, int arrow) {
  QAbstractButton* next = Next(from, arrow);
  if (next == nullptr) return;
  if (choice_ == Choice::One) next->click();
  next->setFocus(GoesBack(arrow) ? Qt::BacktabFocusReason : Qt::TabFocusReason);
}

}  // namespace halvane
