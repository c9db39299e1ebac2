#include "widgets/scroll_page.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>

#include "widgets/layout.h"

namespace halvane {
namespace {

QSize LeastOf(const QWidget& page) { return page.minimumSizeHint().expandedTo(page.minimumSize()); }

/// Between the scrolling area and the page, and tells the area how much room the page needs: its
/// least size would leave too little height for captions that wrap in a width that it is not made
/// for.
class Sheet : public QWidget {
 public:
  Sheet(QWidget* page, QSize leastWindow, QScrollArea* area)
      : QWidget(area), page_(page), leastWindow_(leastWindow), area_(area) {
    page_->setParent(this);
  }

  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize missing = leastWindow_ - area_->window()->size();
    const QSize room = area_->maximumViewportSize();
    QSize least = LeastOf(*page_);
    // The page has all of what a window gains.
    if (missing.width() > 0) least = least.expandedTo({room.width() + missing.width(), 0});
    if (missing.height() > 0) least = least.expandedTo({0, room.height() + missing.height()});
    return least;
  }
  [[nodiscard]] QSize sizeHint() const override { return page_->sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    page_->setGeometry(rect());
  }

 private:
  QWidget* page_;
  QSize leastWindow_;
  QScrollArea* area_;
};

}  // namespace

ScrollPage::ScrollPage(QWidget* page, QSize leastWindow, QWidget* parent)
    : QScrollArea(parent), page_(page) {
  setFrameShape(QFrame::NoFrame);
  // Its controls have the focus, not the page.
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(new Sheet(page, leastWindow, this));
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

QSize ScrollPage::minimumSizeHint() const { return LeastOf(*page_); }

QSize ScrollPage::sizeHint() const { return page_->sizeHint(); }

bool ScrollPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
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
