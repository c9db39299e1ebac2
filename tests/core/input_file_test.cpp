#include "core/input_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(InputFileTest, LongerFileGivesItsFirstBytesAndAnyOthers) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a"), "0123456789");
  InputFile file(folder.File("a"));
  EXPECT_EQ(file.ReadAll(4), "0123");
  EXPECT_EQ(file.ReadAll(10), "0123456789");
  EXPECT_EQ(file.ReadAll(), "0123456789");
  std::string buffer(4, 'x');
  EXPECT_EQ(file.ReadAt(5, buffer.data(), 4), 4);
  EXPECT_EQ(buffer, "5678");
  EXPECT_EQ(file.ReadAt(8, buffer.data(), 4), 2);
  EXPECT_EQ(buffer, "8978");
  EXPECT_EQ(file.ReadAt(10, buffer.data(), 4), 0);
}

TEST(InputFileTest, LongJobThatChangesWhileItIsReadFails) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  const std::string job = EmptyJobText();
  for (const std::string& after : {job + "0", std::string("\"qjt\""), std::string()}) {
    WriteBytes(path, job);
    Module1 = JobState{};
    InputFile file(path);
    JobText text(file, {job.size(), 16});
    text.FindFields();
    WriteBytes(path, after);
    EXPECT_EQ(FailureOf([&text] { ReadJobText(text); }), "FileError") << after.size();
    EXPECT_TRUE(Module1.JobFileOpen);
  }
}

TEST(InputFileTest, FileThatChangesWhileItIsReadFails) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"longer", EmptyJobText() + "0"}, {"shorter", "\"qjt\""}, {"emptied", ""}};
  for (const auto& [label, after] : rows) {
    WriteBytes(path, EmptyJobText());
    InputFile file(path);
    WriteBytes(path, after);
    try {
      file.ReadAll();
      ADD_FAILURE() << label;
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(std::string(failure.what()), "File error: " + path + ": changed while it was read")
          << label;
    }
  }
}

TEST(InputFileTest, FileOfTheSameLengthThatChangesFails) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, EmptyJobText("0"));
  InputFile file(path);
  WriteBytes(path, EmptyJobText("1"));
  // Two writes can fall within one tick of the file system's clock.
  std::filesystem::last_write_time(
      path, std::filesystem::file_time_type::clock::now() + std::chrono::seconds(1));
  EXPECT_EQ(FailureOf([&file] { file.ReadAll(); }), "FileError");
}

TEST(InputFileTest, FileOfTheSameTimeThatChangesFails) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, EmptyJobText());
  const auto time = std::filesystem::last_write_time(path);
  InputFile file(path);
  WriteBytes(path, EmptyJobText() + "0");
  std::filesystem::last_write_time(path, time);
  EXPECT_EQ(FailureOf([&file] { file.ReadAll(); }), "FileError");
}

}  // namespace
}  // namespace halvane
