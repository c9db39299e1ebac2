// What the checks of the look of windows find, and that they find nothing where nothing is wrong.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleFactory>
#include <QTabBar>
#include <QTextEdit>
#include <QVBoxLayout>

#include "tests/forms/outline_checks.h"
#include "tests/forms/place_checks.h"
#include "tests/forms/text_checks.h"
#include "tests/support/form_support.h"
#include "tests/support/palettes.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr QRect kScreen(0, 0, 1280, 720);

/// A window of 400 x 300 whose parts a test places by hand.
class LookChecks : public testing::Test {
 protected:
  LookChecks() {
    window.setObjectName("window");
    window.setGeometry(100, 100, 400, 300);
  }

  /// A part of the window with a name.
  template <typename Kind, typename... Arguments>
  Kind& Add(const QString& name, const QRect& place, Arguments... arguments) {
    auto* part = new Kind(arguments..., &window);
    part->setObjectName(name);
    part->setGeometry(place);
    return *part;
  }

  void Show() {
    window.show();
    QCoreApplication::processEvents();
  }

  QStringList Told(const Findings& findings) {
    QStringList lines;
    for (const Finding& finding : findings) lines.append(finding.control + " " + finding.what);
    return lines;
  }
  QStringList Places() {
    Show();
    return Told(CheckPlaces(window));
  }
  QStringList Texts() {
    Show();
    return Told(CheckTexts(window));
  }

  QWidget window;
};

TEST_F(LookChecks, FindNothingWhereNothingIsWrong) {
  auto* column = new QVBoxLayout(&window);
  auto* list = new QComboBox;
  list->addItems({"Short", "The longest entry of this list"});
  auto* area = new QScrollArea;
  auto* page = new QLabel("A page that is higher than its place");
  page->setMinimumHeight(200);
  area->setWidget(page);
  auto* tabs = new QTabBar;
  tabs->addTab("One");
  tabs->addTab("Two");
  auto* wrapped = new QLabel("A caption that is so long that it wraps at the width of the window");
  wrapped->setWordWrap(true);
  for (QWidget* part : std::initializer_list<QWidget*>{
           tabs, new QLabel("A caption"), wrapped, new QLineEdit("12.5"), new QCheckBox("A tick"),
           new QRadioButton("An option"), list, new QPushButton("&Go"), area}) {
    column->addWidget(part);
  }
  window.resize(window.sizeHint());
  Show();
  EXPECT_EQ(Told(CheckWindow(window, kScreen)), QStringList());
  EXPECT_EQ(Places(), QStringList());
  EXPECT_EQ(Texts(), QStringList());
  EXPECT_EQ(Told(CheckPictures(window)), QStringList());
}

TEST_F(LookChecks, FindAWindowLargerThanTheScreen) {
  window.setWindowTitle("Title");
  window.setGeometry(0, 40, 1280, 600);
  EXPECT_EQ(
      Told(CheckWindow(window, kScreen)),
      QStringList{"window is not on the screen: 1288x636+-4+8 with its frame, of 1280x720+0+0"});
  window.setGeometry(4, 40, 1272, 600);
  EXPECT_EQ(Told(CheckWindow(window, kScreen)), QStringList());
}

TEST_F(LookChecks, FindATitleThatIsCut) {
  window.setWindowTitle("A title that is much longer than this window is wide by any font at all");
  const QStringList told = Told(CheckWindow(window, kScreen));
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].startsWith("window cuts its title: 400 wide for ")) << told[0].toStdString();
}

TEST_F(LookChecks, FindAControlOverTheEdge) {
  Add<QLineEdit>("box", {350, 10, 100, 30});
  EXPECT_EQ(Places(), QStringList{"box stands outside of what holds it: 100x30+350+10 in 400x300"});
}

TEST_F(LookChecks, FindAControlThatCannotBeScrolledTo) {
  auto& area = Add<QScrollArea>("area", {0, 0, 200, 100});
  auto* page = new QWidget;
  page->setObjectName("page");
  page->setFixedSize(150, 400);
  area.setWidget(page);
  EXPECT_EQ(Places(), QStringList());
  area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const QStringList told = Places();
  ASSERT_EQ(told.size(), 1);
  EXPECT_TRUE(told[0].startsWith("page cannot be scrolled to as a whole: 150x400 in "))
      << told[0].toStdString();
}

