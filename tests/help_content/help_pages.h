#pragma once

#include <map>
#include <string>
#include <vector>

namespace halvane {

using TableRows = std::vector<std::vector<std::string>>;

/// A help page as a test sees it. Texts are UTF-8, runs of blanks made one, ends trimmed.
struct HelpPage {
  std::string file;
  std::string bytes;
  std::string title;
  std::vector<std::string> headings;          ///< of the first rank
  std::map<std::string, TableRows> tables;    ///< by id, the row of headings first
  std::map<std::string, std::string> marked;  ///< text of each `span`, by id
  std::vector<std::string> captions;          ///< of controls, which stand in `b`
  std::vector<std::string> quotations;        ///< of what the program writes, which stand in `i`
  std::vector<std::string> links;
  std::vector<std::string> anchors;
  std::vector<std::string> files;   ///< pictures and style sheets
  std::vector<std::string> faults;  ///< what is wrong with its markup; empty for a sound page
};

/// The folder of the help pages.
std::string HelpFolder();
/// The bytes of a file; empty, with a failure of the test, where it cannot be read.
std::string BytesOfFile(const std::string& path);
/// All pages, sorted by file name.
const std::vector<HelpPage>& HelpPages();
const HelpPage& HelpPageOf(const std::string& file);
/// The table of a page. An empty one, with a failure of the test, where there is none.
const TableRows& HelpTable(const std::string& file, const std::string& id);

}  // namespace halvane
