#include "tests/support/test_support.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

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

/// A path as the standard library takes it on every system.
std::filesystem::path PathOf(std::string_view path) {
  return std::u8string(path.begin(), path.end());
}

std::string NameOf(const std::filesystem::directory_entry& entry) {
  const std::u8string name = entry.path().filename().u8string();
  return {name.begin(), name.end()};
}

std::string MakeTemporaryFolder() {
#ifdef _WIN32
  const std::u8string start = (std::filesystem::temp_directory_path() / "halvane-test-").u8string();
  for (DWORD number = GetCurrentProcessId();; ++number) {
    std::string path = std::string(start.begin(), start.end()) + std::to_string(number);
    if (std::filesystem::create_directory(PathOf(path))) return path;
  }
#else
  std::string pattern = (std::filesystem::temp_directory_path() / "halvane-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), pattern);
  }
  return pattern;
#endif
}

std::optional<std::string> ValueOf(const char* variable) {
#ifdef _WIN32
  std::wstring value(32768, L'\0');
  const std::wstring name = PathOf(variable).wstring();
  SetLastError(ERROR_SUCCESS);
  const DWORD length =
      GetEnvironmentVariableW(name.c_str(), value.data(), static_cast<DWORD>(value.size()));
  if (length == 0 && GetLastError() != ERROR_SUCCESS) return std::nullopt;
  const std::u8string text = std::filesystem::path(value.substr(0, length)).u8string();
  return std::string(text.begin(), text.end());
#else
  const char* const value = std::getenv(variable);
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
#endif
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(MakeTemporaryFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
#ifdef _WIN32
  // So that what is long in it is found too.
  const std::filesystem::path path = PathOf("\\\\?\\" + path_);
#else
  const std::filesystem::path& path = path_;
#endif
  std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path, ignored);
}

std::string TemporaryFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PathOf(path_))) {
    names.push_back(NameOf(entry));
  }
  std::sort(names.begin(), names.end());
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
  return text;
}

EnvironmentVariable::EnvironmentVariable(const char* name, const std::optional<std::string>& value)
    : name_(name) {
  before_ = ValueOf(name);
  SetTo(value);
}

EnvironmentVariable::~EnvironmentVariable() { SetTo(before_); }

void EnvironmentVariable::SetTo(const std::optional<std::string>& value) const {
#ifdef _WIN32
  const std::wstring wide = value ? PathOf(*value).wstring() : std::wstring();
  SetEnvironmentVariableW(PathOf(name_).c_str(), value ? wide.c_str() : nullptr);
#else
  if (value) {
    setenv(name_, value->c_str(), 1);
  } else {
    unsetenv(name_);
  }
#endif
}

#ifndef _WIN32
namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

RightsOfNobody::RightsOfNobody() : wasRoot_(geteuid() == 0) {
  if (wasRoot_ && setresuid(kNobody, kNobody, 0) != 0) {
    throw std::system_error(errno, std::generic_category(), "setresuid");
  }
}

RightsOfNobody::~RightsOfNobody() {
  // With the wrong rights no later test would mean anything.
  if (wasRoot_ && setresuid(0, 0, 0) != 0) std::abort();
}
#endif

std::string BytesOf(const std::string& path) {
  std::ifstream file(PathOf(path), std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(PathOf(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  ASSERT_TRUE(file.good()) << path;
}

bool Exists(const std::string& path) {
  return std::filesystem::exists(std::filesystem::symlink_status(PathOf(path)));
}

std::string NameLike(const TemporaryFolder& folder, std::string_view start, std::string_view end) {
  std::string found;
  for (const auto& entry : std::filesystem::directory_iterator(PathOf(folder.path()))) {
    const std::string name = NameOf(entry);
    if (!name.starts_with(start) || !name.ends_with(end)) continue;
    if (!found.empty()) return "";
    found = name;
  }
  return found;
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

std::string_view FilledJobText() {
  return "\"qjt\",1,0,0,0\r\n"
         "2\r\n"
         "\"7.5\",1.25,301\r\n"
         "\"Ann, A.\",\"Press line\",\"W-17\",1,\"7.5\"\r\n"
         "\"11\",12.5,13,\r\n"
         "100\r\n101\r\n102\r\n103\r\n104\r\n105\r\n106\r\n107\r\n108\r\n109\r\n"
         "110\r\n111\r\n112\r\n113\r\n114\r\n115\r\n116\r\n117\r\n118\r\n119\r\n"
         "200\r\n201\r\n202\r\n203\r\n204\r\n205\r\n206\r\n207\r\n208\r\n209\r\n"
         "210\r\n211\r\n212\r\n213\r\n214\r\n215\r\n216\r\n217\r\n218\r\n219\r\n"
         "220\r\n221\r\n222\r\n"
         "2.5,\"21\",22,23.5,24,25,26\r\n"
         "-30\r\n-31\r\n-32\r\n-33\r\n-34\r\n-35\r\n-36\r\n"
         "-37\r\n-38\r\n-39\r\n-40\r\n-41\r\n-42\r\n-43\r\n"
         "\"50\",51,52,53.5,54,55\r\n"
         // Task 1.
         "\"Cut\",0\r\n"
         "1001,1002.5\r\n"
         "1003.5,1004,\"1005\",1006.5,1001,1007.25,1008.5\r\n"
         "1009,1010,1011.5,1012.5\r\n"
         "1004,\"1005\",1006.5,1013.5,1007.25,1008.5\r\n"
         "1009,1010,1011.5,1012.5\r\n"
         "1014,\"1015\",1016.5,,1017,1018,1019,1020\r\n"
         "0.125,1E-05\r\n"
         "1.125,2E-05\r\n"
         "2.125,3E-05\r\n"
         "3.125,4E-05\r\n"
         "4.125,5E-05\r\n"
         "5.125,6E-05\r\n"
         "6.125,7E-05\r\n"
         "7.125,8E-05\r\n"
         // Task 2.
         "\"Fold\",\"1\"\r\n"
         "\"2001\",-2002.5\r\n"
         "-2003.5,2004.5,,2006.5,\"2001\",,2008.5\r\n"
         "\"2009\",-2010,\"2011\",-2012.5\r\n"
         "2004.5,,2006.5,2013.5,,2008.5\r\n"
         "\"2009\",-2010,\"2011\",-2012.5\r\n"
         ",,,,,,,-2020\r\n"
         "0.0625,1E+15\r\n"
         "1.0625,2E+15\r\n"
         "2.0625,3E+15\r\n"
         "3.0625,4E+15\r\n"
         "4.0625,5E+15\r\n"
         "5.0625,6E+15\r\n"
         "6.0625,7E+15\r\n"
         "7.0625,1.5E+20\r\n";
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
