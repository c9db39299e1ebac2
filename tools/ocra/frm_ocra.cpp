#include "tools/ocra/frm_ocra.h"

#include <QCheckBox>
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
#include "tools/task_list/task_commands.h"
#include "tools/task_list/task_list_frame.h"
#include "tools/task_list/task_tree.h"
#include "widgets/choice_group.h"
#include "widgets/drop_list.h"
#include "widgets/layout.h"
#include "widgets/pair_panel.h"
#include "widgets/readout.h"
#include "widgets/rich_text_box.h"
#include "widgets/slider_scale.h"
#include "widgets/spoken.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"
#include "widgets/wrap_row.h"
#include "widgets/wrapping_label.h"

namespace halvane {
namespace {

constexpr IdentificationNames kNames{
    {"Text3(0)", "Label1(11)"}, {"Text3(1)", "Label1(10)"}, {"Text3(2)", "Label1(9)"}, "SSOption1"};

/// The rows of lists share the height that is left over with the room below the tick boxes.
constexpr int kRoomBelowLists = 3;

QStringList ScreenTexts(std::span<const std::string_view> texts) {
  QStringList list;
  for (const std::string_view text : texts) list.append(ScreenText(text));
  return list;
}

QString NumberText(const NumberField& field, int task = 0) {
  return QString::fromStdString(NumberIn(field, task).AsText());
}

QSlider* MakeSlider(const QString& name, int pageStep, QWidget* parent) {
  auto* slider = new QSlider(parent);
  SetUpSlider(*slider, name, kOcraSliderEnd, pageStep);
  return slider;
}

}  // namespace

FrmOCRA::FrmOCRA(QWidget* parent) : ToolForm(Tool::Ocra, "frmOCRA", kNames, parent) {
  body().addWidget(MakeIdentification(this));
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeScrolling(MakeTaskTab(), SSTab1_), ScreenText(kOcraTabs[0]));
  SSTab1_->addTab(MakeScrolling(MakePostureTab(), SSTab1_), ScreenText(kOcraTabs[1]));
  SSTab1_->addTab(&RichTextBox1(), ScreenText(kOcraTabs[kOcraReportTab]));
  body().addWidget(SSTab1_, 1);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmOCRA::SSTab1_Click);
}

QWidget* FrmOCRA::MakeTaskTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addWidget(MakeJobFrame(tab));
  auto* tasks = new QWidget(tab);
  auto* row = new WrapRow(1, tasks);
  row->Add(MakeTaskList(tasks), 1);
  row->Add(MakeTaskNumbers(tasks), 0);
  column->addWidget(tasks, 1);
  QGroupBox* force = MakeForceFrame(tab);
  column->addWidget(force);
  taskFrames_.push_back(force);
  return tab;
}

QGroupBox* FrmOCRA::MakeJobFrame(QWidget* parent) {
  auto* panel = new QGroupBox(ScreenText(kOcraJobCaption), parent);
  panel->setObjectName("SSPanel1");
  auto* row = new WrapRow(1, panel);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  HandFrame* side = MakeHand(panel);
  side->setObjectName("SSFrame1(5)");

  const NumberFrame cycle = MakeNumberFrame(kOcraCycleTime, "Text2", panel);
  cycleTime_ = cycle.number;
  connect(cycleTime_, &TextBox::keyReleased, this, &FrmOCRA::Text2_KeyUp);

  const auto [recovery, grid] = MakeFrame(ScreenText(kOcraHoursCaption), panel);
  recovery->setObjectName("SSFrame1(0)");
  Slider2_ = MakeSlider("Slider2", 5, recovery);
  Slider2_->setAccessibleName(recovery->title());
  hours_ = new Readout("10", recovery);
  grid->addWidget(new SliderScale(Slider2_, ScreenTexts(kOcraHourMarks), {}, recovery), 0, 0);
  grid->addWidget(hours_, 0, 1);
  connect(Slider2_, &QSlider::valueChanged, this, &FrmOCRA::Slider2_Scroll);
  for (QGroupBox* frame : {static_cast<QGroupBox*>(side), cycle.frame, recovery}) {
    // All as high as the highest.
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    row->Add(frame, frame == recovery ? 1 : 0);
  }
  return panel;
}

FrmOCRA::NumberFrame FrmOCRA::MakeNumberFrame(const OcraBox& row, const QString& array,
                                              QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(row.caption), parent);
  frame->setObjectName(ScreenText(row.frameName));
  return {frame, AddNumberWithUnit(*grid, ElementName(array, row.index), frame->title().trimmed(),
                                   ScreenText(row.unit), ScreenText(row.unitName))};
}

