#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "help_pages.h"

namespace halvane {

/// What the tables of the help pages have to say, computed by the program itself; by table id.
using ExpectedTables = std::map<std::string, TableRows>;

ExpectedTables OcraTables();
ExpectedTables CtdTables();
ExpectedTables StrainIndexTables();
ExpectedTables RulaPageTables();
ExpectedTables RebaPageTables();
ExpectedTables HalTables();
ExpectedTables OtherTables();

/// The rows that the Strain Index report would have for its last computation, score last.
TableRows SiResultRows();

/// Numbers inside sentences; by id.
std::map<std::string, std::string> ExpectedMarks();

/// A range of values that have one result.
struct Band {
  std::string range;  ///< "up to 7.5", "above 7.5 to 15", "15 to below 20", "20 or more"
  std::string result;
};
/// The bands of a function between two values, found by trying every value of a grid with
/// `stepsPerUnit` steps. Bounds are taken to be whole tenths of the unit.
std::vector<Band> BandsOf(int from, int to, int stepsPerUnit,
                          const std::function<std::string(double)>& result);

/// Ends without blanks; runs of blanks made one, as on a page.
std::string Simplified(std::string_view text);
/// Puts a new table behind the row of headings and gives it.
TableRows& AddTable(ExpectedTables& tables, const std::string& id,
                    std::vector<std::string> headings);

/// Makes a freshly started program with this sample job opened.
void OpenSample(std::string_view name);

}  // namespace halvane
