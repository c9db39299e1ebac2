#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <vector>

#include "core/job_fields.h"
#include "core/job_state.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

const char* const kPage = "docs/job-file.md";

std::string_view KindOf(const std::string&) { return "text"; }
std::string_view KindOf(Integer) { return "integer"; }
std::string_view KindOf(double) { return "double"; }
std::string_view KindOf(const TaggedField&) { return "tagged"; }

/// Lists the layout that it is led through as the page's tables do: one row a field, and one row
/// for a field that fills several lines.
class Layout {
 public:
  void HeaderLine() { ++line_; }

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    ++line_;
    const std::vector<Row> rows{
        {line_, line_, std::string(fields.name.field), KindOf(fields.value)}...};
    if (!rows_.empty() && IsNextElement(rows)) {
      for (std::size_t i = rows_.size() - rows.size(); i < rows_.size(); ++i) rows_[i].last = line_;
    } else {
      rows_.insert(rows_.end(), rows.begin(), rows.end());
    }
  }

  [[nodiscard]] std::string text() const {
    std::string text;
    for (const Row& row : rows_) {
      text += std::to_string(row.first);
      if (row.last != row.first) text += " to " + std::to_string(row.last);
      text += " " + row.field + " " + std::string(row.kind) + "\n";
    }
    return text;
  }

 private:
  struct Row {
    int first;
    int last;
    std::string field;
    std::string_view kind;
  };

  /// Whether the line before has the same fields.
  [[nodiscard]] bool IsNextElement(const std::vector<Row>& rows) const {
    if (rows_.size() < rows.size()) return false;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Row& before = rows_[rows_.size() - rows.size() + i];
      if (before.last != line_ - 1 || before.field != rows[i].field) return false;
    }
    return true;
  }

  std::vector<Row> rows_;
  int line_ = 0;
};

/// The rows of field tables on the page between two headings, in the same form.
std::string RowsOfPage(const std::string& from, const std::string& to) {
  const std::string page = BytesOf(SourcePath(kPage));
  const std::size_t start = page.find("\n## " + from + "\n");
  const std::size_t end = page.find("\n## " + to + "\n");
  EXPECT_LT(start, end) << from;
  std::istringstream section(page.substr(start, end - start));
  const std::regex row(R"(\| (\d+(?: to \d+)?) \| `(\w+)` \| (\w+) \| .+ \|)");
  std::string rows;
  std::smatch cells;
  for (std::string line; std::getline(section, line);) {
    if (!std::regex_match(line, cells, row)) continue;
    rows += cells[1].str() + " " + cells[2].str() + " " + cells[3].str() + "\n";
  }
  return rows;
}

TEST(JobFilePage, FieldsOfTheJobAreThoseOfTheProgram) {
  JobState job;
  Layout layout;
  VisitJobFields(job, layout);
  EXPECT_EQ(RowsOfPage("Fields of the job", "Fields of a task"), layout.text());
}

TEST(JobFilePage, FieldsOfATaskAreThoseOfTheProgram) {
  Module1 = JobState{};
  Module1.TaskCount = Integer{1};
  ResizeTaskArrays();
  Layout layout;
  VisitTaskFields(Module1, layout, 1);
  EXPECT_EQ(RowsOfPage("Fields of a task", "Choices of the tools"), layout.text());
}

#ifdef HALVANE_PYTHON
TEST(JobFilePage, ExampleReadsTheSamples) {
  const std::string page = BytesOf(SourcePath(kPage));
  const std::string fence = "```python\n";
  const std::size_t start = page.find(fence) + fence.size();
  const TemporaryFolder folder;
  WriteBytes(folder.File("example.py"), page.substr(start, page.find("```", start) - start));
  const ProgramRun run = RunProgram(HALVANE_PYTHON,
                                    {"-X", "utf8", folder.File("example.py"), "board-assembly.qjt",
                                     "packing-line.qjt", "parcel-sorting.qjt"},
                                    SourcePath("docs/samples"));
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.output,
            "Board assembly: 40% of the time, 6.5 a minute\n"
            "Carton packing, end of line: 60% of the time, 16.0 a minute\n"
            "Parcel sorting: 90% of the time, 16.0 a minute\n");
}
#endif

}  // namespace
}  // namespace halvane
