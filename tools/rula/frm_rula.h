#pragma once

#include "tools/posture/posture_form.h"

namespace halvane {

/// The screen of the RULA tool.
class FrmRULA : public PostureForm {
  Q_OBJECT
 public:
  explicit FrmRULA(QWidget* parent);

 protected:
  void writeReport(RichText& RichTextBox1) override;
};

}  // namespace halvane
