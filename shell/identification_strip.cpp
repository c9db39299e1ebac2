#include "shell/identification_strip.h"

#include <QLabel>

#include "core/job_state.h"
#include "widgets/layout.h"
#include "widgets/number_box.h"
#include "widgets/wrap_row.h"

namespace halvane {
namespace {

/// So much of a text is seen at least.
constexpr int kLeastDigits = 10;

}  // namespace

IdentificationStrip::IdentificationStrip(const IdentificationNames& names, QWidget* parent)
    : QWidget(parent) {
  row_ = new WrapRow(2, this);
  analyst_ = AddBox("Analyst", names.analyst);
  jobName_ = AddBox("Job Name", names.jobName);
  workstation_ = AddBox("Workstation ID", names.workstation);

  const auto stores = [this](TextBox* box, auto store) {
    connect(box, &TextBox::keyReleased, this, [this, box, store] {
      Module1.JobDirty = kTrue;
      store(box->text().toStdString());
      emit typed();
    });
  };
  stores(analyst_, [](std::string text) { Module1.JobAnalyst = std::move(text); });
  stores(jobName_, [](std::string text) { Module1.JobName = std::move(text); });
  stores(workstation_, [](std::string text) { Module1.JobWorkstationId = std::move(text); });
}

TextBox* IdentificationStrip::AddBox(const QString& label, const IdentificationBox& names) {
  auto* caption = new QLabel(label, this);
  auto* box = new NumberBox(names.box, kLeastDigits, this);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  caption->setObjectName(names.label);
  caption->setBuddy(box);
  row_->Add(caption, 0);
  row_->Add(box, 1);
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

void IdentificationStrip::StoreJob() {
  Module1.JobDirty = kTrue;
  Module1.JobAnalyst = analyst_->text().toStdString();
  Module1.JobName = jobName_->text().toStdString();
  Module1.JobWorkstationId = workstation_->text().toStdString();
}

void IdentificationStrip::FocusFirst() {
  analyst_->setFocus();
  // In a window that is not yet the active one the focus comes later, with the window.
  analyst_->selectAll();
}

}  // namespace halvane
