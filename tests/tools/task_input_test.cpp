#include "tools/task_input.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class TaskInput : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    for (int i = 0; i < 3; ++i) AddTaskRecord();
    Module1.CurrentTask = Integer{1};
    before_ = Module1;
  }
  JobState before_;
};

TEST_F(TaskInput, ButtonMarksTheJobAndNothingElse) {
  TaskButtonPressed();
  before_.JobDirty = kTrue;
  EXPECT_TRUE(Module1 == before_);
}

TEST_F(TaskInput, ShownTaskIsTheCurrentOneAndLeavesTheMark) {
  TaskShown(3);
  before_.CurrentTask = Integer{3};
  EXPECT_TRUE(Module1 == before_);
  EXPECT_EQ(CurrentTaskNumber(), 3);
}

TEST_F(TaskInput, DeletedTaskKeepsAllElse) {
  Module1.TaskNames.at(2) = "Packing";
  TaskShown(2);
  before_ = Module1;
  CurrentTaskDeleted();
  before_.TaskActive.at(2) = Integer{0};
  EXPECT_TRUE(Module1 == before_);
  EXPECT_EQ(ActiveTasks(), (std::vector<int>{1, 3}));
  TaskShown(4);
  EXPECT_EQ(FailureOf(CurrentTaskDeleted), "SubscriptOutOfRange");
}

TEST_F(TaskInput, NameGoesToItsOwnTaskWhateverTheCurrentOneIs) {
  TaskRenamed(3, "M\xC3\xA4ngd \"7\"");
  before_.JobDirty = kTrue;
  before_.CurrentTask = Integer{3};
  before_.TaskNames.at(3) = "M\xC3\xA4ngd \"7\"";
  EXPECT_TRUE(Module1 == before_);
  EXPECT_EQ(FailureOf([] { TaskRenamed(4, "none"); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
