#include "tools/ocra/frm_ocra.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "core/job_state.h"
#include "core/task_list.h"
#include "shell/hand_frame.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"
#include "tools/task_list/task_commands.h"
#include "tools/task_list/task_list_frame.h"
#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/pair_panel.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"
#include "widgets/tick_labels.h"

namespace halvane {
namespace {

constexpr int kReportTab = 2;
constexpr IdentificationNames kNames{
    {"Text3(0)", "Label1(11)"}, {"Text3(1)", "Label1(10)"}, {"Text3(2)", "Label1(9)"}, "SSOption1"};
constexpr int kDurationBox = 2;
constexpr int kFrequencyBox = 5;

double NumberIn(const TextBox& box) { return TypedNumber(box.text().toStdString()); }

constexpr int kSliderEnd = 10;

QSlider* MakeSlider(const QString& name, int pageStep, QWidget* parent) {
  auto* slider = new QSlider(parent);
  SetUpSlider(*slider, name, kSliderEnd, pageStep);
  return slider;
}

}  // namespace

FrmOCRA::FrmOCRA(QWidget* parent) : ToolForm(Tool::Ocra, "frmOCRA", kNames, parent) {
  body().addWidget(MakeIdentification(this));
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeTaskTab(), "Repetitive Task Factors");
  SSTab1_->addTab(MakePostureTab(), "Arm Posture Factors");
  SSTab1_->addTab(&RichTextBox1(), "Estimated Risk");
  body().addWidget(SSTab1_, 1);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmOCRA::SSTab1_Click);
}

QWidget* FrmOCRA::MakeTaskTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* grid = new QGridLayout(tab);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setSpacing(kGap);
  grid->addWidget(MakeJobFrame(tab), 0, 0, 1, 2);
  grid->addWidget(MakeTaskList(tab), 1, 0);
  grid->addWidget(MakeTaskInputs(tab), 1, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 2);
  grid->setRowStretch(1, 1);
  return tab;
}

QGroupBox* FrmOCRA::MakeJobFrame(QWidget* parent) {
  const auto [panel, grid] = MakeFrame("Job Information", parent);
  panel->setObjectName("SSPanel1");
  HandFrame* side = MakeHand(panel);
  side->setObjectName("SSFrame1(5)");
  grid->addWidget(side, 0, 0);

  const auto [cycle, cycleGrid] = MakeFrame("Job Cycle Time", panel);
  cycle->setObjectName("SSFrame1(3)");
  cycleTime_ = AddNumberWithUnit(*cycleGrid, "Text2(1)", "Job Cycle Time", "min", "Label1(5)");
  connect(cycleTime_, &TextBox::keyReleased, this, &FrmOCRA::Text2_KeyUp);
  grid->addWidget(cycle, 0, 1);

  const auto [recovery, recoveryGrid] =
      MakeFrame("Number Of Hours Without Adequate Recovery", panel);
  recovery->setObjectName("SSFrame1(0)");
  Slider2_ = MakeSlider("Slider2", 5, recovery);
  Slider2_->setAccessibleName(recovery->title());
  hours_ = MakeReadout("10", recovery);
  recoveryGrid->addWidget(Slider2_, 0, 0);
  recoveryGrid->addWidget(
      new TickLabels(*Slider2_, {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}, {},
                     recovery),
      1, 0);
  recoveryGrid->addWidget(hours_, 0, 1);
  connect(Slider2_, &QSlider::valueChanged, this, &FrmOCRA::Slider2_Scroll);
  grid->addWidget(recovery, 0, 2);
  grid->setColumnStretch(2, 1);
  return panel;
}

QWidget* FrmOCRA::MakeTaskList(QWidget* parent) {
  static constexpr std::array<TaskButton, 3> kButtons{
      {{"&Add Task", ""}, {"&Delete Task", ""}, {"&Edit Task", ""}}};
  auto* frame = new TaskListFrame("SSFrame2(0)", kButtons, parent);
  TreeView1_ = &frame->tree();
  connect(frame, &TaskListFrame::buttonClicked, this, &FrmOCRA::SSCommand1_Click);
  connect(TreeView1_, &TaskTree::taskSelected, this, &FrmOCRA::TreeView1_Select);
  connect(TreeView1_, &TaskTree::emptyPartClicked, this, &FrmOCRA::TreeView1_Click);
  connect(TreeView1_, &TaskTree::taskRenamed, this, &FrmOCRA::TreeView1_AfterLabelEdit);
  return frame;
}

