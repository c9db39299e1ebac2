#include "tests/forms/text_checks.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <algorithm>

#include "tests/support/painted_text.h"
#include "widgets/contrast.h"

namespace halvane {
namespace {

/// Letters may touch the edge of their place.
constexpr double kTouch = 1;

QString Quoted(const PaintedText& text) { return '"' + text.text + '"'; }

/// A place of the window's texts, and what stands there.
struct Spot {
  const QWidget* control;
  QPoint point;  ///< in the control
};

Spot SpotOf(const QWidget& window, const PaintedText& text) {
  const QRegion seen = text.clip & text.ink.toAlignedRect();
  // What is not seen was painted where there is no room for it.
  const QPoint middle = (seen.isEmpty() ? text.clip : seen).boundingRect().center();
  const QWidget* control = window.childAt(middle);
  if (control == nullptr) control = &window;
  return {control, control->mapFrom(&window, middle)};
}

bool IsEnabled(const QAction* item) { return item == nullptr || item->isEnabled(); }

bool IsAtHand(const Spot& spot) {
  if (!spot.control->isEnabled()) return false;
  if (const auto* menu = qobject_cast<const QMenu*>(spot.control)) {
    return IsEnabled(menu->actionAt(spot.point));
  }
  if (const auto* bar = qobject_cast<const QMenuBar*>(spot.control)) {
    return IsEnabled(bar->actionAt(spot.point));
  }
  if (const auto* tabs = qobject_cast<const QTabBar*>(spot.control)) {
    return tabs->isTabEnabled(tabs->tabAt(spot.point));
  }
  return true;
}

template <typename Kind>
const Kind* Around(const QWidget* control) {
  for (; control != nullptr; control = control->isWindow() ? nullptr : control->parentWidget()) {
    if (const auto* found = qobject_cast<const Kind*>(control)) return found;
  }
  return nullptr;
}

/// Tabs scroll in a window that cannot get wider.
bool Scrolls(const QTabBar& tabs) {
  const QWidget& window = *tabs.window();
  constexpr int kBorders = 8;
  return tabs.usesScrollButtons() &&
         window.width() + kBorders >= window.screen()->availableGeometry().width();
}

/// Whether a text may go on beyond what is seen of it: a page of a document, a list, a box for a
/// name.
bool MayGoOn(const Spot& spot) {
  if (const auto* box = Around<QLineEdit>(spot.control)) {
    bool isNumber = false;
    box->text().toDouble(&isNumber);
    return !isNumber && !box->isReadOnly();
  }
  const auto* tabs = Around<QTabBar>(spot.control);
  if (tabs != nullptr && Scrolls(*tabs)) return true;
  const auto* area = Around<QAbstractScrollArea>(spot.control);
  return area != nullptr && qobject_cast<const QScrollArea*>(area) == nullptr;
}

/// The pages in a window that are larger than the place that they are shown in.
std::vector<QScrollArea*> ScrollingPages(const QWidget& window) {
  std::vector<QScrollArea*> pages;
  for (auto* area : window.findChildren<QScrollArea*>()) {
    const bool isWhole = area->viewport()->rect().contains(area->widget()->geometry());
    if (area->isVisible() && !isWhole) pages.push_back(area);
  }
  return pages;
}

bool IsCut(const PaintedText& text) {
  const QRect core = text.ink.adjusted(kTouch, kTouch, -kTouch, -kTouch).toAlignedRect();
  return !QRegion(core).subtracted(text.clip).isEmpty();
}

/// What is behind a text, from the pixels around and between its letters: the most frequent of
/// their colours that is not the text's own. Where there is nearly nothing else, the text is lost
/// on its own colour.
QColor Behind(const QImage& image, const PaintedText& text) {
  constexpr double kLost = 0.7;
  const double ratio = image.devicePixelRatio();
  const QRectF seen = (text.clip & text.ink.toAlignedRect()).boundingRect().adjusted(-2, -1, 2, 1);
  const QRectF pixels(seen.topLeft() * ratio, seen.size() * ratio);
  const QRect place = pixels.toAlignedRect() & image.rect();
  QHash<QRgb, int> counts;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) ++counts[image.pixel(x, y)];
  }
  const QRgb own = text.color.rgb();
  if (counts.take(own) > kLost * place.width() * place.height()) return QColor(own);
  const auto most = std::max_element(counts.begin(), counts.end());
  return most == counts.end() ? QColor(own) : QColor(most.key());
}

QColor Over(const QColor& color, const QColor& ground) {
  const auto mix = [&](float top, float below) {
    return top * color.alphaF() + below * (1 - color.alphaF());
  };
  return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                          mix(color.blueF(), ground.blueF()));
}

