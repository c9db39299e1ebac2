#pragma once

#include <QObject>

class QSocketNotifier;

namespace halvane {

/// Tells the event loop of the signals by which a system, a terminal or a user asks a program to
/// end. One that the program was started to ignore stays ignored.
class EndSignals : public QObject {
  Q_OBJECT
 public:
  EndSignals();
  ~EndSignals() override;

  /// Ends the program by the signal that came last, so that who started it sees why. Comes back
  /// when none came.
  static void EndByThem();

 signals:
  /// Comes in the event loop that runs, however deep it is nested. `number` is the signal's.
  void came(int number);

 private:
  void Read();

  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace halvane
