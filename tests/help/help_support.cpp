#include "tests/help/help_support.h"

#include <QStatusBar>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "help/help_viewer.h"

namespace halvane {
namespace {

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

HelpWindowTest::HelpWindowTest() : little(HALVANE_HELP_DATA "/little.chm") {
  SetHelpViewer(&viewer);
}

HelpWindowTest::~HelpWindowTest() { SetHelpViewer(nullptr); }

HelpWindow& HelpWindowTest::Show(const QString& topic) {
  viewer.Show(nullptr, little, HelpCommand::DisplayTopic, topic);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
  return window();
}

HelpWindow& HelpWindowTest::ShowContents() {
  viewer.Show(nullptr, little, HelpCommand::DisplayContents, QString());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
  return window();
}

QString HelpWindowTest::Topic() const { return page().source().path(QUrl::FullyDecoded).mid(1); }

QString HelpWindowTest::StatusText() const { return window().statusBar()->currentMessage(); }

QString HelpWindowTest::CurrentLine() const {
  const QTreeWidgetItem* item = tree().currentItem();
  return item == nullptr ? QString() : item->text(0);
}

void HelpWindowTest::Press(int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(window().windowHandle(), static_cast<Qt::Key>(key), modifiers);
}

}  // namespace halvane
