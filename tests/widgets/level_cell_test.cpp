#include "widgets/level_cell.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "tests/support/form_support.h"

namespace halvane {
namespace {

/// Two columns of three rows; the second has nothing in its last row.
class Columns : public ShellTest {
 protected:
  Columns() {
    auto* row = new QHBoxLayout(&window);
    const LevelCell::Peers peers = LevelCell::MakePeers();
    for (int c = 0; c < 2; ++c) {
      auto* column = new QVBoxLayout;
      row->addLayout(column, 1);
      for (int r = 0; r < 3; ++r) {
        auto* cell = new LevelCell(peers);
        column->addLayout(cell, 1);
        if (c == 1 && r == 2) continue;
        const int words = c == 0 && r == 1 ? 30 : 1;
        auto* label = new QLabel(QString("word ").repeated(words));
        label->setWordWrap(true);
        cell->addWidget(label);
        labels.push_back(label);
      }
      auto* end = new QLabel("end");
      column->addWidget(end);
      ends.push_back(end);
    }
  }
  void ShowAt(QSize size) {
    window.resize(size);
    ShowActive(window);
    QCoreApplication::processEvents();
  }

  QWidget window;
  std::vector<QLabel*> labels;
  std::vector<QLabel*> ends;
};

TEST_F(Columns, ShareTheirRowsAtEverySize) {
  for (const QSize size : {QSize(300, 500), QSize(640, 500), QSize(640, 900)}) {
    ShowAt(size);
    EXPECT_EQ(labels[0]->geometry().center().y(), labels[3]->geometry().center().y());
    EXPECT_EQ(labels[1]->geometry().center().y(), labels[4]->geometry().center().y());
    EXPECT_EQ(ends[0]->y(), ends[1]->y());
    EXPECT_GT(ends[0]->y(), labels[2]->geometry().bottom());
  }
}

TEST_F(Columns, HaveRoomForTheHighestInEachRow) {
  ShowAt({300, 500});
  EXPECT_GE(labels[1]->height(), labels[1]->heightForWidth(labels[1]->width()));
  EXPECT_EQ(labels[4]->height(), labels[1]->height());
  EXPECT_NEAR(labels[0]->height(), labels[1]->height(), 1);
}

TEST_F(Columns, GrowToTwiceTheirHeightAndNoMore) {
  ShowAt({640, 3000});
  for (const QLabel* label : labels) EXPECT_LE(label->height(), 2 * labels[1]->sizeHint().height());
}

TEST(LevelCells, MayGoOneAfterAnother) {
  const LevelCell::Peers peers = LevelCell::MakePeers();
  auto first = std::make_unique<LevelCell>(peers);
  const LevelCell second(peers);
  EXPECT_EQ(peers->size(), 2U);
  first.reset();
  EXPECT_EQ(peers->size(), 1U);
  EXPECT_EQ(second.sizeHint(), QSize(0, 0));
  EXPECT_FALSE(second.isEmpty());
}

}  // namespace
}  // namespace halvane
