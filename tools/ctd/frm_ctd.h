#pragma once

#include <array>
#include <map>

#include "shell/tool_form.h"
#include "tools/ctd/ctd_controls.h"
#include "widgets/button_states.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;

namespace halvane {

class ChoiceGroup;
class RibbonButton;
class TabStrip;
class TaskTree;
class TextBox;

/// The screen of the CTD Risk Index tool.
class FrmCTD : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmCTD(QWidget* parent);

  // In the order of the screen.
  void TreeView1_Select();
  void TreeView1_AfterLabelEdit(int task, const QString& name);
  void SSCommand1_Click(int index);  ///< 0 add, 1 delete, 2 edit
  void SSTab1_Click(int tab);
  void SSOption1_Click(int index);
  void Text1_KeyUp(int index);
  void Text2_KeyUp(int index);
  void Text5_KeyUp();
  void SSRibbon_Click(CtdGroup group, int index);
  void SSRibbon3_Click(int part);
  void SSctd_Click(int slot, int index);
  void Text3_KeyUp(int slot);
  void Text4_KeyUp(int slot);

  void AddTask(int task);
  void ToolBarDelete();
  /// Enables the input frames while there is a task.
  void EnableAllFrame();
  /// Brings every control of the task into line with the job.
  void CTDshowTask();
  /// Copies the data file "me.pda" that stands beside the program to the user's folder for the
  /// program's data, and tells how it went. Nothing of the form calls it.
  void CTDcopyPdaFile();

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void printReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption1_Click(index); }
  void identificationTyped() override { ShowRestTime(); }

 private:
  QWidget* MakeTaskList();
  QWidget* MakeEffortTab();
  void MakeNumberFrames(QVBoxLayout& column);
  QLayout* MakeGroups(QWidget* parent);
  QGroupBox* MakeGroup(CtdGroup group, QWidget* parent);
  QWidget* MakePostureTab();
  QWidget* MakeBodyParts(QWidget* parent);
  QGroupBox* MakeSlot(int slot, QWidget* parent);
  QLayout* MakeSlotNumbers(int slot, QWidget* parent);
  static QHBoxLayout* MakeRibbonRow(QGroupBox& frame);
  static RibbonButton* AddRibbon(QBoxLayout& row, ChoiceGroup& group, std::string_view array,
                                 const CtdRibbon& ribbon);
  void AddInputFrame(QGroupBox& frame);
  void AddText1(int index, TextBox* box);
  void AddText2(QGridLayout& grid, int row, int column, int index);
  void FillTaskBoxes(int task);
  void ShowRibbons();
  void ShowBodyParts(bool shown);
  void ShowPostureFrames(bool shown);
  void ShowRestTime();

  CtdControls controls_;
  bool partsShown_ = false;   ///< the body-part selector
  bool framesShown_ = false;  ///< the two posture frames of the body part chosen last
  TabStrip* SSTab1_;
  QWidget* SSTab2_;
  TaskTree* TreeView1_ = nullptr;
  QLabel* Label2_ = nullptr;      ///< unit of the hand span
  QLabel* choosePart_ = nullptr;  ///< what to do while no posture frame is shown
  // The elements of control arrays by their index.
  std::map<int, TextBox*> Text1_, Text2_, Text3_, Text4_;
  TextBox* Text5_ = nullptr;
  std::vector<QGroupBox*> SSFrame1_;
  std::array<std::map<int, RibbonButton*>, 4> ribbons_;  ///< by group
  std::array<RibbonButton*, 4> SSRibbon3_{};
  ButtonStates bodyParts_;
  std::array<QGroupBox*, kCtdSlotCount> SSFrame3_{};
  std::array<std::map<int, RibbonButton*>, kCtdSlotCount> categories_;  ///< by slot
};

}  // namespace halvane
