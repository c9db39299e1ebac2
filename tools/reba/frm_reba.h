#pragma once

#include "tools/posture/posture_form.h"

namespace halvane {

/// The screen of the REBA tool.
class FrmREBA : public PostureForm {
  Q_OBJECT
 public:
  explicit FrmREBA(QWidget* parent);

 protected:
  void writeReport(RichText& RichTextBox1) override;
};

}  // namespace halvane
