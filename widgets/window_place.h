#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>
#include <QSize>
#include <functional>
#include <optional>

class QWidget;

namespace halvane {

/// What decides where a window opens, in logical pixels. Sizes are without the window's frame.
struct WindowMeasures {
  QSize standard;
  QSize least;
  /// The part of the screen that windows may cover.
  QRect available;
  /// What the title bar and the borders add.
  QMargins frame;
};

/// The smallest size that the window may be given: its least one, or less where the screen is
/// smaller.
QSize LeastSize(const WindowMeasures& measures);
/// Where a window opens for the first time, without its frame: in the middle of the screen, its
/// frame on the screen on all sides.
QRect FirstPlace(const WindowMeasures& measures);
/// Where a window opens that stood at `last` before: there, moved as little as it takes to have a
/// part of its title bar at hand; as for the first time if the screen has become too small for it.
QRect PlaceAgain(const QRect& last, const WindowMeasures& measures);

/// Where a window stood when it was closed. Lives as long as that is to hold.
struct LastPlace {
  std::optional<QRect> place;
  /// The frame that the window manager gave it.
  std::optional<QMargins> frame;
  bool maximized = false;
};

/// Gives a window its place whenever it is shown, keeps the place when it is hidden, and has the
/// window grow with its font. Belongs to the window.
class WindowPlace : public QObject {
 public:
  /// `least` is asked at each showing and gives the size that everything in the window needs.
  /// `last` has to outlive the window.
  WindowPlace(QWidget& window, QSize standard, std::function<QSize()> least, LastPlace& last);

  /// Gives the window the place that it will be shown at.
  void TakePlace();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] WindowMeasures Measure() const;
  void Show();
  void Settle();
  /// Makes the window large enough for controls that have grown with the font.
  void FitFont();
  void Keep();

  QWidget& window_;
  QSize standard_;
  std::function<QSize()> least_;
  LastPlace& last_;
  bool settled_ = false;
  bool reserved_ = false;  ///< for as long as the window is
};

}  // namespace halvane
