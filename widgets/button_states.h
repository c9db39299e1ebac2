#pragma once

#include <functional>
#include <vector>

class QAbstractButton;

namespace halvane {

/// The two-state controls of a form, each with what tells whether it is on.
class ButtonStates {
 public:
  using IsOn = std::function<bool()>;

  void Add(QAbstractButton& button, IsOn isOn);
  /// Shows every control as it is now. Tells nobody.
  void Show() const;

 private:
  struct Entry {
    QAbstractButton* button;
    IsOn isOn;
  };
  std::vector<Entry> entries_;
};

}  // namespace halvane
