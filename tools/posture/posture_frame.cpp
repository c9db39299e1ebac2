#include "tools/posture/posture_frame.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>

#include "widgets/choice_group.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/wrapped_caption.h"

namespace halvane {
namespace {

// As low as four rows of frames in a small window ask for.
constexpr int kPadding = kGap / 2;
/// Between boxes; options have some room of their own.
constexpr int kCheckGap = 4;
constexpr int kOptionGap = 3;
/// What captions beside ribbons may take: of a box that stands alone, and of each of several.
constexpr int kLinesOfOneCheck = 3;
constexpr int kLinesOfACheck = 2;
/// Mark and caption of a box.
constexpr int kCheckColumns = 2;

}  // namespace

PostureFrame::PostureFrame(std::string_view caption, QWidget* parent)
    : QGroupBox(ScreenText(caption), parent) {
  column_ = new QVBoxLayout(this);
  column_->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
  column_->setSpacing(0);
  options_ = new QVBoxLayout;
  options_->setSpacing(kOptionGap);
  optionGroup_ = new ChoiceGroup(Choice::One, this);
  checkGroup_ = new ChoiceGroup(Choice::Any, this);
  // What room is left over stands above and below alike.
  column_->addStretch(1);
  column_->addLayout(options_);
  column_->addStretch(1);
}

void PostureFrame::MakeFirstRow() {
  if (ribbons_ != nullptr) return;
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  ribbons_ = new QHBoxLayout;
  ribbons_->setSpacing(0);
  row->addLayout(ribbons_);
  // Takes the rest of the row, empty too, so that ribbons stand at the left.
  auto* rest = new QWidget(this);
  checks_ = new QGridLayout(rest);
  checks_->setContentsMargins(0, 0, 0, 0);
  checks_->setHorizontalSpacing(kPadding);
  checks_->setVerticalSpacing(kCheckGap);
  row->addWidget(rest, 1, Qt::AlignVCenter);
  column_->insertLayout(1, row, 1);
  // It takes the room above and below itself: so the ribbons of frames side by side stand level,
  // whatever height the boxes beside them have.
  column_->setStretch(0, 0);
  column_->setStretch(column_->count() - 1, 0);
}

void PostureFrame::BeginGroup(bool oneIsDown) {
  MakeFirstRow();
  if (ribbons_->count() > 0) ribbons_->addSpacing(kGap);
  ribbonGroup_ = new ChoiceGroup(oneIsDown ? Choice::One : Choice::OneAtMost, this);
}

RibbonButton* PostureFrame::AddRibbon(const QString& name, const PictureRibbon& ribbon) {
  const QString caption = ScreenText(ribbon.caption);
  auto* button = new RibbonButton(name, caption, this);
  button->SetPicture(ScreenText(ribbon.picture));
  button->SetOneLine();
  button->setToolTip(ScreenText(ribbon.toolTip));
  ribbonGroup_->Add(*button);
  ribbons_->addWidget(button);
  return button;
}

void PostureFrame::AddInput(QWidget* input) {
  MakeFirstRow();
  checks_->addWidget(input, checks_->rowCount(), 0, 1, kCheckColumns, Qt::AlignLeft);
}

QCheckBox* PostureFrame::AddCheck(const QString& name, std::string_view caption) {
  MakeFirstRow();
  QCheckBox* box = AddWrappedCheck(*checks_, name, ScreenText(caption));
  checkGroup_->Add(*box);
  // Behind the ribbons for screen readers too.
  checks_->parentWidget()->raise();
  if (ribbons_->count() > 0) KeepChecksLow();
  return box;
}

void PostureFrame::KeepChecksLow() {
  // In a small window ribbons get narrower before the boxes beside them get higher than they.
  const auto captions = checks_->parentWidget()->findChildren<WrappedCaption*>();
  const int lines = captions.size() == 1 ? kLinesOfOneCheck : kLinesOfACheck;
  for (WrappedCaption* caption : captions) caption->SetMostLines(lines);
}

QRadioButton* PostureFrame::AddOption(const QString& name, std::string_view caption) {
  auto* option = new QRadioButton(ScreenText(caption), this);
  option->setObjectName(name);
  optionGroup_->Add(*option);
  options_->addWidget(option);
  return option;
}

void PostureFrame::SetOptionsInARow() { options_->setDirection(QBoxLayout::LeftToRight); }

void PostureFrame::AddBelow(QWidget* panel) {
  column_->addSpacing(kPadding);
  column_->addWidget(panel);
}

}  // namespace halvane
