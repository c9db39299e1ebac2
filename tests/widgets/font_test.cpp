// Controls whose size comes from the font, when that changes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>

#include "tests/support/form_support.h"
#include "widgets/drop_list.h"
#include "widgets/font_share.h"
#include "widgets/layout.h"
#include "widgets/number_box.h"
#include "widgets/readout.h"
#include "widgets/window_place.h"
#include "widgets/wrapped_caption.h"

namespace halvane {
namespace {

class Fonts : public ShellTest {
 protected:
  Fonts() : usual_(QApplication::font()) {}
  ~Fonts() override { QApplication::setFont(usual_); }

  static void SetPoints(double points) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
    // What hears of the font asks for a layout, which asks for another.
    for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  }

 private:
  QFont usual_;
};

TEST_F(Fonts, ANumberBoxHasRoomForItsDigitsInEach) {
  SetPoints(9);
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* box = new NumberBox("Text1(0)", 8, &window);
  row->addWidget(box);
  ShowActive(window);
  const int small = box->width();
  SetPoints(18);
  EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance("00000000"));
  EXPECT_NEAR(box->width(), 2 * small, small / 4);
}

TEST_F(Fonts, AListHasRoomForItsEntriesInEach) {
  SetPoints(9);
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* list = new DropList("Combo1(0)", &window);
  list->addItem("2/3 of cycle/task time");
  row->addWidget(list);
  row->addStretch(1);
  ShowActive(window);
  SetPoints(18);
  EXPECT_GT(list->width(), list->fontMetrics().horizontalAdvance(list->currentText()));
  EXPECT_GE(list->height(), list->fontMetrics().height());
}

TEST_F(Fonts, ATickBoxHasItsMarkAtTheFirstLineOfItsCaptionInEach) {
  for (const double points : {8.0, 9.0, 14.0, 20.0}) {
    SetPoints(points);
    QWidget window;
    auto* grid = new QGridLayout(&window);
    QCheckBox* box = AddWrappedCheck(*grid, "SSCheck1(0)", "a caption of more than one line");
    window.resize(160, 300);
    ShowActive(window);
    const auto* caption = window.findChild<QLabel*>();
    const int line = caption->fontMetrics().lineSpacing();
    ASSERT_GE(caption->heightForWidth(caption->width()), 2 * line);
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect mark = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    const int middle = box->y() + mark.y() + mark.height() / 2;
    EXPECT_NEAR(middle, caption->y() + line / 2, 1) << points;
  }
}

TEST_F(Fonts, ACaptionKeepsToItsLinesInEach) {
  SetPoints(9);
  QCheckBox box;
  WrappedCaption caption(box, "Trunk is twisting or side bending", nullptr);
  caption.SetMostLines(2);
  for (const double points : {9.0, 14.0, 18.0, 20.0}) {
    SetPoints(points);
    const int width = caption.minimumSizeHint().width();
    const int line = caption.fontMetrics().lineSpacing();
    EXPECT_EQ((caption.heightForWidth(width) + line / 2) / line, 2) << points;
    EXPECT_EQ((caption.heightForWidth(width - 2) + line / 2) / line, 3) << points;
  }
}

TEST_F(Fonts, AShareIsKeptOfTheParentsSize) {
  SetPoints(10);
  QWidget window;
  auto* label = new QLabel("text");
  new FontShare(*label, 1.5);
  label->setParent(&window);
  EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 15);
  ShowActive(window);
  SetPoints(20);
  EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 30);
  QFont own = window.font();
  own.setPointSizeF(12);
  window.setFont(own);
  EXPECT_DOUBLE_EQ(label->font().pointSizeF(), 18);
}

TEST_F(Fonts, AReadoutHasRoomForTheWidestNumberInEach) {
  SetPoints(9);
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* readout = new Readout("10.00", &window);
  row->addWidget(readout);
  row->addStretch(1);
  ShowActive(window);
  for (const double points : {9.0, 20.0}) {
    SetPoints(points);
    EXPECT_TRUE(readout->font().bold());
    EXPECT_DOUBLE_EQ(readout->font().pointSizeF(), points * 1.8);
    EXPECT_GE(readout->width(), readout->fontMetrics().horizontalAdvance("10.00"));
    EXPECT_GE(readout->height(), readout->fontMetrics().height());
  }
}

TEST_F(Fonts, AWindowGrowsWithItsControlsAndKeepsToTheScreen) {
  SetPoints(9);
  platform.SetAvailableArea({0, 0, 800, 600});
  LastPlace last;
  QWidget window;
  new WindowPlace(
      window, {300, 200},
      [&window] {
        const int line = window.fontMetrics().lineSpacing();
        return QSize(30 * line, 10 * line);
      },
      last);
  ShowActive(window);
  window.setGeometry(480, 380, 300, 200);
  const QSize small = window.minimumSize();
  SetPoints(18);
  EXPECT_GT(window.minimumWidth(), small.width() * 3 / 2);
  EXPECT_EQ(window.size().expandedTo(window.minimumSize()), window.size());
  EXPECT_TRUE(QRect(0, 0, 800, 600).contains(window.geometry()))
      << window.geometry().right() << " " << window.geometry().bottom();
  SetPoints(9);
  EXPECT_EQ(window.minimumSize(), small);
}

}  // namespace
}  // namespace halvane
