#include "tools/posture/posture_frame.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "widgets/choice_group.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"

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

/// The least width in which the text of a label wraps to `lines` lines.
int WidthForLines(const QLabel& label, int lines) {
  const QFontMetrics font = label.fontMetrics();
  const auto boxAt = [&](int width) {
    return font.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, label.text());
  };
  int width = boxAt(0).width();  // of the widest word
  while (boxAt(width).height() > lines * font.lineSpacing()) ++width;
  return width;
}

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
  column_->insertLayout(1, row);
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
  // Captions repeat from region to region.
  button->setAccessibleName(title() + " " + caption.trimmed());
  ribbonGroup_->Add(*button);
  ribbons_->addWidget(button);
  return button;
}

void PostureFrame::AddInput(QWidget* input) {
  MakeFirstRow();
  ribbons_->addWidget(input);
}

QCheckBox* PostureFrame::AddCheck(const QString& name, std::string_view caption) {
  MakeFirstRow();
  QCheckBox* box = AddWrappedCheck(*checks_, name, ScreenText(caption));
  checkGroup_->Add(*box);
  if (ribbons_->count() > 0) KeepChecksLow();
  return box;
}

void PostureFrame::KeepChecksLow() {
  // In a small window ribbons get narrower before the boxes beside them get higher than they.
  const auto captions = checks_->parentWidget()->findChildren<QLabel*>();
  const int lines = captions.size() == 1 ? kLinesOfOneCheck : kLinesOfACheck;
  for (QLabel* caption : captions) caption->setMinimumWidth(WidthForLines(*caption, lines));
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
  column_->addWidget(panel);
  column_->addStretch(1);
}

}  // namespace halvane
