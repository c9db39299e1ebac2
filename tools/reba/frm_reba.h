#pragma once

#include "shell/tool_form.h"
#include "tools/reba/reba_controls.h"
#include "widgets/button_states.h"

class QComboBox;

namespace halvane {

class PostureFrame;
class TabStrip;

/// The screen of the REBA tool.
class FrmREBA : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmREBA(QWidget* parent);

  // In the order of the screen.
  void SSTab1_Click(int tab);
  void Text1_KeyUp();
  void SSOption5_Click(int index);
  void SSRibbon_Click(RebaRegion region, int index);
  void SSCheck_Click(RebaRegion region, int index, bool checked);
  void SSOption1_Click(int index);
  void Combo2_Click(int index);

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption5_Click(index); }
  void identificationTyped() override { Text1_KeyUp(); }

 private:
  QWidget* MakeInputTab();
  void AddRibbons(RebaRegion region, PostureFrame& frame);
  void AddChecks(RebaRegion region, PostureFrame& frame);
  void AddCouplings(PostureFrame& frame);
  void AddLoads(PostureFrame& frame);
  void ShowControls();

  RebaControls controls_;
  TabStrip* SSTab1_;
  QComboBox* Combo2_ = nullptr;
  ButtonStates buttons_;
};

}  // namespace halvane
