#pragma once

#include <array>

#include "shell/tool_form.h"
#include "tools/hal/hal_controls.h"

class QBoxLayout;
class QGroupBox;
class QLabel;
class QSlider;

namespace halvane {

class MouseSlider;
class TextBox;

/// The screen of the Hand Activity Level tool. It has no tabs: the report stands beside the inputs
/// and is written anew after each of them. No button of the program opens it.
class FrmHAL : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmHAL(QWidget* parent);

  // In the order of the screen.
  void SSOption5_Click(int index);
  void Text1_KeyUp(int index);  ///< 0 exertions per minute, 1 duty cycle
  void Slider3_MouseMove();
  void Slider1_Scroll(int value);

  // These two leave the focus where it is.
  void mnuEditSelect_Click() override;
  /// Copies the whole report, whatever is selected.
  void mnuEditCopy_Click() override;

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption5_Click(index); }
  void identificationTyped() override { ShowReport(); }

 private:
  QWidget* MakePage();
  QWidget* MakeInputs();
  QGroupBox* MakeExertionFrame(QWidget* parent);
  QGroupBox* MakeDutyFrame(QWidget* parent);
  QGroupBox* MakeLevelFrame(QWidget* parent);
  QGroupBox* MakeLimitFrame(QWidget* parent);
  QGroupBox* MakeForceScale(QWidget* parent);
  void AddText1(int index, TextBox* box);
  /// Adds "Label7(captionIndex)" and, behind it, "Label3(valueIndex)" for an element of
  /// `HalLimits`.
  void AddLimit(QBoxLayout& row, int element, int captionIndex, int valueIndex);
  void ShowLevel();
  void ShowDuty();

  std::array<QGroupBox*, 3> inputFrames_{};
  std::array<TextBox*, kHalBoxes.size()> Text1_{};
  MouseSlider* Slider3_ = nullptr;
  QSlider* Slider1_ = nullptr;
  QGroupBox* SSPanel4_ = nullptr;
  std::array<QLabel*, 2> limits_{};  ///< by element of `HalLimits`
};

}  // namespace halvane
