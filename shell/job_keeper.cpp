#include "shell/job_keeper.h"

#include <QFile>
#include <QTimer>
#include <new>

#include "core/input_file.h"
#include "core/job_state.h"
#include "core/rescue_copy.h"
#include "core/runtime_failure.h"
#include "core/silently.h"
#include "platform/platform.h"

namespace halvane {
namespace {

constexpr int kJournalMilliseconds = 1000;

QString PathText(const std::string& path) { return QFile::decodeName(path.c_str()); }

/// Whether the job's file holds exactly these bytes: a kill came between the saving and the removal
/// of the journal.
bool StandsInItsFile(const JournalEntry& entry) {
  if (entry.jobFile.empty()) return false;
  bool same = false;
  Silently([&] { same = InputFile(entry.jobFile).ReadAll() == entry.job; });
  return same;
}

bool KeepEntry(const JournalEntry& entry) {
  if (StandsInItsFile(entry)) return true;
  return Silently(
      [&entry] { WriteRescueCopy(entry.jobFile, entry.job, ThePlatform().RescueFolders()); });
}

}  // namespace

JobKeeper::JobKeeper(QObject* parent) : QObject(parent), timer_(new QTimer(this)) {
  setObjectName("JobKeeper");
  timer_->setObjectName("JournalTimer");
  timer_->setSingleShot(true);
  timer_->setInterval(kJournalMilliseconds);
  connect(timer_, &QTimer::timeout, this, &JobKeeper::UpdateJournal);
}

void JobKeeper::NoteInput() {
  // A job that stands whole in its file again needs no journal beside it.
  if (journal_ && !NeedsRescue(Module1)) journal_->Remove();
  // Not started anew by more typing, or it would never come to its end.
  if (!timer_->isActive()) timer_->start();
}

void JobKeeper::UpdateJournal() {
  if (!NeedsRescue(Module1)) {
    if (journal_) journal_->Remove();
    return;
  }
  Silently([this] {
    if (!journal_ || journal_->path().empty()) {
      const std::string folder = ThePlatform().StateFolder();
      if (folder.empty()) return;
      journal_ = std::make_unique<Journal>(folder);
    }
    journal_->Write({RescueBytes(Module1), Module1.JobFileName, Module1.JobDirty != kFalse});
  });
}

JobKeeper::Rescue JobKeeper::RescueJob() {
  Rescue rescue;
  rescue.wasNeeded = NeedsRescue(Module1);
  journalIsAll_ = false;
  if (!rescue.wasNeeded) return rescue;
  try {
    rescue.copy = PathText(
        WriteRescueCopy(Module1.JobFileName, RescueBytes(Module1), ThePlatform().RescueFolders()));
    if (journal_) journal_->Remove();
    return rescue;
  } catch (const RuntimeFailure& failure) {
    rescue.reason = failure.what();
  } catch (const std::bad_alloc&) {
    rescue.reason = RuntimeFailure(FailureKind::OutOfMemory).what();
  } catch (const std::exception& failure) {
    rescue.reason = failure.what();
  }
  UpdateJournal();
  if (journal_) rescue.journal = PathText(journal_->path());
  journalIsAll_ = true;
  return rescue;
}

void JobKeeper::RescueLeftJournals() {
  Silently([] { KeepLeftJournals(ThePlatform().StateFolder(), KeepEntry); });
}

void JobKeeper::End() {
  timer_->stop();
  if (Module1.JobDirty == kFalse) RescueJob();
  if (journal_ && !journalIsAll_) journal_->Remove();
}

}  // namespace halvane