TEST_F(LookChecks, FindAControlWithoutSize) {
  Add<QCheckBox>("tick", {10, 10, 14, 0}, "A tick");
  EXPECT_EQ(Places(), QStringList{"tick has no size: 14x0"});
}

TEST_F(LookChecks, FindAControlThatIsSqueezed) {
  auto& wrapped = Add<QLabel>("wrapped", {10, 10, 100, 20}, "A caption that needs several lines");
  wrapped.setWordWrap(true);
  Add<QTextEdit>("pane", {200, 10, 70, 200});
  const QStringList told = Places();
  ASSERT_EQ(told.size(), 2);
  EXPECT_TRUE(told[0].startsWith("wrapped is squeezed: 100x20 for ")) << told[0].toStdString();
  EXPECT_TRUE(told[1].startsWith("pane is squeezed: 70x200 for ")) << told[1].toStdString();
}

TEST_F(LookChecks, FindControlsThatCoverOneAnother) {
  Add<QLineEdit>("one", {10, 10, 100, 30});
  Add<QLineEdit>("other", {100, 35, 100, 30});
  EXPECT_EQ(Places(), QStringList{"one overlaps other: 10x5+100+35 of both"});
}

TEST_F(LookChecks, FindATextThatIsCut) {
  Add<QLabel>("label", {10, 10, 30, 30}, "Workstation ID");
  Add<QLineEdit>("number", {10, 50, 40, 30}, "123456789");
  // A name may be longer than its box.
  Add<QLineEdit>("name", {10, 90, 40, 30}, "Line 4 review");
  EXPECT_EQ(Texts(), (QStringList{"label cuts \"Workstation ID\"", "number cuts \"123456789\""}));
}

/// Paints a text where no control knows of it.
class Painted : public QWidget {
 public:
  Painted(QPoint at, const QColor& color, QWidget* parent)
      : QWidget(parent), at_(at), color_(color) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(color_);
    painter.drawText(at_, "Strong");
  }

 private:
  QPoint at_;
  QColor color_;
};

TEST_F(LookChecks, FindAPaintedTextThatIsCut) {
  Add<Painted>("scale", {10, 10, 100, 30}, QPoint(80, 20), Qt::black);
  EXPECT_EQ(Texts(), QStringList{"scale cuts \"Strong\""});
}

TEST_F(LookChecks, FindATextThatIsCutOnAPageThatScrolls) {
  auto& area = Add<QScrollArea>("area", {0, 0, 200, 100});
  auto* page = new QWidget;
  page->setFixedSize(150, 400);
  auto* label = new QLabel("Workstation ID", page);
  label->setObjectName("label");
  label->setGeometry(10, 300, 30, 30);
  // Half of it is behind the edge of the place, and can be scrolled to.
  (new QLabel("Analyst", page))->setGeometry(10, 90, 100, 30);
  area.setWidget(page);
  EXPECT_EQ(Texts(), QStringList{"label cuts \"Workstation ID\""});
}

TEST_F(LookChecks, FindATextThatIsShortened) {
  auto& tabs = Add<QTabBar>("tabs", {0, 0, 120, 30});
  tabs.setElideMode(Qt::ElideRight);
  tabs.setUsesScrollButtons(false);
  tabs.addTab("Repetitive Task Factors");
  tabs.addTab("Arm Posture Factors");
  const QStringList told = Texts();
  EXPECT_EQ(told.filter("tabs shortens").size(), 2) << told.join('\n').toStdString();
}

TEST_F(LookChecks, FindTextsThatLieOnOneAnother) {
  Add<QLabel>("one", {10, 10, 100, 30}, "Light");
  Add<QLabel>("other", {20, 12, 100, 30}, "Strong");
  EXPECT_EQ(Texts(), QStringList{"other \"Light\" lies on \"Strong\""});
}

