// The controls that a task list and a slider with marks are made of, each alone.
#include "tools/task_list/task_tree.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "core/task_list.h"
#include "tests/forms/ocra_form_support.h"
#include "tools/task_list/task_list_frame.h"
#include "widgets/pair_panel.h"

namespace halvane {
namespace {

/// A task list with nodes for tasks 1, 2 and 4 of the job, the first selected; a box beside it.
class TaskList : public ShellTest {
 protected:
  TaskList()
      : frame_(new TaskListFrame(
            "SSFrame2(0)", {{{"&Add", "adds"}, {"&Delete", "deletes"}, {"&Edit", ""}}}, &window_)),
        other_(new QLineEdit(&window_)),
        selected_(&Tree(), &TaskTree::taskSelected),
        beside_(&Tree(), &TaskTree::emptyPartClicked),
        renamed_(&Tree(), &TaskTree::taskRenamed) {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(frame_);
    column->addWidget(other_);
    for (int task = 1; task <= 4; ++task) AddTaskRecord();
    for (const int task : {1, 2, 4}) Tree().AddNode(task);
    Tree().SelectAt(0);
    ShowActive(window_);
  }

  [[nodiscard]] TaskTree& Tree() const { return frame_->tree(); }
  [[nodiscard]] QString Text(int place) const { return Tree().topLevelItem(place)->text(0); }
  void ClickAt(const QPoint& place, Qt::KeyboardModifiers keys = {},
               Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseClick(Tree().viewport(), button, keys, place);
  }
  [[nodiscard]] QPoint PlaceOf(int node) const {
    return Tree().visualItemRect(Tree().topLevelItem(node)).center();
  }
  [[nodiscard]] QPoint PlaceWithoutNode() const { return {20, Tree().viewport()->height() - 5}; }
  void StartTyping(const QString& name) const {
    Tree().EditSelected();
    ASSERT_NE(EditorOf(Tree()), nullptr);
    QTest::keyClicks(EditorOf(Tree()), name);
  }

  QWidget window_;
  TaskListFrame* frame_;
  QLineEdit* other_;
  QSignalSpy selected_;
  QSignalSpy beside_;
  QSignalSpy renamed_;
};

TEST_F(TaskList, NodesShowNamesAndKnowTheirTasks) {
  EXPECT_EQ(Tree().topLevelItemCount(), 3);
  EXPECT_EQ(Text(2), "Task 4");
  const std::vector<int> tasks{1, 2, 4};
  for (int place = 0; place < 3; ++place) {
    Tree().SelectAt(place);
    EXPECT_EQ(Tree().SelectedTask(), tasks.at(static_cast<std::size_t>(place)));
    EXPECT_EQ(Tree().selectedItems().size(), 1);
    EXPECT_EQ(Tree().topLevelItem(place)->childCount(), 0);
  }
  EXPECT_EQ(selected_.count(), 0) << "the program's own selection tells nobody";
}

/// The time in which a second click makes a double click, short while it lives.
class ShortDoubleClick {
 public:
  ShortDoubleClick() { QApplication::setDoubleClickInterval(kMilliseconds); }
  ~ShortDoubleClick() { QApplication::setDoubleClickInterval(before_); }
  ShortDoubleClick(const ShortDoubleClick&) = delete;
  ShortDoubleClick& operator=(const ShortDoubleClick&) = delete;

  static constexpr int kMilliseconds = 30;

