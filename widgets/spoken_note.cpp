#include "widgets/spoken_note.h"

#include "widgets/report_note.h"
#include "widgets/rich_text_box.h"

namespace halvane {

SpokenNote::SpokenNote(ReportNote& note) : QAccessibleObject(&note) {}

ReportNote& SpokenNote::note() const { return *static_cast<ReportNote*>(object()); }

QAccessibleInterface* SpokenNote::parent() const {
  return QAccessible::queryAccessibleInterface(&note().pane());
}

QWindow* SpokenNote::window() const { return parent()->window(); }

QString SpokenNote::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? note().words() : QString();
}

QAccessible::Role SpokenNote::role() const { return note().role(); }

QAccessible::State SpokenNote::state() const {
  QAccessible::State state;
  state.invisible = !note().pane().isVisible();
  state.readOnly = true;
  return state;
}

QRect SpokenNote::rect() const {
  const RichTextBox& pane = note().pane();
  if (role() != QAccessible::Graphic) return {};
  const QRect place = pane.PlaceOf(note().position());
  return {pane.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

}  // namespace halvane
