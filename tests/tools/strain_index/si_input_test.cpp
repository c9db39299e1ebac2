// What the boxes of the Strain Index form do to the job, without the form.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tools/strain_index/si_controls.h"

namespace halvane {
namespace {

TEST(SiCaptions, TabsFramesAndLabelsReadAsOnTheForm) {
  EXPECT_EQ(kSiTabs, (std::array<std::string_view, 2>{" Task Information", "Strain Index"}));
  EXPECT_EQ(kSiReportTab, 1);
  std::string text;
  for (const SiNumberFrame& frame : kSiNumberFrames) {
    text += std::string(frame.caption) + "\n";
    for (const SiBox& box : frame.boxes) {
      text += PlainText(box.index) + " " + std::string(box.label) + "\n";
    }
  }
  EXPECT_EQ(text,
            "Task Duration\n"
            "8 Duration per Day (hour):\n"
            "Duration of Exertion\n"
            "0 Duration of all exertion (min.):\n"
            "1 Total Observation time (min.):\n"
            "Efforts per Minute\n"
            "2 Number of exertions:\n"
            "3 Total Observation time (min.):\n");
}

struct BoxRow {
  int index;
  std::function<void(JobState& job)> store;
};

TEST(SiInputs, EachBoxStoresItsFieldAndTouchesNothingElse) {
  const std::array rows{
      BoxRow{0, [](JobState& job) { job.SiExertionMinutes = 2.5; }},
      BoxRow{1, [](JobState& job) { job.SiDutyObservationMinutes = 2.5; }},
      BoxRow{2, [](JobState& job) { job.SiExertionCount = 2.5; }},
      BoxRow{3, [](JobState& job) { job.SiEffortObservationMinutes = 2.5; }},
      BoxRow{8, [](JobState& job) { job.JobDurationPerDay = 2.5; }},
  };
  for (const BoxRow& row : rows) {
    Module1 = JobState{};
    JobState expected;
    expected.JobDirty = kTrue;
    row.store(expected);
    NumberTyped(SiBoxAt(row.index).field, "2.5");
    EXPECT_TRUE(Module1 == expected) << row.index;
    EXPECT_EQ(NumberIn(SiBoxAt(row.index).field).AsText(), "2.5") << row.index;
  }
  for (const int index : {4, 7, -1}) {
    EXPECT_EQ(FailureOf([index] { (void)SiBoxAt(index); }), "SubscriptOutOfRange") << index;
  }
}

}  // namespace
}  // namespace halvane
