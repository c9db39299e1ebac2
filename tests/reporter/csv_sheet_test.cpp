#include <gtest/gtest.h>

#include <regex>

#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// What LibreOffice Calc makes of a CSV file, as the text of its own flat sheet.
std::string SheetOf(const TemporaryFolder& folder, const std::string& csv) {
  WriteBytes(folder.File("summary.csv"), csv);
  const ProgramRun run =
      RunProgram("timeout",
                 {"120", "soffice", "-env:UserInstallation=file://" + folder.File("profile"),
                  "--headless", "--convert-to", "fods", "--outdir", folder.path(),
                  "--infilter=CSV:44,34,UTF8", folder.File("summary.csv")},
                 folder.path());
  EXPECT_EQ(run.status, 0) << run.output << run.error;
  return BytesOf(folder.File("summary.fods"));
}

/// The values of the cells of a kind, in their order.
std::vector<std::string> ValuesOf(const std::string& sheet, const std::string& pattern) {
  std::vector<std::string> values;
  const std::regex cell(pattern);
  for (std::sregex_iterator at(sheet.begin(), sheet.end(), cell), end; at != end; ++at) {
    values.push_back((*at)[1]);
  }
  return values;
}

TEST(SummarySheet, FiguresArriveAsNumbersAndTextsAsTexts) {
  if (!HasProgram("soffice")) GTEST_SKIP() << "there is no LibreOffice";
  const TemporaryFolder folder;
  WriteBytes(folder.File("gap.qjt"), EmptyJobWith(4, "\"=1+1\",\"a, \n\"\"b\"\"\",\"-2\",0,8"));
  const std::string csv = RunReport({"--summary", "--tool", "ocra", "--tool", "si", "--format",
                                     "csv", "packing-line.qjt", folder.File("gap.qjt")})
                              .output;
  const std::string sheet = SheetOf(folder, csv);
  EXPECT_EQ(ValuesOf(sheet, R"re(office:value-type="float" office:value="([^"]*)")re"),
            (std::vector<std::string>{"4.25698181716134", "18", "0", "0.25"}));
  EXPECT_EQ(sheet.find("table:formula"), std::string::npos);
  EXPECT_NE(sheet.find("<text:p>&apos;=1+1</text:p>"), std::string::npos);
  EXPECT_NE(sheet.find("<text:p>Carton packing, end of line</text:p>"), std::string::npos);
}

}  // namespace
}  // namespace halvane
