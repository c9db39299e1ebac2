#include "shell/file_commands.h"

#include <QFile>

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/messages.h"
#include "core/silently.h"
#include "platform/platform.h"

namespace halvane {
namespace {

constexpr auto kFilter = "*.qjt (*.qjt);;All files (*)";

std::string PathOf(const QString& name) { return QFile::encodeName(name).toStdString(); }

}  // namespace

bool FileCommands::GoOnWithUnsavedJob() {
  if (Module1.JobDirty == kFalse) return true;
  const Answer answer = ThePlatform().ShowMessage(&form_, kProgramTitle, kSaveBeforeClosing,
                                                  {Answer::Yes, Answer::No, Answer::Cancel});
  // Always Save As, and whatever it did, the command goes on.
  if (answer == Answer::Yes) SaveAs();
  return answer != Answer::Cancel;
}

bool FileCommands::New() {
  if (!GoOnWithUnsavedJob()) return false;
  JobReset();
  return true;
}

bool FileCommands::Open() {
  if (!GoOnWithUnsavedJob()) return false;
  bool opened = false;
  Silently([&] {
    const QString name = ThePlatform().ChooseFileToOpen(&form_, kFilter);
    if (name.isEmpty() && cancelIsFailure_) return;
    // Cancelled or not, the job's name is gone from here on.
    Module1.JobFileName = PathOf(name);
    if (name.isEmpty()) return;
    opened = OpenJobFile() == OpenOutcome::Opened;
    if (!opened) ThePlatform().ShowMessage(&form_, kProgramTitle, kWrongFile, {Answer::Ok});
  });
  return opened;
}

void FileCommands::Save() {
  if (Module1.JobFileName.empty()) {
    SaveAs();
  } else {
    WriteJobFile();
  }
}

void FileCommands::SaveAs() {
  Silently([this] {
    const QString name = ThePlatform().ChooseFileToSave(&form_, kFilter);
    if (name.isEmpty() && cancelIsFailure_) return;
    Module1.JobFileName = PathOf(name);
    WriteJobFile();
  });
}

}  // namespace halvane
