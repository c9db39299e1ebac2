#include "help/help_browser.h"

#include <QEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "help/help_pages.h"

namespace halvane {
namespace {

constexpr int kZoomStep = 10;
constexpr double kWhole = 100.0;
/// A mark and the letters on it, as on paper, whatever the palette.
constexpr QColor kMark(255, 224, 102);
constexpr QColor kMarkedText(0, 0, 0);

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setObjectName("HelpPage");
  setAccessibleName(tr("Help page"));
  setDocument(&document_);
  setOpenLinks(false);
  setTabChangesFocus(false);
  setTextInteractionFlags(Qt::TextBrowserInteraction);
  BrightenSelection();
  connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::FollowLink);
  connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::AdaptPage);
}

void HelpBrowser::SetPages(const HelpPages* pages) {
  document_.SetPages(pages);
  anew_ = true;
}

HelpLook HelpBrowser::Look() const { return {palette(), zoom_ / kWhole}; }

void HelpBrowser::ShowPage(const QUrl& url) {
  const QUrl before = source().adjusted(QUrl::RemoveFragment);
  setSource(url, QTextDocument::HtmlResource);
  if (!std::exchange(anew_, false)) return;
  // The toolkit keeps a page of the same address, which is another one in another file.
  if (before == url.adjusted(QUrl::RemoveFragment)) reload();
  clearHistory();
}

void HelpBrowser::FollowLink(const QUrl& link) {
  const HelpPages* pages = document_.pages();
  const QUrl inside = pages != nullptr ? pages->Inside(link) : QUrl();
  if (inside.isEmpty()) {
    emit notFollowed(link.toDisplayString());
  } else {
    ShowPage(inside);
  }
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::HtmlResource || document_.pages() == nullptr) return QByteArray("");
  const QUrl url = source().resolved(name);
  document_.Prepare(url.adjusted(QUrl::RemoveFragment), font(), Look());
  return document_.pages()->Page(url);
}

void HelpBrowser::AdaptPage(const QUrl& url) {
  document_.Adapt(Look());
  DrawMarks();
  // Sizes may have changed since the toolkit went to the anchor.
  if (url.hasFragment()) scrollToAnchor(url.fragment(QUrl::FullyDecoded));
}

void HelpBrowser::ShowAgain() {
  if (document_.pages() == nullptr || source().isEmpty()) return;
  const QScrollBar& bar = *verticalScrollBar();
  const double place = bar.maximum() > 0 ? bar.value() / static_cast<double>(bar.maximum()) : 0;
  const QUrl url = source();
  const int anchor = textCursor().anchor();
  const int position = textCursor().position();
  const QRect found = cursorRect();
  document_.Prepare(url.adjusted(QUrl::RemoveFragment), font(), Look());
  setHtml(document_.pages()->Page(url));
  document_.Adapt(Look());
  DrawMarks();
  verticalScrollBar()->setValue(qRound(place * verticalScrollBar()->maximum()));
  if (anchor == position) return;
  // What was found or selected stays so, and stays where it was on the screen.
  const int scrolled = verticalScrollBar()->value();
  QTextCursor again(&document_);
  again.setPosition(anchor);
  again.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(again);
  if (viewport()->rect().intersects(found)) {
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - found.top());
  } else {
    verticalScrollBar()->setValue(scrolled);
  }
}

void HelpBrowser::MarkWords(const QStringList& words) {
  words_ = words;
  DrawMarks();
}

void HelpBrowser::DrawMarks() {
  QList<ExtraSelection> marks;
  for (const QString& word : words_) {
    for (QTextCursor at = document_.find(word); !at.isNull(); at = document_.find(word, at)) {
      ExtraSelection mark;
      mark.cursor = at;
      mark.format.setBackground(kMark);
      mark.format.setForeground(kMarkedText);
      marks.append(mark);
    }
  }
  setExtraSelections(marks);
}

void HelpBrowser::ShowFirstMark() {
  const QList<ExtraSelection> marks = extraSelections();
  if (marks.isEmpty()) return;
  const auto first = std::ranges::min_element(
      marks, {}, [](const ExtraSelection& mark) { return mark.cursor.selectionStart(); });
  QTextCursor place(&document_);
  place.setPosition(first->cursor.selectionStart());
  setTextCursor(place);
}

void HelpBrowser::SetZoom(int percent) {
  const int bounded = std::clamp(percent, kLeastZoom, kMostZoom);
  if (bounded == zoom_) return;
  zoom_ = bounded;
  ShowAgain();
  emit zoomChanged();
}

void HelpBrowser::ZoomBy(int steps) { SetZoom(zoom_ + steps * kZoomStep); }

bool HelpBrowser::FindText(const QString& text, bool backward, bool& wrapped) {
  wrapped = false;
  if (text.isEmpty()) return false;
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (find(text, flags)) return true;
  const QTextCursor place = textCursor();
  moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  wrapped = true;
  if (find(text, flags)) return true;
  setTextCursor(place);
  return false;
}

std::unique_ptr<HelpDocument> HelpBrowser::PageToPrint() const {
  HelpLook look;
  look.palette = QPalette(Qt::lightGray);
  look.palette.setColor(QPalette::Link, Qt::darkBlue);
  auto page = std::make_unique<HelpDocument>();
  page->SetPages(document_.pages());
  page->Prepare(source().adjusted(QUrl::RemoveFragment), font(), look);
  if (document_.pages() != nullptr) page->setHtml(document_.pages()->Page(source()));
  return page;
}

void HelpBrowser::BrightenSelection() {
  // What was found stays in sight while the focus is on the text that is looked for.
  QPalette colours = palette();
  for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
    const QColor active = colours.color(QPalette::Active, role);
    if (colours.color(QPalette::Inactive, role) == active) continue;
    colours.setColor(QPalette::Inactive, role, active);
  }
  if (colours != palette()) setPalette(colours);
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) BrightenSelection();
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) ShowAgain();
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  const int turned = event->angleDelta().y();
  if (turned != 0) ZoomBy(turned > 0 ? 1 : -1);
  event->accept();
}

}  // namespace halvane
