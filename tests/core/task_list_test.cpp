#include "core/task_list.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class TaskList : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
};

TEST_F(TaskList, NewJobHasNoTask) { EXPECT_EQ(ActiveTasks(), std::vector<int>{}); }

TEST_F(TaskList, DeletedTaskKeepsItsNumber) {
  for (int task = 1; task <= 3; ++task) EXPECT_EQ(AddTaskRecord(), task);
  Module1.TaskActive.at(2) = Integer{0};
  EXPECT_EQ(ActiveTasks(), (std::vector<int>{1, 3}));
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{3}));
  EXPECT_EQ(AddTaskRecord(), 4);
  EXPECT_EQ(Module1.TaskNames.at(4), "Task 4");
  EXPECT_EQ(Module1.TaskNames.at(2), "Task 2");
  EXPECT_EQ(ActiveTasks(), (std::vector<int>{1, 3, 4}));
}

TEST_F(TaskList, OnlyOneIsActiveAndTextsCountByTheirNumber) {
  for (int task = 1; task <= 5; ++task) AddTaskRecord();
  Module1.TaskActive.at(1) = "1";
  Module1.TaskActive.at(2) = Integer{2};
  Module1.TaskActive.at(3) = TaggedField();
  Module1.TaskActive.at(4) = 1.0;
  Module1.TaskActive.at(5) = "yes";
  EXPECT_EQ(ActiveTasks(), (std::vector<int>{1, 4}));
}

TEST_F(TaskList, CountBeyondTheArraysFails) {
  Module1.TaskCount = Integer{1};
  EXPECT_EQ(FailureOf(ActiveTasks), "SubscriptOutOfRange");
  Module1.TaskCount = Integer{32767};
  EXPECT_EQ(FailureOf(AddTaskRecord), "Overflow");
}

TEST_F(TaskList, FirstActiveTaskIsEnoughAndTheArraysAreTheEnd) {
  EXPECT_FALSE(AnyActiveTask());
  AddTaskRecord();
  AddTaskRecord();
  Module1.TaskCount = Integer{200};
  EXPECT_TRUE(AnyActiveTask());
  Module1.TaskActive.at(1) = Integer{0};
  EXPECT_TRUE(AnyActiveTask());
  Module1.TaskActive.at(2) = Integer{0};
  EXPECT_FALSE(AnyActiveTask()) << "and looks no further than there are places";
}

TEST_F(TaskList, TaskOnScreenIsTheCurrentOneWhileThereIsAny) {
  Module1.CurrentTask = Integer{7};
  EXPECT_EQ(TaskOnScreen(), std::nullopt);
  AddTaskRecord();
  Module1.CurrentTask = Integer{1};
  EXPECT_EQ(TaskOnScreen(), 1);
  Module1.TaskActive.at(1) = Integer{0};
  EXPECT_EQ(TaskOnScreen(), std::nullopt);
}

TEST_F(TaskList, KeyIsTheNumberAndALine) {
  EXPECT_EQ(TaskKey(12), "12_");
  EXPECT_EQ(TaskOfKey("12_"), 12);
  EXPECT_EQ(TaskOfKey("_"), 0);
  EXPECT_EQ(FailureOf([] { TaskOfKey("32768_"); }), "Overflow");
}

TEST_F(TaskList, NamesShowTheir25FirstCharacters) {
  AddTaskRecord();
  Module1.TaskNames.at(1) = "abcdefghijklmnopqrstuvwxy";
  EXPECT_EQ(ShownTaskName(1), "abcdefghijklmnopqrstuvwxy");
  Module1.TaskNames.at(1) = "abcdefghijklmnopqrstuvwxyz1234";
  EXPECT_EQ(ShownTaskName(1), "abcdefghijklmnopqrstuvwxy");
  Module1.TaskNames.at(1) = "Fälten och sträcka på ämnet nu";
  EXPECT_EQ(ShownTaskName(1), "Fälten och sträcka på ämn");
  EXPECT_EQ(FailureOf([] { ShownTaskName(2); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
