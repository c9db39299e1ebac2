#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <filesystem>

#include "shell/frm_hand_main.h"
#include "tests/support/form_support.h"
#include "tools/strain_index/frm_si.h"

namespace halvane {
namespace {

const ShownMessage kDirtyQuestion{"Halvane Tools",
                                  "Save data before closing this file?",
                                  {Answer::Yes, Answer::No, Answer::Cancel}};
const ShownMessage kWrongFile{
    "Halvane Tools",
    "This file is not an 'Ostrel - Halvane' File.  Open File will be cancel.",
    {Answer::Ok}};
const QString kFilter = "*.qjt (*.qjt);;All files (*)";

/// A form that offers the file commands, and the names of their menu items.
struct Place {
  const char* form;
  const char* newJob;
  const char* open;
  const char* save;
  const char* saveAs;
};

void PrintTo(const Place& place, std::ostream* stream) { *stream << place.form; }

/// The commands are the same on the main window and on a tool.
class FileCommandsOn : public ShellTest, public testing::WithParamInterface<Place> {
 protected:
  /// The form with the job that follows, which is marked as saved.
  void SetUp() override {
    if (GetParam().form == std::string("frmSI")) {
      form_ = LoadedStrainIndex();
    } else {
      form_ = IdleMainWindow();
    }
    // The load of a tool stores picks of its own.
    JobReset();
    Module1.JobName = "Packing";
    Module1.JobFileName = folder.File("old.qjt");
    Module1.JobDirty = kFalse;
  }

  void New() { Choose(*form_, GetParam().newJob); }
  void Open() { Choose(*form_, GetParam().open); }
  void Save() { Choose(*form_, GetParam().save); }
  void SaveAs() { Choose(*form_, GetParam().saveAs); }

  /// Writes a job file whose job name is `name`.
  void MakeJobFile(const char* file, const std::string& name) const {
    WriteBytes(folder.File(file), EmptyJobWith(4, "\"\",\"" + name + "\",\"\",0,8"));
  }

  /// Writes a file that ends in the middle of a job, and opens it.
  void OpenHalfReadFile() {
    const std::string whole = EmptyJobText();
    WriteBytes(folder.File("half.qjt"), whole.substr(0, whole.size() / 2));
    platform.WillOpen(File("half.qjt"));
    Open();
    ASSERT_TRUE(Module1.JobFileOpen);
  }

