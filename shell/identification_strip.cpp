#include "shell/identification_strip.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "core/job_state.h"
#include "shell/controls/text_box.h"
#include "shell/layout.h"

namespace halvane {

IdentificationStrip::IdentificationStrip(const IdentificationNames& names, QWidget* parent)
    : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  analyst_ = AddBox("Analyst", names.analyst);
  jobName_ = AddBox("Job Name", names.jobName);
  workstation_ = AddBox("Workstation ID", names.workstation);

  auto* frame = new QGroupBox("Hand", this);
  auto* options = new QHBoxLayout(frame);
  options->setContentsMargins(kMargin, kGap / 2, kMargin, kGap / 2);
  auto* group = new QButtonGroup(this);
  const std::array captions{"Right Side", "Left Side"};
  for (int i = 0; i < 2; ++i) {
    auto*& option = hand_.at(static_cast<std::size_t>(i));
    option = new QRadioButton(captions.at(static_cast<std::size_t>(i)), frame);
    option->setObjectName(ElementName(names.handOptions, i));
    options->addWidget(option);
    group->addButton(option, i);
  }
  row->addWidget(frame);
  connect(group, &QButtonGroup::idClicked, this, &IdentificationStrip::handChosen);

  const auto stores = [this](TextBox* box, auto store) {
    connect(box, &TextBox::keyReleased, this, [box, store] {
      Module1.JobDirty = kTrue;
      store(box->text().toStdString());
    });
  };
  stores(analyst_, [](std::string text) { Module1.JobAnalyst = std::move(text); });
  stores(jobName_, [](std::string text) { Module1.JobName = std::move(text); });
  stores(workstation_, [](std::string text) { Module1.JobWorkstationId = std::move(text); });
}

TextBox* IdentificationStrip::AddBox(const QString& label, const QString& name) {
  auto* box = new TextBox(name, this);
  auto* caption = new QLabel(label, this);
  caption->setBuddy(box);
  layout()->addWidget(caption);
  layout()->addWidget(box);
  return box;
}

void IdentificationStrip::ShowJob() {
  const auto show = [](TextBox& box, const std::string& text) {
    box.setText(QString::fromStdString(text));
    // A long text shows its beginning.
    box.setCursorPosition(0);
  };
  show(*analyst_, Module1.JobAnalyst.AsText());
  show(*jobName_, Module1.JobName.AsText());
  show(*workstation_, Module1.JobWorkstationId);
}

void IdentificationStrip::FocusFirst() { analyst_->setFocus(); }

void IdentificationStrip::ShowHand(int index) {
  // The group lets the other option go.
  hand_.at(static_cast<std::size_t>(index))->setChecked(true);
}

}  // namespace halvane