QWidget* FrmOCRA::MakeTaskList(QWidget* parent) {
  auto* frame = new TaskListFrame("SSFrame2(0)", kOcraTaskButtons, parent);
  TreeView1_ = &frame->tree();
  connect(frame, &TaskListFrame::buttonClicked, this, &FrmOCRA::SSCommand1_Click);
  connect(TreeView1_, &TaskTree::taskSelected, this, &FrmOCRA::TreeView1_Select);
  connect(TreeView1_, &TaskTree::emptyPartClicked, this, &FrmOCRA::TreeView1_Click);
  connect(TreeView1_, &TaskTree::taskRenamed, this, &FrmOCRA::TreeView1_AfterLabelEdit);
  return frame;
}

QWidget* FrmOCRA::MakeTaskNumbers(QWidget* parent) {
  auto* numbers = new QWidget(parent);
  auto* column = new QVBoxLayout(numbers);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  for (const OcraBox& row : kOcraTaskBoxes) {
    const auto [frame, number] = MakeNumberFrame(row, "Text1", numbers);
    Text1_[row.index] = number;
    connect(number, &TextBox::keyReleased, this, [this, index = row.index] { Text1_KeyUp(index); });
    column->addWidget(frame);
    taskFrames_.push_back(frame);
  }
  column->addStretch(1);
  return numbers;
}

QGroupBox* FrmOCRA::MakeForceFrame(QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(kOcraForceCaption), parent);
  frame->setObjectName("SSFrame1(4)");
  Slider1_ = MakeSlider("Slider1", 2, frame);
  Slider1_->setAccessibleName(frame->title());
  QStringList ticks;
  QStringList words;
  for (const OcraForceMark& mark : kOcraForceMarks) {
    ticks.append(ScreenText(mark.tick));
    words.append(ScreenText(mark.word));
  }
  SetSpokenScale(*Slider1_, OcraRatingAt(1) - OcraRatingAt(0), words);
  grid->addWidget(new SliderScale(Slider1_, ticks, words, frame), 0, 0);
  rating_ = new Readout("0.0", frame);
  grid->addWidget(rating_, 0, 1, Qt::AlignTop);
  connect(Slider1_, &QSlider::valueChanged, this, &FrmOCRA::Slider1_Scroll);
  return frame;
}

QWidget* FrmOCRA::MakePostureTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* row = new WrapRow(1, tab);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  const LevelCell::Peers lines = LevelCell::MakePeers();
  const LevelCell::Peers ticks = LevelCell::MakePeers();
  for (const OcraFrame& frame : kOcraFrames) row->Add(MakeRegionFrame(frame, lines, ticks, tab), 1);
  return tab;
}

QGroupBox* FrmOCRA::MakeRegionFrame(const OcraFrame& region, const LevelCell::Peers& lines,
                                    const LevelCell::Peers& ticks, QWidget* parent) {
  auto* frame = new QGroupBox(ScreenText(region.caption), parent);
  frame->setObjectName(ScreenText(region.objectName));
  frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setVerticalSpacing(kGap / 2);
  int row = 0;
  for (const int list : region.lists) {
    const int pair = kOcraLists[static_cast<std::size_t>(list)].pair;
    // Behind this list and the next one.
    if (pair > list) grid->addWidget(new PairPanel(frame), row, 0, 2, 1);
    auto* cell = new LevelCell(lines);
    grid->addLayout(cell, row++, 0);
    cell->addWidget(MakeList(list, frame));
  }
  // As many rows in each frame, so that the boxes below stand level.
  while (row < kOcraMostLists) grid->addLayout(new LevelCell(lines), row++, 0);
  for (int i = 0; i < row; ++i) grid->setRowStretch(i, 1);
  auto* cell = new LevelCell(ticks);
  grid->addLayout(cell, row++, 0);
  cell->addWidget(MakeTicks(region, frame));
  grid->setRowStretch(row, kRoomBelowLists);
  return frame;
}

QGroupBox* FrmOCRA::MakeTicks(const OcraFrame& region, QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(kOcraTicksCaption), parent);
  auto* group = new ChoiceGroup(Choice::Any, frame);
  for (const int index : region.ticks) {
    const auto at = static_cast<std::size_t>(index);
    SSCheck1_[at] =
        AddWrappedCheck(*grid, ElementName("SSCheck1", index), ScreenText(kOcraTicks[at].caption));
    group->Add(*SSCheck1_[at]);
    connect(SSCheck1_[at], &QCheckBox::clicked, this,
            [this, index](bool ticked) { SSCheck1_Click(index, ticked); });
  }
  // Below what a frame with fewer boxes has.
  grid->setRowStretch(grid->rowCount(), 1);
  return frame;
}

QWidget* FrmOCRA::MakeList(int list, QWidget* parent) {
  const auto at = static_cast<std::size_t>(list);
  auto* line = new QWidget(parent);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(kGap, kGap / 4, kGap, kGap / 4);
  row->setSpacing(kGap);
  auto* caption = new WrappingLabel(ScreenText(kOcraLists[at].caption), line);
  auto* combo = new DropList(ElementName("Combo1", list), line);
  for (const std::string_view answer : kOcraAnswers) combo->addItem(ScreenText(answer));
  caption->setBuddy(combo);
  row->addWidget(caption, 1);
  row->addWidget(combo, 1);
  Combo1_[at] = combo;
  connect(combo, &QComboBox::activated, this,
          [this, list](int answer) { Combo1_Click(list, answer); });
  return line;
}

