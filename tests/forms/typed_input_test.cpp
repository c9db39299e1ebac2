// What is typed and clicked on the tools in the situations of every day: a second job, no task at
// all, a slip of the finger, a very long name.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "app/tool_forms.h"
#include "core/task_list.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/task_list/task_tree.h"
#include "tools/tool_table.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

const QString kFirstText = "Zoe";

class TypedInput : public ShellTest {
 protected:
  /// A new form of a tool, loaded from the job and active.
  ToolForm& Show(Tool tool) {
    form_ = MakeToolForm(tool, nullptr);
    form_->load();
    ShowActive(*form_);
    return *form_;
  }

  /// A job with one task, then the empty one that New makes; `CurrentTask` is left over.
  ToolForm& ShowSecondJob(Tool tool) {
    AddTaskRecord();
    Show(tool);
    Choose(*form_, "mnuFileNew");
    EXPECT_EQ(form_->result(), ToolForm::Reload);
    form_->load();
    ShowActive(*form_);
    Module1.JobDirty = kFalse;
    return *form_;
  }

  void Type(const QString& box, const QString& text) const {
    auto& line = Find<QLineEdit>(*form_, box);
    ASSERT_TRUE(line.isEnabled()) << box.toStdString();
    line.selectAll();
    QTest::keyClicks(&line, text);
  }

  void OpenTab(int tab) const {
    QTabBar& bar = *Find<QTabWidget>(*form_, "SSTab1").tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
  }

  std::unique_ptr<ToolForm> form_;
};

