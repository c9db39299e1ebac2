#include "widgets/menu_letters.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

namespace halvane {
namespace {

/// The letters behind an &, large. Two of them are one that is shown.
QString LettersOf(const QString& caption) {
  QString letters;
  for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    ++i;
    if (caption[i] != '&') letters.append(caption[i].toUpper());
  }
  return letters;
}

}  // namespace

MenuLetters::MenuLetters(QMenu& menu) : QObject(&menu), menu_(menu) {
  menu.installEventFilter(this);
}

bool MenuLetters::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  QAction* item = ItemOf(*static_cast<const QKeyEvent*>(event));
  if (item == nullptr) return QObject::eventFilter(watched, event);
  menu_.setActiveAction(item);
  // What the Return key does on an item also closes the menu.
  QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(&menu_, &choose);
  return true;
}

QAction* MenuLetters::ItemOf(const QKeyEvent& key) const {
  const bool isPlain = !(key.modifiers() & ~(Qt::ShiftModifier | Qt::AltModifier));
  if (!isPlain || key.text().size() != 1) return nullptr;
  const QChar letter = key.text().front().toUpper();
  for (QAction* item : menu_.actions()) {
    const bool works = item->isEnabled() && item->isVisible();
    if (works && LettersOf(item->text()).contains(letter)) return item;
  }
  return nullptr;
}

}  // namespace halvane
