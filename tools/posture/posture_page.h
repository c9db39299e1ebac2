#pragma once

#include <string_view>

#include "widgets/ribbon_page.h"

class QGridLayout;
class QVBoxLayout;

namespace halvane {

class PostureFrame;

enum class PageColumn { Left, Right };

/// Where a frame stands on the page. Frames at one place share it side by side.
struct FramePlace {
  PageColumn column = PageColumn::Left;
  int row = 0;
  int rows = 1;                ///< that it takes up
  bool optionsInARow = false;  ///< instead of one under another
};

/// The tab with the inputs of a tool that looks at the regions of the body one by one: the row
/// about the job on top, frames in two columns below. One reads down the left column, then down the
/// right one; add the frames in that order, since it is the order of the Tab key.
class PosturePage : public RibbonPage {
  Q_OBJECT
 public:
  explicit PosturePage(QWidget* parent);

  /// Puts the row about the job in its place.
  void SetTop(QWidget* row);
  PostureFrame* AddFrame(const FramePlace& place, std::string_view caption);

 private:
  QVBoxLayout* rows_;
  QGridLayout* frames_;
};

}  // namespace halvane
