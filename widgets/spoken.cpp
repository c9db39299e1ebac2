#include "widgets/spoken.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QSlider>
#include <array>

#include "widgets/report_note.h"
#include "widgets/rich_text_box.h"
#include "widgets/spoken_button.h"
#include "widgets/spoken_list.h"
#include "widgets/spoken_menu.h"
#include "widgets/spoken_menu_item.h"
#include "widgets/spoken_note.h"
#include "widgets/spoken_panel.h"
#include "widgets/spoken_report.h"
#include "widgets/spoken_slider.h"
#include "widgets/spoken_text_box.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr auto kUnspoken = "halvaneUnspoken";

template <typename Control, typename Spoken>
QAccessibleInterface* Make(QObject* object) {
  return new Spoken(*static_cast<Control*>(object));
}

/// What speaks for a class of the toolkit or of this room and for those derived from it.
struct Row {
  const char* className;
  QAccessibleInterface* (*make)(QObject* object);
};
constexpr auto kRows = std::to_array<Row>({
    {"QAction", Make<QAction, SpokenMenuItem>},
    {"QMenu", Make<QMenu, SpokenMenu>},
    {"QCheckBox", Make<QAbstractButton, SpokenButton>},
    {"QRadioButton", Make<QAbstractButton, SpokenButton>},
    {"QPushButton", Make<QAbstractButton, SpokenButton>},
    {"QAbstractButton", Make<QAbstractButton, SpokenButton>},
    {"QDialog", Make<QWidget, SpokenPanel>},
    {"QGroupBox", Make<QWidget, SpokenPanel>},
    {"QScrollArea", Make<QWidget, SpokenPanel>},
    {"QStackedWidget", Make<QWidget, SpokenPanel>},
    {"QWidget", Make<QWidget, SpokenPanel>},
    {"QComboBox", Make<QComboBox, SpokenList>},
    {"QSlider", Make<QSlider, SpokenSlider>},
    {"halvane::TextBox", Make<TextBox, SpokenTextBox>},
    {"halvane::RichTextBox", Make<RichTextBox, SpokenReport>},
    {"halvane::ReportNote", Make<ReportNote, SpokenNote>},
});

/// The toolkit asks for the class of an object and then for those above it, until one is known.
QAccessibleInterface* MakeSpoken(const QString& className, QObject* object) {
  for (const Row& row : kRows) {
    if (className == QLatin1String(row.className)) return row.make(object);
  }
  return nullptr;
}

}  // namespace

void UseSpokenControls() { QAccessible::installFactory(MakeSpoken); }

void KeepUnspoken(QWidget& control) { control.setProperty(kUnspoken, true); }

bool IsUnspoken(const QWidget& control) { return control.property(kUnspoken).toBool(); }

void SetSpokenScale(QSlider& slider, double step, const QStringList& words) {
  slider.setProperty(SpokenSlider::kStep, step);
  slider.setProperty(SpokenSlider::kWords, words);
}

QString WithoutLetters(const QString& caption) {
  QString text;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    text.append(caption[i]);
  }
  return text.trimmed();
}

QString SpokenCaption(const QString& caption) {
  QString spoken = caption.trimmed();
  if (spoken.endsWith(':')) spoken.chop(1);
  return spoken;
}

}  // namespace halvane