 private:
  int before_ = QApplication::doubleClickInterval();
};

TEST_F(TaskList, ClickOnTheSelectedNodeEditsItsNameWhenItCanBeNoDoubleClick) {
  const ShortDoubleClick shortly;
  ClickAt(PlaceOf(0));
  EXPECT_EQ(EditorOf(Tree()), nullptr) << "not at once";
  EXPECT_TRUE(QTest::qWaitFor([this] { return EditorOf(Tree()) != nullptr; }));
  QTest::keyClicks(EditorOf(Tree()), "Packing");
  EndEditIn(Tree(), Qt::Key_Return);
  EXPECT_EQ(renamed_.count(), 1);
  EXPECT_EQ(renamed_.at(0).at(0).toInt(), 1);
  EXPECT_EQ(renamed_.at(0).at(1).toString(), "Packing");
}

/// What may come between a click on the selected node and the end of the delay.
struct MeanwhileRow {
  const char* label;
  std::function<void()> act;
};

TEST_F(TaskList, ClickOnTheSelectedNodeEditsNothingWhenTheUserHasGoneOn) {
  const ShortDoubleClick shortly;
  QWidget otherWindow;
  const std::vector<MeanwhileRow> rows{
      {"a box", [this] { QTest::mouseClick(other_, Qt::LeftButton); }},
      {"the Tab key", [this] { QTest::keyClick(&Tree(), Qt::Key_Tab); }},
      {"another node", [this] { ClickAt(PlaceOf(1)); }},
      {"an arrow key", [this] { QTest::keyClick(&Tree(), Qt::Key_Down); }},
      {"a second click",
       [this] { QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, PlaceOf(0)); }},
      {"the node is removed", [this] { Tree().RemoveSelected(); }},
      {"the list goes out of sight", [this] { frame_->hide(); }},
      {"another tab", [this] { Tree().FinishEdit(); }},
      {"another window", [&] { ShowActive(otherWindow); }},
  };
  for (const MeanwhileRow& row : rows) {
    SCOPED_TRACE(row.label);
    frame_->show();
    ShowActive(window_);
    Tree().setFocus();
    Tree().SelectAt(0);
    ClickAt(PlaceOf(0));
    row.act();
    QTest::qWait(4 * ShortDoubleClick::kMilliseconds);
    EXPECT_EQ(EditorOf(Tree()), nullptr);
    otherWindow.hide();
  }
}

TEST_F(TaskList, EditorOpenedMeanwhileStaysAndNothingWarns) {
  const ShortDoubleClick shortly;
  static int warnings;
  warnings = 0;
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
  ClickAt(PlaceOf(0));
  StartTyping("Sorting");
  QTest::qWait(4 * ShortDoubleClick::kMilliseconds);
  qInstallMessageHandler(before);
  EXPECT_EQ(warnings, 0);
  ASSERT_NE(EditorOf(Tree()), nullptr);
  EXPECT_EQ(EditorOf(Tree())->text(), "Sorting");
}

TEST_F(TaskList, PressThatEndsAnEditStartsNoOther) {
  const ShortDoubleClick shortly;
  StartTyping("Sorting");
  ClickAt({PlaceOf(0).x(), PlaceOf(0).y()});
  QTest::qWait(4 * ShortDoubleClick::kMilliseconds);
  QTest::keyClick(&Tree(), Qt::Key_X);
  EXPECT_EQ(renamed_.count(), EditorOf(Tree()) == nullptr ? 1 : 0);
}

TEST_F(TaskList, EmptyOneHasNoTaskAndSaysWhatToDo) {
  const QImage filled = Tree().viewport()->grab().toImage();
  Tree().Clear();
  EXPECT_TRUE(Tree().isEmpty());
  EXPECT_EQ(Tree().SelectedTask(), -1);
  Tree().EditSelected();
  EXPECT_EQ(EditorOf(Tree()), nullptr);
  const QImage empty = Tree().viewport()->grab().toImage();
  QImage blank = empty.copy();
  blank.fill(empty.pixelColor(0, 0));
  EXPECT_NE(empty, blank) << "nothing is written on it";
  EXPECT_NE(empty, filled);
  EXPECT_EQ(selected_.count(), 0);
}

TEST_F(TaskList, ClickOrKeyOnANodeTellsThatATaskIsSelected) {
  ClickAt(PlaceOf(1));
  EXPECT_GE(selected_.count(), 1);
  EXPECT_EQ(Tree().SelectedTask(), 2);
  selected_.clear();
  ClickAt(PlaceOf(1));
  EXPECT_GE(selected_.count(), 1) << "the selected node too";
  selected_.clear();
  QTest::keyClick(&Tree(), Qt::Key_Down);
  EXPECT_EQ(selected_.count(), 1);
  EXPECT_EQ(Tree().SelectedTask(), 4);
  EXPECT_EQ(beside_.count(), 0);
}

TEST_F(TaskList, LeftClickBesideTheNodesIsToldAndKeepsTheSelection) {
  ClickAt(PlaceWithoutNode());
  EXPECT_EQ(beside_.count(), 1);
  EXPECT_EQ(selected_.count(), 0);
  EXPECT_EQ(Tree().SelectedTask(), 1);
  EXPECT_EQ(Tree().selectedItems().size(), 1);
  ClickAt(PlaceWithoutNode(), {}, Qt::RightButton);
  EXPECT_EQ(beside_.count(), 1);
}

TEST_F(TaskList, ControlKeyDoesNotTakeTheMarkOffTheCurrentNode) {
  ClickAt(PlaceOf(0), Qt::ControlModifier);
  EXPECT_TRUE(Tree().topLevelItem(0)->isSelected());
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(Tree().topLevelItem(0)->isSelected());
  ClickAt(PlaceOf(2), Qt::ControlModifier);
  EXPECT_TRUE(Tree().topLevelItem(2)->isSelected());
  EXPECT_EQ(Tree().SelectedTask(), 4);
  EXPECT_EQ(Tree().selectedItems().size(), 1);
}

TEST_F(TaskList, RemovedNodeSelectsTheNextElseTheOneBefore) {
  Tree().SelectAt(1);
  Tree().RemoveSelected();
  EXPECT_EQ(Tree().SelectedTask(), 4);
  EXPECT_EQ(Tree().selectedItems().size(), 1);
  Tree().RemoveSelected();
  EXPECT_EQ(Tree().SelectedTask(), 1);
  EXPECT_EQ(Tree().selectedItems().size(), 1);
  Tree().RemoveSelected();
  EXPECT_TRUE(Tree().isEmpty());
  EXPECT_EQ(Tree().SelectedTask(), -1);
}

TEST_F(TaskList, EditedNameIsToldOnceItIsFinished) {
  StartTyping("Packing");
  EXPECT_EQ(renamed_.count(), 0);
  EndEditIn(Tree(), Qt::Key_Return);
  ASSERT_EQ(renamed_.count(), 1);
  EXPECT_EQ(renamed_[0][1].toString(), "Packing");
  EXPECT_EQ(Text(0), "Packing");
}

TEST_F(TaskList, EditLeftByEscapeIsNotTold) {
  StartTyping("Packing");
  EndEditIn(Tree(), Qt::Key_Escape);
  EXPECT_EQ(renamed_.count(), 0);
  EXPECT_EQ(Text(0), "Task 1");
}

TEST_F(TaskList, F2StartsAnEdit) {
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_F2);
  ASSERT_NE(EditorOf(Tree()), nullptr);
  EXPECT_EQ(EditorOf(Tree())->selectedText(), "Task 1");
}

