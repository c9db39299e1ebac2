#include "reporter/folder_walk.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "reporter/job_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class FolderWalkTest : public testing::Test {
 protected:
  void Make(const std::string& name) {
    const fs::path path = folder_.File(name);
    fs::create_directories(path.parent_path());
    WriteBytes(path.string(), "");
  }

  /// The paths of a list, without the test's own folder.
  Names NamesOf(JobList& list) {
    Names names;
    while (const auto path = list.Next(complaints_)) {
      EXPECT_TRUE(path->starts_with(folder_.path())) << *path;
      names.push_back(path->substr(folder_.path().size() + 1));
    }
    return names;
  }
  Names Walked(const std::string& name = "") {
    JobList list({name.empty() ? folder_.path() : folder_.File(name)});
    return NamesOf(list);
  }

  TemporaryFolder folder_;
  Names complaints_;
};

TEST_F(FolderWalkTest, JobFilesComeInTheOrderOfTheirPaths) {
  const Names expected{"B.qjt",       "a b.qjt",     "a.qjt",           "a/1.qjt",
                       "a/b/c/2.qjt", "a/c.qjt",     "a0.qjt",          "b/deep/3.qjt",
                       "b.qjt/4.qjt", "caf\xE9.qjt", "\xE7\xB7\x9A.qjt"};
  for (const std::string& name : expected) Make(name);
  Names sorted = expected;
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(Walked(), sorted);
  EXPECT_EQ(complaints_, Names{});
}

TEST_F(FolderWalkTest, OnlyJobFilesCount) {
  for (const std::string name : {"a.qjt", "b.QJT", "c.Qjt", "d.txt", "e.qjt.previous", "qjt",
                                 ".qjt", "f.rescue.qjt", "g.qjtx", "h", ".hidden.qjt"}) {
    Make(name);
  }
  EXPECT_EQ(Walked(), (Names{".hidden.qjt", "a.qjt", "b.QJT", "c.Qjt", "f.rescue.qjt"}));
}

TEST_F(FolderWalkTest, LinkToAFileIsAFileAndLinkToAFolderIsNotFollowed) {
  Make("real/a.qjt");
  fs::create_symlink("a.qjt", folder_.File("real/link.qjt"));
  fs::create_symlink("nowhere", folder_.File("real/broken.qjt"));
  fs::create_directory_symlink("..", folder_.File("real/up"));
  fs::create_directory_symlink("..", folder_.File("real/up.qjt"));
  EXPECT_EQ(Walked(), (Names{"real/a.qjt", "real/broken.qjt", "real/link.qjt"}));
  // The user may name one.
  fs::create_directory_symlink("real", folder_.File("named"));
  EXPECT_EQ(Walked("named"), (Names{"named/a.qjt", "named/broken.qjt", "named/link.qjt"}));
}

TEST_F(FolderWalkTest, FolderNamedAsAJobFileIsGoneThroughWhenItIsKnownToBeOne) {
  Make("b.QJT/a.qjt");
  Make("b.QJT/c/d.qjt");
  EXPECT_EQ(Walked("b.QJT"), Names{"b.QJT"});
  JobList list = JobList::OfFolder(folder_.File("b.QJT"));
  EXPECT_EQ(NamesOf(list), (Names{"b.QJT/a.qjt", "b.QJT/c/d.qjt"}));
  EXPECT_EQ(complaints_, Names{});
}

