#include "tools/ctd/frm_ctd.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/job_state.h"
#include "core/messages.h"
#include "core/silently.h"
#include "core/task_list.h"
#include "core/units.h"
#include "platform/platform.h"
#include "shell/hand_frame.h"
#include "tools/ctd/ctd_report.h"
#include "tools/ctd/ctd_score.h"
#include "tools/task_list/task_commands.h"
#include "tools/task_list/task_list_frame.h"
#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr int kReportTab = 2;
constexpr int kNeckSlot = 7;
constexpr IdentificationNames kNames{
    {"Text1(8)", "Label1(10)"}, {"Text1(7)", "Label1(9)"}, {"Text1(4)", "Label1(8)"}, "SSOption1"};
constexpr auto kPdaFile = "/me.pda";

bool HasTasks() { return Module1.TaskCount.AsDouble() != 0; }

double NumberIn(const TextBox& box) { return TypedNumber(box.text().toStdString()); }
QString NumberText(double number) { return QString::fromStdString(PlainText(number)); }
QString NumberText(const TaggedField& field) { return QString::fromStdString(field.AsText()); }
QString TwoDecimals(const TaggedField& field) {
  return QString::fromStdString(Format(field, Pattern::TwoDecimals));
}

}  // namespace

FrmCTD::FrmCTD(QWidget* parent) : ToolForm(Tool::Ctd, "frmCTD", kNames, parent) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  SSTab2_ = MakeTaskList();
  row->addWidget(SSTab2_, 1);
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeEffortTab(), "Force Freq. Factors");
  SSTab1_->addTab(MakePostureTab(), "Body Posture Factors");
  SSTab1_->addTab(&RichTextBox1(), "Grand Score");
  row->addWidget(SSTab1_, 4);
  body().addLayout(row);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmCTD::SSTab1_Click);
}

QWidget* FrmCTD::MakeTaskList() {
  static constexpr std::array<TaskButton, 3> kButtons{
      {{"&Add", "Add Task"}, {"&Delete", "Delete Task"}, {"&Edit", "Edit Task"}}};
  auto* frame = new TaskListFrame("SSTab2", kButtons, this);
  TreeView1_ = &frame->tree();
  connect(frame, &TaskListFrame::buttonClicked, this, &FrmCTD::SSCommand1_Click);
  connect(TreeView1_, &TaskTree::taskSelected, this, &FrmCTD::TreeView1_Select);
  connect(TreeView1_, &TaskTree::taskRenamed, this, &FrmCTD::TreeView1_AfterLabelEdit);
  return frame;
}

QWidget* FrmCTD::MakeEffortTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addWidget(MakeIdentificationWithHand(tab));
  AddInputFrame(hand());
  MakeNumberFrames(*column);
  const auto addGroups = [&](CtdGroup left, CtdGroup right) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (const CtdGroup group : {left, right}) {
      const auto ribbons = kCtdGroups[static_cast<std::size_t>(group)].ribbons.size();
      row->addWidget(MakeGroup(group, tab), static_cast<int>(ribbons));
    }
    column->addLayout(row);
  };
  addGroups(CtdGroup::Grip, CtdGroup::Wrist);
  addGroups(CtdGroup::RadialUlnar, CtdGroup::FlexionExtension);
  column->addStretch(1);
  return tab;
}

void FrmCTD::AddInputFrame(QGroupBox& frame) {
  frame.setObjectName(ElementName("SSFrame1", static_cast<int>(SSFrame1_.size())));
  SSFrame1_.push_back(&frame);
}