void FrmOCRA::loadFromJob() {
  ShowTaskFrames(true);
  EnableAllFrame();
  cycleTime_->setText(NumberText(kOcraCycleTime.field));
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  // A job without tasks fills none of these, and the form may have shown another job before.
  for (const auto& [index, box] : Text1_) box->clear();
  ShowRating(0);
  Slider1_->setToolTip(ScreenText(kOcraForceTip));
  controls_.Reset();
  controls_.Load();
  TreeView1_->Clear();
  for (const int task : ActiveTasks()) TreeView1_->AddNode(task);
  ShowControls();
  if (!TreeView1_->isEmpty()) {
    TreeView1_->SelectAt(0);
    OcraShowTask();
  }
  SSTab1_->setTabEnabled(kOcraReportTab, true);
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
  mnuEdit().setEnabled(tab == kOcraReportTab);
  if (tab == kOcraReportTab) ShowReport();
}

void FrmOCRA::SSOption1_Click(int index) { controls_.ChooseHand(index); }

void FrmOCRA::Text2_KeyUp() { NumberTyped(kOcraCycleTime.field, cycleTime_->text().toStdString()); }

void FrmOCRA::Slider2_Scroll(int hours) {
  OcraHoursMoved(hours);
  ShowHours(hours);
}

void FrmOCRA::TreeView1_Select() { OcraShowTask(); }

void FrmOCRA::TreeView1_Click() {
  if (OcraEverHadTasks()) OcraShowTask();
}

void FrmOCRA::TreeView1_AfterLabelEdit(int task, const QString& name) {
  TaskRenamed(task, name.toStdString());
}

void FrmOCRA::SSCommand1_Click(int index) {
  TaskButtonPressed();
  switch (index) {
    case kAddTask:
      // Before the task is there: what is being typed belongs to the one before, if any.
      TreeView1_->setFocus();
      AddTask(AddTaskRecord());
      OcraShowTask();
      break;
    case kDeleteTask:
      if (!TakeTaskToDelete(*TreeView1_, *this)) break;
      ToolBarDelete();
      OcraShowTask();
      break;
    case kEditTask: TreeView1_->EditSelected(); break;
    default: break;
  }
  EnableAllFrame();
}

void FrmOCRA::AddTask(int task) {
  TreeView1_->AddNode(task);
  TreeView1_->SelectAt(TreeView1_->topLevelItemCount() - 1);
  SSTab1_->setTabEnabled(kOcraReportTab, true);
}

void FrmOCRA::ToolBarDelete() {
  DeleteCurrentTask(*TreeView1_, *this);
  if (TreeView1_->isEmpty()) SSTab1_->setTabEnabled(kOcraReportTab, false);
}

void FrmOCRA::EnableAllFrame() {
  if (const std::optional<bool> shown = OcraShowsTaskFrames()) ShowTaskFrames(*shown);
}

void FrmOCRA::ShowTaskFrames(bool shown) {
  for (QGroupBox* frame : taskFrames_) frame->setVisible(shown);
}

void FrmOCRA::OcraShowTask() {
  const int task = TreeView1_->SelectedTask();
  ShowTaskFrames(true);
  if (task == TaskTree::kNoTask) return;
  TaskShown(task);
  for (const OcraBox& row : kOcraTaskBoxes) {
    Text1_.at(row.index)->setText(NumberText(row.field, task));
  }
  ShowRating(OcraSliderAt(Module1.OcraForceRating.at(task)));
}

void FrmOCRA::ShowHours(int hours) { hours_->setText(QString::fromStdString(PlainText(hours))); }

void FrmOCRA::ShowRating(int sliderValue) {
  const QSignalBlocker blocker(Slider1_);
  Slider1_->setValue(sliderValue);
  rating_->setText(QString::fromStdString(OcraRatingText(sliderValue)));
}

void FrmOCRA::Text1_KeyUp(int index) {
  NumberTyped(OcraTaskBoxAt(index).field, Text1_.at(index)->text().toStdString());
}

void FrmOCRA::Slider1_Scroll(int value) {
  ShowRating(OcraForceMoved(value));
  Slider1_->setToolTip(rating_->text());
}

void FrmOCRA::Combo1_Click(int list, int answer) {
  controls_.PickAnswer(list, answer);
  ShowControls();
}

void FrmOCRA::SSCheck1_Click(int index, bool ticked) { controls_.SetTick(index, ticked); }

void FrmOCRA::writeReport(RichText& RichTextBox1) { OcraComputeAndReport(RichTextBox1); }

}  // namespace halvane
