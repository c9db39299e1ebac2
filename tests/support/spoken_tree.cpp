#include "tests/support/spoken_tree.h"

#include <QMetaEnum>
#include <QWidget>

namespace halvane {
namespace {

void Walk(QAccessibleInterface& face, int depth, std::vector<SpokenItem>& tree) {
  const QAccessible::State state = face.state();
  if (state.invisible && depth > 0) return;
  tree.push_back({&face, depth, face.object() == nullptr ? QString() : face.object()->objectName(),
                  face.text(QAccessible::Name), face.text(QAccessible::Description),
                  face.text(QAccessible::Value)});
  for (int i = 0; i < face.childCount(); ++i) {
    QAccessibleInterface* child = face.child(i);
    if (child != nullptr && child->isValid()) Walk(*child, depth + 1, tree);
  }
}

QString StateWords(QAccessible::State state) {
  QString words;
  const auto add = [&words](bool is, const char* word) {
    if (is) words += QString(" ") + word;
  };
  add(state.checkable, state.checked ? "checked" : "unchecked");
  add(state.disabled, "disabled");
  add(state.focusable, "focusable");
  add(state.focused, "focused");
  add(state.readOnly, "read-only");
  add(state.editable, "editable");
  add(state.multiLine, "multi-line");
  add(state.selected, "selected");
  add(state.hasPopup, "has-popup");
  return words;
}

}  // namespace

QString SpokenItem::group() const {
  for (QAccessibleInterface* above = face->parent(); above != nullptr; above = above->parent()) {
    const QAccessible::Role kind = above->role();
    const bool isGroup =
        kind == QAccessible::Grouping || kind == QAccessible::Window || kind == QAccessible::Dialog;
    const QString groupName = above->text(QAccessible::Name);
    if (isGroup && !groupName.isEmpty()) return groupName;
  }
  return {};
}

QString RoleName(QAccessible::Role role) {
  return QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
}

std::vector<SpokenItem> SpokenTree(QWidget& window) {
  std::vector<SpokenItem> tree;
  Walk(*QAccessible::queryAccessibleInterface(&window), 0, tree);
  return tree;
}

QString SpokenLines(const std::vector<SpokenItem>& tree) {
  QString lines;
  for (const SpokenItem& item : tree) {
    lines += QString(2 * item.depth, ' ') + RoleName(item.role());
    if (!item.name.isEmpty()) lines += " \"" + item.name + "\"";
    if (!item.value.isEmpty()) lines += " = " + item.value;
    if (!item.description.isEmpty()) lines += " (" + item.description + ")";
    lines += StateWords(item.state());
    if (!item.objectName.isEmpty()) lines += " [" + item.objectName + "]";
    lines += '\n';
  }
  return lines;
}

}  // namespace halvane
