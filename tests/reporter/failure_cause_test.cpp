#include "reporter/failure_cause.h"

#include <gtest/gtest.h>

#include "reporter/opened_job.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// A job as it is opened from a file with these bytes.
JobState Opened(const TemporaryFolder& folder, std::string_view bytes) {
  const std::string path = folder.File("a.qjt");
  WriteBytes(path, bytes);
  EXPECT_FALSE(OpenAfresh(path, LengthUnit::Metric));
  return Module1;
}

bool Fails(Tool tool) {
  return Try([tool]() -> std::optional<ReportFailure> {
           RowOf(tool).headline->compute();
           return std::nullopt;
         })
      .has_value();
}

std::string FieldOf(const JobState& job, Tool tool) {
  const auto field = FieldThatFails(job, [tool] { return Fails(tool); });
  return field ? field->name.text() + " " + field->value.AsText() : "none";
}

TEST(FailureCause, IsTheFirstFieldWithWhichTheToolFails) {
  const TemporaryFolder folder;
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobText()), Tool::Ocra), "none");
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobWith(4, "\"\",\"\",\"\",2,8")), Tool::Hal), "Hand 2");
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobWith(63, "4")), Tool::Ocra), "OcraComboChoice(13) 4");
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobWith(6, "9")), Tool::Rula), "RulaControlState(0) 9");
  // The first of two.
  const std::string twice = EmptyJobWith(49, "0,0,0,0,15,20,0");
  EXPECT_EQ(FieldOf(Opened(folder, twice), Tool::StrainIndex), "SiIntensityPick 15");
  EXPECT_EQ(FieldOf(Opened(folder, twice), Tool::Reba), "none");
}

TEST(FailureCause, IsTheNumberOfTasksWhereNoTaskCanBeMeant) {
  const TemporaryFolder folder;
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobText("-0.001")), Tool::Ctd), "TaskCount -0.001");
  EXPECT_EQ(FieldOf(Opened(folder, EmptyJobText("0")), Tool::Ctd), "none");
}

TEST(FailureCause, OfTwoFactorsIsTheOneThatComesLast) {
  const TemporaryFolder folder;
  std::string task = UntouchedTaskText(1);
  // Actions a minute and minutes, as they stand on the second and third line.
  const std::size_t second = task.find("\r\n") + 2;
  const std::size_t third = task.find("\r\n", second) + 2;
  const std::size_t fourth = task.find("\r\n", third);
  task.replace(second, fourth - second, "1E+200,1E+200\r\n0,0,0,0,1E+200,0,0");
  const JobState job = Opened(folder, EmptyJobText("1") + task);
  EXPECT_EQ(FieldOf(job, Tool::Ocra), "OcraTaskDuration(1) 1E+200");
}

TEST(FailureCause, GivesTheFailureItsPlaceAndLeavesTheJobAlone) {
  const TemporaryFolder folder;
  const JobState opened = Opened(folder, EmptyJobWith(49, "0,0,85,10,0,0,0"));
  const ToolRow& si = RowOf(Tool::StrainIndex);
  EXPECT_TRUE(Fails(Tool::StrainIndex));
  const JobState before = Module1;
  ReportFailure failure{"SubscriptOutOfRange", "Subscript out of range"};
  ExplainFailure(failure, si, opened, folder.File("a.qjt"), [&si] { si.headline->compute(); });
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(failure.message,
            "Subscript out of range: line 49, field SiEffortsPerMinute: \"8.5\" has no rating: one "
            "band ends at 8 and the next begins at 9");
  ASSERT_TRUE(failure.place);
  EXPECT_EQ(failure.place->line, 49);
  EXPECT_EQ(failure.place->field, "SiEffortsPerMinute");
  EXPECT_EQ(failure.place->value, "8.5");
}

TEST(FailureCause, OfAFileThatIsGoneHasNoLine) {
  const TemporaryFolder folder;
  const JobState opened = Opened(folder, EmptyJobWith(4, "\"\",\"\",\"\",2,8"));
  ReportFailure failure{"SubscriptOutOfRange", "Subscript out of range"};
  const ToolRow& hal = RowOf(Tool::Hal);
  ExplainFailure(failure, hal, opened, folder.File("gone.qjt"),
                 [&hal] { hal.headline->compute(); });
  EXPECT_EQ(failure.message,
            "Subscript out of range: field Hand: \"2\" is outside its range, 0 to 1");
}

}  // namespace
}  // namespace halvane
