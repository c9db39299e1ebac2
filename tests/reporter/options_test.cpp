#include "reporter/options.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/reporter/sample_report.h"
#include "tests/reporter/sample_summary.h"

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

TEST(ReportOptions, NamesWithHyphensAreNoLetters) {
  EXPECT_EQ(Parsed({"--files-from", "-a-b"}).list, "-a-b");
  EXPECT_EQ(Parsed({"a-b", "--", "-0-b"}).files, (std::vector<std::string>{"a-b", "-0-b"}));
}

TEST(ReportOptions, BehindTwoHyphensEverythingIsAFile) {
  EXPECT_EQ(Parsed({"--", "--tool", "-x"}).files, (std::vector<std::string>{"--tool", "-x"}));
}

TEST(ReportOptions, SummaryIsOfAllToolsOrOfThoseNamed) {
  const std::vector<ToolRow> tools{kGradeTool, kIndexTool};
  const auto parsed = [&tools](const std::vector<std::string>& arguments) {
    return std::get<Options>(ParseOptions(arguments, tools));
  };
  EXPECT_EQ(parsed({"a"}).wish, Wish::Reports);
  EXPECT_EQ(parsed({"--summary", "a"}).wish, Wish::Summary);
  // Reports and the cells of a summary stand in the order of the table.
  EXPECT_EQ(parsed({"a"}).tools, (Rows{&tools[0], &tools[1]}));
  EXPECT_EQ(parsed({"--summary", "a"}).tools, (Rows{&tools[0], &tools[1]}));
  EXPECT_EQ(parsed({"--summary", "--tool", "index", "--tool", "grade", "a"}).tools,
            (Rows{&tools[1], &tools[0]}));
  EXPECT_EQ(parsed({"--summary", "--tool", "index", "a"}).tools, Rows{&tools[1]});
  EXPECT_EQ(parsed({"--summary", "--format", "csv", "a"}).format, ReportFormat::Csv);
  EXPECT_EQ(parsed({"--summary", "a"}).sortBy, nullptr);
  EXPECT_EQ(parsed({"--summary", "--sort", "index", "a"}).sortBy, &tools[1]);
}

TEST(ReportOptions, InputNamesTheFilesInJsonUnlessAskedOtherwise) {
  EXPECT_FALSE(Parsed({"a"}).list);
  const Options options = Parsed({"--files-from", "-"});
  EXPECT_EQ(options.list, "-");
  EXPECT_TRUE(options.files.empty());
  EXPECT_EQ(options.format, ReportFormat::Json);
  EXPECT_EQ(Parsed({"--files-from=-", "--format", "text"}).format, ReportFormat::Text);
}

TEST(ReportOptions, JobsAtOnceAreANumber) {
  EXPECT_FALSE(Parsed({"a"}).jobsAtOnce);
  EXPECT_EQ(Parsed({"--jobs", "1", "a"}).jobsAtOnce, 1);
  EXPECT_EQ(Parsed({"--jobs=256", "--check", "a"}).jobsAtOnce, 256);
}

