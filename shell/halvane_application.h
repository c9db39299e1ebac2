#pragma once

#include <QApplication>
#include <memory>

#include "shell/job_keeper.h"

namespace halvane {

class EndSignals;

/// The application, with every way down: on a failure that no command caught, a copy of the job is
/// saved, a message says what failed and where the copy is, and the program ends. Whatever else
/// ends the program before the user does, the job is saved in the same places without a word.
class HalvaneApplication : public QApplication {
  Q_OBJECT
 public:
  HalvaneApplication(int& argc, char** argv);
  ~HalvaneApplication() override;

  /// From here on the job is rescued on signals, at the end of the session and when the display
  /// goes away, and what an earlier run left is rescued soon. For the program itself, once its main
  /// window is there.
  void WatchOverJob();

  /// Runs the program until it ends; gives its exit status.
  int Run();

  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;

 private:
  void EndOn(const QString& sentence);
  void EndQuietly(int exitStatus);
  void RescueAtExit();

  JobKeeper keeper_;
  std::unique_ptr<EndSignals> signals_;
  bool ending_ = false;
};

}  // namespace halvane
