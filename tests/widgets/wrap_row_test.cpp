#include "widgets/wrap_row.h"

#include <gtest/gtest.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "tests/support/form_support.h"
#include "widgets/layout.h"
#include "widgets/number_box.h"

namespace halvane {
namespace {

/// Two captions with a box each.
class Lines : public ShellTest {
 protected:
  Lines() {
    row = new WrapRow(2, &window);
    for (int i = 0; i < 2; ++i) {
      auto* caption = new QLabel(i == 0 ? "short" : "a longer caption", &window);
      auto* box = new NumberBox("box", 8, &window);
      box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
      row->Add(caption, 0);
      row->Add(box, 1);
      captions.push_back(caption);
      boxes.push_back(box);
    }
  }
  void ShowAt(int width) {
    window.resize(width, row->heightForWidth(width));
    ShowActive(window);
    QCoreApplication::processEvents();
  }

  QWidget window;
  WrapRow* row;
  std::vector<QWidget*> captions;
  std::vector<QWidget*> boxes;
};

int MiddleOf(const QWidget& widget) {
  return widget.mapTo(widget.window(), QPoint()).y() + widget.height() / 2;
}

TEST_F(Lines, AreOneWhereTheWidthIsEnough) {
  ShowAt(row->RowWidth());
  EXPECT_NEAR(MiddleOf(*captions[1]), MiddleOf(*boxes[0]), 1);
  EXPECT_LT(captions[0]->geometry().right(), boxes[0]->x());
  EXPECT_LT(boxes[0]->geometry().right(), captions[1]->x());
  EXPECT_LT(captions[1]->geometry().right(), boxes[1]->x());
  EXPECT_EQ(boxes[1]->geometry().right(), window.width() - 1);
  EXPECT_GE(boxes[0]->width(), boxes[0]->minimumSizeHint().width());
}

TEST_F(Lines, ShareOutTheWidthThatIsLeftOver) {
  ShowAt(row->RowWidth() + 100);
  EXPECT_EQ(boxes[0]->width(), boxes[0]->minimumSizeHint().width() + 50);
  EXPECT_EQ(boxes[1]->width(), boxes[1]->minimumSizeHint().width() + 50);
  EXPECT_EQ(captions[0]->width(), captions[0]->minimumSizeHint().width());
}

TEST_F(Lines, StandOneUnderAnotherWhereItIsNot) {
  const int oneLine = row->heightForWidth(row->RowWidth());
  ShowAt(row->RowWidth() - 1);
  EXPECT_GE(window.height(), 2 * oneLine);
  EXPECT_GT(boxes[1]->y(), boxes[0]->geometry().bottom());
  EXPECT_NEAR(MiddleOf(*captions[0]), MiddleOf(*boxes[0]), 1);
  EXPECT_NEAR(MiddleOf(*captions[1]), MiddleOf(*boxes[1]), 1);
  EXPECT_EQ(boxes[0]->x(), boxes[1]->x());
  EXPECT_EQ(boxes[0]->width(), boxes[1]->width());
  EXPECT_GE(captions[1]->width(), captions[1]->minimumSizeHint().width());
}

TEST_F(Lines, MoveTogetherBeforeOneOfThemIsCut) {
  const int width = row->RowWidth() - 1;
  const int needed = row->heightForWidth(width);
  // The row asks for no more than one line's height, so a window may give it less.
  window.resize(width, needed - 3);
  ShowActive(window);
  EXPECT_EQ(boxes[1]->y() - boxes[0]->geometry().bottom() - 1, row->spacing() - 3);
  EXPECT_EQ(boxes[0]->height(), boxes[0]->sizeHint().height());
  EXPECT_TRUE(window.rect().contains(boxes[1]->geometry()));
}

TEST_F(Lines, NeedNoMoreThanTheWidestLine) {
  ShowAt(row->minimumSize().width());
  EXPECT_LT(window.width(), row->RowWidth());
  EXPECT_GE(captions[1]->width(), captions[1]->minimumSizeHint().width());
  EXPECT_GE(boxes[1]->width(), boxes[1]->minimumSizeHint().width());
  EXPECT_TRUE(window.rect().contains(boxes[1]->geometry()));
}

TEST_F(Lines, LeaveOutWhatIsHidden) {
  const int all = row->RowWidth();
  captions[1]->hide();
  EXPECT_EQ(row->RowWidth(), all - captions[1]->minimumSizeHint().width() - row->spacing());
}

TEST_F(Lines, AreLevelWithWhatStandsInAFrame) {
  const auto [frame, grid] = MakeFrame("Caption", &window);
  auto* option = new QRadioButton("option", frame);
  grid->addWidget(option, 0, 0);
  row->Add(frame, 0);
  ShowAt(row->RowWidth());
  EXPECT_NEAR(MiddleOf(*option), MiddleOf(*boxes[0]), 1);
  EXPECT_NEAR(MiddleOf(*option), MiddleOf(*captions[0]), 1);
  EXPECT_TRUE(window.rect().contains(frame->geometry()));
}

TEST_F(Lines, GiveTheHeightThatIsLeftOverToWhatCanUseIt) {
  auto* high = new QWidget(&window);
  high->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  row->Add(high, 1);
  const int width = row->RowWidth() + 100;
  window.resize(width, row->heightForWidth(width) + 200);
  ShowActive(window);
  EXPECT_EQ(high->height(), window.height());
  EXPECT_EQ(boxes[0]->height(), boxes[0]->sizeHint().height());
}

}  // namespace
}  // namespace halvane
