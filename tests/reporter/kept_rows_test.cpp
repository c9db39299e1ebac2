#include "reporter/kept_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/runtime_failure.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

std::string TakenFrom(KeptRows& rows) {
  std::string taken;
  while (const auto row = rows.Next()) taken += *row + " ";
  return taken;
}

TEST(KeptRows, ComeWorstFirstThoseWithoutARankLast) {
  // In memory, and each in a run of its own.
  for (const std::size_t room : {std::size_t{1} << 20, std::size_t{1}}) {
    KeptRows rows({room, 8});
    rows.Add(1.5, "low");
    rows.Add(std::nullopt, "none");
    rows.Add(7, "first-high");
    rows.Add(7, "second-high");
    rows.Add(-3, "below");
    rows.Add(std::nullopt, "");
    EXPECT_EQ(TakenFrom(rows), "first-high second-high low below none  ") << room;
    EXPECT_FALSE(rows.Next());
  }
}

TEST(KeptRows, WithoutRanksKeepTheirOrder) {
  KeptRows rows({200, 32});
  std::string expected;
  for (int i = 0; i < 500; ++i) {
    rows.Add(std::nullopt, std::to_string(i));
    expected += std::to_string(i) + " ";
  }
  EXPECT_EQ(TakenFrom(rows), expected);
}

TEST(KeptRows, ManyRunsAreOneOrder) {
  struct Numbered {
    double rank;
    int number;
  };
  std::mt19937 random(1);
  std::vector<Numbered> all;
  KeptRows rows({5000, 100});
  for (int i = 0; i < 5000; ++i) {
    const Numbered one{static_cast<double>(random() % 50), i};
    all.push_back(one);
    // Longer than the buffer of a run, some of them.
    rows.Add(one.rank, std::to_string(i) + std::string(random() % 300, '.'));
  }
  std::ranges::stable_sort(all, std::greater<>(), &Numbered::rank);
  for (const Numbered& one : all) {
    const auto row = rows.Next();
    ASSERT_TRUE(row);
    ASSERT_EQ(row->substr(0, row->find('.')), std::to_string(one.number));
  }
  EXPECT_FALSE(rows.Next());
}

TEST(KeptRows, WithoutAPlaceForAFileFail) {
  const TemporaryFolder folder;
  const EnvironmentVariable place(kTemporaryVariable, folder.File("gone"));
  KeptRows rows({1, 8});
  try {
    rows.Add(1, "row");
    FAIL() << "it went somewhere";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.what(), "File error: " + folder.File("gone") +
                                  ": no temporary file: No such file or directory");
  }
}

}  // namespace
}  // namespace halvane
