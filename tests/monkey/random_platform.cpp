#include "tests/monkey/random_platform.h"

#include <QTextDocument>
#include <utility>

namespace halvane {
namespace {

constexpr int kNameTooLong = 300;
constexpr int kSaveNames = 4;

}  // namespace

RandomPlatform::RandomPlatform(Dice& dice, Trace& trace, QString folder,
                               std::vector<SampleJob> jobs)
    : dice_(dice), trace_(trace), folder_(std::move(folder)), jobs_(std::move(jobs)) {
  SetDocumentsFolder(folder_);
  SetFolders(folder_, folder_);
  AddFile(folder_ + "/QJT Tools 1.chm");
  SetHelpViewer(this);
}

RandomPlatform::~RandomPlatform() { SetHelpViewer(nullptr); }

void RandomPlatform::Forget() {
  openedAnOddJob_ = false;
  lastIsOdd_ = false;
  savedInABadPlace_ = false;
  hasOpened_ = false;
}

void RandomPlatform::Loaded() { openedAnOddJob_ = lastIsOdd_; }

bool RandomPlatform::TakeHasOpened() { return std::exchange(hasOpened_, false); }

Answer RandomPlatform::ShowMessage(QWidget* parent, const QString& /*title*/, const QString& text,
                                   const std::vector<Answer>& buttons) {
  const Answer answer = dice_.Of(buttons);
  trace_.Add(QString("message '%1', answer %2").arg(text.left(40)).arg(static_cast<int>(answer)));
  dialog_(parent);
  return answer;
}

QString RandomPlatform::ChooseFileToOpen(QWidget* parent, const QString& /*filter*/) {
  dialog_(parent);
  if (dice_.OneIn(5)) {
    trace_.Add("no file to open");
    return {};
  }
  // Most files are plain, so that the program is not busy with odd ones alone.
  SampleJob job = dice_.Of(jobs_);
  if (job.isOdd && !dice_.OneIn(3)) job = jobs_.front();
  trace_.Add("opens " + job.path.section('/', -1));
  lastIsOdd_ = job.isOdd;
  openedAnOddJob_ = openedAnOddJob_ || job.isOdd;
  hasOpened_ = true;
  savedInABadPlace_ = false;
  return job.path;
}

QString RandomPlatform::ChooseFileToSave(QWidget* parent, const QString& /*filter*/) {
  dialog_(parent);
  if (dice_.OneIn(5)) {
    trace_.Add("no file to save");
    return {};
  }
  savedInABadPlace_ = dice_.OneIn(8);
  QString path = QString("%1/saved %2.qjt").arg(folder_).arg(dice_.Below(kSaveNames));
  if (savedInABadPlace_) {
    switch (dice_.Below(3)) {
      case 0: path = folder_; break;
      case 1: path = folder_ + "/no folder/job.qjt"; break;
      default: path = folder_ + "/" + QString(kNameTooLong, 'n'); break;
    }
  }
  trace_.Add("saves " + path.section('/', -1).left(40));
  return path;
}

bool RandomPlatform::ChoosePrinter(QWidget* parent) {
  dialog_(parent);
  return dice_.OneIn(2);
}

void RandomPlatform::SetUpPrinter(QWidget* parent) { dialog_(parent); }

void RandomPlatform::Print(const QTextDocument& document) {
  if (document.isEmpty()) trace_.Find("an empty report is printed");
}

void RandomPlatform::SetClipboardText(const QString& text) {
  if (text.contains(QChar(QChar::ObjectReplacementCharacter))) {
    trace_.Find("a picture character is put on the clipboard");
  }
}

bool RandomPlatform::StartProgram(const ProgramCall& /*call*/) { return dice_.OneIn(2); }

void RandomPlatform::EndProgram(int exitStatus) {
  trace_.Find(QString("a tool ends the program with status %1").arg(exitStatus));
}

void RandomPlatform::Show(QWidget* /*owner*/, const QString& /*file*/, HelpCommand /*command*/,
                          const QString& topic) {
  trace_.Add("help on " + topic);
}

}  // namespace halvane
