#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

#include "platform/platform_qt.h"

namespace halvane {

/// The platform of a program that draws windows: as large a screen as HALVANE_SCREEN says,
/// "800x600", or one with room for every window. In use as long as it lives.
class PictureScreen : public QtPlatform {
 public:
  PictureScreen() {
    const QStringList size = qEnvironmentVariable("HALVANE_SCREEN", "1920x1080").split('x');
    area_ = QRect(0, 0, size.value(0).toInt(), size.value(1).toInt());
    SetPlatform(this);
  }
  ~PictureScreen() override { SetPlatform(nullptr); }

  [[nodiscard]] QRect AvailableArea(QPoint /*at*/) override { return area_; }

 private:
  QRect area_;
};

}  // namespace halvane
