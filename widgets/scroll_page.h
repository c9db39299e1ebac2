#pragma once

#include <QScrollArea>

namespace halvane {

/// Shows a page of controls, and scrolls it where it needs more room than there is. Looks and asks
/// for room like the page itself, captions that wrap included, so that a layout around it treats
/// both alike. What gets the focus is brought into view.
class ScrollPage : public QScrollArea {
  Q_OBJECT

 public:
  /// Takes `page` over.
  ScrollPage(QWidget* page, QWidget* parent);
  ~ScrollPage() override;

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  /// The least height that leaves everything on the page whole.
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// Brings the page's upper left corner into view.
  void ShowTop();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// Leaves the bar out where the page fits without it.
  void FitBar();
  void FocusChanged(QWidget* now);

  QWidget* page_;
};

}  // namespace halvane
