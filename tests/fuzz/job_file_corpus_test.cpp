#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>

#include "tests/fuzz/job_file_check.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct CorpusRow {
  std::string_view file;
  std::string_view outcome;
  bool roundTripTried;
};

// What a freshly started program makes of each file of the corpus.
constexpr std::array kCorpus{
    CorpusRow{"byte_without_a_letter.qjt", "Opened", true},
    CorpusRow{"double_too_large.qjt", "Overflow", false},
    CorpusRow{"empty_file.qjt", "InputPastEnd", false},
    CorpusRow{"fields_on_one_line.qjt", "Opened", true},
    CorpusRow{"integer_of_17_bits.qjt", "Overflow", false},
    CorpusRow{"line_ends_cr.qjt", "Opened", true},
    CorpusRow{"line_ends_lf.qjt", "Opened", true},
    CorpusRow{"marker_alone.qjt", "InputPastEnd", false},
    CorpusRow{"marker_without_quotes.qjt", "Opened", true},
    CorpusRow{"new_job.qjt", "Opened", true},
    CorpusRow{"no_last_line_end.qjt", "Opened", true},
    CorpusRow{"numbers_of_every_form.qjt", "Opened", true},
    CorpusRow{"other_marker.qjt", "NotAJobFile", false},
    CorpusRow{"quote_and_comma_inside_a_text.qjt", "Opened", false},
    CorpusRow{"quote_inside_a_text.qjt", "Opened", true},
    CorpusRow{"quote_never_closed.qjt", "InputPastEnd", false},
    CorpusRow{"short_in_a_task.qjt", "InputPastEnd", false},
    CorpusRow{"short_in_the_middle.qjt", "InputPastEnd", false},
    CorpusRow{"task_40.qjt", "Opened", true},
    CorpusRow{"task_41.qjt", "SubscriptOutOfRange", false},
    CorpusRow{"task_count_1e9.qjt", "Overflow", false},
    CorpusRow{"task_count_32767.qjt", "InputPastEnd", false},
    CorpusRow{"task_count_32768.qjt", "Overflow", false},
    CorpusRow{"task_count_below_0.qjt", "SubscriptOutOfRange", false},
    CorpusRow{"task_count_in_halves.qjt", "Opened", true},
    CorpusRow{"task_count_text.qjt", "Opened", true},
    CorpusRow{"task_count_text_too_large.qjt", "Overflow", false},
    CorpusRow{"tasks_with_numbers.qjt", "Opened", true},
    CorpusRow{"text_in_a_number.qjt", "TypeMismatch", false},
    CorpusRow{"text_with_comma_and_line_break.qjt", "Opened", true},
    CorpusRow{"text_without_quotes.qjt", "Opened", true},
    CorpusRow{"thirty_digits.qjt", "Opened", true},
    CorpusRow{"two_tasks_first_deleted.qjt", "Opened", true},
    CorpusRow{"utf_8.qjt", "Opened", true},
    CorpusRow{"utf_8_that_1252_could_hold.qjt", "Opened", true},
    CorpusRow{"windows_1252.qjt", "Opened", true},
};

TEST(JobFileCorpus, EachFileEndsAsItShouldAndRoundTrips) {
  for (const CorpusRow& row : kCorpus) {
    SCOPED_TRACE(row.file);
    const std::string bytes = BytesOf(std::string(HALVANE_FUZZ_CORPUS "/").append(row.file));
    const JobFileVerdict verdict = CheckJobFile(bytes);
    EXPECT_EQ(verdict.problem, "");
    EXPECT_EQ(verdict.outcome, row.outcome);
    EXPECT_EQ(verdict.roundTripTried, row.roundTripTried);
  }
}

TEST(JobFileCorpus, EachFileHasItsRow) {
  std::set<std::string> rows;
  for (const CorpusRow& row : kCorpus) rows.emplace(row.file);
  std::set<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(HALVANE_FUZZ_CORPUS)) {
    files.insert(entry.path().filename().string());
  }
  EXPECT_EQ(files, rows);
}

}  // namespace
}  // namespace halvane
