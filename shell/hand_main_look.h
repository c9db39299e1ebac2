#pragma once

namespace halvane {

class FrmHandMain;

/// How the main window looks: outline, pictures and the places of its controls, every one of which
/// stands wholly inside the hand.
class HandMainLook {
 public:
  /// Makes the hand, the title strip and the opening panel.
  static void Arrange(FrmHandMain& form);
  /// Puts the buttons in their places and gives them their pictures. Apart, since the opening phase
  /// shows no button and the start of the program is not to wait for them.
  static void ShowButtons(FrmHandMain& form);

 private:
  static void MakeTitleStrip(FrmHandMain& form);
  static void MakeOpeningPanel(FrmHandMain& form);
  static void PlaceButtons(FrmHandMain& form);
};

}  // namespace halvane
