#include "tools/hal/frm_hal.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolTip>
#include <QVBoxLayout>

#include "core/job_state.h"
#include "shell/hand_frame.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_score.h"
#include "widgets/font_share.h"
#include "widgets/labelled_scale.h"
#include "widgets/layout.h"
#include "widgets/mouse_slider.h"
#include "widgets/printed_scale.h"
#include "widgets/readout.h"
#include "widgets/rich_text_box.h"
#include "widgets/spoken.h"
#include "widgets/text_box.h"
#include "widgets/wrap_row.h"
#include "widgets/wrapping_label.h"

namespace halvane {
namespace {

constexpr IdentificationNames kNames{
    {"Text3(0)", "Label1(11)"}, {"Text3(1)", "Label1(10)"}, {"Text3(2)", "Label1(9)"}, "SSOption5"};

// Of the width; so the report's longest line fits at the default size.
constexpr int kInputsShare = 5;
constexpr int kReportShare = 6;
/// Room for the headings of the report, and for some lines of it where it stands below the inputs.
constexpr int kReportColumns = 55;
constexpr int kReportLines = 14;
constexpr int kLevelPage = 2;
constexpr int kDutyPage = 5;
constexpr double kNoteShare = 0.9;

/// The printed scale in words: "0 Nothing At All, 1.0 Very Weak, ...".
QString ForceScaleInWords() {
  QStringList marks;
  for (const HalMark& mark : kHalForceMarks) {
    if (!mark.words.empty()) marks.append(ScreenText(mark.tick) + " " + ScreenText(mark.words));
  }
  return marks.join(", ");
}

/// Shows `text` over the handle of a slider for a moment.
void ShowTip(QSlider& slider, const QString& text) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.orientation = slider.orientation();
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  option.sliderPosition = slider.sliderPosition();
  const QRect handle =
      slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
  QToolTip::showText(slider.mapToGlobal(handle.bottomLeft()), text, &slider);
}

}  // namespace

FrmHAL::FrmHAL(QWidget* parent) : ToolForm(Tool::Hal, "frmHAL", kNames, parent) {
  body().addWidget(MakeScrolling(MakePage(), this), 1);
}

QWidget* FrmHAL::MakePage() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(MakeIdentificationWithHand(page));
  hand().setObjectName("SSFrame1(8)");
  auto* parts = new QWidget(page);
  auto* row = new WrapRow(1, parts);
  row->Add(MakeInputs(), kInputsShare);
  RichTextBox1().SetLeast(kReportColumns, kReportLines);
  row->Add(&RichTextBox1(), kReportShare);
  column->addWidget(parts, 1);
  return page;
}

QWidget* FrmHAL::MakeInputs() {
  auto* inputs = new QWidget(this);
  auto* column = new QVBoxLayout(inputs);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  inputFrames_[0] = MakeExertionFrame(inputs);
  row->addWidget(inputFrames_[0]);
  inputFrames_[1] = MakeDutyFrame(inputs);
  row->addWidget(inputFrames_[1], 1);
  column->addLayout(row);
  inputFrames_[2] = MakeLevelFrame(inputs);
  column->addWidget(inputFrames_[2]);
  column->addWidget(MakeLimitFrame(inputs));
  column->addStretch(1);
  return inputs;
}

QGroupBox* FrmHAL::MakeExertionFrame(QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(kHalExertionCaption), parent);
  frame->setObjectName("SSFrame1(4)");
  const HalBox& row = kHalBoxes[kHalFrequency];
  AddText1(kHalFrequency,
           AddNumberWithUnit(*grid, ElementName("Text1", kHalFrequency), ScreenText(row.name),
                             ScreenText(row.unit), "Label2(5)"));
  return frame;
}

QGroupBox* FrmHAL::MakeDutyFrame(QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(kHalDutyCaption), parent);
  frame->setObjectName("SSFrame1(3)");
  AddText1(kHalDuty, MakeNumberBox(ElementName("Text1", kHalDuty),
                                   ScreenText(kHalBoxes[kHalDuty].name), frame));
  Slider3_ = new MouseSlider(frame);
  SetUpSlider(*Slider3_, "Slider3", kHalHighestDuty, kDutyPage);
  // A key would move it and nothing else; the box beside it is there for keys.
  Slider3_->setFocusPolicy(Qt::NoFocus);
  Slider3_->setAccessibleName(frame->title());
  grid->addWidget(Text1_[kHalDuty], 0, 0);
  grid->addWidget(Slider3_, 0, 1);
  connect(Slider3_, &MouseSlider::mouseHeld, this, &FrmHAL::Slider3_MouseMove);
  return frame;
}

void FrmHAL::AddText1(int index, TextBox* box) {
  Text1_.at(static_cast<std::size_t>(index)) = box;
  connect(box, &TextBox::keyReleased, this, [this, index] { Text1_KeyUp(index); });
}