 private:
  std::unique_ptr<QWidget> form_;
};

INSTANTIATE_TEST_SUITE_P(
    EveryForm, FileCommandsOn,
    testing::Values(Place{"frmHand_Main", "mnuNew", "mnuOpen", "mnuSave", "mnuSaveAs"},
                    Place{"frmSI", "mnuFileNew", "mnuFileOpen", "mnuSave", "mnuSaveAs"}),
    [](const testing::TestParamInfo<Place>& place) { return std::string(place.param.form); });

TEST_P(FileCommandsOn, NewOnASavedJobAsksNothing) {
  New();
  EXPECT_EQ(Module1.JobName.AsText(), "");
  EXPECT_EQ(Module1.JobFileName, "");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_P(FileCommandsOn, NewOnAChangedJobAnsweredNoLeavesTheEmptyJobChanged) {
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::No);
  New();
  EXPECT_EQ(platform.messages(), std::vector{kDirtyQuestion});
  EXPECT_EQ(Module1.JobName.AsText(), "");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_P(FileCommandsOn, CancelInTheQuestionOfNewChangesNothing) {
  Module1.JobDirty = kTrue;
  const JobState before = Module1;
  platform.WillAnswer(Answer::Cancel);
  New();
  EXPECT_EQ(platform.messages(), std::vector{kDirtyQuestion});
  EXPECT_TRUE(Module1 == before);
}

TEST_P(FileCommandsOn, YesInTheQuestionOfNewAsksForANameEvenIfThereIsOne) {
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::Yes);
  platform.WillSave(File("other.qjt"));
  New();
  EXPECT_EQ(folder.Names(), "other.qjt");
  EXPECT_NE(BytesOf(folder.File("other.qjt")).find("Packing"), std::string::npos);
  EXPECT_EQ(Module1.JobName.AsText(), "");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_P(FileCommandsOn, YesInTheQuestionOfNewThenCancelInTheDialogStillResets) {
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::Yes);
  platform.WillSave("");
  New();
  EXPECT_EQ(folder.Names(), "");
  EXPECT_EQ(Module1.JobName.AsText(), "");
}

TEST_P(FileCommandsOn, OpenReadsTheJob) {
  MakeJobFile("new.qjt", "Sorting");
  platform.WillOpen(File("new.qjt"));
  Open();
  EXPECT_EQ(Module1.JobName.AsText(), "Sorting");
  EXPECT_EQ(Module1.JobFileName, folder.File("new.qjt"));
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(platform.filters(), QStringList{kFilter});
  EXPECT_TRUE(platform.messages().empty());
}

TEST_P(FileCommandsOn, OpenOnAChangedJobAsksFirst) {
  MakeJobFile("new.qjt", "Sorting");
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("new.qjt"));
  Open();
  EXPECT_EQ(platform.messages(), std::vector{kDirtyQuestion});
  EXPECT_EQ(Module1.JobName.AsText(), "Sorting");
}

TEST_P(FileCommandsOn, CancelInTheQuestionOfOpenChangesNothing) {
  Module1.JobDirty = kTrue;
  const JobState before = Module1;
  platform.WillAnswer(Answer::Cancel);
  Open();
  EXPECT_TRUE(Module1 == before);
  EXPECT_EQ(platform.filters(), QStringList());
}

TEST_P(FileCommandsOn, YesInTheQuestionOfOpenSavesThenOpens) {
  MakeJobFile("new.qjt", "Sorting");
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::Yes);
  platform.WillSave(File("saved.qjt"));
  platform.WillOpen(File("new.qjt"));
  Open();
  EXPECT_NE(BytesOf(folder.File("saved.qjt")).find("Packing"), std::string::npos);
  EXPECT_EQ(Module1.JobName.AsText(), "Sorting");
  EXPECT_EQ(platform.filters(), (QStringList{kFilter, kFilter}));
}