TEST_F(TypedInput, SecondJobOnOcraStoresTheJobsFieldsAndNothingOfATask) {
  ToolForm& form = ShowSecondJob(Tool::Ocra);
  Type("Text3(0)", kFirstText);
  Type("Text2(1)", "0.5");
  Type("Text1(2)", "480");
  Type("Text1(5)", "30");
  Find<QSlider>(form, "Slider1").setValue(4);
  Find<QSlider>(form, "Slider2").setValue(3);
  JobState expected;
  expected.CurrentTask = Integer{1};
  expected.JobDirty = kTrue;
  expected.JobAnalyst = kFirstText.toStdString();
  expected.JobCycleTime = 0.5;
  expected.OcraRecoveryHours = Integer{3};
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Find<QSlider>(form, "Slider1").value(), 0) << "nothing is rated";
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(TypedInput, SecondJobOnCtdStoresTheJobsFieldsAndNothingOfATask) {
  ToolForm& form = ShowSecondJob(Tool::Ctd);
  Type("Text1(8)", kFirstText);
  Type("Text1(7)", "Packing");
  Type("Text1(4)", "W7");
  EXPECT_EQ(Find<QLineEdit>(form, "Text1(3)").text(), "0.00");
  JobState expected;
  expected.CurrentTask = Integer{1};
  expected.JobDirty = kTrue;
  expected.JobAnalyst = kFirstText.toStdString();
  expected.JobName = "Packing";
  expected.JobWorkstationId = "W7";
  EXPECT_TRUE(Module1 == expected);
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(TypedInput, PosturesWithoutATaskAreNobodys) {
  AddTaskRecord();
  Module1.CtdLoadHeld.at(1, 0) = 7;
  ToolForm& form = Show(Tool::Ctd);
  platform.WillAnswer(Answer::Yes);
  QTest::mouseClick(&Find<QWidget>(form, "SSCommand1(1)"), Qt::LeftButton);
  // Another job has left its number.
  Module1.CurrentTask = Integer{12};
  OpenTab(1);
  for (int part = 0; part < 4; ++part) {
    QTest::mouseClick(&Find<QWidget>(form, QString("SSRibbon3(%1)").arg(part)), Qt::LeftButton);
  }
  QTest::mouseClick(&Find<QWidget>(form, "SSRibbon3(0)"), Qt::LeftButton);
  EXPECT_EQ(Find<QLineEdit>(form, "Text3(0)").text(), "");
  EXPECT_EQ(Find<QLineEdit>(form, "Text4(1)").text(), "");
  Type("Text3(0)", "3");
  Type("Text4(0)", "4");
  QTest::mouseClick(&Find<QWidget>(form, "SSctdRtShoulFlexT(2)"), Qt::LeftButton);
  EXPECT_EQ(Module1.CtdLoadHeld.at(1, 0), 7);
  EXPECT_EQ(Module1.CtdPostureDuration.at(1, 0), 0);
  EXPECT_EQ(Module1.CtdRtShoulderFlexion.at(1), TaggedField());
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(TypedInput, KeyStillDownWhenATaskIsAddedByItsKeyBelongsToTheTaskBefore) {
  ToolForm& ocra = Show(Tool::Ocra);
  // Left over from another job.
  Module1.CurrentTask = Integer{11};
  auto& frequency = Find<QLineEdit>(ocra, "Text1(5)");
  frequency.setFocus();
  QTest::keyPress(&frequency, Qt::Key_8);
  QTest::keyClick(&frequency, Qt::Key_A, Qt::AltModifier);
  ASSERT_EQ(Module1.TaskCount.AsDouble(), 1) << "at once";
  EXPECT_EQ(Module1.OcraActionFrequency.at(1).AsDouble(), 0);
  EXPECT_TRUE(platform.ends().empty());

  Module1 = JobState{};
  AddTaskRecord();
  ToolForm& ctd = Show(Tool::Ctd);
  auto& work = Find<QLineEdit>(ctd, "Text1(2)");
  work.setFocus();
  QTest::keyPress(&work, Qt::Key_8);
  QTest::keyClick(&work, Qt::Key_A, Qt::AltModifier);
  ASSERT_EQ(Module1.TaskCount.AsDouble(), 2);
  QTest::keyRelease(&work, Qt::Key_8);
  EXPECT_EQ(Module1.CtdWorkTime.at(1).AsDouble(), 8);
  EXPECT_EQ(Module1.CtdWorkTime.at(2).AsDouble(), 0);
}

struct NumberBoxRow {
  Tool tool;
  QString box;
  std::function<double()> field;
};

TEST_F(TypedInput, NumberBeyondADoubleReadsAsNoNumber) {
  const std::vector<NumberBoxRow> rows{
      {Tool::Ocra, "Text2(1)", [] { return Module1.JobCycleTime; }},
      {Tool::Ocra, "Text1(2)", [] { return Module1.OcraTaskDuration.at(1); }},
      {Tool::Ocra, "Text1(5)", [] { return Module1.OcraActionFrequency.at(1).AsDouble(); }},
      {Tool::Ctd, "Text2(0)", [] { return Module1.JobDurationPerDay.AsDouble(); }},
      {Tool::Ctd, "Text2(1)", [] { return Module1.JobCycleTime; }},
      {Tool::Ctd, "Text1(2)", [] { return Module1.CtdWorkTime.at(1).AsDouble(); }},
      {Tool::Ctd, "Text1(5)", [] { return Module1.CtdRepetitions.at(1); }},
      {Tool::Ctd, "Text1(6)", [] { return Module1.CtdHandSpan.at(1).AsDouble(); }},
      {Tool::Ctd, "Text5", [] { return Module1.CtdForceMvc.at(1); }},
      {Tool::Ctd, "Text3(0)", [] { return Module1.CtdLoadHeld.at(1, 0); }},
      {Tool::Ctd, "Text4(7)", [] { return Module1.CtdPostureDuration.at(1, 7); }},
      {Tool::StrainIndex, "Text1(0)", [] { return Module1.SiExertionMinutes.AsDouble(); }},
      {Tool::StrainIndex, "Text1(1)", [] { return Module1.SiDutyObservationMinutes.AsDouble(); }},
      {Tool::StrainIndex, "Text1(2)", [] { return Module1.SiExertionCount.AsDouble(); }},
      {Tool::StrainIndex, "Text1(3)", [] { return Module1.SiEffortObservationMinutes; }},
      {Tool::StrainIndex, "Text1(8)", [] { return Module1.JobDurationPerDay.AsDouble(); }},
      {Tool::Hal, "Text1(0)", [] { return Module1.HalExertionFrequency.AsDouble(); }},
      {Tool::Hal, "Text1(1)", [] { return Module1.HalDutyCycle.AsDouble(); }},
  };
  for (const NumberBoxRow& row : rows) {
    SCOPED_TRACE(row.box.toStdString());
    Module1 = JobState{};
    AddTaskRecord();
    Show(row.tool);
    Type(row.box, "12");
    EXPECT_EQ(row.field(), 12);
    Type(row.box, "1e400");
    EXPECT_EQ(row.field(), 0);
    EXPECT_EQ(Find<QLineEdit>(*form_, row.box).text(), "1e400") << "the text stays on screen";
    EXPECT_TRUE(platform.ends().empty());
  }
}

TEST_F(TypedInput, LongNamesStayWholeWhenAKeyGoesToAnotherBox) {
  const std::string name(40000, 'n');
  for (const ToolRow& row : Tools()) {
    SCOPED_TRACE(row.title);
    Module1 = JobState{};
    Module1.JobName = name;
    Show(row.tool);
    for (auto* box : form_->findChildren<TextBox*>()) {
      if (box->isReadOnly() || !box->isVisible() || box->text().size() > 100) continue;
      QTest::keyClick(box, Qt::Key_1);
    }
    for (auto* box : form_->findChildren<TextBox*>()) {
      if (box->text().size() > 100) QTest::keyClick(box, Qt::Key_Shift);
    }
    EXPECT_EQ(Module1.JobName.AsText().size(), name.size());
  }
}

TEST_F(TypedInput, LongTaskNamesStayWholeWhenTheyAreEdited) {
  AddTaskRecord();
  Module1.TaskNames.at(1) = std::string(40000, 'n');
  Show(Tool::Ocra);
  QTest::mouseClick(&Find<QWidget>(*form_, "SSCommand1(2)"), Qt::LeftButton);
  auto& editor = Find<QLineEdit>(*Find<TaskTree>(*form_, "TreeView1").viewport(), "");
  QTest::keyClick(&editor, Qt::Key_End);
  QTest::keyClicks(&editor, "!");
  QTest::keyClick(&editor, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([] { return Module1.TaskNames.at(1).size() == 40001; }));
}

TEST_F(TypedInput, ClickOnTheShowingReportTabWritesTheReportAgain) {
  AddTaskRecord();
  const std::vector<std::pair<Tool, int>> rows{
      {Tool::Ocra, 2}, {Tool::Ctd, 2}, {Tool::StrainIndex, 1}, {Tool::Rula, 1}, {Tool::Reba, 1}};
  for (const auto& [tool, tab] : rows) {
    const ToolForm& form = Show(tool);
    SCOPED_TRACE(form.objectName().toStdString());
    OpenTab(tab);
    auto& pane = Find<RichTextBox>(form, "RichTextBox1");
    EXPECT_EQ(pane.toPlainText().count("late change"), 0);
    Module1.JobName = "late change";
    OpenTab(tab);
    EXPECT_EQ(pane.toPlainText().count("late change"), 1);
    Module1.JobName = "";
  }
}

TEST_F(TypedInput, CtdReportOpenedBeforeTheFirstTaskIsWrittenByTheNextClick) {
  ToolForm& form = Show(Tool::Ctd);
  OpenTab(2);
  auto& pane = Find<RichTextBox>(form, "RichTextBox1");
  EXPECT_EQ(pane.toPlainText(), "");
  QTest::mouseClick(&Find<QWidget>(form, "SSCommand1(0)"), Qt::LeftButton);
  EXPECT_EQ(pane.toPlainText(), "");
  OpenTab(2);
  EXPECT_EQ(pane.toPlainText().count("Force Frequency Factor"), 1);
}

TEST_F(TypedInput, BodyPartsShowWithTheTabAndNotWithTheFirstTask) {
  ToolForm& form = Show(Tool::Ctd);
  const auto& part = Find<RibbonButton>(form, "SSRibbon3(0)");
  OpenTab(1);
  EXPECT_FALSE(part.isVisible());
  QTest::mouseClick(&Find<QWidget>(form, "SSCommand1(0)"), Qt::LeftButton);
  EXPECT_FALSE(part.isVisible());
  OpenTab(1);
  EXPECT_TRUE(part.isVisible());
}

TEST_F(TypedInput, PanesOfRulaAndRebaTakeTypingAndNoOthers) {
  AddTaskRecord();
  for (const ToolRow& row : Tools()) {
    SCOPED_TRACE(row.title);
    ToolForm& form = Show(row.tool);
    auto* tabs = form.findChild<QTabWidget*>("SSTab1");
    if (tabs != nullptr) OpenTab(tabs->count() - 1);
    auto& pane = Find<RichTextBox>(form, "RichTextBox1");
    const QString report = pane.toPlainText();
    ASSERT_FALSE(report.isEmpty());
    QTest::keyClicks(&pane, "checked ");
    const bool takesTyping = row.tool == Tool::Rula || row.tool == Tool::Reba;
    EXPECT_EQ(pane.toPlainText(), takesTyping ? "checked " + report : report);
    if (!takesTyping) continue;
    Choose(form, "mnuEditSelect");
    Choose(form, "mnuEditCopy");
    EXPECT_EQ(platform.clipboard().last(), "text: checked " + report);
    platform.WillChoosePrinter(true);
    Choose(form, "mnuPrint");
    EXPECT_EQ(platform.printed().last(), report) << "the report is written anew for the printer";
  }
}

TEST_F(TypedInput, ImpossibleTaskCountOfARefusedFileEndsNothing) {
  for (const Tool tool : {Tool::Ocra, Tool::Ctd}) {
    Module1 = JobState{};
    AddTaskRecord();
    ToolForm& form = Show(tool);
    SCOPED_TRACE(form.objectName().toStdString());
    Module1.JobDirty = kFalse;
    WriteBytes(folder.File("many.qjt"), "\"qjt\",1,0,0,0\r\n40000\r\n");
    platform.WillOpen(File("many.qjt"));
    Choose(form, "mnuFileOpen");
    ASSERT_EQ(Module1.TaskCount.AsDouble(), 40000);
    platform.WillAnswer(Answer::No);
    QTest::mouseClick(&Find<QWidget>(form, "SSCommand1(1)"), Qt::LeftButton);
    EXPECT_EQ(platform.messages().back().buttons.size(), 2U);
    EXPECT_TRUE(platform.ends().empty());
  }
}

TEST_F(TypedInput, WheelOverAnInputThatHasNoFocusChangesNoJob) {
  AddTaskRecord();
  for (const ToolRow& row : Tools()) {
    SCOPED_TRACE(row.title);
    ToolForm& form = Show(row.tool);
    QList<QWidget*> inputs;
    for (auto* list : form.findChildren<QComboBox*>()) inputs.append(list);
    for (auto* slider : form.findChildren<QSlider*>()) inputs.append(slider);
    for (auto* box : form.findChildren<QLineEdit*>()) inputs.append(box);
    form.setFocus();
    const JobState before = Module1;
    for (QWidget* input : inputs) {
      const QPointF place = input->rect().center();
      QWheelEvent event(place, input->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QSpontaneKeyEvent::setSpontaneous(&event);
      qApp->notify(input, &event);
      EXPECT_FALSE(input->hasFocus()) << input->objectName().toStdString();
    }
    EXPECT_TRUE(Module1 == before);
  }
}

TEST_F(TypedInput, IdentificationLabelsHaveTheirNames) {
  for (const Tool tool : {Tool::Ocra, Tool::Hal}) {
    const ToolForm& form = Show(tool);
    EXPECT_EQ(Find<QLabel>(form, "Label1(11)").text(), "Analyst");
    EXPECT_EQ(Find<QLabel>(form, "Label1(10)").text(), "Job Name");
    EXPECT_EQ(Find<QLabel>(form, "Label1(9)").text(), "Workstation ID");
  }
  const ToolForm& ocra = Show(Tool::Ocra);
  EXPECT_EQ(Find<QLabel>(ocra, "Label1(5)").text(), "min");
  EXPECT_EQ(Find<QLabel>(ocra, "Label1(2)").text(), "total minutes per shift");
  EXPECT_EQ(Find<QLabel>(ocra, "Label2(5)").text(), "no. of action per min");
}

}  // namespace
}  // namespace halvane
