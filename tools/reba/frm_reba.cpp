#include "tools/reba/frm_reba.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>

#include "shell/hand_frame.h"
#include "tools/posture/posture_frame.h"
#include "tools/posture/posture_page.h"
#include "tools/reba/reba_report.h"
#include "tools/reba/reba_score.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"

namespace halvane {
namespace {

constexpr int kReportTab = 1;
constexpr IdentificationNames kNames{{"Text1(0)"}, {"Text1(1)"}, {"Text1(2)"}, "SSOption5"};

struct RegionPlace {
  RebaRegion region{};
  FramePlace place;
};
// Left arm and wrist, right neck, trunk and legs, as the score has its two halves.
constexpr std::array<RegionPlace, kRebaRegionCount> kPlaces{{
    {RebaRegion::UpperArms, {PageColumn::Left, 0}},
    {RebaRegion::LowerArms, {PageColumn::Left, 1}},
    {RebaRegion::Wrist, {PageColumn::Left, 2}},
    {RebaRegion::Coupling, {PageColumn::Left, 3}},
    {RebaRegion::Neck, {PageColumn::Right, 0}},
    {RebaRegion::Trunk, {PageColumn::Right, 1}},
    {RebaRegion::Legs, {PageColumn::Right, 2}},
    {RebaRegion::Force, {PageColumn::Right, 3}},
    {RebaRegion::MuscleUse, {PageColumn::Right, 3}},
}};

}  // namespace

FrmREBA::FrmREBA(QWidget* parent) : ToolForm(Tool::Reba, "frmREBA", kNames, parent) {
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeInputTab(), " Task Information");
  SSTab1_->addTab(&RichTextBox1(), "REBA Score");
  RichTextBox1().OpenToTyping();
  body().addWidget(SSTab1_);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmREBA::SSTab1_Click);
}

QWidget* FrmREBA::MakeInputTab() {
  auto* page = new PosturePage(SSTab1_);
  page->SetTop(MakeIdentificationWithHand(page));
  for (const auto& [region, place] : kPlaces) {
    PostureFrame& frame = *page->AddFrame(place, RebaFrameOf(region).caption);
    AddRibbons(region, frame);
    if (region == RebaRegion::Force) AddLoads(frame);
    AddChecks(region, frame);
    if (region == RebaRegion::Coupling) AddCouplings(frame);
  }
  return page;
}

void FrmREBA::AddRibbons(RebaRegion region, PostureFrame& frame) {
  const RebaFrame& row = RebaFrameOf(region);
  for (const RebaRibbonGroup& group : row.groups) {
    frame.BeginGroup(!group.mayBeUp);
    for (int index = group.first; index < group.first + group.count; ++index) {
      const RebaRibbon& ribbon = row.ribbons[static_cast<std::size_t>(index)];
      RibbonButton* button = frame.AddRibbon(ElementName(ScreenText(row.ribbonName), index),
                                             {ribbon.caption, ribbon.toolTip, ribbon.picture});
      connect(button, &RibbonButton::clicked, this,
              [this, region, index] { SSRibbon_Click(region, index); });
      buttons_.Add(*button, [this, region, index] { return controls_.IsDown(region, index); });
    }
  }
}

void FrmREBA::AddChecks(RebaRegion region, PostureFrame& frame) {
  int index = 0;
  for (const RebaCheck& check : RebaFrameOf(region).checks) {
    QCheckBox* box = frame.AddCheck(ScreenText(check.objectName), check.caption);
    connect(box, &QCheckBox::clicked, this,
            [this, region, index](bool checked) { SSCheck_Click(region, index, checked); });
    buttons_.Add(*box, [this, region, index] { return controls_.IsChecked(region, index); });
    ++index;
  }
}

void FrmREBA::AddCouplings(PostureFrame& frame) {
  frame.SetOptionsInARow();
  int index = 0;
  for (const RebaCoupling& coupling : kRebaCouplings) {
    QRadioButton* option = frame.AddOption(ElementName("SSOption1", index), coupling.caption);
    option->setToolTip(ScreenText(coupling.toolTip));
    connect(option, &QRadioButton::clicked, this, [this, index] { SSOption1_Click(index); });
    buttons_.Add(*option, [this, index] { return controls_.coupling() == index; });
    ++index;
  }
}

void FrmREBA::AddLoads(PostureFrame& frame) {
  Combo2_ = new QComboBox(&frame);
  Combo2_->setObjectName("Combo2");
  KeepWheelOff(*Combo2_);
  Combo2_->setAccessibleName(frame.title());
  Combo2_->setToolTip(ScreenText(kRebaLoadToolTip));
  for (const std::string_view load : kRebaLoads) Combo2_->addItem(ScreenText(load));
  connect(Combo2_, &QComboBox::activated, this, &FrmREBA::Combo2_Click);
  frame.AddInput(Combo2_);
}

void FrmREBA::loadFromJob() {
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  controls_.Reset();
  controls_.Load();
  ShowControls();
}

void FrmREBA::ShowControls() {
  hand().ShowHand(controls_.hand());
  Combo2_->setCurrentIndex(controls_.loadLevel());
  buttons_.Show();
}

void FrmREBA::SSTab1_Click(int tab) {
  mnuEdit().setEnabled(tab == kReportTab);
  if (tab == kReportTab) ShowReport();
}

void FrmREBA::Text1_KeyUp() { identification().StoreJob(); }

void FrmREBA::SSOption5_Click(int index) {
  controls_.ChooseHand(index);
  ShowControls();
}

void FrmREBA::SSRibbon_Click(RebaRegion region, int index) {
  controls_.ClickRibbon(region, index);
  ShowControls();
}

void FrmREBA::SSCheck_Click(RebaRegion region, int index, bool checked) {
  controls_.SetCheck(region, index, checked);
  ShowControls();
}

void FrmREBA::SSOption1_Click(int index) {
  controls_.ChooseCoupling(index);
  ShowControls();
}

void FrmREBA::Combo2_Click(int index) {
  controls_.PickLoad(index);
  ShowControls();
}

void FrmREBA::writeReport(RichText& RichTextBox1) {
  REBA_Calculate();
  REBA_Report(RichTextBox1);
}

}  // namespace halvane