QGroupBox* FrmHAL::MakeLevelFrame(QWidget* parent) {
  const auto [frame, grid] = MakeFrame(ScreenText(kHalLevelCaption), parent);
  frame->setObjectName("SSFrame1(2)");
  grid->setContentsMargins(kGap / 2, kGap / 2, kGap / 2, kGap / 2);
  Slider1_ = new QSlider(frame);
  SetUpSlider(*Slider1_, "Slider1", kHalHighestLevel, kLevelPage);
  Slider1_->setTickPosition(QSlider::TicksAbove);
  Slider1_->setAccessibleName(frame->title());
  Slider1_->setToolTip(ScreenText(kHalLevelTip));
  auto* scale = new LabelledScale(Slider1_, frame);
  QStringList words(kHalHighestLevel + 1);
  for (int i = 0; const HalMark& mark : kHalLevelMarks) {
    words[mark.position] = ScreenText(mark.words);
    scale->AddMark(ScreenText(mark.tick), ElementName("Label4", i), ScreenText(mark.words),
                   ElementName("Label5", i));
    ++i;
  }
  SetSpokenScale(*Slider1_, 1, words);
  grid->addWidget(scale, 0, 0);
  connect(Slider1_, &QSlider::valueChanged, this, &FrmHAL::Slider1_Scroll);
  return frame;
}

QGroupBox* FrmHAL::MakeLimitFrame(QWidget* parent) {
  const auto [panel, grid] = MakeFrame("", parent);
  SSPanel4_ = panel;
  SSPanel4_->setObjectName("SSPanel4");
  grid->addWidget(MakeForceScale(panel), 0, 0);
  auto* row = new QHBoxLayout;
  AddLimit(*row, kHalActionLevel, 0, 1);
  row->addStretch(1);
  AddLimit(*row, kHalThresholdLimitValue, 3, 2);
  grid->addLayout(row, 1, 0);
  auto* note = new WrappingLabel(ScreenText(kHalNote), panel);
  note->setObjectName("Label6");
  new FontShare(*note, kNoteShare);
  grid->addWidget(note, 2, 0);
  return panel;
}

void FrmHAL::AddLimit(QBoxLayout& row, int element, int captionIndex, int valueIndex) {
  const auto at = static_cast<std::size_t>(element);
  auto* text = new QLabel(ScreenText(kHalLimitCaptions.at(at)), SSPanel4_);
  text->setObjectName(ElementName("Label7", captionIndex));
  QLabel* value = new Readout("10.00", SSPanel4_);
  value->setObjectName(ElementName("Label3", valueIndex));
  value->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  text->setBuddy(value);
  row.addWidget(text);
  row.addWidget(value);
  limits_.at(at) = value;
}

QGroupBox* FrmHAL::MakeForceScale(QWidget* parent) {
  const auto [panel, grid] = MakeFrame(ScreenText(kHalForceCaption), parent);
  panel->setObjectName("SSPanel3");
  QStringList numbers;
  QStringList words;
  for (const HalMark& mark : kHalForceMarks) {
    numbers.append(ScreenText(mark.tick));
    words.append(ScreenText(mark.words));
  }
  auto* scale = new PrintedScale(numbers, words, panel);
  scale->StretchWords(kHalForceStretch);
  scale->setAccessibleName(panel->title());
  scale->setAccessibleDescription(ForceScaleInWords());
  grid->addWidget(scale, 0, 0);
  return panel;
}

void FrmHAL::loadFromJob() {
  for (QGroupBox* frame : inputFrames_) frame->show();
  HalLoad();
  SSPanel4_->setTitle(ScreenText(HalLimitHeading()));
  hand().ShowHand(Module1.Hand);
  for (std::size_t i = 0; i < Text1_.size(); ++i) {
    Text1_[i]->setText(QString::fromStdString(NumberIn(kHalBoxes[i].field).AsText()));
  }
  ShowDuty();
  ShowLevel();
  mnuEdit().setEnabled(true);
  ShowReport();
}

void FrmHAL::ShowLevel() {
  const QSignalBlocker blocker(Slider1_);
  Slider1_->setValue(HalLevelSlider());
}

void FrmHAL::ShowDuty() { Slider3_->setValue(HalDutySlider()); }

void FrmHAL::SSOption5_Click(int index) {
  HalHandChosen(index);
  ShowReport();
}

void FrmHAL::Text1_KeyUp(int index) {
  HalTyped(index, Text1_.at(static_cast<std::size_t>(index))->text().toStdString());
  if (index == kHalDuty) ShowDuty();
  ShowLevel();
  ShowReport();
}

void FrmHAL::Slider3_MouseMove() {
  Text1_[kHalDuty]->setText(QString::fromStdString(HalDutyDragged(Slider3_->value())));
  ShowLevel();
  ShowReport();
}

void FrmHAL::Slider1_Scroll(int value) {
  const std::string level = HalLevelMoved(value);
  ShowTip(*Slider1_, QString::fromStdString(level));
  for (TextBox* box : Text1_) box->clear();
  ShowReport();
}

void FrmHAL::mnuEditSelect_Click() { RichTextBox1().SelectAll(); }

void FrmHAL::mnuEditCopy_Click() {
  RichTextBox1().SelectAll();
  CopySelection();
}

void FrmHAL::writeReport(RichText& RichTextBox1) {
  HAL_Calculate(RichTextBox1);
  for (std::size_t i = 0; i < limits_.size(); ++i) {
    const double limit = Module1.HalLimits.at(static_cast<int>(i));
    limits_[i]->setText(QString::fromStdString(HalLimitText(limit)));
  }
}

}  // namespace halvane