void FrmCTD::MakeNumberFrames(QVBoxLayout& column) {
  QWidget* const tab = column.parentWidget();
  const auto addRow = [&column] {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    column.addLayout(row);
    return row;
  };
  const auto addFrame = [this, tab](QHBoxLayout& row, const QString& caption) -> QGridLayout& {
    const auto [frame, grid] = MakeFrame(caption, tab);
    AddInputFrame(*frame);
    row.addWidget(frame);
    return *grid;
  };

  QHBoxLayout& durations = *addRow();
  QGridLayout& job = addFrame(durations, "Job Duration");
  AddText2(0, AddNumberAt(job, 0, 0, "Hours Worked per Shift:", "Text2(0)"));
  AddText2(1, AddNumberAt(job, 1, 0, "Job Cycle Time (min):", "Text2(1)"));
  AddText2(2, AddNumberAt(job, 1, 2, "No. Of Cycles:", "Text2(2)"));
  QGridLayout& task = addFrame(durations, "Task Duration (per Cycle Time)");
  AddText1(2, AddNumberAt(task, 0, 0, "Work Time (min):", "Text1(2)"));
  AddText1(3, AddNumberAt(task, 1, 0, "Rest Time (min):", "Text1(3)"));
  // Computed, not typed.
  Text1_.at(3)->setReadOnly(true);
  Text2_.at(2)->setReadOnly(true);

  QHBoxLayout& effort = *addRow();
  QGridLayout& repetition = addFrame(effort, "Repetition");
  AddText1(5, AddNumberAt(repetition, 0, 0, "No. Of Rep.", "Text1(5)"));
  QGridLayout& strength = addFrame(effort, "Strength Data:");
  Text5_ = AddNumberAt(strength, 0, 0, "MVC % Required:", "Text5");
  connect(Text5_, &TextBox::keyReleased, this, &FrmCTD::Text5_KeyUp);
  QGridLayout& span = addFrame(effort, "Hand Span");
  AddText1(6, AddNumberWithUnit(span, "Text1(6)", "Hand Span", "", "Label2(1)"));
  Label2_ = span.parentWidget()->findChild<QLabel*>();
}

void FrmCTD::AddText1(int index, TextBox* box) {
  Text1_[index] = box;
  connect(box, &TextBox::keyReleased, this, [this, index] { Text1_KeyUp(index); });
}

void FrmCTD::AddText2(int index, TextBox* box) {
  Text2_[index] = box;
  connect(box, &TextBox::keyReleased, this, [this, index] { Text2_KeyUp(index); });
}

RibbonButton* FrmCTD::AddRibbon(QGridLayout& grid, QButtonGroup& group, std::string_view array,
                                const CtdRibbon& ribbon) {
  auto* button = new RibbonButton(ElementName(ScreenText(array), ribbon.index),
                                  ScreenText(ribbon.caption), grid.parentWidget());
  button->SetPicture(ScreenText(ribbon.picture));
  button->setToolTip(ScreenText(ribbon.caption));
  grid.addWidget(button, 0, static_cast<int>(group.buttons().size()), 2, 1);
  group.addButton(button);
  return button;
}

QGroupBox* FrmCTD::MakeGroup(CtdGroup group, QWidget* parent) {
  const CtdGroupRow& row = kCtdGroups[static_cast<std::size_t>(group)];
  const auto [frame, grid] = MakeFrame(ScreenText(row.caption), parent);
  AddInputFrame(*frame);
  grid->setContentsMargins(kGap / 2, kGap / 2, kGap / 2, kGap / 2);
  grid->setHorizontalSpacing(0);
  auto* buttons = new QButtonGroup(frame);
  for (const CtdRibbon& ribbon : row.ribbons) {
    RibbonButton* button = AddRibbon(*grid, *buttons, row.objectName, ribbon);
    connect(button, &RibbonButton::clicked, this,
            [this, group, index = ribbon.index] { SSRibbon_Click(group, index); });
    ribbons_[static_cast<std::size_t>(group)][ribbon.index] = button;
  }
  return frame;
}

