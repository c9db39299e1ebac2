#pragma once

#include <QObject>

class QAction;
class QKeyEvent;
class QMenu;

namespace halvane {

/// Makes every letter behind an & a key of its item while the menu is open, where the toolkit knows
/// one letter an item. Of items with the same letter the first one has it.
class MenuLetters : public QObject {
  Q_OBJECT
 public:
  /// Lives as long as the menu.
  explicit MenuLetters(QMenu& menu);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The item that a key runs; null where it is none's.
  [[nodiscard]] QAction* ItemOf(const QKeyEvent& key) const;

  QMenu& menu_;
};

}  // namespace halvane