QWidget* FrmOCRA::MakeTaskInputs(QWidget* parent) {
  auto* inputs = new QWidget(parent);
  auto* grid = new QGridLayout(inputs);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);

  // The blank behind the caption is wanted.
  const auto [duration, durationGrid] = MakeFrame("Task Duration ", inputs);
  duration->setObjectName("SSFrame1(2)");
  duration_ = AddNumberWithUnit(*durationGrid, ElementName("Text1", kDurationBox), "Task Duration",
                                "total minutes per shift", "Label1(2)");
  connect(duration_, &TextBox::keyReleased, this, [this] { Text1_KeyUp(kDurationBox); });
  grid->addWidget(duration, 0, 0);

  const auto [frequency, frequencyGrid] = MakeFrame("Action Frequency", inputs);
  frequency->setObjectName("SSFrame1(1)");
  frequency_ = AddNumberWithUnit(*frequencyGrid, ElementName("Text1", kFrequencyBox),
                                 "Action Frequency", "no. of action per min", "Label2(5)");
  connect(frequency_, &TextBox::keyReleased, this, [this] { Text1_KeyUp(kFrequencyBox); });
  grid->addWidget(frequency, 0, 1);

  QGroupBox* force = MakeForceFrame(inputs);
  grid->addWidget(force, 1, 0, 1, 2);
  grid->setRowStretch(2, 1);
  taskFrames_ = {duration, frequency, force};
  return inputs;
}

QGroupBox* FrmOCRA::MakeForceFrame(QWidget* parent) {
  const auto [frame, grid] =
      MakeFrame("Rate Each Action According To The Following Force Level", parent);
  frame->setObjectName("SSFrame1(4)");
  Slider1_ = MakeSlider("Slider1", 2, frame);
  Slider1_->setAccessibleName(frame->title());
  QStringList ticks;
  QStringList words;
  for (const OcraForceMark& mark : kOcraForceMarks) {
    ticks.append(ScreenText(mark.tick));
    words.append(ScreenText(mark.word));
  }
  grid->addWidget(Slider1_, 0, 0);
  grid->addWidget(new TickLabels(*Slider1_, ticks, words, frame), 1, 0);
  rating_ = MakeReadout("0.0", frame);
  grid->addWidget(rating_, 0, 1);
  connect(Slider1_, &QSlider::valueChanged, this, &FrmOCRA::Slider1_Scroll);
  return frame;
}

QWidget* FrmOCRA::MakePostureTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* row = new QHBoxLayout(tab);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kGap);
  for (const OcraFrame& frame : kOcraFrames) row->addWidget(MakeRegionFrame(frame, tab), 1);
  return tab;
}

QGroupBox* FrmOCRA::MakeRegionFrame(const OcraFrame& region, QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(region.caption), parent);
  frame->setObjectName(ScreenText(region.objectName));
  int row = 0;
  for (const int list : region.lists) {
    const int pair = kOcraLists[static_cast<std::size_t>(list)].pair;
    if (pair == kOcraNoPair) {
      grid->addWidget(MakeList(list, frame), row++, 0);
    } else if (pair > list) {
      auto* panel = new PairPanel(frame);
      panel->layout()->addWidget(MakeList(list, panel));
      panel->layout()->addWidget(MakeList(pair, panel));
      grid->addWidget(panel, row++, 0);
    }
  }
  const auto [ticks, tickGrid] = MakeFrame("Lack of variation:", frame);
  for (const int index : region.ticks) {
    const auto at = static_cast<std::size_t>(index);
    SSCheck1_[at] = AddWrappedCheck(*tickGrid, ElementName("SSCheck1", index),
                                    ScreenText(kOcraTicks[at].caption));
    connect(SSCheck1_[at], &QCheckBox::clicked, this,
            [this, index](bool ticked) { SSCheck1_Click(index, ticked); });
  }
  grid->addWidget(ticks, row++, 0);
  grid->setRowStretch(row, 1);
  return frame;
}

QWidget* FrmOCRA::MakeList(int list, QWidget* parent) {
  const auto at = static_cast<std::size_t>(list);
  auto* line = new QWidget(parent);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  auto* combo = new QComboBox(line);
  combo->setObjectName(ElementName("Combo1", list));
  KeepWheelOff(*combo);
  for (const std::string_view answer : kOcraAnswers) combo->addItem(ScreenText(answer));
  auto* caption = new QLabel(ScreenText(kOcraLists[at].caption), line);
  caption->setBuddy(combo);
  caption->setWordWrap(true);
  row->addWidget(caption, 1);
  row->addWidget(combo);
  Combo1_[at] = combo;
  connect(combo, &QComboBox::activated, this,
          [this, list](int answer) { Combo1_Click(list, answer); });
  return line;
}

void FrmOCRA::loadFromJob() {
  ShowTaskFrames(true);
  EnableAllFrame();
  cycleTime_->setText(QString::fromStdString(PlainText(Module1.JobCycleTime)));
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  // A job without tasks fills none of these, and the form may have shown another job before.
  duration_->clear();
  frequency_->clear();
  ShowRating(0);
  Slider1_->setToolTip(" ");
  controls_.Reset();
  controls_.Load();
  TreeView1_->Clear();
  for (const int task : ActiveTasks()) TreeView1_->AddNode(task);
  ShowControls();
  if (!TreeView1_->isEmpty()) {
    TreeView1_->SelectAt(0);
    OcraShowTask();
  }
  SSTab1_->setTabEnabled(kReportTab, true);
}

