#pragma once

#include <QObject>
#include <memory>

#include "core/journal.h"

class QTimer;

namespace halvane {

/// Sees to it that nothing that was typed is lost with the program: a journal of the job while it
/// runs, a rescue copy of the job when it ends otherwise than by the user's own wish.
class JobKeeper : public QObject {
  Q_OBJECT
 public:
  explicit JobKeeper(QObject* parent = nullptr);

  /// What came of a rescue.
  struct Rescue {
    QString copy;     ///< path of the copy; empty where there is none
    QString reason;   ///< why there is none though one is needed
    QString journal;  ///< path of the journal that stands in its place; empty where there is none
    bool wasNeeded = false;
  };

  /// The user did something: whatever it changes in the job will be in the journal a second later.
  /// To be called before and after each event, since one may run for as long as a window stands.
  void NoteInput();

  /// Writes the rescue copy, where the job needs one. The journal goes when the copy stands, else
  /// it is brought up to date. Throws nothing.
  Rescue RescueJob();

  /// Makes rescue copies of the journals that dead programs left.
  static void RescueLeftJournals();

  /// The program has ended. A job that a failed save or open marked as unchanged is rescued, since
  /// nobody was asked about it; the journal goes, unless it is all that there is of the job.
  void End();

 private:
  void UpdateJournal();

  QTimer* timer_;
  std::unique_ptr<Journal> journal_;
  bool journalIsAll_ = false;
};

}  // namespace halvane
