#include "reporter/json_summary.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/reporter/sample_summary.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;

std::string LineOf(const JobSummary& summary) {
  JsonSummary writer(SampleTools());
  return Written(writer, {summary});
}

TEST(SummaryJson, LineHasItsMembersInOrder) {
  EXPECT_EQ(
      LineOf(SampleSummary()),
      R"({"version":1,"file":"a.qjt","analyst":"Ann","job":"Press line","workstation":"W-17",)"
      R"("tools":{"index":{"index":1.5,"zone":"Yellow","error":null},)"
      R"("grade":{"score":9,"level":3,"error":null}},"error":null})"
      "\n");
}

TEST(SummaryJson, ToolWithoutAHeadlineHasItsReason) {
  JobSummary summary = SampleSummary();
  summary.cells[1].reason = ReportFailure{"Overflow", "Overflow: \"9\""};
  const Json line = Json::parse(LineOf(summary));
  EXPECT_EQ(line["tools"]["grade"],
            Json::parse(R"({"score":null,"level":null,
                            "error":{"kind":"Overflow","message":"Overflow: \"9\"",)"
                        R"("line":null,"field":null,"value":null,"reason":null}})"));
  EXPECT_EQ(line["tools"]["index"]["index"], 1.5);
  EXPECT_TRUE(line["error"].is_null());
}

TEST(SummaryJson, ZoneWithoutANameIsNull) {
  JobSummary summary = SampleSummary();
  summary.cells[0].headline.values[1] = std::string_view();
  EXPECT_TRUE(Json::parse(LineOf(summary))["tools"]["index"]["zone"].is_null());
}

TEST(SummaryJson, FileThatCouldNotBeReadHasItsReason) {
  EXPECT_EQ(
      LineOf(UnreadableSummary()),
      R"({"version":1,"file":"gone.qjt","analyst":null,"job":null,"workstation":null,"tools":null,)"
      R"("error":{"kind":"FileError","message":"File error: gone.qjt: No such file",)"
      R"("line":null,"field":null,"value":null,"reason":null}})"
      "\n");
}

TEST(SummaryJson, TextsReadBackWhateverTheyHold) {
  JobSummary summary = SampleSummary();
  summary.file = "caf\xE9.qjt";
  summary.analyst = "say \"x\"\\\r\n";
  summary.job = "\u7DDA\t<script>";
  summary.workstation = std::string("a\0b", 3);
  const std::string line = LineOf(summary);
  EXPECT_EQ(line.find('\n'), line.size() - 1);
  const Json parsed = Json::parse(line);
  EXPECT_EQ(parsed["file"], "caf\\xE9.qjt");
  EXPECT_EQ(parsed["analyst"], summary.analyst);
  EXPECT_EQ(parsed["job"], summary.job);
  EXPECT_EQ(parsed["workstation"], summary.workstation);
}

}  // namespace
}  // namespace halvane