void FrmOCRA::ShowControls() {
  hand().ShowHand(controls_.hand());
  for (int list = 0; list < kOcraListCount; ++list) {
    const QSignalBlocker blocker(Combo1_[static_cast<std::size_t>(list)]);
    Combo1_[static_cast<std::size_t>(list)]->setCurrentIndex(Module1.OcraComboChoice.at(list));
  }
  for (int i = 0; i < kOcraTickCount; ++i) {
    SSCheck1_[static_cast<std::size_t>(i)]->setChecked(controls_.IsTicked(i));
  }
  const int hours = OcraRecoverySliderAt(Module1.OcraRecoveryHours.AsDouble());
  const QSignalBlocker blocker(Slider2_);
  Slider2_->setValue(hours);
  ShowHours(hours);
}

void FrmOCRA::SSTab1_Click(int tab) {
  TreeView1_->FinishEdit();
  mnuEdit().setEnabled(tab == kReportTab);
  if (tab == kReportTab) ShowReport();
}

void FrmOCRA::SSOption1_Click(int index) { controls_.ChooseHand(index); }

void FrmOCRA::Text2_KeyUp() {
  Module1.JobDirty = kTrue;
  Module1.JobCycleTime = NumberIn(*cycleTime_);
}

void FrmOCRA::Slider2_Scroll(int hours) {
  Module1.JobDirty = kTrue;
  Module1.OcraRecoveryHours = static_cast<Integer>(hours);
  ShowHours(hours);
}

void FrmOCRA::TreeView1_Select() { OcraShowTask(); }

void FrmOCRA::TreeView1_Click() {
  if (Module1.TaskCount.AsDouble() > 0) OcraShowTask();
}

void FrmOCRA::TreeView1_AfterLabelEdit(int task, const QString& name) {
  RenameTask(*TreeView1_, task, name);
}

void FrmOCRA::SSCommand1_Click(int index) {
  Module1.JobDirty = kTrue;
  switch (index) {
    case 0:
      // Before the task is there: what is being typed belongs to the one before, if any.
      TreeView1_->setFocus();
      AddTask(AddTaskRecord());
      OcraShowTask();
      break;
    case 1:
      if (!TakeTaskToDelete(*TreeView1_, *this)) break;
      ToolBarDelete();
      OcraShowTask();
      break;
    case 2: TreeView1_->EditSelected(); break;
    default: break;
  }
  EnableAllFrame();
}

void FrmOCRA::AddTask(int task) {
  TreeView1_->AddNode(task);
  TreeView1_->SelectAt(TreeView1_->topLevelItemCount() - 1);
  SSTab1_->setTabEnabled(kReportTab, true);
}

void FrmOCRA::ToolBarDelete() {
  DeleteCurrentTask(*TreeView1_, *this);
  if (TreeView1_->isEmpty()) SSTab1_->setTabEnabled(kReportTab, false);
}

void FrmOCRA::EnableAllFrame() {
  // A job that never had a task leaves the frames as they were.
  if (Module1.TaskCount.AsDouble() > 0) ShowTaskFrames(AnyActiveTask());
}

void FrmOCRA::ShowTaskFrames(bool shown) {
  for (QGroupBox* frame : taskFrames_) frame->setVisible(shown);
}

void FrmOCRA::OcraShowTask() {
  const int task = TreeView1_->SelectedTask();
  ShowTaskFrames(true);
  if (task == TaskTree::kNoTask) return;
  Module1.CurrentTask = static_cast<Integer>(task);
  duration_->setText(QString::fromStdString(PlainText(Module1.OcraTaskDuration.at(task))));
  frequency_->setText(QString::fromStdString(Module1.OcraActionFrequency.at(task).AsText()));
  ShowRating(OcraSliderAt(Module1.OcraForceRating.at(task)));
}

void FrmOCRA::ShowHours(int hours) { hours_->setText(QString::fromStdString(PlainText(hours))); }

void FrmOCRA::ShowRating(int sliderValue) {
  const QSignalBlocker blocker(Slider1_);
  Slider1_->setValue(sliderValue);
  rating_->setText(QString::fromStdString(Format(sliderValue / 2.0, Pattern::OneDecimal)));
}

void FrmOCRA::Text1_KeyUp(int index) {
  Module1.JobDirty = kTrue;
  const std::optional<int> task = TaskOnScreen();
  if (!task) return;
  if (index == kDurationBox) Module1.OcraTaskDuration.at(*task) = NumberIn(*duration_);
  if (index == kFrequencyBox) Module1.OcraActionFrequency.at(*task) = NumberIn(*frequency_);
}

void FrmOCRA::Slider1_Scroll(int value) {
  Module1.JobDirty = kTrue;
  const std::optional<int> task = TaskOnScreen();
  if (task) Module1.OcraForceRating.at(*task) = OcraRatingAt(value);
  // Without a task there is nothing to rate.
  ShowRating(task ? value : 0);
  Slider1_->setToolTip(rating_->text());
}

void FrmOCRA::Combo1_Click(int list, int answer) {
  controls_.PickAnswer(list, answer);
  ShowControls();
}

void FrmOCRA::SSCheck1_Click(int index, bool ticked) { controls_.SetTick(index, ticked); }

void FrmOCRA::writeReport(RichText& RichTextBox1) {
  OcraScoreLists();
  OcraCalculate();
  OcraReport(RichTextBox1);
}

}  // namespace halvane
