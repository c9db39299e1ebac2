#pragma once

#include <QButtonGroup>

namespace halvane {

/// How many buttons of a group can be on, and with that what the keyboard does in it.
enum class Choice {
  One,        ///< one at all times, once one was: an arrow key moves on and chooses
  OneAtMost,  ///< one or none, which the form sees to: an arrow key moves on, Space chooses
  Any,        ///< each by itself: the same, and the Tab key stops at each
};

/// Buttons that belong together. The Tab key enters them at the one that is on, else at the first,
/// so that Space gives no other answer by chance, and leaves them with the next press. Arrow keys
/// move to the next button in their direction, as far as there is one.
class ChoiceGroup : public QButtonGroup {
  Q_OBJECT
 public:
  ChoiceGroup(Choice choice, QObject* parent);

  /// Adds a button behind the others; `id` is what the group's signals call it, -1: none in
  /// particular.
  void Add(QAbstractButton& button, int id = -1);

  [[nodiscard]] Choice choice() const { return choice_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The button that the Tab key stops at; there is at least one.
  [[nodiscard]] const QAbstractButton& Stop() const;
  void SetStops();
  /// The nearest button in the direction of an arrow key; null at the end.
  [[nodiscard]] QAbstractButton* Next(const QAbstractButton& from, int arrow) const;
  void Move(const QAbstractButton& from, int arrow);

  Choice choice_;
};

}  // namespace halvane
