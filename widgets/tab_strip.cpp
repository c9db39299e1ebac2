#include "widgets/tab_strip.h"

#include <QMouseEvent>
#include <QTabBar>
#include <functional>

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
}

}  // namespace halvane
