#include "widgets/scroll_page.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLayout>
#include <QScrollBar>
#include <algorithm>

#include "widgets/layout.h"
#include "widgets/ribbon_page.h"

namespace halvane {
namespace {

QSize LeastOf(const QWidget& page) { return page.minimumSizeHint().expandedTo(page.minimumSize()); }

int LeastHeightOf(const QWidget& page, int width) {
  // A page that has its pictures grow needs what it needs with the smallest.
  if (dynamic_cast<const RibbonPage*>(&page) != nullptr && page.hasHeightForWidth()) {
    return std::max(page.minimumHeight(), page.heightForWidth(width));
  }
  const QLayout* layout = page.layout();
  if (layout == nullptr || !layout->hasHeightForWidth()) {
    return LeastOf(page).height();
  }
  return std::max(page.minimumHeight(), layout->totalMinimumHeightForWidth(width));
}

QSizePolicy HighByWidth() {
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  policy.setHeightForWidth(true);
  return policy;
}

/// Between the scrolling area and the page, and tells the area how much room the page needs. The
/// area asks no page with a layout how high its captions wrap without asking for the height that it
/// would like, which is more than it needs.
class Sheet : public QWidget {
 public:
  Sheet(QWidget* page, QScrollArea* area) : QWidget(area), page_(page) {
    page_->setParent(this);
    setSizePolicy(HighByWidth());
  }

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override {
    return LeastHeightOf(*page_, width);
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return {LeastOf(*page_).width(), 0}; }
  [[nodiscard]] QSize sizeHint() const override { return page_->sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    page_->setGeometry(rect());
  }

 private:
  QWidget* page_;
};

}  // namespace

ScrollPage::ScrollPage(QWidget* page, QWidget* parent) : QScrollArea(parent), page_(page) {
  setFrameShape(QFrame::NoFrame);
  // Its controls have the focus, not the page.
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(HighByWidth());
  setWidgetResizable(true);
  setWidget(new Sheet(page, this));
  // What is behind shows through, a tab's own ground.
  widget()->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* /*old*/, QWidget* now) { FocusChanged(now); });
}

ScrollPage::~ScrollPage() {
  // A control that goes with the page gives the focus up, when this part of it is gone already.
  disconnect(qApp, nullptr, this, nullptr);
}

int ScrollPage::heightForWidth(int width) const { return LeastHeightOf(*page_, width); }

QSize ScrollPage::minimumSizeHint() const { return LeastOf(*page_); }

QSize ScrollPage::sizeHint() const { return page_->sizeHint(); }

bool ScrollPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    FitBar();
  }
  return QScrollArea::eventFilter(watched, event);
}

void ScrollPage::ShowTop() {
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
}

void ScrollPage::resizeEvent(QResizeEvent* event) {
  FitBar();
  QScrollArea::resizeEvent(event);
}

void ScrollPage::FitBar() {
  // The area itself measures the page beside the bar that it has, where captions wrap more, and so
  // would keep a bar that is not needed any more.
  const QSize room = maximumViewportSize();
  const bool fits =
      LeastOf(*page_).width() <= room.width() && heightForWidth(room.width()) <= room.height();
  setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void ScrollPage::FocusChanged(QWidget* now) {
  // A press of the mouse gives the focus to what is in view; a control that moves away under it
  // would miss the release.
  const bool byMouse = QApplication::mouseButtons() != Qt::NoButton;
  if (now == nullptr || byMouse || !widget()->isAncestorOf(now)) return;
  // The area's own way, for the Tab key, shows of a box no more than the place of its caret.
  const QRect place(now->mapTo(widget(), QPoint()), now->size());
  ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + kMargin,
                place.height() / 2 + kMargin);
}

}  // namespace halvane
