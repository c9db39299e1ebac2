#include "widgets/button_states.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QSignalBlocker>
#include <utility>

namespace halvane {

void ButtonStates::Add(QAbstractButton& button, IsOn isOn) {
  entries_.push_back({&button, std::move(isOn)});
}

void ButtonStates::Show() const {
  for (const Entry& entry : entries_) {
    const QSignalBlocker blocker(entry.button);
    // A group lets its last button go only while it is not exclusive; a job may leave all of them
    // up.
    QButtonGroup* group = entry.button->group();
    const bool exclusive = group != nullptr && group->exclusive();
    if (exclusive) group->setExclusive(false);
    entry.button->setChecked(entry.isOn());
    if (exclusive) group->setExclusive(true);
  }
}

}  // namespace halvane
