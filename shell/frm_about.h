#pragma once

#include <QDialog>

namespace halvane {

/// The about box: names the product and its version.
class FrmAbout : public QDialog {
  Q_OBJECT
 public:
  explicit FrmAbout(QWidget* parent);

  void cmdOK_Click();
};

}  // namespace halvane
