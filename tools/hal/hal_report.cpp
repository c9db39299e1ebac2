#include "tools/hal/hal_report.h"

#include "core/job_state.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_score.h"
#include "tools/report_parts.h"

namespace halvane {
namespace {

constexpr std::string_view kTitleText = "ACGIH Hand Activity Level (HAL)";
/// The title and the two line ends behind it.
constexpr std::size_t kTitleLength = 35;
// The end of either line is printed as it stands here, which is wanted.
constexpr std::string_view kFrequencyUnit = " (# of exertion per minute)'& CR$";
constexpr std::string_view kDutyUnit = " (% of cycle time)'& CR$";

void WriteLimit(RichText& RichTextBox1, int element) {
  RichTextBox1.Append(kNewLine, kHalLimitCaptions.at(static_cast<std::size_t>(element)), " ",
                      Format(Module1.HalLimits.at(element), Pattern::TwoDecimals));
}

/// How long the text was when a part of it was done.
struct Marks {
  std::size_t job;
  std::size_t inputHeading;
  std::size_t input;
  std::size_t limitHeading;
};

void WriteJob(RichText& RichTextBox1) {
  RichTextBox1.Append(kTitleText, kNewLine);
  AppendIdentification(RichTextBox1);
}

void WriteInput(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine);
  const TaggedField& frequency = Module1.HalExertionFrequency;
  const TaggedField& duty = Module1.HalDutyCycle;
  if (frequency.AsDouble() > 0 && duty.AsDouble() > 0) {
    RichTextBox1.Append(kNewLine, "Exertion Frequency: ", Format(frequency, Pattern::OneDecimal),
                        kFrequencyUnit);
    RichTextBox1.Append(kNewLine, "Duty Cycle: ", Format(duty, Pattern::OneDecimal), kDutyUnit);
  }
  RichTextBox1.Append(
      kNewLine, "Hand Activity Level: ", Format(Module1.HalActivityLevel, Pattern::OneDecimal));
}

void WriteLimits(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine);
  WriteLimit(RichTextBox1, kHalActionLevel);
  WriteLimit(RichTextBox1, kHalThresholdLimitValue);
}

Marks WriteText(RichText& RichTextBox1) {
  Marks marks{};
  WriteJob(RichTextBox1);
  marks.job = RichTextBox1.length();
  RichTextBox1.Append(kNewLine, "Input Data: ");
  marks.inputHeading = RichTextBox1.length();
  WriteInput(RichTextBox1);
  marks.input = RichTextBox1.length();
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine, HalLimitHeading(), ":");
  marks.limitHeading = RichTextBox1.length();
  WriteLimits(RichTextBox1);
  return marks;
}

/// Each selection is as long as the text was at its end, so it runs past what it is for; the next
/// one puts that right. Their order counts.
void FormatText(RichText& RichTextBox1, const Marks& marks) {
  const auto format = [&RichTextBox1](std::size_t start, std::size_t length, CharacterFormat look,
                                      Alignment alignment = Alignment::Left) {
    RichTextBox1.FormatSelection(start, length, look, alignment);
  };
  format(0, kTitleLength, kTitle, Alignment::Center);
  format(kTitleLength, marks.job, kPlain);
  format(marks.job, marks.inputHeading, kHeading);
  format(marks.inputHeading, marks.input, kPlain);
  format(marks.input, marks.limitHeading, kHeading);
  format(marks.limitHeading, RichTextBox1.length(), kPlain);
}

}  // namespace

void HAL_Print(RichText& RichTextBox1) {
  RichTextBox1.Clear();
  FormatText(RichTextBox1, WriteText(RichTextBox1));
}

}  // namespace halvane
