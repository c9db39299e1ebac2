#pragma once

#include <QApplication>

#include "core/runtime_failure.h"

namespace halvane {

/// The application, with the default handling of a failure that no command caught: a copy of the
/// job is saved, a message says what failed and where the copy is, and the program ends.
class HalvaneApplication : public QApplication {
  Q_OBJECT
 public:
  HalvaneApplication(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void EndOn(const RuntimeFailure& failure);

  bool ending_ = false;
};

}  // namespace halvane