QWidget* FrmCTD::MakePostureTab() {
  auto* tab = new QWidget(SSTab1_);
  auto* grid = new QGridLayout(tab);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setSpacing(kGap);
  auto* parts = new QWidget(tab);
  parts->setObjectName("SSPanel2");
  auto* column = new QVBoxLayout(parts);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (int part = 0; part < static_cast<int>(kCtdBodyParts.size()); ++part) {
    const CtdBodyPart& row = kCtdBodyParts[static_cast<std::size_t>(part)];
    auto* button = new RibbonButton(ElementName("SSRibbon3", part), ScreenText(row.caption), parts);
    button->SetPicture(ScreenText(row.picture));
    connect(button, &RibbonButton::clicked, this, [this, part] { SSRibbon3_Click(part); });
    column->addWidget(button);
    SSRibbon3_[static_cast<std::size_t>(part)] = button;
  }
  column->addStretch(1);
  grid->addWidget(parts, 0, 0, kCtdSlotCount + 1, 1);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) grid->addWidget(MakeSlot(slot, tab), slot, 1);
  choosePart_ = new QLabel("Choose a body part", tab);
  choosePart_->setForegroundRole(QPalette::PlaceholderText);
  choosePart_->setAlignment(Qt::AlignCenter);
  grid->addWidget(choosePart_, kCtdSlotCount, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(kCtdSlotCount, 1);
  return tab;
}

QGroupBox* FrmCTD::MakeSlot(int slot, QWidget* parent) {
  const CtdSlot& row = kCtdSlots[static_cast<std::size_t>(slot)];
  const auto [frame, grid] = MakeFrame(ScreenText(row.frameCaption), parent);
  frame->setObjectName(ElementName("SSFrame3", row.frameSlot));
  SSFrame3_[static_cast<std::size_t>(row.frameSlot)] = frame;
  grid->setHorizontalSpacing(0);
  auto* buttons = new QButtonGroup(frame);
  for (const CtdRibbon& ribbon : row.categories) {
    RibbonButton* button = AddRibbon(*grid, *buttons, row.objectName, ribbon);
    connect(button, &RibbonButton::clicked, this,
            [this, slot, index = ribbon.index] { SSctd_Click(slot, index); });
    categories_[static_cast<std::size_t>(slot)][ribbon.index] = button;
  }
  // The boxes carry the number of the slot that they are stored in, which on the shoulders is the
  // other side's.
  auto* numbers = new QVBoxLayout;
  numbers->setContentsMargins(kGap, 0, 0, 0);
  numbers->setSpacing(kGap / 2);
  grid->addLayout(numbers, 0, static_cast<int>(row.categories.size()), 2, 1);
  const int stored = row.frameSlot;
  const auto addNumber = [&, box = frame](const QString& caption, const QString& array,
                                          const QString& unit) {
    const auto [inner, innerGrid] = MakeFrame(caption, box);
    numbers->addWidget(inner);
    return AddNumberWithUnit(*innerGrid, ElementName(array, stored), caption, unit);
  };
  // The neck carries no load.
  if (stored != kNeckSlot) {
    TextBox* box = addNumber("Load Held", "Text3", "kg");
    connect(box, &TextBox::keyReleased, this, [this, stored] { Text3_KeyUp(stored); });
    Text3_[stored] = box;
  }
  TextBox* box = addNumber("Duration Posture Held", "Text4", "min");
  connect(box, &TextBox::keyReleased, this, [this, stored] { Text4_KeyUp(stored); });
  Text4_[stored] = box;
  return frame;
}

void FrmCTD::loadFromJob() {
  controls_.Reset();
  TreeView1_->Clear();
  EnableAllFrame();
  for (const auto& [index, box] : Text1_) box->clear();
  Text5_->clear();
  controls_.Load([this](int task) { FillTaskBoxes(task); });
  const std::vector<int> tasks = ActiveTasks();
  for (const int task : tasks) TreeView1_->AddNode(task);
  if (!tasks.empty()) TreeView1_->SelectAt(static_cast<int>(tasks.size()) - 1);
  Text2_.at(0)->setText(NumberText(Module1.JobDurationPerDay));
  Text2_.at(1)->setText(NumberText(Module1.JobCycleTime));
  // Computed when a key is released in one of the two above, not before.
  Text2_.at(2)->clear();
  hand().ShowHand(controls_.hand());
  Label2_->setText(Module1.Units == static_cast<Integer>(LengthUnit::English) ? "in" : "cm");
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  SSTab1_Click(0);
}

