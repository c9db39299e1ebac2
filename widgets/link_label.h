#pragma once

#include <QAbstractButton>

namespace halvane {

/// A line of text that is a link: underlined, followed by a click, Space or Enter.
class LinkLabel : public QAbstractButton {
  Q_OBJECT
 public:
  LinkLabel(const QString& name, const QString& text, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace halvane
