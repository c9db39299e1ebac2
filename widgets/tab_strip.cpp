#include "widgets/tab_strip.h"

#include <QMouseEvent>
#include <QShortcut>
#include <QTabBar>
#include <functional>

#include "widgets/spoken.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

class Bar : public QTabBar {
 public:
  Bar(std::function<void(int)> clickedAgain, QWidget* parent)
      : QTabBar(parent), clickedAgain_(std::move(clickedAgain)) {
    // What the toolkit calls its own.
    setObjectName("qt_tabwidget_tabbar");
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const int tab = tabAt(event->position().toPoint());
    const bool again = tab == currentIndex() && isTabEnabled(tab);
    QTabBar::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && tab >= 0 && again) clickedAgain_(tab);
  }

  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  std::function<void(int)> clickedAgain_;
};

}  // namespace

TabStrip::TabStrip(const QString& name, QWidget* parent) : QTabWidget(parent) {
  setObjectName(name);
  setTabBar(new Bar([this](int tab) { emit tabClicked(tab); }, this));
  connect(this, &QTabWidget::currentChanged, this, &TabStrip::tabClicked);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Tab, this), &QShortcut::activated, this,
          [this] { Go(1); });
  connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, this), &QShortcut::activated, this,
          [this] { Go(-1); });
}

bool TabStrip::event(QEvent* event) {
  if (event->type() != QEvent::LayoutRequest) return QTabWidget::event(event);
  const QSize hint = tabBar()->sizeHint();
  const bool isAsBefore = isVisible() && hint == barHint_;
  barHint_ = hint;
  if (!isAsBefore) return QTabWidget::event(event);
  // The toolkit would lay out the tabs and draw all pages again for anything on a page that asks
  // for another size. All that can come of it is that the window needs another one.
  updateGeometry();
  return true;
}

void TabStrip::keyPressEvent(QKeyEvent* event) {
  // The toolkit's own Ctrl+Tab, which a key that is held down would still come to.
  event->ignore();
}

void TabStrip::tabInserted(int tab) {
  QTabWidget::tabInserted(tab);
  const QString name = SpokenCaption(tabText(tab));
  tabBar()->setAccessibleTabName(tab, name);
  QWidget* page = widget(tab);
  if (page->accessibleName().isEmpty()) page->setAccessibleName(name);
}

void TabStrip::Go(int step) {
  for (int i = 1; i < count(); ++i) {
    const int tab = (currentIndex() + i * step + count()) % count();
    if (!isTabEnabled(tab)) continue;
    // The focus may stay in a box beside the tabs, and a report has to find what is typed there.
    TextBox::CountKeysDown();
    setCurrentIndex(tab);
    return;
  }
}

}  // namespace halvane
