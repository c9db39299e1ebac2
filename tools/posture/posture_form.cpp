#include "tools/posture/posture_form.h"

#include <QCheckBox>
#include <QMenu>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "shell/hand_frame.h"
#include "tools/posture/posture_frame.h"
#include "widgets/drop_list.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"

namespace halvane {
namespace {

constexpr int kReportTab = 1;
constexpr IdentificationNames kNames{{"Text1(0)"}, {"Text1(1)"}, {"Text1(2)"}, "SSOption5"};

/// Adds the button of a choice. The group that a ribbon belongs to is begun.
QAbstractButton* AddButton(const PostureControl& control, int index, PostureFrame& frame) {
  const PostureChoice& choice = ChoiceAt(control, index);
  const QString name = ScreenText(WidgetName(control, index));
  if (control.isBox()) return frame.AddCheck(name, choice.caption);
  if (control.kind == PostureKind::Options) {
    QRadioButton* option = frame.AddOption(name, choice.caption);
    option->setToolTip(ScreenText(choice.toolTip));
    return option;
  }
  return frame.AddRibbon(name, {choice.caption, choice.toolTip, choice.picture});
}

}  // namespace

PostureForm::PostureForm(const PostureScreen& screen, std::unique_ptr<PostureControls> controls,
                         QWidget* parent)
    : ToolForm(screen.tool, screen.objectName, kNames, parent), controls_(std::move(controls)) {
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeScrolling(MakeInputTab(screen), SSTab1_), " Task Information");
  SSTab1_->addTab(&RichTextBox1(), ScreenText(screen.reportTab));
  RichTextBox1().OpenToTyping();
  body().addWidget(SSTab1_);
  connect(SSTab1_, &TabStrip::tabClicked, this, &PostureForm::SSTab1_Click);
}

QWidget* PostureForm::MakeInputTab(const PostureScreen& screen) {
  auto* page = new PosturePage(screen.ribbonRows, SSTab1_);
  page->SetTop(MakeIdentificationWithHand(page));
  for (std::size_t i = 0; i < screen.regions.size(); ++i) {
    AddInputs(screen.regions[i], *page->AddFrame(screen.places[i], screen.regions[i].caption));
  }
  return page;
}

void PostureForm::AddInputs(const PostureRegion& region, PostureFrame& frame) {
  for (const PostureControl& control : region.controls) {
    if (control.kind == PostureKind::List) {
      AddList(control, frame);
    } else if (control.kind == PostureKind::Options && !region.optionsPanel.empty()) {
      auto* panel = new PostureFrame(region.optionsPanel, &frame);
      AddButtons(control, *panel);
      frame.AddBelow(panel);
    } else {
      AddButtons(control, frame);
    }
  }
}

void PostureForm::AddButtons(const PostureControl& control, PostureFrame& frame) {
  if (control.kind == PostureKind::Ribbons) frame.BeginGroup(true);
  if (control.kind == PostureKind::AddOns) frame.BeginGroup(false);
  for (int index = control.first; index <= control.last(); ++index) {
    QAbstractButton* button = AddButton(control, index, frame);
    connect(button, &QAbstractButton::clicked, this,
            [this, &control, index] { Control_Click(control, index); });
    buttons_.Add(*button, [this, &control, index] { return controls_->IsSet(control, index); });
  }
}

void PostureForm::AddList(const PostureControl& control, PostureFrame& frame) {
  auto* list = new DropList(ScreenText(WidgetName(control, control.first)), &frame);
  list->setAccessibleName(frame.title());
  // The entries have one tip.
  list->setToolTip(ScreenText(control.array.front().toolTip));
  for (const PostureChoice& entry : control.array) list->addItem(ScreenText(entry.caption));
  connect(list, &QComboBox::activated, this,
          [this, &control](int index) { Control_Click(control, index); });
  frame.AddInput(list);
  lists_.push_back({list, &control});
}

void PostureForm::loadFromJob() {
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  controls_->Reset();
  controls_->Load();
  ShowControls();
}

void PostureForm::ShowControls() {
  hand().ShowHand(controls_->hand());
  for (const auto& [list, control] : lists_) list->setCurrentIndex(controls_->chosen(*control));
  buttons_.Show();
}

void PostureForm::SSTab1_Click(int tab) {
  mnuEdit().setEnabled(tab == kReportTab);
  if (tab == kReportTab) ShowReport();
}

void PostureForm::Text1_KeyUp() { identification().StoreJob(); }

void PostureForm::SSOption5_Click(int index) {
  controls_->ChooseHand(index);
  ShowControls();
}

void PostureForm::Control_Click(const PostureControl& control, int index) {
  controls_->Click(control, index);
  ShowControls();
}

}  // namespace halvane
