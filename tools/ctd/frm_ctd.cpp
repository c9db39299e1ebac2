#include "tools/ctd/frm_ctd.h"

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
#include "platform/platform.h"
#include "shell/hand_frame.h"
#include "tools/ctd/ctd_input.h"
#include "tools/ctd/ctd_report.h"
#include "tools/task_list/task_commands.h"
#include "tools/task_list/task_list_frame.h"
#include "tools/task_list/task_tree.h"
#include "widgets/choice_group.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/ribbon_page.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr IdentificationNames kNames{
    {"Text1(8)", "Label1(10)"}, {"Text1(7)", "Label1(9)"}, {"Text1(4)", "Label1(8)"}, "SSOption1"};
constexpr auto kPdaFile = "/me.pda";

std::string TextIn(const TextBox& box) { return box.text().toStdString(); }

void ShowNumber(TextBox& box, const NumberField& field, int task = 0) {
  box.setText(QString::fromStdString(NumberIn(field, task).AsText()));
}

}  // namespace

FrmCTD::FrmCTD(QWidget* parent) : ToolForm(Tool::Ctd, "frmCTD", kNames, parent) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  SSTab2_ = MakeTaskList();
  row->addWidget(SSTab2_, 1);
  SSTab1_ = new TabStrip("SSTab1", this);
  SSTab1_->addTab(MakeScrolling(MakeEffortTab(), SSTab1_), ScreenText(kCtdTabs[0]));
  SSTab1_->addTab(MakeScrolling(MakePostureTab(), SSTab1_), ScreenText(kCtdTabs[1]));
  SSTab1_->addTab(&RichTextBox1(), ScreenText(kCtdTabs[kCtdReportTab]));
  row->addWidget(SSTab1_, 4);
  body().addLayout(row);
  connect(SSTab1_, &TabStrip::tabClicked, this, &FrmCTD::SSTab1_Click);
}

QWidget* FrmCTD::MakeTaskList() {
  auto* frame = new TaskListFrame("SSTab2", kCtdTaskButtons, this);
  TreeView1_ = &frame->tree();
  connect(frame, &TaskListFrame::buttonClicked, this, &FrmCTD::SSCommand1_Click);
  connect(TreeView1_, &TaskTree::taskSelected, this, &FrmCTD::TreeView1_Select);
  connect(TreeView1_, &TaskTree::taskRenamed, this, &FrmCTD::TreeView1_AfterLabelEdit);
  return frame;
}

QWidget* FrmCTD::MakeEffortTab() {
  auto* tab = new RibbonPage(SSTab1_);
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
  const auto addFrame = [this, tab](QHBoxLayout& row, std::string_view caption) -> QGridLayout& {
    const auto [frame, grid] = MakeFrame(ScreenText(caption), tab);
    AddInputFrame(*frame);
    row.addWidget(frame);
    return *grid;
  };

  const auto addText1 = [this](QGridLayout& grid, int row, int index) {
    const QString label = ScreenText(CtdBoxAt(kCtdText1, index).label);
    AddText1(index, AddNumberAt(grid, row, 0, label, ElementName("Text1", index)));
  };

  QHBoxLayout& durations = *addRow();
  QGridLayout& job = addFrame(durations, kCtdJobCaption);
  AddText2(job, 0, 0, 0);
  AddText2(job, 1, 0, 1);
  AddText2(job, 1, 2, 2);
  QGridLayout& task = addFrame(durations, kCtdTaskCaption);
  addText1(task, 0, 2);
  addText1(task, 1, 3);

  QHBoxLayout& effort = *addRow();
  addText1(addFrame(effort, kCtdRepetitionCaption), 0, 5);
  QGridLayout& strength = addFrame(effort, kCtdStrengthCaption);
  Text5_ = AddNumberAt(strength, 0, 0, ScreenText(kCtdText5.label), "Text5");
  connect(Text5_, &TextBox::keyReleased, this, &FrmCTD::Text5_KeyUp);
  QGridLayout& span = addFrame(effort, kCtdSpanCaption);
  AddText1(6, AddNumberWithUnit(span, "Text1(6)", ScreenText(CtdBoxAt(kCtdText1, 6).label), "",
                                "Label2(1)"));
  Label2_ = span.parentWidget()->findChild<QLabel*>();
}

void FrmCTD::AddText1(int index, TextBox* box) {
  Text1_[index] = box;
  box->setReadOnly(CtdBoxAt(kCtdText1, index).isComputed);
  connect(box, &TextBox::keyReleased, this, [this, index] { Text1_KeyUp(index); });
}