TEST_P(FileCommandsOn, CancelledOpenLosesTheNameAndNothingElse) {
  JobState expected = Module1;
  expected.JobFileName = "";
  platform.WillOpen("");
  Open();
  EXPECT_TRUE(Module1 == expected);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_P(FileCommandsOn, CancelledSaveAsLosesTheNameAndMarksTheJobAsSaved) {
  Module1.JobDirty = kTrue;
  JobState expected = Module1;
  expected.JobFileName = "";
  expected.JobDirty = kFalse;
  // What was not saved is not forgotten: it is rescued when the program ends otherwise.
  expected.JobInNoFile = true;
  platform.WillSave("");
  SaveAs();
  EXPECT_TRUE(Module1 == expected);
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_EQ(folder.Names(), "");
}

TEST_P(FileCommandsOn, SaveAsWritesUnderTheNameAsTyped) {
  Module1.JobName = "";
  Module1.JobDirty = kTrue;
  platform.WillSave(File("no extension"));
  SaveAs();
  EXPECT_EQ(folder.Names(), "no extension");
  EXPECT_EQ(BytesOf(folder.File("no extension")), EmptyJobText());
  EXPECT_EQ(Module1.JobFileName, folder.File("no extension"));
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(platform.filters(), QStringList{kFilter});
}

TEST_P(FileCommandsOn, SaveWritesUnderTheJobsNameWithoutADialog) {
  Module1.JobDirty = kTrue;
  Save();
  EXPECT_EQ(folder.Names(), "old.qjt");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(platform.filters(), QStringList());
}

TEST_P(FileCommandsOn, SaveWithoutANameIsSaveAs) {
  Module1.JobFileName = "";
  platform.WillSave(File("first.qjt"));
  Save();
  EXPECT_EQ(folder.Names(), "first.qjt");
  EXPECT_EQ(Module1.JobFileName, folder.File("first.qjt"));
}

TEST_P(FileCommandsOn, WrongFileGivesItsMessageAndSaveOverwritesIt) {
  WriteBytes(folder.File("notes.txt"), "QJT,1,0,0,0\r\n0\r\n");
  JobState expected = Module1;
  expected.JobFileName = folder.File("notes.txt");
  platform.WillOpen(File("notes.txt"));
  platform.WillAnswer(Answer::Ok);
  Open();
  EXPECT_EQ(platform.messages(), std::vector{kWrongFile});
  EXPECT_TRUE(Module1 == expected);
  Save();
  EXPECT_EQ(BytesOf(folder.File("notes.txt")), EmptyJobWith(4, "\"\",\"Packing\",\"\",0,8"));
}

TEST_P(FileCommandsOn, PathThatCannotBeOpenedGivesNoMessageAndLeavesNothingOpen) {
  JobState expected = Module1;
  expected.JobFileName = folder.File("missing.qjt");
  platform.WillOpen(File("missing.qjt"));
  Open();
  EXPECT_TRUE(Module1 == expected);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_P(FileCommandsOn, RefusedWriteOfSaveAsGivesNoMessage) {
  Module1.JobDirty = kTrue;
  platform.WillSave(File("no folder/job.qjt"));
  SaveAs();
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_TRUE(platform.ends().empty());
  EXPECT_EQ(Module1.JobFileName, folder.File("no folder/job.qjt"));
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_FALSE(Module1.JobFileOpen);
}

TEST_P(FileCommandsOn, RefusedWriteOfSaveEndsTheProgramWithARescueCopy) {
  std::filesystem::create_directory(folder.File("documents"));
  platform.SetDocumentsFolder(File("documents"));
  Module1.JobFileName = folder.File("no folder/job.qjt");
  platform.WillAnswer(Answer::Ok);
  Save();
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.contains("/documents/job.rescue.qjt"))
      << platform.messages()[0].text.toStdString();
  EXPECT_TRUE(Exists(folder.File("documents/job.rescue.qjt")));
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
}

TEST_P(FileCommandsOn, FileReadHalfEndsOpenSilentlyAndStaysOpen) {
  OpenHalfReadFile();
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_EQ(Module1.JobFileName, folder.File("half.qjt"));
  EXPECT_EQ(Module1.JobName.AsText(), "");
}

TEST_P(FileCommandsOn, AfterAFileReadHalfOpenAndSaveAsFailSilentlyWithTheNameChanged) {
  OpenHalfReadFile();
  MakeJobFile("good.qjt", "Sorting");
  platform.WillOpen(File("good.qjt"));
  Open();
  EXPECT_EQ(Module1.JobFileName, folder.File("good.qjt"));
  EXPECT_EQ(Module1.JobName.AsText(), "");
  platform.WillSave(File("other.qjt"));
  SaveAs();
  EXPECT_EQ(Module1.JobFileName, folder.File("other.qjt"));
  EXPECT_FALSE(Exists(folder.File("other.qjt")));
  EXPECT_TRUE(platform.messages().empty());
}

TEST_P(FileCommandsOn, AfterAFileReadHalfSaveEndsTheProgramWithARescueCopy) {
  OpenHalfReadFile();
  platform.WillAnswer(Answer::Ok);
  const std::string half = BytesOf(folder.File("half.qjt"));
  Save();
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_EQ(platform.messages()[0].text,
            "File already open.\n\nHalvane Tools has to end.\n\nA copy of the job was saved as\n" +
                File("half.rescue.qjt"));
  EXPECT_EQ(BytesOf(folder.File("half.qjt")), half);
  EXPECT_EQ(BytesOf(folder.File("half.rescue.qjt")), EmptyJobText());
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
}

/// What a tool's own copies of the commands do beyond the main window's.
class FileCommandsOfATool : public ShellTest {
 protected:
  /// Uses Print, which from then on counts as failure what the dialogs report as cancelled.
  void UsePrint(const FrmSI& form) {
    platform.WillChoosePrinter(false);
    Choose(form, "mnuPrint");
    Module1.JobFileName = "kept.qjt";
    Module1.JobDirty = kTrue;
  }
};

TEST_F(FileCommandsOfATool, AfterPrintACancelledSaveAsKeepsNameAndMark) {
  const auto form = LoadedStrainIndex();
  UsePrint(*form);
  platform.WillSave("");
  Choose(*form, "mnuSaveAs");
  EXPECT_EQ(Module1.JobFileName, "kept.qjt");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(FileCommandsOfATool, AfterPrintACancelledOpenKeepsNameAndMark) {
  const auto form = LoadedStrainIndex();
  UsePrint(*form);
  platform.WillAnswer(Answer::No);
  platform.WillOpen("");
  Choose(*form, "mnuFileOpen");
  EXPECT_EQ(Module1.JobFileName, "kept.qjt");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(FileCommandsOfATool, LoadTakesTheMarkOfPrintAway) {
  const auto form = LoadedStrainIndex();
  UsePrint(*form);
  form->load();
  platform.WillSave("");
  Choose(*form, "mnuSaveAs");
  EXPECT_EQ(Module1.JobFileName, "");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(FileCommandsOfATool, OpenLoadsTheFormAgainOnItsFirstTab) {
  const auto window = IdleMainWindow();
  WriteBytes(folder.File("left.qjt"), EmptyJobWith(4, "\"Ann\",\"Sorting\",\"W7\",1,8"));
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("left.qjt"));
  ModalSteps steps;
  steps.Then("frmSI", [](QWidget& form) {
    Find<QTabWidget>(form, "SSTab1").setCurrentIndex(1);
    Choose(form, "mnuFileOpen");
  });
  steps.Then("frmSI", [](QWidget& form) {
    EXPECT_EQ(Find<QTabWidget>(form, "SSTab1").currentIndex(), 0);
    EXPECT_FALSE(Find<QMenu>(form, "mnuEdit").isEnabled());
    EXPECT_EQ(Find<QLineEdit>(form, "Text1(5)").text(), "Sorting");
    EXPECT_EQ(&VisibleToolForm(), &form);
    // Showing a job gives the ribbons and the hand their saved values.
    EXPECT_EQ(Module1.JobDirty, kTrue);
    Choose(form, "mnuFileExit");
  });
  window->SSCommand2_Click(2);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FileCommandsOfATool, OneCloseReturnsToTheMainWindowAfterManyReloads) {
  const auto window = IdleMainWindow();
  WriteBytes(folder.File("job.qjt"), EmptyJobText());
  ModalSteps steps;
  for (int round = 0; round < 5; ++round) {
    // Showing a job marks it as changed, so each command asks.
    platform.WillAnswer(Answer::No);
    if (round % 2 == 0) {
      steps.Then("frmSI", [](QWidget& form) { Choose(form, "mnuFileNew"); });
    } else {
      platform.WillOpen(File("job.qjt"));
      steps.Then("frmSI", [](QWidget& form) { Choose(form, "mnuFileOpen"); });
    }
  }
  steps.Then("frmSI", [](QWidget& form) {
    EXPECT_EQ(&VisibleToolForm(), &form);
    Choose(form, "mnuFileExit");
  });
  window->SSCommand2_Click(2);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FileCommandsOfATool, CommandsThatReplacedNothingDoNotLoadTheFormAgain) {
  const auto form = LoadedStrainIndex();
  Find<QLineEdit>(*form, "Text1(0)").setText("on screen only");
  platform.WillAnswer(Answer::Cancel);
  Choose(*form, "mnuFileNew");
  platform.WillAnswer(Answer::No);
  platform.WillOpen("");
  Choose(*form, "mnuFileOpen");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Find<QLineEdit>(*form, "Text1(0)").text(), "on screen only");
}

TEST_F(FileCommandsOfATool, MenusHaveTheirItems) {
  const auto form = LoadedStrainIndex();
  EXPECT_EQ(Find<QMenu>(*form, "mnuFile").title(), "&File");
  EXPECT_EQ(TextsOf(Find<QMenu>(*form, "mnuFile")),
            (QStringList{"&New", "&Open...", "&Save", "&Save &As...", "-", "&Print...",
                         "Print Setup...", "-", "E&xit"}));
  EXPECT_EQ(Find<QMenu>(*form, "mnuEdit").title(), "&Edit");
  EXPECT_EQ(TextsOf(Find<QMenu>(*form, "mnuEdit")),
            (QStringList{"&Select All...", "&Copy Output"}));
  EXPECT_EQ(Find<QMenu>(*form, "mnuHelp").title(), "&Help");
  EXPECT_EQ(TextsOf(Find<QMenu>(*form, "mnuHelp")),
            (QStringList{"&Content...", "&Search...", "-", "About Ostrel..."}));
}

}  // namespace
}  // namespace halvane