Findings CheckContrast(const Spot& spot, const PaintedText& text, const QImage& image) {
  const QColor behind = Behind(image, text);
  const QColor color = Over(text.color, behind);
  const double contrast = Contrast(color, behind);
  if (contrast >= kTextContrast) return {};
  return {{NameOfControl(*spot.control),
           QString("%1 has contrast %2: %3 on %4")
               .arg(Quoted(text), QString::number(contrast, 'f', 2), color.name(), behind.name())}};
}

Findings CheckOverlap(const QWidget& window, const std::vector<PaintedText>& texts) {
  Findings findings;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      const PaintedText& one = texts[i];
      const PaintedText& other = texts[j];
      // A selection is painted again on its own ground.
      if (one.text.contains(other.text) && one.ink.top() == other.ink.top()) continue;
      const QRectF common = one.ink & other.ink;
      if (common.width() <= kTouch || common.height() <= kTouch) continue;
      if ((one.clip & other.clip & common.toAlignedRect()).isEmpty()) continue;
      findings.push_back(
          {NameOfControl(*SpotOf(window, one).control), Quoted(one) + " lies on " + Quoted(other)});
    }
  }
  return findings;
}

/// The texts of a window, or of a page that scrolls in one, without those of pages that scroll in
/// it.
Findings CheckSheet(QWidget& sheet) {
  Findings findings;
  const QImage image = sheet.grab().toImage();
  QRegion region = sheet.rect();
  for (const QScrollArea* area : ScrollingPages(sheet)) {
    const QWidget& place = *area->viewport();
    region -= QRect(place.mapTo(&sheet, QPoint()), place.size());
  }
  const std::vector<PaintedText> texts = TextsPaintedBy(sheet, region);
  for (const PaintedText& text : texts) {
    const Spot spot = SpotOf(sheet, text);
    if (!MayGoOn(spot)) {
      if (IsCut(text)) findings.push_back({NameOfControl(*spot.control), "cuts " + Quoted(text)});
      if (text.text.contains(u'…')) {
        findings.push_back({NameOfControl(*spot.control), "shortens " + Quoted(text)});
      }
    }
    const bool isSeen = !(text.clip & text.ink.toAlignedRect()).isEmpty();
    if (isSeen && IsAtHand(spot)) Append(findings, CheckContrast(spot, text, image));
  }
  Append(findings, CheckOverlap(sheet, texts));
  return findings;
}

/// The entries of a list that is closed: they need the width of its box.
Findings CheckEntries(const QComboBox& list) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  option.editable = list.isEditable();
  const QRect field = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &list);
  Findings findings;
  for (int i = 0; i < list.count(); ++i) {
    // Blanks at its end may go.
    const QString entry = QString(list.itemText(i)).trimmed();
    const int needed = list.fontMetrics().horizontalAdvance(entry);
    if (needed <= field.width()) continue;
    findings.push_back({NameOfControl(list), QString("cuts its entry \"%1\": %2 wide for %3")
                                                 .arg(list.itemText(i))
                                                 .arg(field.width())
                                                 .arg(needed)});
  }
  return findings;
}

/// The captions of tabs and menus have to be on view all at once.
template <typename Bar>
Findings CheckBar(const Bar& bar, const QString& caption, const QRect& place) {
  if (!place.isEmpty() && bar.rect().contains(place)) return {};
  return {{NameOfControl(bar), "has no room for \"" + caption + '"'}};
}

Findings CheckBars(const QWidget& window) {
  Findings findings;
  for (const auto* tabs : window.findChildren<QTabBar*>()) {
    for (int i = 0; tabs->isVisible() && !Scrolls(*tabs) && i < tabs->count(); ++i) {
      Append(findings, CheckBar(*tabs, tabs->tabText(i), tabs->tabRect(i)));
    }
  }
  for (const auto* bar : window.findChildren<QMenuBar*>()) {
    for (QAction* menu : bar->actions()) {
      if (bar->isVisible()) {
        Append(findings, CheckBar(*bar, menu->text(), bar->actionGeometry(menu)));
      }
    }
  }
  return findings;
}

}  // namespace

Findings CheckTexts(QWidget& window) {
  Findings findings = CheckSheet(window);
  for (const QScrollArea* area : ScrollingPages(window)) {
    Append(findings, CheckSheet(*area->widget()));
  }
  for (const auto* list : window.findChildren<QComboBox*>()) {
    if (list->isVisible()) Append(findings, CheckEntries(*list));
  }
  Append(findings, CheckBars(window));
  return findings;
}

}  // namespace halvane
