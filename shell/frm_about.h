#pragma once

#include <QDialog>

namespace halvane {

/// The about box: names the product, its version and maker, and starts the system's viewer of
/// system information.
class FrmAbout : public QDialog {
  Q_OBJECT
 public:
  explicit FrmAbout(QWidget* parent);

  void cmdOK_Click();
  void cmdSysInfo_Click();

 private:
  void StartSystemInformation();
};

}  // namespace halvane
