#include "tests/reporter/result_pages.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/job_state.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

const std::string kAgain = "write it anew with make_result_pages";

TEST(ResultPages, AreThoseOfTheToolsTables) {
  EXPECT_TRUE(BytesOf(SourcePath("docs/halvane-report.schema.json")) == JsonSchema()) << kAgain;
  EXPECT_TRUE(BytesOf(SourcePath("docs/results.md")) == ResultPage()) << kAgain;
}

TEST(ResultPages, EveryResultHasAMeaning) {
  Module1 = JobState{};
  for (const ToolRow& tool : Tools()) {
    for (const WorkingValue& value : tool.workingValues()) {
      EXPECT_FALSE(value.meaning.empty()) << value.name;
    }
  }
}

#ifdef HALVANE_PYTHON
/// Jobs of every fate.
void WriteJobs(const TemporaryFolder& folder) {
  for (const std::string name : {"board-assembly.qjt", "packing-line.qjt", "parcel-sorting.qjt"}) {
    std::filesystem::copy_file(SourcePath("docs/samples/" + name), folder.File(name));
  }
  WriteBytes(folder.File("empty.qjt"), EmptyJobText());
  WriteBytes(folder.File("gap.qjt"), EmptyJobWith(49, "29.5,100,10,10,0,0,0"));
  WriteBytes(folder.File("hand.qjt"), EmptyJobWith(4, "\"a\",\"b\u202E\",\"c\",2,8"));
  WriteBytes(folder.File("part.qjt"), EmptyJobWith(8, "x"));
  WriteBytes(folder.File("foreign.qjt"), "no job");
  WriteBytes(folder.File("caf\xE9.qjt"), EmptyJobText("1") + UntouchedTaskText(1));
}

const char* const kValidate = R"(
import json, sys
import jsonschema
schema = json.load(open(sys.argv[1], encoding="utf-8"))
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
lines = [json.loads(line) for line in open(sys.argv[2], encoding="utf-8")]
for line in lines:
    validator.validate(line)
broken = dict(lines[0], version=2)
assert list(validator.iter_errors(broken)), "any version is taken"
broken = dict(lines[0], more=1)
assert list(validator.iter_errors(broken)), "any member is taken"
print(len(lines))
)";

TEST(ResultPages, EveryLineFitsTheSchema) {
  if (RunProgram(HALVANE_PYTHON, {"-c", "import jsonschema"}).status != 0) {
    GTEST_SKIP() << "there is no jsonschema";
  }
  const TemporaryFolder folder;
  WriteJobs(folder);
  struct Row {
    std::vector<std::string> arguments;
    std::string lines;
  };
  const std::vector<Row> rows = {{{}, "60"}, {{"--summary"}, "10"}, {{"--check"}, "10"}};
  for (const Row& row : rows) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.end(), {"--format", "json", folder.path(), folder.File("gone.qjt")});
    const ProgramRun run = RunReport(arguments);
    EXPECT_EQ(run.status, 1);
    WriteBytes(folder.File("lines"), run.output);
    const ProgramRun check = RunProgram(
        HALVANE_PYTHON,
        {"-c", kValidate, SourcePath("docs/halvane-report.schema.json"), folder.File("lines")});
    EXPECT_EQ(check.error, "");
    EXPECT_EQ(check.output, row.lines + "\n");
  }
}
#endif

}  // namespace
}  // namespace halvane
