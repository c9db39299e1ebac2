#pragma once

#include <QGroupBox>
#include <string_view>

class QBoxLayout;
class QCheckBox;
class QGridLayout;
class QRadioButton;

namespace halvane {

class ChoiceGroup;
class RibbonButton;

/// A picture ribbon as a tool's tables have it.
struct PictureRibbon {
  std::string_view caption;
  std::string_view toolTip;
  std::string_view picture;  ///< asset name
};

/// A frame with the inputs about one region of the body: picture ribbons in a row, tick boxes
/// stacked behind them, options and panels below. It knows nothing of what they mean.
class PostureFrame : public QGroupBox {
  Q_OBJECT
 public:
  PostureFrame(std::string_view caption, QWidget* parent);

  /// Begins a group of ribbons, apart from those that stand there. Of a group with `oneIsDown` a
  /// click, or an arrow key, lets up the one that was down.
  void BeginGroup(bool oneIsDown);
  /// Adds a ribbon to the group begun last.
  RibbonButton* AddRibbon(const QString& name, const PictureRibbon& ribbon);
  /// Adds an input of another kind above the boxes.
  void AddInput(QWidget* input);
  /// Adds a tick box under those that stand there.
  QCheckBox* AddCheck(const QString& name, std::string_view caption);
  /// Adds an option. All options of a frame are one group, one under another.
  QRadioButton* AddOption(const QString& name, std::string_view caption);
  /// Has the options side by side instead.
  void SetOptionsInARow();
  /// Adds a panel with inputs of its own.
  void AddBelow(QWidget* panel);

 private:
  void MakeFirstRow();
  void KeepChecksLow();

  QBoxLayout* column_;
  QBoxLayout* ribbons_ = nullptr;       ///< null until there are ribbons, boxes or other inputs
  ChoiceGroup* ribbonGroup_ = nullptr;  ///< the one begun last
  QGridLayout* checks_ = nullptr;
  ChoiceGroup* checkGroup_;
  QBoxLayout* options_;
  ChoiceGroup* optionGroup_;
};

}  // namespace halvane
