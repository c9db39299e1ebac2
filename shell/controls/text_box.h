#pragma once

#include <QLineEdit>

namespace halvane {

/// A text box that tells of released keys instead of changes, and selects all of its text whenever
/// it gets the focus, so that typing replaces what stands there.
class TextBox : public QLineEdit {
  Q_OBJECT
 public:
  explicit TextBox(const QString& name, QWidget* parent = nullptr);

 signals:
  void keyReleased();

 protected:
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool focusCameByMouse_ = false;
};

}  // namespace halvane
