#pragma once

#include <QMap>
#include <QObject>
#include <QPointer>

class QKeyEvent;

namespace halvane {

/// Keeps a key that is held down over a change of window from going on in the next one: the key
/// that answered a message types nothing in the form behind it and chooses no button of the dialog
/// that follows. A shortcut runs once, however long its keys are held. Install it on the
/// application.
class HeldKeys : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsHeldFromElsewhere(QObject& window, const QKeyEvent& key);

  /// The window or popup that each key that is down was pressed in.
  QMap<int, QPointer<QObject>> pressedIn_;
};

}  // namespace halvane