TEST(ReportOptions, CheckIsTextOrJson) {
  EXPECT_EQ(Parsed({"--check", "a"}).wish, Wish::Check);
  EXPECT_EQ(Parsed({"--check", "a"}).format, ReportFormat::Text);
  EXPECT_EQ(Parsed({"--check", "--format", "json", "a"}).format, ReportFormat::Json);
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
      {"unknown format", {"--format", "pdf", "a"}, "--format: there is no format \"pdf\""},
      {"unknown units", {"--units", "feet", "a"}, "--units: there are no units \"feet\""},
      {"tool in brackets",
       {"--tool", "[good]", "a"},
       "--tool: there is no tool \"[good]\"; did you mean \"good\"?"},
      {"steering the terminal",
       {"--tool", "\x1B[31m", "a"},
       "--tool: there is no tool \"\uFFFD[31m\""},
      {"format in brackets",
       {"--format", "[json]", "a"},
       "--format: there is no format \"[json]\"; did you mean \"json\"?"},
      {"unknown option", {"--colour", "a"}, "there is no option \"--colour\""},
      {"slip of an option",
       {"--formatt=json", "a"},
       "there is no option \"--formatt\"; did you mean \"--format\"?"},
      {"slip of a tool",
       {"--tool", "god", "a"},
       "--tool: there is no tool \"god\"; did you mean \"good\"?"},
      {"two formats", {"--format", "json", "--format", "text", "a"}, "--format: may be given once"},
      {"two units", {"--units", "metric", "--units=english", "a"}, "--units: may be given once"},
      {"two lists", {"--files-from", "a", "--files-from", "b"}, "--files-from: may be given once"},
      {"option without value", {"a", "--format"}, "--format: its NAME is missing"},
      {"zero bytes of nothing",
       {"--null", "a"},
       "--null: is for --files-from and for --check as text"},
      {"zero bytes in objects",
       {"-0", "--check", "--format", "json", "a"},
       "--null: is for --files-from and for --check as text"},
      {"a flag with a value", {"--summary=no", "a"}, "--summary: takes no value"},
      {"letters and an option", {"-0--summary", "a"}, "there is no option \"-0--summary\""},
      {"letters and two hyphens", {"-0-", "a"}, "there is no option \"-0-\""},
      {"no job at once", {"--jobs", "0", "a"}, "--jobs: \"0\" is no number from 1 to 256"},
      {"fewer than none", {"--jobs", "-1", "a"}, "--jobs: \"-1\" is no number from 1 to 256"},
      {"a letter of jobs", {"--jobs", "x", "a"}, "--jobs: \"x\" is no number from 1 to 256"},
      {"too many jobs", {"--jobs", "257", "a"}, "--jobs: \"257\" is no number from 1 to 256"},
      {"far too many jobs",
       {"--jobs", "99999999999999999999", "a"},
       "--jobs: \"99999999999999999999\" is no number from 1 to 256"},
      {"half a job", {"--jobs", "1.5", "a"}, "--jobs: \"1.5\" is no number from 1 to 256"},
      {"a number and more", {"--jobs", "2x", "a"}, "--jobs: \"2x\" is no number from 1 to 256"},
      {"a plus", {"--jobs", "+2", "a"}, "--jobs: \"+2\" is no number from 1 to 256"},
      {"no number of jobs", {"--jobs", "", "a"}, "--jobs: \"\" is no number from 1 to 256"},
      {"blanks", {"--jobs", " 2", "a"}, "--jobs: \" 2\" is no number from 1 to 256"},
      {"jobs without a number", {"a", "--jobs"}, "--jobs: its N is missing"},
      {"two numbers of jobs", {"--jobs", "2", "--jobs=2", "a"}, "--jobs: may be given once"},
      {"standard input twice", {"-", "a", "-"}, "-: may be given once"},
      {"files from input and a file",
       {"--files-from", "-", "a"},
       "--files-from: no FILE may stand beside it"},
      {"csv of reports", {"--format", "csv", "a"}, "--format: csv is for --summary alone"},
      {"reports sorted", {"--sort", "good", "a"}, "--sort: is for --summary alone"},
      {"sorted by an unknown tool",
       {"--summary", "--sort", "nope", "a"},
       "--sort: there is no tool \"nope\""},
      {"sorted by a tool that is not there",
       {"--summary", "--tool", "failing", "--sort", "good", "a"},
       "--sort: the tool \"good\" is not among those of --tool"},
      {"check and summary",
       {"--check", "--summary", "a"},
       "--check: --summary may not stand beside it"},
      {"check by a tool",
       {"--check", "--tool", "good", "a"},
       "--check: --tool may not stand beside it"},
      {"check in units",
       {"--check", "--units", "metric", "a"},
       "--check: --units may not stand beside it"},
      {"check as a page",
       {"--check", "--format", "html", "a"},
       "--check: its format is text or json"},
      {"check as a sheet",
       {"--check", "--format", "csv", "a"},
       "--check: its format is text or json"},
      {"check sorted", {"--check", "--sort", "good", "a"}, "--sort: is for --summary alone"},
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
       {"Usage: halvane-report [OPTIONS] [FILE...]",
        "One of: good, failing. Without it: all of them.",
        "metric (default) or english: what the hand spans of the jobs are taken in",
        "text (default), json (one object a line), html (one page) or, of a summary, csv",
        "Exit status: 0 all is done"}) {
    EXPECT_NE(notice.text.find(part), std::string::npos) << part << " in\n" << notice.text;
  }
}

TEST(ReportOptions, VersionIsNameAndNumber) {
  const Notice notice = Noticed({"--version"});
  EXPECT_FALSE(notice.isError);
  EXPECT_EQ(notice.text, "halvane-report " HALVANE_VERSION "\n");
  EXPECT_EQ(Noticed({"-V"}).text, notice.text);
}

}  // namespace
}  // namespace halvane
