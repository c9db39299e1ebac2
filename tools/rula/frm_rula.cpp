#include "tools/rula/frm_rula.h"

#include <QCheckBox>
#include <QMenu>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>

#include "shell/hand_frame.h"
#include "tools/posture/posture_frame.h"
#include "tools/posture/posture_page.h"
#include "tools/rula/rula_report.h"
#include "tools/rula/rula_score.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"

namespace halvane {
namespace {

constexpr int kReportTab = 1;
constexpr IdentificationNames kNames{{"Text1(0)"}, {"Text1(1)"}, {"Text1(2)"}, "SSOption5"};

// Left arm and wrist, right neck, trunk and legs, as the score has its two halves.
constexpr std::array<FramePlace, kRulaFrames.size()> kPlaces{{
    {PageColumn::Left, 0},
    {PageColumn::Left, 1},
    {PageColumn::Left, 2, 2},
    {PageColumn::Right, 0},
    {PageColumn::Right, 1},
    {PageColumn::Right, 2},
    {PageColumn::Right, 3},
    {PageColumn::Right, 3},
}};

}  // namespace

FrmRULA::FrmRULA(QWidget* parent) : ToolForm(Tool::Rula, "frmRULA", kNames, parent) {
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeInputTab(), " Task Information");
  SSTab1_->addTab(&RichTextBox1(), "RULA Score");
  RichTextBox1().OpenToTyping();
  body().addWidget(SSTab1_);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmRULA::SSTab1_Click);
}

QWidget* FrmRULA::MakeInputTab() {
  auto* page = new PosturePage(SSTab1_);
  page->SetTop(MakeIdentificationWithHand(page));
  for (std::size_t i = 0; i < kRulaFrames.size(); ++i) {
    AddInputs(kRulaFrames[i], *page->AddFrame(kPlaces.at(i), kRulaFrames[i].caption));
  }
  return page;
}

void FrmRULA::AddInputs(const RulaFrame& region, PostureFrame& frame) {
  if (region.ribbons) AddRibbons(*region.ribbons, frame);
  if (region.checks) AddChecks(*region.checks, frame);
  if (!region.options) return;
  if (region.panelCaption.empty()) {
    AddOptions(*region.options, frame);
  } else {
    auto* panel = new PostureFrame(region.panelCaption, &frame);
    AddOptions(*region.options, *panel);
    frame.AddBelow(panel);
  }
}

void FrmRULA::AddRibbons(RulaRibbonArray array, PostureFrame& frame) {
  const RulaRibbonRow& row = RulaRibbonsOf(array);
  frame.BeginGroup(true);
  int index = 0;
  for (const RulaRibbon& ribbon : row.ribbons) {
    if (index == row.groupSize) frame.BeginGroup(false);
    RibbonButton* button = frame.AddRibbon(ElementName(ScreenText(row.objectName), index),
                                           {ribbon.caption, ribbon.toolTip, ribbon.picture});
    connect(button, &RibbonButton::clicked, this,
            [this, array, index](bool pressed) { SSRibbon_Click(array, index, pressed); });
    buttons_.Add(*button, [this, array, index] { return controls_.IsDown(array, index); });
    ++index;
  }
}

void FrmRULA::AddChecks(RulaCheckArray array, PostureFrame& frame) {
  const RulaCheckRow& row = RulaChecksOf(array);
  int index = 0;
  for (const RulaCheck& check : row.checks) {
    QCheckBox* box = frame.AddCheck(ElementName(ScreenText(row.objectName), index), check.caption);
    connect(box, &QCheckBox::clicked, this,
            [this, array, index](bool checked) { SSCheck_Click(array, index, checked); });
    buttons_.Add(*box, [this, array, index] { return controls_.IsChecked(array, index); });
    ++index;
  }
}

void FrmRULA::AddOptions(RulaOptionArray array, PostureFrame& frame) {
  const RulaOptionRow& row = RulaOptionsOf(array);
  int index = 0;
  for (const RulaOption& option : row.options) {
    QRadioButton* button =
        frame.AddOption(ElementName(ScreenText(row.objectName), index), option.caption);
    connect(button, &QRadioButton::clicked, this,
            [this, array, index] { SSOption_Click(array, index); });
    buttons_.Add(*button, [this, array, index] { return controls_.chosen(array) == index; });
    ++index;
  }
}

void FrmRULA::loadFromJob() {
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  controls_.Reset();
  controls_.Load();
  ShowControls();
}

void FrmRULA::ShowControls() {
  hand().ShowHand(controls_.hand());
  buttons_.Show();
}

void FrmRULA::SSTab1_Click(int tab) {
  mnuEdit().setEnabled(tab == kReportTab);
  if (tab == kReportTab) ShowReport();
}

void FrmRULA::Text1_KeyUp() { identification().StoreJob(); }

void FrmRULA::SSOption5_Click(int index) {
  controls_.ChooseHand(index);
  ShowControls();
}

void FrmRULA::SSRibbon_Click(RulaRibbonArray array, int index, bool pressed) {
  if (pressed) {
    controls_.PressRibbon(array, index);
  } else {
    controls_.ReleaseRibbon(array, index);
  }
  ShowControls();
}

void FrmRULA::SSCheck_Click(RulaCheckArray array, int index, bool checked) {
  controls_.SetCheck(array, index, checked);
  ShowControls();
}

void FrmRULA::SSOption_Click(RulaOptionArray array, int index) {
  controls_.ChooseOption(array, index);
  ShowControls();
}

void FrmRULA::writeReport(RichText& RichTextBox1) {
  RULA_Calculate();
  RULA_Report(RichTextBox1);
}

}  // namespace halvane
