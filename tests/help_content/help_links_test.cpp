// Links, files, contents and project of the help pages hold together.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include "help_pages.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

/// A page that takes longer to read than a worker's break is too long.
constexpr std::size_t kLongestPage = 20000;

std::string InFolder(const std::string& file) { return HelpFolder() + "/" + file; }

std::vector<std::string> ProjectFiles() {
  std::istringstream project(BytesOfFile(InFolder("help.hhp")));
  std::vector<std::string> files;
  bool inFiles = false;
  for (std::string line; std::getline(project, line);) {
    if (inFiles && !line.empty()) files.push_back(line);
    if (line == "[FILES]") inFiles = true;
  }
  return files;
}

struct ContentsLine {
  std::string name;
  std::string page;  ///< empty for a heading
};

std::vector<ContentsLine> Contents() {
  const std::string text = BytesOfFile(InFolder("help.hhc"));
  const std::regex object(
      R"rx(<param name="Name" value="([^"]*)">(<param name="Local" value="([^"]*)">)?</object>)rx");
  std::vector<ContentsLine> lines;
  for (std::sregex_iterator at(text.begin(), text.end(), object); at != std::sregex_iterator();
       ++at) {
    lines.push_back({(*at)[1], (*at)[3]});
  }
  return lines;
}

TEST(HelpPages, AreWellFormedWithATitleThatIsTheirHeading) {
  EXPECT_GE(HelpPages().size(), 14U);
  std::set<std::string> titles;
  for (const HelpPage& page : HelpPages()) {
    for (const std::string& fault : page.faults) ADD_FAILURE() << page.file << ": " << fault;
    EXPECT_EQ(page.headings, std::vector<std::string>{page.title}) << page.file;
    EXPECT_TRUE(titles.insert(page.title).second) << page.title << " twice";
  }
}

TEST(HelpPages, AreShortAndInAscii) {
  for (const HelpPage& page : HelpPages()) {
    EXPECT_LE(page.bytes.size(), kLongestPage) << page.file;
    EXPECT_TRUE(std::ranges::all_of(page.bytes, [](unsigned char c) { return c < 0x80; }))
        << page.file;
    EXPECT_NE(page.bytes.find("charset=windows-1252"), std::string::npos) << page.file;
  }
}

TEST(HelpPages, EveryLinkLeadsToAPageAndAnAnchor) {
  int links = 0;
  for (const HelpPage& page : HelpPages()) {
    for (const std::string& link : page.links) {
      ++links;
      const std::size_t hash = link.find('#');
      const std::string file = hash == 0 ? page.file : link.substr(0, hash);
      const auto target = std::ranges::find(HelpPages(), file, &HelpPage::file);
      if (target == HelpPages().end()) {
        ADD_FAILURE() << page.file << " leads to no page: " << link;
      } else if (hash != std::string::npos) {
        EXPECT_EQ(std::ranges::count(target->anchors, link.substr(hash + 1)), 1)
            << page.file << ": " << link;
      }
    }
  }
  EXPECT_GT(links, 50);
}

TEST(HelpPages, EveryPictureAndStyleSheetIsInTheProject) {
  const auto files = ProjectFiles();
  for (const HelpPage& page : HelpPages()) {
    EXPECT_FALSE(page.files.empty()) << page.file << " has no style sheet";
    for (const std::string& file : page.files) {
      EXPECT_TRUE(std::filesystem::is_regular_file(InFolder(file))) << page.file << ": " << file;
      EXPECT_EQ(std::ranges::count(files, file), 1) << page.file << ": " << file;
    }
  }
}

TEST(HelpPages, EveryPageIsInProjectAndContentsOnce) {
  const auto files = ProjectFiles();
  const auto contents = Contents();
  for (const HelpPage& page : HelpPages()) {
    EXPECT_EQ(std::ranges::count(files, page.file), 1) << page.file;
    EXPECT_EQ(std::ranges::count(contents, page.file, &ContentsLine::page), 1) << page.file;
  }
}

TEST(HelpPages, ProjectAndContentsNameNothingThatIsNotThere) {
  for (const std::string& file : ProjectFiles()) {
    EXPECT_TRUE(std::filesystem::is_regular_file(InFolder(file))) << file;
  }
  std::set<std::string> names;
  for (const auto& [name, page] : Contents()) {
    EXPECT_TRUE(names.insert(name).second) << name << " twice";
    if (!page.empty()) HelpPageOf(page);
  }
  // The contents have nothing but objects that the pattern above finds.
  const std::string text = BytesOfFile(InFolder("help.hhc"));
  const std::regex item("<li>");
  EXPECT_EQ(std::distance(std::sregex_iterator(text.begin(), text.end(), item), {}),
            static_cast<std::ptrdiff_t>(Contents().size()));
}

TEST(HelpPages, EveryToolsTopicIsAPage) {
  for (const ToolRow& tool : Tools()) {
    const auto& pages = HelpPages();
    EXPECT_EQ(std::ranges::count(pages, tool.helpTopic, &HelpPage::file), 1) << tool.helpTopic;
  }
}

TEST(HelpPages, LookGoodOnAnyPalette) {
  const std::regex colour("color|background|bgcolor");
  std::vector<std::string> files{"help.css"};
  for (const HelpPage& page : HelpPages()) files.push_back(page.file);
  for (const std::string& file : files) {
    EXPECT_FALSE(std::regex_search(BytesOfFile(InFolder(file)), colour)) << file;
  }
}

}  // namespace
}  // namespace halvane