void FrmCTD::AddText2(QGridLayout& grid, int row, int column, int index) {
  const CtdBox& number = CtdBoxAt(kCtdText2, index);
  TextBox* box =
      AddNumberAt(grid, row, column, ScreenText(number.label), ElementName("Text2", index));
  Text2_[index] = box;
  box->setReadOnly(number.isComputed);
  connect(box, &TextBox::keyReleased, this, [this, index] { Text2_KeyUp(index); });
}

RibbonButton* FrmCTD::AddRibbon(QGridLayout& grid, ChoiceGroup& group, std::string_view array,
                                const CtdRibbon& ribbon) {
  auto* button = new RibbonButton(ElementName(ScreenText(array), ribbon.index),
                                  ScreenText(ribbon.caption), grid.parentWidget());
  button->SetPicture(ScreenText(ribbon.picture));
  button->setToolTip(ScreenText(ribbon.caption));
  grid.addWidget(button, 0, static_cast<int>(group.buttons().size()), 2, 1);
  group.Add(*button);
  return button;
}

QGroupBox* FrmCTD::MakeGroup(CtdGroup group, QWidget* parent) {
  const CtdGroupRow& row = kCtdGroups[static_cast<std::size_t>(group)];
  const auto [frame, grid] = MakeFrame(ScreenText(row.caption), parent);
  AddInputFrame(*frame);
  grid->setContentsMargins(kGap / 2, kGap / 2, kGap / 2, kGap / 2);
  grid->setHorizontalSpacing(0);
  auto* buttons = new ChoiceGroup(Choice::One, frame);
  for (const CtdRibbon& ribbon : row.ribbons) {
    RibbonButton* button = AddRibbon(*grid, *buttons, row.objectName, ribbon);
    connect(button, &RibbonButton::clicked, this,
            [this, group, index = ribbon.index] { SSRibbon_Click(group, index); });
    ribbons_[static_cast<std::size_t>(group)][ribbon.index] = button;
  }
  return frame;
}

QWidget* FrmCTD::MakePostureTab() {
  auto* tab = new RibbonPage(SSTab1_);
  auto* grid = new QGridLayout(tab);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setSpacing(kGap);
  auto* parts = new QWidget(tab);
  parts->setObjectName("SSPanel2");
  auto* column = new QVBoxLayout(parts);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* group = new ChoiceGroup(Choice::One, parts);
  for (int part = 0; part < static_cast<int>(kCtdBodyParts.size()); ++part) {
    const CtdBodyPart& row = kCtdBodyParts[static_cast<std::size_t>(part)];
    auto* button = new RibbonButton(ElementName("SSRibbon3", part), ScreenText(row.caption), parts);
    button->SetPicture(ScreenText(row.picture));
    connect(button, &RibbonButton::clicked, this, [this, part] { SSRibbon3_Click(part); });
    column->addWidget(button);
    group->Add(*button);
    bodyParts_.Add(*button, [this, part] { return framesShown_ && part == controls_.bodyPart(); });
    SSRibbon3_[static_cast<std::size_t>(part)] = button;
  }
  column->addStretch(1);
  grid->addWidget(parts, 0, 0, kCtdSlotCount + 1, 1);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) grid->addWidget(MakeSlot(slot, tab), slot, 1);
  choosePart_ = new QLabel(ScreenText(kCtdChoosePart), tab);
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
  auto* buttons = new ChoiceGroup(Choice::One, frame);
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
  const auto addNumber = [&, box = frame](const CtdSlotBox& number) {
    const auto [inner, innerGrid] = MakeFrame(ScreenText(number.caption), box);
    numbers->addWidget(inner);
    return AddNumberWithUnit(*innerGrid, ElementName(ScreenText(number.objectName), stored),
                             inner->title(), ScreenText(number.unit));
  };
  if (stored != kCtdNeckSlot) {
    TextBox* box = addNumber(kCtdLoad);
    connect(box, &TextBox::keyReleased, this, [this, stored] { Text3_KeyUp(stored); });
    Text3_[stored] = box;
  }
  TextBox* box = addNumber(kCtdDuration);
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
  for (const CtdBox& number : kCtdText2) {
    if (!number.isComputed) ShowNumber(*Text2_.at(number.index), number.field);
  }
  // Computed when a key is released in one of the two above, not before.
  Text2_.at(2)->clear();
  hand().ShowHand(controls_.hand());
  Label2_->setText(ScreenText(CtdSpanUnit()));
  {
    const QSignalBlocker blocker(SSTab1_);
    SSTab1_->setCurrentIndex(0);
  }
  SSTab1_Click(0);
}

void FrmCTD::TreeView1_Select() { CTDshowTask(); }

void FrmCTD::TreeView1_AfterLabelEdit(int task, const QString& name) {
  TaskRenamed(task, name.toStdString());
}

