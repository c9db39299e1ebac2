#include "expected_tables.h"

#include <gtest/gtest.h>

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/number_text.h"

namespace halvane {
namespace {

struct GridBand {
  int first;
  int last;
  std::string result;
};

std::vector<GridBand> GridBandsOf(int from, int to, int stepsPerUnit,
                                  const std::function<std::string(double)>& result) {
  std::vector<GridBand> bands;
  for (int i = from * stepsPerUnit; i <= to * stepsPerUnit; ++i) {
    std::string here = result(static_cast<double>(i) / stepsPerUnit);
    if (!bands.empty() && bands.back().result == here) {
      bands.back().last = i;
    } else {
      bands.push_back({i, i, std::move(here)});
    }
  }
  return bands;
}

}  // namespace

std::vector<Band> BandsOf(int from, int to, int stepsPerUnit,
                          const std::function<std::string(double)>& result) {
  const auto isBound = [stepsPerUnit](int i) {
    return stepsPerUnit == 1 || i * 10 % stepsPerUnit == 0;
  };
  const auto number = [stepsPerUnit](int i) {
    return PlainText(static_cast<double>(i) / stepsPerUnit);
  };
  const std::vector<GridBand> grid = GridBandsOf(from, to, stepsPerUnit, result);
  std::vector<Band> bands;
  for (std::size_t at = 0; at < grid.size(); ++at) {
    const auto& [first, last, here] = grid[at];
    const bool closedBelow = isBound(first);
    const bool closedAbove = isBound(last);
    std::string range;
    if (at == 0) {
      range = closedAbove ? "up to " + number(last) : "below " + number(last + 1);
    } else if (at + 1 == grid.size()) {
      range = closedBelow ? number(first) + " or more" : "above " + number(first - 1);
    } else {
      range = (closedBelow ? number(first) : "above " + number(first - 1)) + " to " +
              (closedAbove ? number(last) : "below " + number(last + 1));
    }
    bands.push_back({range, here});
  }
  return bands;
}

std::string Simplified(std::string_view text) {
  std::string simple;
  for (const char c : text) {
    if (c != ' ') {
      simple += c;
    } else if (!simple.empty() && simple.back() != ' ') {
      simple += c;
    }
  }
  if (!simple.empty() && simple.back() == ' ') simple.pop_back();
  return simple;
}

TableRows& AddTable(ExpectedTables& tables, const std::string& id,
                    std::vector<std::string> headings) {
  TableRows& rows = tables[id];
  EXPECT_TRUE(rows.empty()) << "second table " << id;
  rows.push_back(std::move(headings));
  return rows;
}

void OpenSample(std::string_view name) {
  Module1 = JobState{};
  JobReset();
  Module1.JobFileName = std::string(HALVANE_SOURCE_DIR) + "/docs/samples/" + std::string(name);
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened) << name;
}

}  // namespace halvane
