#pragma once

#include <array>
#include <map>
#include <vector>

#include "shell/tool_form.h"
#include "tools/strain_index/si_controls.h"

namespace halvane {

class RibbonButton;
class TabStrip;
class TextBox;

/// The screen of the Strain Index tool.
class FrmSI : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmSI(QWidget* parent);

  // In the order of the screen.
  void SSTab1_Click(int tab);
  void SSOption5_Click(int index);
  void Text1_KeyUp(int index);
  void SSRibbon_Click(SiRibbonArray array, int index);

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption5_Click(index); }

 private:
  QWidget* MakeInputTab();
  QWidget* MakeNumberFrames(QWidget* parent);
  QWidget* MakeRibbonFrame(SiRibbonArray array, QWidget* parent);
  /// Gives the ribbons of all columns one height.
  void KeepRowsLevel();
  void ShowControls();

  SiControls controls_;
  TabStrip* SSTab1_;
  std::map<int, TextBox*> Text1_;  ///< the boxes with numbers, by index
  std::array<std::vector<RibbonButton*>, kSiRibbonArrays.size()> ribbons_;
};

}  // namespace halvane