void FrmCTD::TreeView1_Select() { CTDshowTask(); }

void FrmCTD::TreeView1_AfterLabelEdit(int task, const QString& name) {
  RenameTask(*TreeView1_, task, name);
}

void FrmCTD::SSCommand1_Click(int index) {
  Module1.JobDirty = kTrue;
  switch (index) {
    case 0:
      AddTask(AddTaskRecord());
      CTDshowTask();
      break;
    case 1:
      // Without a selected node there is no key to read a number from.
      if (TreeView1_->isEmpty()) throw RuntimeFailure(FailureKind::InvalidCall);
      if (!TakeTaskToDelete(*TreeView1_, *this)) break;
      ToolBarDelete();
      CTDshowTask();
      break;
    case 2: TreeView1_->EditSelected(); break;
    default: break;
  }
  EnableAllFrame();
}

void FrmCTD::AddTask(int task) {
  TreeView1_->AddNode(task);
  TreeView1_->SelectAt(TreeView1_->topLevelItemCount() - 1);
}

void FrmCTD::ToolBarDelete() { DeleteCurrentTask(*TreeView1_, *this); }

void FrmCTD::EnableAllFrame() {
  const bool any = AnyActiveTask();
  for (QGroupBox* frame : SSFrame1_) frame->setEnabled(any);
}

void FrmCTD::CTDshowTask() {
  // What fails on the way leaves the rest as the last task had it.
  Silently([this] {
    const int task = TreeView1_->SelectedTask();
    if (task == TaskTree::kNoTask) return;
    Module1.CurrentTask = static_cast<Integer>(task);
    controls_.PressStoredRibbons();
    FillTaskBoxes(task);
    if (controls_.bodyPart() != CtdControls::kNoBodyPart) SSRibbon3_Click(controls_.bodyPart());
  });
  ShowRibbons();
}

void FrmCTD::FillTaskBoxes(int task) {
  Text1_.at(2)->setText(NumberText(Module1.CtdWorkTime.at(task)));
  Text1_.at(3)->setText(NumberText(Module1.CtdRestTime.at(task)));
  Text1_.at(5)->setText(NumberText(Module1.CtdRepetitions.at(task)));
  Text1_.at(6)->setText(NumberText(Module1.CtdHandSpan.at(task)));
  Text5_->setText(NumberText(Module1.CtdForceMvc.at(task)));
}

void FrmCTD::ShowRibbons() {
  for (std::size_t group = 0; group < ribbons_.size(); ++group) {
    ribbons_[group].at(controls_.down(static_cast<CtdGroup>(group)))->setChecked(true);
  }
  for (std::size_t slot = 0; slot < categories_.size(); ++slot) {
    categories_[slot].at(controls_.category(static_cast<int>(slot)))->setChecked(true);
  }
  for (std::size_t part = 0; part < SSRibbon3_.size(); ++part) {
    SSRibbon3_[part]->setChecked(framesShown_ && static_cast<int>(part) == controls_.bodyPart());
  }
  choosePart_->setVisible(partsShown_ && !framesShown_);
}

void FrmCTD::ShowBodyParts(bool shown) {
  partsShown_ = shown;
  for (RibbonButton* part : SSRibbon3_) part->setVisible(shown);
}

void FrmCTD::ShowPostureFrames(bool shown) {
  framesShown_ = shown;
  for (QGroupBox* frame : SSFrame3_) frame->hide();
  if (!shown) return;
  const auto& part = kCtdBodyParts[static_cast<std::size_t>(controls_.bodyPart())];
  for (const int slot : part.shownSlots) SSFrame3_[static_cast<std::size_t>(slot)]->show();
}

void FrmCTD::SSTab1_Click(int tab) {
  TreeView1_->FinishEdit();
  const bool isReport = tab == kReportTab;
  if (isReport && !HasTasks()) return;
  SSTab2_->setVisible(!isReport);
  if (isReport) {
    mnuEdit().setEnabled(true);
    ShowReport();
  } else {
    // Here and not with the first task, which is added while a tab is showing.
    ShowBodyParts(HasTasks());
  }
  // The part stays remembered and comes back with the next task that is shown.
  ShowPostureFrames(false);
  ShowRibbons();
}

