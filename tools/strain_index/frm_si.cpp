#include "tools/strain_index/frm_si.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/hand_frame.h"
#include "tools/strain_index/si_score.h"
#include "widgets/choice_group.h"
#include "widgets/heading_label.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

/// Lines of a heading.
constexpr int kHeadingLines = 2;
/// Logical pixels up to which the rows and columns of ribbons grow.
constexpr int kLargestRow = 112;
constexpr int kLargestColumn = 240;
constexpr IdentificationNames kNames{{"Text1(6)"}, {"Text1(5)"}, {"Text1(4)"}, "SSOption5"};

}  // namespace

FrmSI::FrmSI(QWidget* parent) : ToolForm(Tool::StrainIndex, "frmSI", kNames, parent) {
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeScrolling(MakeInputTab(), SSTab1_), ScreenText(kSiTabs[0]));
  SSTab1_->addTab(&RichTextBox1(), ScreenText(kSiTabs[kSiReportTab]));
  body().addWidget(SSTab1_);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmSI::SSTab1_Click);
}

QWidget* FrmSI::MakeInputTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addWidget(MakeIdentificationWithHand(tab));
  column->addWidget(MakeNumberFrames(tab));
  auto* ratings = new QHBoxLayout;
  ratings->setSpacing(kGap);
  for (const SiRibbonArray array : kSiRibbonArrays) {
    const auto columns = static_cast<int>(SiFrameOf(array).columns.size());
    ratings->addWidget(MakeRibbonFrame(array, tab), columns);
  }
  KeepRowsLevel();
  column->addLayout(ratings);
  column->addStretch(1);
  return tab;
}

QWidget* FrmSI::MakeNumberFrames(QWidget* parent) {
  auto* frames = new QWidget(parent);
  auto* row = new QHBoxLayout(frames);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  for (const SiNumberFrame& frame : kSiNumberFrames) {
    const auto [box, grid] = MakeFrame(ScreenText(frame.caption), frames);
    row->addWidget(box, 1);
    for (const SiBox& number : frame.boxes) {
      const int index = number.index;
      Text1_[index] = AddNumberRow(*grid, ScreenText(number.label), ElementName("Text1", index));
      connect(Text1_[index], &TextBox::keyReleased, this, [this, index] { Text1_KeyUp(index); });
    }
    KeepLeft(*grid);
  }
  return frames;
}

QWidget* FrmSI::MakeRibbonFrame(SiRibbonArray array, QWidget* parent) {
  const SiFrame& frame = SiFrameOf(array);
  const auto [box, grid] = MakeFrame(ScreenText(frame.caption), parent);
  box->setMaximumWidth(static_cast<int>(frame.columns.size()) * kLargestColumn + 2 * kMargin);
  // No gap between the columns, so that the pressed row is one band.
  grid->setHorizontalSpacing(0);
  grid->setVerticalSpacing(0);
  for (std::size_t c = 0; c < frame.columns.size(); ++c) {
    const SiColumn& column = frame.columns[c];
    const int gridColumn = static_cast<int>(c);
    auto* heading = new HeadingLabel(ScreenText(column.heading), kHeadingLines, box);
    heading->setContentsMargins(kGap / 2, 0, kGap / 2, 0);
    grid->addWidget(heading, 0, gridColumn);
    // One ribbon of a column is down; the arrow keys move within it.
    auto* group = new ChoiceGroup(Choice::One, box);
    for (int row = 0; row < kSiRatings; ++row) {
      const int index = gridColumn * kSiRatings + row;
      const QString caption = ScreenText(column.captions.at(static_cast<std::size_t>(row)));
      auto* ribbon =
          new RibbonButton(ElementName(ScreenText(frame.objectName), index), caption, box);
      ribbon->SetLargestHeight(kLargestRow);
      ribbon->setAccessibleName(ScreenText(column.heading) + ", " + caption);
      group->Add(*ribbon);
      grid->addWidget(ribbon, row + 1, gridColumn);
      connect(ribbon, &RibbonButton::clicked, this,
              [this, array, index] { SSRibbon_Click(array, index); });
      ribbons_.at(static_cast<std::size_t>(array)).push_back(ribbon);
    }
  }
  return box;
}

void FrmSI::KeepRowsLevel() {
  for (const auto& ribbons : ribbons_) {
    for (RibbonButton* ribbon : ribbons) {
      for (const auto& others : ribbons_) {
        for (std::size_t first = 0; first < others.size(); first += kSiRatings) {
          ribbon->StandLevelWith(*others[first]);
        }
      }
    }
  }
}

void FrmSI::loadFromJob() {
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  controls_.Reset();
  controls_.Load();
  for (const auto& [index, box] : Text1_) {
    box->setText(QString::fromStdString(NumberIn(SiBoxAt(index).field).AsText()));
  }
  ShowControls();
}

void FrmSI::ShowControls() {
  hand().ShowHand(controls_.hand());
  for (const SiRibbonArray array : kSiRibbonArrays) {
    const auto& ribbons = ribbons_.at(static_cast<std::size_t>(array));
    for (std::size_t i = 0; i < ribbons.size(); ++i) {
      const QSignalBlocker blocker(ribbons[i]);
      // The group lets the ribbon above it up.
      if (controls_.IsDown(array, static_cast<int>(i))) ribbons[i]->setChecked(true);
    }
  }
}

void FrmSI::SSTab1_Click(int tab) {
  mnuEdit().setEnabled(tab == kSiReportTab);
  if (tab == kSiReportTab) ShowReport();
}

void FrmSI::SSOption5_Click(int index) {
  controls_.ChooseHand(index);
  ShowControls();
}

void FrmSI::SSRibbon_Click(SiRibbonArray array, int index) {
  controls_.PressRibbon(array, index);
  ShowControls();
}

void FrmSI::Text1_KeyUp(int index) {
  NumberTyped(SiBoxAt(index).field, Text1_.at(index)->text().toStdString());
}

void FrmSI::writeReport(RichText& RichTextBox1) { SI_Calculate(RichTextBox1); }

}  // namespace halvane
