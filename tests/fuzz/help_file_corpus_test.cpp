#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>

#include "tests/fuzz/help_file_check.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct CorpusRow {
  std::string_view file;
  std::string_view outcome;
  int entries;
  int damagedEntries;
  int contentsEntries;
};

constexpr std::string_view kNone = "This is no compiled HTML help file.";
constexpr std::string_view kDamaged = "The help file is damaged.";

constexpr std::array kCorpus{
    CorpusRow{"chunk_size_wrong.chm", kDamaged, 0, 0, 0},
    CorpusRow{"empty.chm", kNone, 0, 0, 0},
    CorpusRow{"half.chm", kDamaged, 0, 0, 0},
    CorpusRow{"header_alone.chm", kDamaged, 0, 0, 0},
    CorpusRow{"packed_pages_damaged.chm", kDamaged, 0, 0, 0},
    CorpusRow{"page.chm", kNone, 0, 0, 0},
    CorpusRow{"second_identification_right.chm", "Read", 16, 0, 5},
    CorpusRow{"second_identification_wrong.chm", kNone, 0, 0, 0},
    CorpusRow{"two_slashes_before_a_name.chm", "Read", 16, 0, 5},
    CorpusRow{"whole.chm", "Read", 16, 0, 5},
    CorpusRow{"window_too_large.chm", kDamaged, 0, 0, 0},
};

TEST(HelpFileCorpus, EachFileEndsAsItShould) {
  for (const CorpusRow& row : kCorpus) {
    SCOPED_TRACE(row.file);
    const HelpFileVerdict verdict =
        CheckHelpFile(BytesOf(std::string(HALVANE_HELP_CORPUS "/").append(row.file)));
    EXPECT_EQ(verdict.problem, "");
    EXPECT_EQ(verdict.outcome, row.outcome);
    EXPECT_EQ(verdict.entries, row.entries);
    EXPECT_EQ(verdict.damagedEntries, row.damagedEntries);
    EXPECT_EQ(verdict.contentsEntries, row.contentsEntries);
  }
}

TEST(HelpFileCorpus, EachFileHasItsRow) {
  std::set<std::string> rows;
  for (const CorpusRow& row : kCorpus) rows.emplace(row.file);
  std::set<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(HALVANE_HELP_CORPUS)) {
    files.insert(entry.path().filename().string());
  }
  EXPECT_EQ(files, rows);
}

TEST(HelpFileDamage, NoCutOffEndIsTakenForAWholeFile) {
  const std::string whole = BytesOf(HALVANE_HELP_CORPUS "/whole.chm");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const HelpFileVerdict verdict = CheckHelpFile(std::string_view(whole).substr(0, length));
    ASSERT_EQ(verdict.problem, "") << length;
    ASSERT_NE(verdict.outcome, "Read") << length;
  }
}

// Each byte of the headers, and one of seven beyond them, turned over.
TEST(HelpFileDamage, TurnedBytesAreSurvived) {
  const std::string whole = BytesOf(HALVANE_HELP_CORPUS "/whole.chm");
  int failures = 0;
  for (std::size_t at = 0; at < whole.size(); at += at < 0x100 ? 1 : 7) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(~damaged[at]);
    const HelpFileVerdict verdict = CheckHelpFile(damaged);
    ASSERT_EQ(verdict.problem, "") << at;
    if (verdict.outcome != "Read" || verdict.damagedEntries > 0) ++failures;
  }
  // The damage is noticed where it matters: in the headers and in the packed pages.
  EXPECT_GT(failures, 100);
}

}  // namespace
}  // namespace halvane