TEST_F(TaskList, ClickOnTheSelectedNodeStartsAnEdit) {
  ClickAt(PlaceOf(0));
  EXPECT_TRUE(QTest::qWaitFor([this] { return EditorOf(Tree()) != nullptr; }));
}

TEST_F(TaskList, FinishedEditTakesTheNameAsTypedSoFar) {
  Tree().FinishEdit();
  EXPECT_EQ(renamed_.count(), 0) << "no edit is going on";
  StartTyping("Pack");
  Tree().FinishEdit();
  EXPECT_EQ(EditorOf(Tree()), nullptr);
  ASSERT_EQ(renamed_.count(), 1);
  EXPECT_EQ(renamed_[0][1].toString(), "Pack");
}

TEST_F(TaskList, MenuEndsAnEditUnlessItIsTheOneOfTheNameItself) {
  StartTyping("Pack");
  {
    QMenu own(EditorOf(Tree()));
    own.addAction("Copy");
    own.popup(window_.pos());
    EXPECT_NE(EditorOf(Tree()), nullptr);
    EXPECT_EQ(renamed_.count(), 0);
  }
  QMenu other(&window_);
  other.addAction("Save");
  other.popup(window_.pos());
  EXPECT_EQ(EditorOf(Tree()), nullptr);
  EXPECT_EQ(renamed_.count(), 1);
}

TEST_F(TaskList, ButtonsHaveCaptionsAndTipsAndTellTheirIndex) {
  EXPECT_EQ(frame_->title(), "Task Information");
  EXPECT_EQ(frame_->objectName(), "SSFrame2(0)");
  const QStringList captions{"&Add", "&Delete", "&Edit"};
  const QStringList tips{"adds", "deletes", ""};
  QSignalSpy clicked(frame_, &TaskListFrame::buttonClicked);
  for (int index = 0; index < 3; ++index) {
    auto& button = Find<QPushButton>(*frame_, QString("SSCommand1(%1)").arg(index));
    EXPECT_EQ(button.text(), captions[index]);
    EXPECT_EQ(button.toolTip(), tips[index]);
    QTest::mouseClick(&button, Qt::LeftButton);
    ASSERT_EQ(clicked.count(), index + 1);
    EXPECT_EQ(clicked[index][0].toInt(), index);
  }
}

TEST_F(TaskList, ButtonFindsTheNameOfAnUnfinishedEdit) {
  StartTyping("Packing");
  QString found;
  QObject::connect(frame_, &TaskListFrame::buttonClicked, frame_, [&] { found = Text(0); });
  // Pressed without the focus, as by its key.
  Find<QPushButton>(*frame_, "SSCommand1(1)").click();
  EXPECT_EQ(found, "Packing");
  EXPECT_EQ(renamed_.count(), 1);
}

TEST(PairPanel, HasABracketAtItsLeftAndATint) {
  PairPanel panel(nullptr);
  QPalette palette;
  palette.setColor(QPalette::Highlight, QColor(10, 20, 200));
  palette.setColor(QPalette::Window, QColor(240, 240, 240));
  panel.setPalette(palette);
  panel.resize(80, 40);
  const QImage picture = panel.grab().toImage();
  EXPECT_EQ(picture.pixelColor(0, 0), QColor(10, 20, 200));
  EXPECT_EQ(picture.pixelColor(1, 39), QColor(10, 20, 200));
  const QColor tint = picture.pixelColor(70, 20);
  EXPECT_LT(tint.red(), 240);
  EXPECT_GT(tint.red(), 200);
  EXPECT_GT(tint.blue(), tint.red());
}

}  // namespace
}  // namespace halvane
