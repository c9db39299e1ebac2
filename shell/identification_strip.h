#pragma once

#include <QWidget>
#include <array>

class QRadioButton;

namespace halvane {

class TextBox;

/// Names of the strip's controls on one form.
struct IdentificationNames {
  const char* analyst;
  const char* jobName;
  const char* workstation;
  const char* handOptions;  ///< control array of the two options
};

/// Analyst, job name, workstation and hand in one row, the same on every tool. Its boxes store what
/// is typed in the job themselves.
class IdentificationStrip : public QWidget {
  Q_OBJECT
 public:
  IdentificationStrip(const IdentificationNames& names, QWidget* parent);

  /// Fills the boxes from the job.
  void ShowJob();
  /// Gives the first box the focus.
  void FocusFirst();
  /// Shows which option is chosen. Tells nobody.
  void ShowHand(int index);

 signals:
  /// The user chose a hand: 0 right side, 1 left side.
  void handChosen(int index);

 private:
  TextBox* AddBox(const QString& label, const QString& name);

  TextBox* analyst_;
  TextBox* jobName_;
  TextBox* workstation_;
  std::array<QRadioButton*, 2> hand_{};
};

}  // namespace halvane
