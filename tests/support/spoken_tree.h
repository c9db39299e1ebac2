#pragma once

#include <QAccessible>
#include <QString>
#include <functional>
#include <vector>

class QWidget;

namespace halvane {

/// What a screen reader finds at one place of a window.
struct SpokenItem {
  QAccessibleInterface* face = nullptr;
  int depth = 0;
  QString objectName;  ///< of the control that it stands for, where there is one
  QString name;
  QString description;
  QString value;

  [[nodiscard]] QAccessible::Role role() const { return face->role(); }
  [[nodiscard]] QAccessible::State state() const { return face->state(); }
  /// The frame or window around it that has a name; empty without one.
  [[nodiscard]] QString group() const;
};

/// All that can be reached in a window as it is now, parents before children, without what does not
/// show.
std::vector<SpokenItem> SpokenTree(QWidget& window);

/// A tree as lines: role, name, value, description and state of each item, indented by its depth.
QString SpokenLines(const std::vector<SpokenItem>& tree);

/// What a role is called.
QString RoleName(QAccessible::Role role);

}  // namespace halvane
