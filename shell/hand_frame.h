#pragma once

#include <QGroupBox>
#include <array>

class QRadioButton;

namespace halvane {

/// The frame "Hand" with its two options, the same on every tool.
class HandFrame : public QGroupBox {
  Q_OBJECT
 public:
  /// `optionArray` is the name of the options without their index.
  HandFrame(const char* optionArray, QWidget* parent);

  /// Shows which option is chosen. Tells nobody.
  void ShowHand(int index);

 signals:
  /// The user chose a hand: 0 right side, 1 left side.
  void handChosen(int index);

 private:
  std::array<QRadioButton*, 2> options_{};
};

}  // namespace halvane
