#pragma once

#include <QWidget>

namespace halvane {

class TextBox;
class WrapRow;

/// A box of the strip: its name and that of its label.
struct IdentificationBox {
  const char* box = "";
  const char* label = "";
};

/// Names of the strip's controls on one form.
struct IdentificationNames {
  IdentificationBox analyst;
  IdentificationBox jobName;
  IdentificationBox workstation;
  const char* handOptions = "";  ///< control array of the two options
};

/// Analyst, job name, workstation and hand in one row, the same on every tool. Its boxes store what
/// is typed in the job themselves.
class IdentificationStrip : public QWidget {
  Q_OBJECT
 public:
  IdentificationStrip(const IdentificationNames& names, QWidget* parent);

  /// Fills the boxes from the job.
  void ShowJob();
  /// Stores the texts of all three boxes in the job and marks it as changed.
  void StoreJob();
  /// Gives the first box the focus.
  void FocusFirst();

 signals:
  /// A key was released in a box and its text is stored.
  void typed();

 private:
  TextBox* AddBox(const QString& label, const IdentificationBox& names);

  WrapRow* row_;
  TextBox* analyst_;
  TextBox* jobName_;
  TextBox* workstation_;
};

}  // namespace halvane
