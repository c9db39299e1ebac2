#include "tools/posture/posture_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "tools/posture/posture_frame.h"
#include "widgets/layout.h"

namespace halvane {
namespace {

/// How rows of frames, and the empty ones between them, share what room is left over.
constexpr int kRibbonShare = 5;
constexpr int kLowShare = 3;
constexpr int kGapShare = 1;

}  // namespace

PosturePage::PosturePage(int ribbonRows, QWidget* parent)
    : RibbonPage(parent), ribbonRows_(ribbonRows) {
  rows_ = new QVBoxLayout(this);
  rows_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows_->setSpacing(kGap);
  // One grid for both columns, so that their frames stand level.
  frames_ = new QGridLayout;
  frames_->setHorizontalSpacing(kGap);
  // Twice between two rows of frames.
  frames_->setVerticalSpacing(kGap / 2);
  // The right column has the wider rows.
  frames_->setColumnStretch(static_cast<int>(PageColumn::Left), 30);
  frames_->setColumnStretch(static_cast<int>(PageColumn::Right), 31);
  rows_->addLayout(frames_, 1);
}

void PosturePage::SetTop(QWidget* row) { rows_->insertWidget(0, row); }

PostureFrame* PosturePage::AddFrame(const FramePlace& place, std::string_view caption) {
  const int column = static_cast<int>(place.column);
  // Below each row of frames is an empty one.
  const int row = 2 * place.row;
  const bool isLow = place.row >= ribbonRows_;
  frames_->setRowStretch(row, isLow ? kLowShare : kRibbonShare);
  if (!isLow) frames_->setRowStretch(row + 1, kGapShare);
  QLayoutItem* item = frames_->itemAtPosition(row, column);
  QLayout* line = item != nullptr ? item->layout() : nullptr;
  if (line == nullptr) {
    line = new QHBoxLayout;
    line->setSpacing(kGap);
    frames_->addLayout(line, row, column, 2 * place.rows - 1, 1);
  }
  auto* frame = new PostureFrame(caption, this);
  if (place.optionsInARow) frame->SetOptionsInARow();
  line->addWidget(frame);
  return frame;
}

}  // namespace halvane