void FrmCTD::SSCommand1_Click(int index) {
  TaskButtonPressed();
  switch (index) {
    case kAddTask:
      AddTask(AddTaskRecord());
      CTDshowTask();
      break;
    case kDeleteTask:
      // Without a selected node there is no key to read a number from.
      if (TreeView1_->isEmpty()) throw RuntimeFailure(FailureKind::InvalidCall);
      if (!TakeTaskToDelete(*TreeView1_, *this)) break;
      ToolBarDelete();
      CTDshowTask();
      break;
    case kEditTask: TreeView1_->EditSelected(); break;
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
    TaskShown(task);
    controls_.PressStoredRibbons();
    FillTaskBoxes(task);
    if (controls_.bodyPart() != CtdControls::kNoBodyPart) SSRibbon3_Click(controls_.bodyPart());
  });
  ShowRibbons();
}

void FrmCTD::FillTaskBoxes(int task) {
  for (const CtdBox& number : kCtdText1) ShowNumber(*Text1_.at(number.index), number.field, task);
  ShowNumber(*Text5_, kCtdText5.field, task);
}

void FrmCTD::ShowRibbons() {
  for (std::size_t group = 0; group < ribbons_.size(); ++group) {
    ribbons_[group].at(controls_.down(static_cast<CtdGroup>(group)))->setChecked(true);
  }
  for (std::size_t slot = 0; slot < categories_.size(); ++slot) {
    categories_[slot].at(controls_.category(static_cast<int>(slot)))->setChecked(true);
  }
  bodyParts_.Show();
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
  const bool isReport = tab == kCtdReportTab;
  if (isReport && !CtdEverHadTasks()) return;
  SSTab2_->setVisible(!isReport);
  if (isReport) {
    mnuEdit().setEnabled(true);
    ShowReport();
  } else {
    // Here and not with the first task, which is added while a tab is showing.
    ShowBodyParts(CtdEverHadTasks());
  }
  // The part stays remembered and comes back with the next task that is shown.
  ShowPostureFrames(false);
  ShowRibbons();
}

void FrmCTD::SSOption1_Click(int index) { controls_.ChooseHand(index); }

void FrmCTD::Text1_KeyUp(int index) {
  CtdTyped(CtdBoxAt(kCtdText1, index), TextIn(*Text1_.at(index)));
  ShowRestTime();
}

void FrmCTD::ShowRestTime() { Text1_.at(3)->setText(QString::fromStdString(CtdRestTimeText())); }

void FrmCTD::Text2_KeyUp(int index) {
  CtdTyped(CtdBoxAt(kCtdText2, index), TextIn(*Text2_.at(index)));
  Text2_.at(2)->setText(QString::fromStdString(CtdCyclesText()));
  ShowRestTime();
}

void FrmCTD::Text5_KeyUp() { CtdTyped(kCtdText5, TextIn(*Text5_)); }

void FrmCTD::SSRibbon_Click(CtdGroup group, int index) { controls_.PressRibbon(group, index); }

void FrmCTD::SSRibbon3_Click(int part) {
  controls_.PressBodyPart(part);
  ShowPostureFrames(true);
  ShowRibbons();
  const auto show = [](const std::map<int, TextBox*>& boxes, const CtdSlotBox& number, int slot) {
    boxes.at(slot)->setText(QString::fromStdString(CtdSlotText(number, slot)));
  };
  for (const int slot : kCtdBodyParts[static_cast<std::size_t>(part)].shownSlots) {
    if (slot != kCtdNeckSlot) show(Text3_, kCtdLoad, slot);
    show(Text4_, kCtdDuration, slot);
  }
}

void FrmCTD::SSctd_Click(int slot, int index) { controls_.PressCategory(slot, index); }

void FrmCTD::Text3_KeyUp(int slot) { CtdTyped(kCtdLoad, slot, TextIn(*Text3_.at(slot))); }

void FrmCTD::Text4_KeyUp(int slot) { CtdTyped(kCtdDuration, slot, TextIn(*Text4_.at(slot))); }

void FrmCTD::CTDcopyPdaFile() {
  Platform& platform = ThePlatform();
  const QString source = (platform.ProgramFolder() + kPdaFile).trimmed();
  const QString target = (platform.DataFolder() + kPdaFile).trimmed();
  const bool copied = platform.CopyFile(source, target);
  platform.ShowMessage(this, kProgramTitle, copied ? kFileCopied : kFileNotCopied, {Answer::Ok});
}

void FrmCTD::writeReport(RichText& RichTextBox1) { CtdComputeAndReport(RichTextBox1); }

void FrmCTD::printReport(RichText& RichTextBox1) { CTDprint(RichTextBox1); }

}  // namespace halvane
