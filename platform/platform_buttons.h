#pragma once

#include <QObject>

class QAbstractButton;

namespace halvane {

/// Lets the letter of a button act when it is pressed, with Alt or, in a message, alone. The
/// toolkit shows the button down for a tenth of a second before it acts, and what is typed until
/// then goes to the window or the control that it is about to leave. A menu that has the same
/// letter and is not at hand does not keep it from the button, as it would. Install it on the
/// application.
class PromptButtons : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The button whose letter an event is for; none where it is for something else.
  [[nodiscard]] static QAbstractButton* ButtonFor(QObject& watched, const QEvent& event);
};

}  // namespace halvane
