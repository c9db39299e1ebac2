#include "tests/forms/place_checks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <algorithm>

#include "widgets/gradient_panel.h"
#include "widgets/pair_panel.h"
#include "widgets/splash_picture.h"
#include "widgets/window_place.h"

namespace halvane {
namespace {

/// A title has so much beside it: icon and buttons.
constexpr int kBesideTitle = 120;
/// A report narrower than this cannot be read, where the window has the room.
constexpr int kLeastColumns = 40;
constexpr double kLeastShare = 0.5;

QString Text(const QSize& size) { return QString("%1x%2").arg(size.width()).arg(size.height()); }

QString Text(const QRect& place) {
  return QString("%1+%2+%3").arg(Text(place.size())).arg(place.x()).arg(place.y());
}

/// Whether a control has a name of its own and none from the toolkit.
bool HasName(const QWidget& control) {
  return !control.objectName().isEmpty() && !control.objectName().startsWith("qt_");
}

/// Parts that the toolkit puts into its own controls and places itself.
bool IsInnerPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return qobject_cast<const QLineEdit*>(parent) != nullptr ||
         qobject_cast<const QTabBar*>(parent) != nullptr || widget.inherits("QSizeGrip") ||
         widget.inherits("QRubberBand") || widget.inherits("QSplitterHandle") ||
         widget.inherits("QMenuBarExtension") || widget.inherits("QScrollBar");
}

/// Whether what stands in it is text or items and no controls.
bool IsDocument(const QWidget& widget) {
  return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr &&
         qobject_cast<const QScrollArea*>(&widget) == nullptr;
}

std::vector<const QWidget*> VisibleChildren(const QWidget& widget) {
  std::vector<const QWidget*> children;
  for (const QObject* object : widget.children()) {
    const auto* child = qobject_cast<const QWidget*>(object);
    if (child != nullptr && child->isVisible() && !child->isWindow() && !IsInnerPart(*child)) {
      children.push_back(child);
    }
  }
  return children;
}

bool Scrolls(const QScrollBar& bar, int excess) {
  return excess <= 0 || (bar.isVisible() && bar.maximum() - bar.minimum() >= excess);
}

Findings CheckInside(const QWidget& control) {
  const QWidget& around = *control.parentWidget();
  const auto* area = qobject_cast<const QScrollArea*>(around.parentWidget());
  if (area != nullptr && area->widget() == &control) {
    const QSize excess = control.size() - around.size();
    if (Scrolls(*area->horizontalScrollBar(), excess.width()) &&
        Scrolls(*area->verticalScrollBar(), excess.height())) {
      return {};
    }
    return {{NameOfControl(control), "cannot be scrolled to as a whole: " + Text(control.size()) +
                                         " in " + Text(around.size())}};
  }
  if (around.rect().contains(control.geometry())) return {};
  return {{NameOfControl(control), "stands outside of what holds it: " + Text(control.geometry()) +
                                       " in " + Text(around.size())}};
}

/// The least size of a control in the width that it has.
QSize Needed(const QWidget& control) {
  if (const auto* document = qobject_cast<const QTextEdit*>(&control)) {
    const int columns = kLeastColumns * document->fontMetrics().averageCharWidth();
    return {std::min(columns, qRound(kLeastShare * document->window()->width())), 0};
  }
  QSize needed = control.minimumSizeHint();
  if (control.hasHeightForWidth()) needed.setHeight(control.heightForWidth(control.width()));
  if (const auto* button = qobject_cast<const QPushButton*>(&control)) {
    // It would rather be as wide as most of its kind.
    needed.setWidth(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width());
  }
  // What was told to be smaller has been looked at.
  return needed.boundedTo(control.maximumSize());
}

/// Space between others, and places for pictures of which there are none.
bool IsNothing(const QWidget& control) {
  return control.size().isEmpty() && VisibleChildren(control).empty() &&
         control.minimumSizeHint().isEmpty();
}

Findings CheckSize(const QWidget& control) {
  const QSize size = control.size();
  if (size.isEmpty()) return {{NameOfControl(control), "has no size: " + Text(size)}};
  // What holds others is as large as these need it.
  if (!IsDocument(control) && !VisibleChildren(control).empty()) return {};
  const QSize needed = Needed(control);
  if (needed.width() <= size.width() && needed.height() <= size.height()) return {};
  return {{NameOfControl(control), "is squeezed: " + Text(size) + " for " + Text(needed)}};
}

/// What others may stand on.
bool IsGround(const QWidget& control) {
  return qobject_cast<const SplashPicture*>(&control) != nullptr ||
         qobject_cast<const GradientPanel*>(&control) != nullptr ||
         dynamic_cast<const PairPanel*>(&control) != nullptr;
}

Findings CheckSiblings(const std::vector<const QWidget*>& siblings) {
  Findings findings;
  for (std::size_t i = 0; i < siblings.size(); ++i) {
    for (std::size_t j = i + 1; j < siblings.size(); ++j) {
      const QWidget& one = *siblings[i];
      const QWidget& other = *siblings[j];
      if (IsGround(one) || IsGround(other)) continue;
      const QRect common = one.geometry() & other.geometry();
      if (common.isEmpty()) continue;
      findings.push_back({NameOfControl(one),
                          "overlaps " + NameOfControl(other) + ": " + Text(common) + " of both"});
    }
  }
  return findings;
}

bool PlacesItself(const QWidget& window) {
  const QObjectList& parts = window.children();
  return std::any_of(parts.begin(), parts.end(), [](const QObject* part) {
    return dynamic_cast<const WindowPlace*>(part) != nullptr;
  });
}

void CheckWithin(const QWidget& widget, Findings& findings) {
  const auto children = VisibleChildren(widget);
  // A row of tabs lies on the edge of its page.
  if (qobject_cast<const QTabWidget*>(&widget) == nullptr) {
    Append(findings, CheckSiblings(children));
  }
  for (const QWidget* child : children) {
    if (IsNothing(*child)) continue;
    Append(findings, CheckInside(*child));
    Append(findings, CheckSize(*child));
    if (!IsDocument(*child)) CheckWithin(*child, findings);
  }
}

/// The hand has one size; of a screen that is too small for it the buttons have to be on it.
Findings CheckButtonsOnScreen(const QWidget& hand, const QRect& available) {
  Findings findings;
  const bool fits = hand.size().boundedTo(available.size()) == hand.size();
  for (const QAbstractButton* button : hand.findChildren<QAbstractButton*>()) {
    // Where the window manager puts one that fits is its own affair.
    if (fits || !button->isVisible()) continue;
    const QRect place(button->mapToGlobal(QPoint()), button->size());
    if (available.contains(place)) continue;
    findings.push_back({NameOfControl(*button),
                        "is not on the screen: " + Text(place) + " of " + Text(available)});
  }
  return findings;
}

}  // namespace

