#pragma once

#include <QTimer>
#include <QWidget>
#include <map>
#include <utility>

namespace halvane {

/// A page of controls whose pictures on ribbons grow with it: all of them have one size, the
/// largest with which everything has its room on the page. What the page asks for itself is what it
/// needs with the smallest pictures.
class RibbonPage : public QWidget {
 public:
  explicit RibbonPage(QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// The room that the page needs.
  struct Need {
    QSize least;
    int height = 0;  ///< in a page of the width that was asked for
    bool operator==(const Need&) const = default;
  };

  /// Whether what stands on the page needs another room than when the pictures were chosen.
  [[nodiscard]] bool IsChanged() const;
  /// Gives the pictures the size that the page has room for.
  void Fit();
  /// Draws a picture that is hidden, while the user looks at the others.
  void DrawAhead();
  [[nodiscard]] bool HasRoomFor(int size) const;
  void SetPictures(int size) const;
  /// What the page needs as it is.
  [[nodiscard]] Need Measure(int width) const;
  /// What it needs with pictures of a size; known until something changes.
  [[nodiscard]] Need NeedWith(int size, int width) const;

  QTimer ahead_;
  int size_;
  Need fitted_;  ///< with the pictures that it has, when they were chosen
  mutable std::map<std::pair<int, int>, Need> needs_;  ///< by size of the pictures and width
};

}  // namespace halvane