TEST_F(LookChecks, FindATabAMenuAndAnEntryWithoutRoom) {
  auto& tabs = Add<QTabBar>("tabs", {0, 0, 100, 30});
  tabs.addTab("First");
  tabs.addTab("Second is long");
  auto& bar = Add<QMenuBar>("bar", {0, 40, 60, 30});
  bar.addMenu("File");
  bar.addMenu("Elsewhere");
  auto& list = Add<QComboBox>("list", {0, 80, 80, 30});
  list.addItems({"Short", "An entry that is longer"});
  const QString told = Texts().join('\n');
  EXPECT_TRUE(told.contains("tabs has no room for \"Second is long\"")) << told.toStdString();
  EXPECT_TRUE(told.contains("bar has no room for \"Elsewhere\"")) << told.toStdString();
  EXPECT_TRUE(told.contains("list cuts its entry \"An entry that is longer\": "))
      << told.toStdString();
}

TEST_F(LookChecks, FindATextThatIsTooFaint) {
  // 4.48 and 4.54 on the white of paper.
  window.setPalette(QPalette(Qt::white, Qt::white));
  Add<Painted>("faint", {10, 10, 100, 30}, QPoint(10, 20), QColor(119, 119, 119));
  Add<Painted>("plain", {10, 50, 100, 30}, QPoint(10, 20), QColor(118, 118, 118));
  Add<Painted>("disabled", {10, 90, 100, 30}, QPoint(10, 20), QColor(200, 200, 200))
      .setEnabled(false);
  Add<Painted>("lost", {10, 130, 100, 30}, QPoint(10, 20), Qt::white);
  EXPECT_EQ(Texts(), (QStringList{"faint \"Strong\" has contrast 4.48: #777777 on #ffffff",
                                  "lost \"Strong\" has contrast 1.00: #ffffff on #ffffff"}));
}

TEST_F(LookChecks, FindAnOutlineThatIsLost) {
  const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
  Add<QLineEdit>("box", {10, 10, 100, 30});
  Add<QComboBox>("list", {10, 50, 100, 30});
  Add<QCheckBox>("tick", {10, 90, 100, 30}, "A tick");
  Add<QRadioButton>("option", {10, 130, 100, 30}, "An option");
  for (auto* part : window.findChildren<QWidget*>()) {
    part->setStyle(plain.get());
    // The focus is seen by a mark of its own.
    part->setFocusPolicy(Qt::NoFocus);
  }
  window.setPalette(ContrastBlackPalette());
  Show();
  const QStringList lost = Told(CheckOutlines(window));
  for (const char* name : {"box", "list", "tick", "option"}) {
    EXPECT_EQ(lost.filter(QString(name) + " has an outline of contrast 1.").size(), 1) << name;
  }
  // Boxes of another colour than their ground are seen by it.
  QPalette seen = ContrastBlackPalette();
  seen.setColor(QPalette::Base, Qt::white);
  seen.setColor(QPalette::Button, Qt::white);
  window.setPalette(seen);
  EXPECT_EQ(Told(CheckOutlines(window)), QStringList());
}

TEST_F(LookChecks, FindAPictureWithAPartThatIsLost) {
  auto& ribbon = Add<RibbonButton>("ribbon", {10, 10, 120, 160}, "ribbon", "Neutral");
  ribbon.SetPicture("ctd/deviation_neutral", 112);
  Show();
  EXPECT_EQ(Told(CheckPictures(window)), QStringList());
  // The tint of a range that is open at one side fades out.
  ribbon.SetPicture("reba/ssribbon4_1", 112);
  EXPECT_EQ(Told(CheckPictures(window)), QStringList());
  ribbon.SetPicture("ctd/deviation_neutral", 112);
  // The inks are for light grounds and for dark ones.
  QPalette grey;
  grey.setColor(QPalette::Button, QColor(150, 150, 150));
  ribbon.setPalette(grey);
  const QStringList told = Told(CheckPictures(window));
  EXPECT_GE(told.filter("#797d85 beside #969696").size(), 1)
      << "told: " << told.join('\n').toStdString();
}

}  // namespace
}  // namespace halvane
