#include "core/journal.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/file_calls.h"
#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class JournalTest : public testing::Test {
 protected:
  /// The entries that are handed out, each kept or not.
  std::vector<JournalEntry> Left(bool keep = true) {
    std::vector<JournalEntry> entries;
    KeepLeftJournals(folder_.path(), [&](const JournalEntry& entry) {
      entries.push_back(entry);
      return keep;
    });
    return entries;
  }

  const TemporaryFolder folder_;
};

JournalEntry Entry(std::string jobFile = "/jobs/press line.qjt") {
  return {EmptyJobText(), std::move(jobFile), true};
}

void ExpectSame(const JournalEntry& entry, const JournalEntry& expected) {
  EXPECT_EQ(entry.job, expected.job);
  EXPECT_EQ(entry.jobFile, expected.jobFile);
  EXPECT_EQ(entry.markedChanged, expected.markedChanged);
}

TEST_F(JournalTest, HoldsTheJobAsAFileAndBehindItWhereItBelongs) {
  Journal journal(folder_.path());
  EXPECT_EQ(journal.path(), "");
  ASSERT_TRUE(journal.Write(Entry("/jobs/50% \"日\n.qjt")));
  EXPECT_EQ(BytesOf(journal.path()),
            EmptyJobText() + "\"halvane-journal\",1,\"/jobs/50%25%20%22%E6%97%A5%0A.qjt\",-1\r\n");
  Module1 = JobState{};
  Module1.JobFileName = journal.path();
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
}

TEST_F(JournalTest, EveryEntryReadsBackAsItWas) {
  std::string everyByte;
  for (int byte = 1; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  // A job whose text has an open quote and a line of a journal in it.
  const std::string strange = EmptyJobWith(4, "\"a\"b\r\n\"halvane-journal\",1,\"x\",-1\r\n");
  for (const JournalEntry& entry :
       {Entry(), Entry(""), Entry(everyByte), JournalEntry{strange, "/a", false}}) {
    const auto read = ReadJournal(JournalText(entry));
    ASSERT_TRUE(read);
    ExpectSame(*read, entry);
  }
}

TEST_F(JournalTest, WhatIsNoWholeJournalIsNotRead) {
  const std::string whole = JournalText(Entry());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(ReadJournal(whole.substr(0, size))) << size;
  }
  EXPECT_FALSE(ReadJournal("x" + whole));
  EXPECT_FALSE(ReadJournal(whole + "\r\n"));
  EXPECT_FALSE(ReadJournal(EmptyJobText() + "\"halvane-journal\",1,\"%4\",-1\r\n"));
  EXPECT_FALSE(ReadJournal(EmptyJobText() + "\"halvane-journal\",1,\"%ZZ\",-1\r\n"));
}

TEST_F(JournalTest, SameEntryIsNotWrittenAgain) {
  Journal journal(folder_.path());
  ASSERT_TRUE(journal.Write(Entry()));
  files::Status first;
  ASSERT_FALSE(files::StatusOf(journal.path(), first));
  ASSERT_TRUE(journal.Write(Entry()));
  files::Status second;
  ASSERT_FALSE(files::StatusOf(journal.path(), second));
  EXPECT_TRUE(first.IsSameFileAs(second));
  EXPECT_EQ(first.fraction, second.fraction);
}

TEST_F(JournalTest, FolderThatTakesNothingIsNoFailure) {
  WriteBytes(folder_.File("file"), "");
  Journal journal(folder_.File("file"));
  EXPECT_FALSE(journal.Write(Entry()));
  EXPECT_EQ(journal.path(), "");
  journal.Remove();
  KeepLeftJournals(folder_.File("file"), [](const JournalEntry&) { return true; });
  KeepLeftJournals(folder_.File("none"), [](const JournalEntry&) { return true; });
  KeepLeftJournals("", [](const JournalEntry&) { return true; });
  EXPECT_EQ(folder_.Names(), "file");
}

TEST_F(JournalTest, OneThatADeadProgramLeftIsHandedOutAndRemovedWhenKept) {
  { Journal(folder_.path()).Write(Entry()); }
  EXPECT_EQ(Left(false).size(), 1U);
  const auto left = Left();
  ASSERT_EQ(left.size(), 1U);
  ExpectSame(left[0], Entry());
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(JournalTest, OnesOfLivingProgramsAreLeftAlone) {
  Journal living(folder_.path());
  ASSERT_TRUE(living.Write(Entry("/living")));
  // The lock goes with each new content.
  ASSERT_TRUE(living.Write(Entry("/still living")));
  { Journal(folder_.path()).Write(Entry("/dead")); }
  const auto left = Left();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].jobFile, "/dead");
  EXPECT_EQ(BytesOf(living.path()), JournalText(Entry("/still living")));
}

TEST_F(JournalTest, ForeignAndHalfWrittenFilesStayAndAWritersPartGoes) {
  WriteBytes(folder_.File("journal-half.qjt"), EmptyJobText());
  WriteBytes(folder_.File("journal-foreign.qjt"), "notes");
  WriteBytes(folder_.File("journal-notes.txt"), JournalText(Entry()));
  WriteBytes(folder_.File("other.qjt"), JournalText(Entry()));
  std::filesystem::create_directory(folder_.File("journal-folder.qjt"));
  const std::string names = folder_.Names();
  WriteBytes(folder_.File("journal-killed.qjt.part"), "\"qjt\",1");
  EXPECT_TRUE(Left().empty());
  EXPECT_EQ(folder_.Names(), names);
}

TEST_F(JournalTest, OneThatCannotBeWrittenKeepsTheEntryBefore) {
  Journal journal(folder_.path());
  ASSERT_TRUE(journal.Write(Entry()));
  const std::string path = journal.path();
  // In the way of what is written next.
  std::filesystem::create_directory(path + ".part");
  EXPECT_FALSE(journal.Write(Entry("/other")));
  EXPECT_EQ(BytesOf(path), JournalText(Entry()));
  EXPECT_EQ(journal.path(), path);
}

TEST_F(JournalTest, OneFileHoldsTheLastEntry) {
  Journal journal(folder_.File("state/program"));
  ASSERT_TRUE(journal.Write(Entry()));
  const std::string path = journal.path();
  ASSERT_TRUE(journal.Write(Entry("/other")));
  EXPECT_EQ(journal.path(), path);
  EXPECT_EQ(BytesOf(path), JournalText(Entry("/other")));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.File("state/program")), {}),
            1);
  journal.Remove();
  EXPECT_EQ(journal.path(), "");
  EXPECT_FALSE(Exists(path));
}

}  // namespace
}  // namespace halvane
