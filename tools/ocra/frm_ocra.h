#pragma once

#include <array>
#include <map>
#include <vector>

#include "shell/tool_form.h"
#include "tools/ocra/ocra_controls.h"
#include "widgets/level_cell.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QSlider;

namespace halvane {

class TabStrip;
class TaskTree;
class TextBox;

/// The screen of the OCRA tool.
class FrmOCRA : public ToolForm {
  Q_OBJECT
 public:
  explicit FrmOCRA(QWidget* parent);

  // In the order of the screen.
  void SSTab1_Click(int tab);
  void SSOption1_Click(int index);
  void Text2_KeyUp();
  void Slider2_Scroll(int hours);
  void TreeView1_Select();
  void TreeView1_Click();
  void TreeView1_AfterLabelEdit(int task, const QString& name);
  void SSCommand1_Click(int index);  ///< 0 add, 1 delete, 2 edit
  void Text1_KeyUp(int index);       ///< 2 duration, 5 frequency
  void Slider1_Scroll(int value);
  void Combo1_Click(int list, int answer);
  void SSCheck1_Click(int index, bool ticked);

  void AddTask(int task);
  void ToolBarDelete();
  /// Shows or hides the frames of the task on screen.
  void EnableAllFrame();
  /// Fills the controls of the selected task and makes it the current one.
  void OcraShowTask();

 protected:
  void loadFromJob() override;
  void writeReport(RichText& RichTextBox1) override;
  void handChosen(int index) override { SSOption1_Click(index); }

 private:
  /// A frame and the box for a number in it.
  struct NumberFrame {
    QGroupBox* frame;
    TextBox* number;
  };

  QWidget* MakeTaskTab();
  QGroupBox* MakeJobFrame(QWidget* parent);
  static NumberFrame MakeNumberFrame(const OcraBox& row, const QString& array, QWidget* parent);
  QWidget* MakeTaskList(QWidget* parent);
  QWidget* MakeTaskNumbers(QWidget* parent);
  QGroupBox* MakeForceFrame(QWidget* parent);
  QWidget* MakePostureTab();
  /// Its lists stand level with their peers in the other frames, and so do its tick boxes.
  QGroupBox* MakeRegionFrame(const OcraFrame& region, const LevelCell::Peers& lines,
                             const LevelCell::Peers& ticks, QWidget* parent);
  QGroupBox* MakeTicks(const OcraFrame& region, QWidget* parent);
  QWidget* MakeList(int list, QWidget* parent);
  void ShowTaskFrames(bool shown);
  void ShowControls();
  void ShowHours(int hours);
  void ShowRating(int sliderValue);

  OcraControls controls_;
  TabStrip* SSTab1_;
  TaskTree* TreeView1_ = nullptr;
  QSlider* Slider1_ = nullptr;
  QSlider* Slider2_ = nullptr;
  QLabel* rating_ = nullptr;
  QLabel* hours_ = nullptr;
  TextBox* cycleTime_ = nullptr;
  std::map<int, TextBox*> Text1_;  ///< by index
  std::vector<QGroupBox*> taskFrames_;
  std::array<QComboBox*, kOcraListCount> Combo1_{};
  std::array<QCheckBox*, kOcraTickCount> SSCheck1_{};
};

}  // namespace halvane
