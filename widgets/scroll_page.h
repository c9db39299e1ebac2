#pragma once

#include <QScrollArea>

namespace halvane {

/// Shows a page of controls, and scrolls it where it needs more room than there is. Looks and asks
/// for room like the page itself, so that a layout around it treats both alike. What gets the focus
/// is brought into view.
class ScrollPage : public QScrollArea {
 public:
  /// Takes `page` over, which is made for windows from `leastWindow` on: in a smaller one it keeps
  /// the size that it has there, and scrolls.
  ScrollPage(QWidget* page, QSize leastWindow, QWidget* parent);
  ~ScrollPage() override;

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FocusChanged(QWidget* now);

  QWidget* page_;
};

}  // namespace halvane
