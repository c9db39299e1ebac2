#include "tools/strain_index/frm_si.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/job_state.h"
#include "shell/hand_frame.h"
#include "tools/strain_index/si_score.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr int kReportTab = 1;
constexpr IdentificationNames kNames{{"Text1(6)"}, {"Text1(5)"}, {"Text1(4)"}, "SSOption5"};

// The indexes of the boxes with numbers.
constexpr int kExertionMinutes = 0;
constexpr int kDutyObservationMinutes = 1;
constexpr int kExertionCount = 2;
constexpr int kEffortObservationMinutes = 3;
constexpr int kDurationPerDay = 8;

QString NumberText(const TaggedField& field) { return QString::fromStdString(field.AsText()); }

}  // namespace

FrmSI::FrmSI(QWidget* parent) : ToolForm(Tool::StrainIndex, "frmSI", kNames, parent) {
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeInputTab(), " Task Information");
  SSTab1_->addTab(&RichTextBox1(), "Strain Index");
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
  column->addLayout(ratings, 1);
  return tab;
}

QWidget* FrmSI::MakeNumberFrames(QWidget* parent) {
  auto* frames = new QWidget(parent);
  auto* row = new QHBoxLayout(frames);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  const auto addFrame = [&](const QString& caption) {
    QGroupBox* box = MakeFrame(caption, frames).box;
    row->addWidget(box, 1);
    return box;
  };
  AddNumber(addFrame("Task Duration"), "Duration per Day (hour):", kDurationPerDay);
  QGroupBox* exertion = addFrame("Duration of Exertion");
  AddNumber(exertion, "Duration of all exertion (min.):", kExertionMinutes);
  AddNumber(exertion, "Total Observation time (min.):", kDutyObservationMinutes);
  QGroupBox* efforts = addFrame("Efforts per Minute");
  AddNumber(efforts, "Number of exertions:", kExertionCount);
  AddNumber(efforts, "Total Observation time (min.):", kEffortObservationMinutes);
  return frames;
}

void FrmSI::AddNumber(QWidget* frame, const QString& label, int index) {
  auto& grid = *qobject_cast<QGridLayout*>(frame->layout());
  TextBox* box = AddNumberRow(grid, label, ElementName("Text1", index));
  Text1_.at(static_cast<std::size_t>(index)) = box;
  connect(box, &TextBox::keyReleased, this, [this, index] { Text1_KeyUp(index); });
}

QWidget* FrmSI::MakeRibbonFrame(SiRibbonArray array, QWidget* parent) {
  const SiFrame& frame = SiFrameOf(array);
  const auto [box, grid] = MakeFrame(ScreenText(frame.caption), parent);
  // No gap between the columns, so that the pressed row is one band.
  grid->setHorizontalSpacing(0);
  grid->setVerticalSpacing(0);
  for (std::size_t c = 0; c < frame.columns.size(); ++c) {
    const SiColumn& column = frame.columns[c];
    const int gridColumn = static_cast<int>(c);
    auto* heading = new QLabel(ScreenText(column.heading), box);
    heading->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    heading->setWordWrap(true);
    heading->setContentsMargins(kGap / 2, 0, kGap / 2, 0);
    // Room for two lines everywhere, so that the rows of all frames stand level.
    heading->setMinimumHeight(2 * heading->fontMetrics().lineSpacing());
    grid->addWidget(heading, 0, gridColumn);
    // One ribbon of a column is down; the arrow keys move within it.
    auto* group = new QButtonGroup(box);
    for (int row = 0; row < kSiRatings; ++row) {
      const int index = gridColumn * kSiRatings + row;
      const QString caption = ScreenText(column.captions.at(static_cast<std::size_t>(row)));
      auto* ribbon =
          new RibbonButton(ElementName(ScreenText(frame.objectName), index), caption, box);
      ribbon->setAccessibleName(ScreenText(column.heading) + " " + caption);
      group->addButton(ribbon);
      grid->addWidget(ribbon, row + 1, gridColumn);
      grid->setRowStretch(row + 1, 1);
      connect(ribbon, &RibbonButton::clicked, this,
              [this, array, index] { SSRibbon_Click(array, index); });
      ribbons_.at(static_cast<std::size_t>(array)).push_back(ribbon);
    }
  }
  return box;
}

void FrmSI::loadFromJob() {
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  controls_.Reset();
  controls_.Load();
  const auto show = [this](int index, const TaggedField& field) {
    Text1_.at(static_cast<std::size_t>(index))->setText(NumberText(field));
  };
  show(kExertionMinutes, Module1.SiExertionMinutes);
  show(kDutyObservationMinutes, Module1.SiDutyObservationMinutes);
  show(kExertionCount, Module1.SiExertionCount);
  show(kEffortObservationMinutes, Module1.SiEffortObservationMinutes);
  show(kDurationPerDay, Module1.JobDurationPerDay);
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
  mnuEdit().setEnabled(tab == kReportTab);
  if (tab == kReportTab) ShowReport();
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
  Module1.JobDirty = kTrue;
  const TextBox& box = *Text1_.at(static_cast<std::size_t>(index));
  const double number = TypedNumber(box.text().toStdString());
  switch (index) {
    case kExertionMinutes: Module1.SiExertionMinutes = number; break;
    case kDutyObservationMinutes: Module1.SiDutyObservationMinutes = number; break;
    case kExertionCount: Module1.SiExertionCount = number; break;
    case kEffortObservationMinutes: Module1.SiEffortObservationMinutes = number; break;
    case kDurationPerDay: Module1.JobDurationPerDay = number; break;
    default: break;
  }
}

void FrmSI::writeReport(RichText& RichTextBox1) { SI_Calculate(RichTextBox1); }

}  // namespace halvane
