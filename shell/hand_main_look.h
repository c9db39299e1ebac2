#pragma once

namespace halvane {

class FrmHandMain;

/// How the main window looks: size, pictures and the places of its controls.
class HandMainLook {
 public:
  /// Makes the title strip and the opening panel and puts every control in its place.
  static void Arrange(FrmHandMain& form);
};

}  // namespace halvane
