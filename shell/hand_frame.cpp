#include "shell/hand_frame.h"

#include <QHBoxLayout>
#include <QRadioButton>

#include "widgets/choice_group.h"
#include "widgets/layout.h"

namespace halvane {

HandFrame::HandFrame(const char* optionArray, QWidget* parent) : QGroupBox("Hand", parent) {
  auto* row = new QHBoxLayout(this);
  auto* group = new ChoiceGroup(Choice::One, this);
  row->setContentsMargins(kMargin, kGap / 2, kMargin, kGap / 2);
  const std::array captions{"Right Side", "Left Side"};
  for (std::size_t i = 0; i < options_.size(); ++i) {
    options_[i] = new QRadioButton(captions[i], this);
    options_[i]->setObjectName(ElementName(optionArray, static_cast<int>(i)));
    row->addWidget(options_[i]);
    group->Add(*options_[i], static_cast<int>(i));
  }
  connect(group, &QButtonGroup::idClicked, this, &HandFrame::handChosen);
}

void HandFrame::ShowHand(int index) {
  // The group lets the other option go.
  options_.at(static_cast<std::size_t>(index))->setChecked(true);
}

}  // namespace halvane
