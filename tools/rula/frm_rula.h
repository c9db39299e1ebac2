#pragma once

#include "shell/tool_form.h"
#include "tools/rula/rula_controls.h"
#include "widgets/button_states.h"

namespace halvane {

class PostureFrame;
class TabStrip;

/// The screen of the RULA tool.
class FrmRULA : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmRULA(QWidget* parent);

  // In the order of the screen.
  void SSTab1_Click(int tab);
  void Text1_KeyUp();
  void SSOption5_Click(int index);
  void SSRibbon_Click(RulaRibbonArray array, int index, bool pressed);
  void SSCheck_Click(RulaCheckArray array, int index, bool checked);
  void SSOption_Click(RulaOptionArray array, int index);

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption5_Click(index); }
  void identificationTyped() override { Text1_KeyUp(); }

 private:
  QWidget* MakeInputTab();
  void AddInputs(const RulaFrame& region, PostureFrame& frame);
  void AddRibbons(RulaRibbonArray array, PostureFrame& frame);
  void AddChecks(RulaCheckArray array, PostureFrame& frame);
  void AddOptions(RulaOptionArray array, PostureFrame& frame);
  void ShowControls();

  RulaControls controls_;
  TabStrip* SSTab1_;
  ButtonStates buttons_;
};

}  // namespace halvane