TEST_F(FolderWalkTest, MoreNamesThanAreHeldAtATimeComeInOrderAndOnce) {
  constexpr int kFiles = 20000;
  Make("source");
  Names expected;
  for (int i = 0; i < kFiles; ++i) {
    // In another order than the one of the names.
    const std::string digits = std::to_string(10000 + i * 7919 % kFiles);
    expected.push_back(digits + ".qjt");
    fs::create_hard_link(folder_.File("source"), folder_.File(expected.back()));
  }
  for (const std::string name : {"12345/in.qjt", "29999/in.qjt"}) {
    Make(name);
    expected.push_back(name);
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(Walked(), expected);
}

TEST_F(FolderWalkTest, NotAllNamesOfALargeFolderAreHeld) {
  Make("source");
  for (int i = 10000; i < 15000; ++i) {
    fs::create_hard_link(folder_.File("source"), folder_.File(std::to_string(i) + ".qjt"));
  }
  FolderWalk walk(folder_.path());
  EXPECT_EQ(walk.Next(complaints_), folder_.File("10000.qjt"));
  // Comes into names that are yet to be read.
  Make("14999a.qjt");
  std::optional<std::string> last;
  while (const auto path = walk.Next(complaints_)) last = path;
  EXPECT_EQ(last, folder_.File("14999a.qjt"));
}

TEST_F(FolderWalkTest, FilesThatComeAndGoMeanwhileDoNotStopIt) {
  Make("a.qjt");
  Make("b/1.qjt");
  Make("c.qjt");
  FolderWalk walk(folder_.path());
  EXPECT_EQ(walk.Next(complaints_), folder_.File("a.qjt"));
  fs::remove_all(folder_.File("b"));
  EXPECT_EQ(walk.Next(complaints_), folder_.File("c.qjt"));
  EXPECT_EQ(walk.Next(complaints_), std::nullopt);
  EXPECT_EQ(complaints_,
            Names{"File error: " + folder_.File("b/") + ": No such file or directory"});
}

TEST_F(FolderWalkTest, FolderWithoutRightsIsComplainedOfAndPassedOver) {
  Make("a.qjt");
  Make("closed/1.qjt");
  Make("z.qjt");
  fs::permissions(folder_.path(), fs::perms(0755));
  fs::permissions(folder_.File("closed"), fs::perms::none);
  {
    const RightsOfNobody rights;
    EXPECT_EQ(Walked(), (Names{"a.qjt", "z.qjt"}));
    EXPECT_EQ(complaints_, Names{"File error: " + folder_.File("closed/") + ": Permission denied"});
    complaints_.clear();
    EXPECT_EQ(Walked("closed"), Names{});
    EXPECT_EQ(complaints_, Names{"File error: " + folder_.File("closed/") + ": Permission denied"});
  }
  fs::permissions(folder_.File("closed"), fs::perms::owner_all);
}

TEST_F(FolderWalkTest, FolderWithoutAJobFileIsComplainedOf) {
  Make("empty/sub/readme.txt");
  EXPECT_EQ(Walked("empty"), Names{});
  EXPECT_EQ(complaints_,
            Names{folder_.File("empty") + ": there is no job file (.qjt) in this folder"});
  complaints_.clear();
  Make("a.qjt");
  EXPECT_EQ(Walked(), Names{"a.qjt"});
  EXPECT_EQ(complaints_, Names{});
}

TEST_F(FolderWalkTest, NamesComeAsTheUserGaveThem) {
  Make("b/1.qjt");
  Make("a.qjt");
  const std::string slash = folder_.File("b/");
  JobList list({slash, folder_.File("a.qjt"), folder_.File("gone.qjt"), folder_.File("b")});
  EXPECT_EQ(NamesOf(list), (Names{"b/1.qjt", "a.qjt", "gone.qjt", "b/1.qjt"}));
  EXPECT_EQ(complaints_, Names{});
}

TEST_F(FolderWalkTest, CountIsThatOfTheJobsToCome) {
  for (const std::string name : {"b/1.qjt", "b/2.qjt", "b/c/3.qjt", "a.qjt"}) Make(name);
  JobList list({folder_.File("a.qjt"), folder_.File("b"), folder_.File("gone")});
  EXPECT_EQ(list.CountLeft(), 5U);
  list.Next(complaints_);
  list.Next(complaints_);
  EXPECT_EQ(list.CountLeft(), 3U);
  // Counting takes nothing away.
  EXPECT_EQ(NamesOf(list), (Names{"b/2.qjt", "b/c/3.qjt", "gone"}));
  EXPECT_EQ(list.CountLeft(), 0U);
  EXPECT_EQ(JobList({}, InputLines()).CountLeft(), std::nullopt);
}

}  // namespace
}  // namespace halvane
