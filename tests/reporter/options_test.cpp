#include "reporter/options.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/reporter/sample_report.h"

namespace halvane {
namespace {

/// The options that the test tools have in common with the command line; fails on a notice.
Options Parsed(const std::vector<std::string>& arguments) {
  const auto asked = ParseOptions(arguments, kTestTools);
  if (const auto* notice = std::get_if<Notice>(&asked)) ADD_FAILURE() << notice->text;
  return std::holds_alternative<Options>(asked) ? std::get<Options>(asked) : Options{};
}

/// The notice that the command line gets; fails on options.
Notice Noticed(const std::vector<std::string>& arguments) {
  const auto asked = ParseOptions(arguments, kTestTools);
  EXPECT_TRUE(std::holds_alternative<Notice>(asked));
  return std::holds_alternative<Notice>(asked) ? std::get<Notice>(asked) : Notice{};
}

using Rows = std::vector<const ToolRow*>;

TEST(ReportOptions, WithoutAToolAllBuiltOnesReport) {
  const Options options = Parsed({"a.qjt"});
  EXPECT_EQ(options.tools, (Rows{&kGoodTool, &kFailingTool}));
  EXPECT_EQ(options.format, ReportFormat::Text);
  EXPECT_EQ(options.files, std::vector<std::string>{"a.qjt"});
}

TEST(ReportOptions, ToolsReportOnceInTheOrderAskedFor) {
  const Options options =
      Parsed({"--tool", "failing", "a.qjt", "--tool=good", "--tool", "failing", "b.qjt"});
  EXPECT_EQ(options.tools, (Rows{&kFailingTool, &kGoodTool}));
  EXPECT_EQ(options.files, (std::vector<std::string>{"a.qjt", "b.qjt"}));
}

TEST(ReportOptions, FormatsHaveNames) {
  EXPECT_EQ(Parsed({"--format", "text", "a"}).format, ReportFormat::Text);
  EXPECT_EQ(Parsed({"--format", "json", "a"}).format, ReportFormat::Json);
  EXPECT_EQ(Parsed({"a", "--format=html"}).format, ReportFormat::Html);
}

TEST(ReportOptions, UnitsHaveNamesAndAreMetricByDefault) {
  EXPECT_EQ(Parsed({"a"}).units, LengthUnit::Metric);
  EXPECT_EQ(Parsed({"--units", "metric", "a"}).units, LengthUnit::Metric);
  EXPECT_EQ(Parsed({"a", "--units=english"}).units, LengthUnit::English);
}

TEST(ReportOptions, FileNamesAreTakenAsTheyAre) {
  const std::vector<std::string> names{"a b.qjt", "[a,b]", "[]",      "{}",         "%%",
                                       "a,b",     "\"q\"", "caf\xE9", "\u7DDA.qjt", "-",
                                       "x=y",     "'s'",   "~",       "$HOME",      "back\\slash"};
  EXPECT_EQ(Parsed(names).files, names);
}

TEST(ReportOptions, BehindTwoHyphensEverythingIsAFile) {
  EXPECT_EQ(Parsed({"--", "--tool", "-x"}).files, (std::vector<std::string>{"--tool", "-x"}));
}

struct WrongRow {
  std::string_view label;
  std::vector<std::string> arguments;
  std::string_view complaint;
};

TEST(ReportOptions, WrongUseIsToldInOneLineAndAHint) {
  const std::vector<WrongRow> rows = {
      {"no file", {}, "FILE is required"},
      {"unknown tool", {"--tool", "nope", "a"}, "--tool: there is no tool \"nope\""},
      {"unbuilt tool", {"--tool", "missing", "a"}, "--tool: the tool \"missing\" is not built yet"},
      {"unknown format", {"--format", "pdf", "a"}, "--format: there is no format \"pdf\""},
      {"unknown units", {"--units", "feet", "a"}, "--units: there are no units \"feet\""},
      {"tool in brackets", {"--tool", "[good]", "a"}, "--tool: there is no tool \"[good]\""},
      {"steering the terminal",
       {"--tool", "\x1B[31m", "a"},
       "--tool: there is no tool \"\uFFFD[31m\""},
      {"format in brackets",
       {"--format", "[json]", "a"},
       "--format: there is no format \"[json]\""},
      {"unknown option", {"--colour", "a"}, "The following argument was not expected: --colour"},
      {"option without value", {"a", "--format"}, "--format: 1 required NAME missing"},
  };
  for (const WrongRow& row : rows) {
    const Notice notice = Noticed(row.arguments);
    EXPECT_TRUE(notice.isError) << row.label;
    EXPECT_EQ(notice.text, "halvane-report: " + std::string(row.complaint) +
                               "\nRun \"halvane-report --help\" for the options.\n")
        << row.label;
  }
}

TEST(ReportOptions, HelpTellsWhichToolsThereAre) {
  const Notice notice = Noticed({"--help"});
  EXPECT_FALSE(notice.isError);
  for (const std::string_view part :
       {"Usage: halvane-report [OPTIONS] FILE...",
        "One of: good, failing. Without it: all of them.", "Not built yet: missing.",
        "metric (default) or english: what the hand spans of the jobs are taken in",
        "text (default), json (one object a line) or html (one page)",
        "Exit status: 0 all reports are done"}) {
    EXPECT_NE(notice.text.find(part), std::string::npos) << part << " in\n" << notice.text;
  }
  const auto built = ParseOptions({"-h"}, std::span(kTestTools).first(2));
  EXPECT_EQ(std::get<Notice>(built).text.find("Not built"), std::string::npos);
}

TEST(ReportOptions, VersionIsNameAndNumber) {
  const Notice notice = Noticed({"--version"});
  EXPECT_FALSE(notice.isError);
  EXPECT_EQ(notice.text, "halvane-report " HALVANE_VERSION "\n");
}

}  // namespace
}  // namespace halvane
