#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "shell/tool_form.h"
#include "tools/posture/posture_controls.h"
#include "tools/posture/posture_page.h"
#include "widgets/button_states.h"

class QComboBox;

namespace halvane {

class PostureFrame;
class TabStrip;

/// What tells one form of posture controls from another.
struct PostureScreen {
  Tool tool;
  const char* objectName;
  std::string_view reportTab;
  std::span<const PostureRegion> regions;
  std::span<const FramePlace> places;  ///< by region
  int ribbonRows;                      ///< so many rows of frames on top hold ribbons alone
};

/// The screen of a tool that looks at the regions of the body: a tab with its controls, made from
/// their rows, and a tab with the report, which the tool writes.
class PostureForm : public ToolForm {
  Q_OBJECT
 public:
  // In the order of the screen.
  void SSTab1_Click(int tab);
  void Text1_KeyUp();
  void SSOption5_Click(int index);
  /// A ribbon, a box, an option or an entry of a list is clicked, whatever its control.
  void Control_Click(const PostureControl& control, int index);

 protected:
  PostureForm(const PostureScreen& screen, std::unique_ptr<PostureControls> controls,
              QWidget* parent);

  void loadFromJob() override;
  void handChosen(int index) override { SSOption5_Click(index); }
  void identificationTyped() override { Text1_KeyUp(); }

 private:
  struct ShownList {
    QComboBox* list;
    const PostureControl* control;
  };

  QWidget* MakeInputTab(const PostureScreen& screen);
  void AddInputs(const PostureRegion& region, PostureFrame& frame);
  void AddButtons(const PostureControl& control, PostureFrame& frame);
  void AddList(const PostureControl& control, PostureFrame& frame);
  void ShowControls();

  std::unique_ptr<PostureControls> controls_;
  TabStrip* SSTab1_;
  ButtonStates buttons_;
  std::vector<ShownList> lists_;
};

}  // namespace halvane