QString NameOfControl(const QWidget& control) {
  if (HasName(control)) return control.objectName();
  const auto* label = qobject_cast<const QLabel*>(&control);
  const QString kind =
      label != nullptr ? '"' + label->text() + '"' : QString(control.metaObject()->className());
  const QWidget* around = control.parentWidget();
  while (around != nullptr && !HasName(*around)) around = around->parentWidget();
  return around == nullptr || control.isWindow() ? kind : around->objectName() + "/" + kind;
}

Findings CheckWindow(const QWidget& window, const QRect& available) {
  Findings findings;
  const bool framed =
      !window.windowFlags().testFlag(Qt::FramelessWindowHint) && window.windowType() != Qt::Popup;
  const QMargins frame = framed ? QMargins(kBorder, kTitleBar, kBorder, kBorder) : QMargins();
  const QRect place = window.geometry().marginsAdded(frame);
  if (window.findChild<const SplashPicture*>() != nullptr)
    return CheckButtonsOnScreen(window, available);
  // Where the window manager puts the others is its own affair.
  const bool fits = PlacesItself(window) ? available.contains(place)
                                         : place.size().boundedTo(available.size()) == place.size();
  if (!fits) {
    findings.push_back({NameOfControl(window), "is not on the screen: " + Text(place) +
                                                   " with its frame, of " + Text(available)});
  }
  if (framed) {
    QFont bold = window.font();
    bold.setBold(true);
    const int title = QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + kBesideTitle;
    // A screen may be narrower still.
    if (window.width() < title && place.width() < available.width()) {
      findings.push_back(
          {NameOfControl(window),
           QString("cuts its title: %1 wide for %2").arg(window.width()).arg(title)});
    }
  }
  return findings;
}

Findings CheckPlaces(const QWidget& window) {
  Findings findings;
  CheckWithin(window, findings);
  return findings;
}

}  // namespace halvane
