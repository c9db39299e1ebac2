#include "tools/posture/posture_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "tools/posture/posture_frame.h"
#include "widgets/layout.h"

namespace halvane {

PosturePage::PosturePage(QWidget* parent) : RibbonPage(parent) {
  rows_ = new QVBoxLayout(this);
  rows_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows_->setSpacing(kGap);
  // One grid for both columns, so that their frames stand level.
  frames_ = new QGridLayout;
  frames_->setSpacing(kGap);
  // The right column has the wider rows.
  frames_->setColumnStretch(static_cast<int>(PageColumn::Left), 30);
  frames_->setColumnStretch(static_cast<int>(PageColumn::Right), 31);
  rows_->addLayout(frames_, 1);
}

void PosturePage::SetTop(QWidget* row) { rows_->insertWidget(0, row); }

PostureFrame* PosturePage::AddFrame(const FramePlace& place, std::string_view caption) {
  const int column = static_cast<int>(place.column);
  QLayoutItem* item = frames_->itemAtPosition(place.row, column);
  QLayout* line = item != nullptr ? item->layout() : nullptr;
  if (line == nullptr) {
    line = new QHBoxLayout;
    line->setSpacing(kGap);
    frames_->addLayout(line, place.row, column, place.rows, 1);
  }
  auto* frame = new PostureFrame(caption, this);
  if (place.optionsInARow) frame->SetOptionsInARow();
  line->addWidget(frame);
  return frame;
}

}  // namespace halvane
