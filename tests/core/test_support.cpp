#include "tests/core/test_support.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace halvane {
namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "halvane-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), pattern);
  }
  path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
  return text;
}

RightsOfNobody::RightsOfNobody() : wasRoot_(geteuid() == 0) {
  if (wasRoot_ && seteuid(kNobody) != 0) {
    throw std::system_error(errno, std::generic_category(), "seteuid");
  }
}

RightsOfNobody::~RightsOfNobody() {
  // With the wrong rights no later test would mean anything.
  if (wasRoot_ && seteuid(0) != 0) std::abort();
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  ASSERT_TRUE(file.good()) << path;
}

bool Exists(const std::string& path) {
  return std::filesystem::exists(std::filesystem::symlink_status(path));
}

std::string EmptyJobWith(int line, std::string_view text) {
  std::string job;
  for (int number = 1; number <= 64; ++number) {
    std::string_view written = "0";
    if (number == 1) written = "\"qjt\",1,0,0,0";
    if (number == 3) written = "8,0,0";
    if (number == 4) written = "\"\",\"\",\"\",0,8";
    if (number == 5) written = "0,0,0,0";
    if (number == 49) written = "0,0,0,0,0,0,0";
    if (number >= 50 && number <= 63) written = "3";
    if (number == 64) written = "0,0,0,0,0,0";
    if (number == line) written = text;
    job += written;
    job += "\r\n";
  }
  return job;
}

std::string EmptyJobText(std::string_view taskCount) { return EmptyJobWith(2, taskCount); }

std::string UntouchedTaskText(int task) {
  std::string text = "\"Task " + std::to_string(task) + "\",1\r\n";
  text +=
      "0,0\r\n"
      "0,0,0,0,0,0,0\r\n"
      "0,0,0,0\r\n"
      "0,0,0,0,0,0\r\n"
      "0,0,0,0\r\n"
      ",,,,,,,0\r\n";
  for (int slot = 0; slot < 8; ++slot) text += "0,0\r\n";
  return text;
}

}  // namespace halvane