void FrmCTD::SSOption1_Click(int index) { controls_.ChooseHand(index); }

void FrmCTD::Text1_KeyUp(int index) {
  Module1.JobDirty = kTrue;
  const double number = NumberIn(*Text1_.at(index));
  if (const std::optional<int> task = TaskOnScreen()) {
    switch (index) {
      case 2: Module1.CtdWorkTime.at(*task) = number; break;
      case 5: Module1.CtdRepetitions.at(*task) = number; break;
      case 6: Module1.CtdHandSpan.at(*task) = number; break;
      default: break;
    }
  }
  ShowRestTime();
}

void FrmCTD::ShowRestTime() {
  const std::optional<int> task = TaskOnScreen();
  if (task) ComputeCtdRestTime(*task);
  Text1_.at(3)->setText(TwoDecimals(task ? Module1.CtdRestTime.at(*task) : Integer{0}));
}

void FrmCTD::Text2_KeyUp(int index) {
  Module1.JobDirty = kTrue;
  const double number = NumberIn(*Text2_.at(index));
  if (index == 0) Module1.JobDurationPerDay = number;
  if (index == 1) Module1.JobCycleTime = number;
  const bool counted = Module1.JobCycleTime > 0;
  const double cycles = ComputeCtdCyclesPerShift();
  Text2_.at(2)->setText(counted ? TwoDecimals(cycles) : "0");
  ShowRestTime();
}

void FrmCTD::Text5_KeyUp() {
  Module1.JobDirty = kTrue;
  if (const std::optional<int> task = TaskOnScreen()) {
    Module1.CtdForceMvc.at(*task) = NumberIn(*Text5_);
  }
}

void FrmCTD::SSRibbon_Click(CtdGroup group, int index) { controls_.PressRibbon(group, index); }

void FrmCTD::SSRibbon3_Click(int part) {
  controls_.PressBodyPart(part);
  ShowPostureFrames(true);
  ShowRibbons();
  const std::optional<int> task = TaskOnScreen();
  const auto show = [task](TextBox& box, const auto& numbers, int slot) {
    box.setText(task ? NumberText(numbers.at(*task, slot)) : QString());
  };
  for (const int slot : kCtdBodyParts[static_cast<std::size_t>(part)].shownSlots) {
    if (slot != kNeckSlot) show(*Text3_.at(slot), Module1.CtdLoadHeld, slot);
    show(*Text4_.at(slot), Module1.CtdPostureDuration, slot);
  }
}

void FrmCTD::SSctd_Click(int slot, int index) { controls_.PressCategory(slot, index); }

void FrmCTD::Text3_KeyUp(int slot) {
  Module1.JobDirty = kTrue;
  const std::optional<int> task = TaskOnScreen();
  if (task) Module1.CtdLoadHeld.at(*task, slot) = NumberIn(*Text3_.at(slot));
}

void FrmCTD::Text4_KeyUp(int slot) {
  Module1.JobDirty = kTrue;
  const std::optional<int> task = TaskOnScreen();
  if (task) Module1.CtdPostureDuration.at(*task, slot) = NumberIn(*Text4_.at(slot));
}

void FrmCTD::CTDcopyPdaFile() {
  Platform& platform = ThePlatform();
  const QString source = (platform.ProgramFolder() + kPdaFile).trimmed();
  const QString target = (platform.DataFolder() + kPdaFile).trimmed();
  const bool copied = platform.CopyFile(source, target);
  platform.ShowMessage(this, kProgramTitle, copied ? kFileCopied : kFileNotCopied, {Answer::Ok});
}

void FrmCTD::writeReport(RichText& RichTextBox1) {
  CTDcalculate();
  CTDprint(RichTextBox1);
}

void FrmCTD::printReport(RichText& RichTextBox1) { CTDprint(RichTextBox1); }

}  // namespace halvane
