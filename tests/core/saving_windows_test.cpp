#include <aclapi.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <string>
#include <thread>
#include <vector>

#include "core/file_calls.h"
#include "core/folder_reader.h"
#include "core/input_file.h"
#include "core/job_file.h"
#include "core/kept_copy.h"
#include "core/platform_file.h"
#include "core/rescue_copy.h"
#include "core/user_folders.h"
#include "core/wide_text_windows.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

void Replace(const std::string& path, std::string_view bytes) {
  FileReplacement file(path);
  file.Write(bytes);
}

/// Whether the system lets this program write a file.
bool LetsWrite(const std::string& path) {
  const HANDLE file = CreateFileW(WideText(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  return file != INVALID_HANDLE_VALUE && CloseHandle(file) != 0;
}

std::string ContentOf(const std::string& path) { return InputFile(path).ReadAll(); }

class SavingOnWindows : public testing::Test {
 protected:
  const TemporaryFolder folder_;
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{kStateVariable, elsewhere_.path()};
  const EnvironmentVariable temporary_{kTemporaryVariable, elsewhere_.path()};
  const std::string path_ = folder_.File("job.qjt");
};

TEST_F(SavingOnWindows, PathOfMoreThan260CharactersIsLikeAnyOther) {
  std::string deep = folder_.path();
  for (const char letter : {'a', 'b', 'c'}) deep += "\\" + std::string(120, letter);
  ASSERT_TRUE(MakeFolder(deep));
  const std::string path = deep + "\\job.qjt";
  ASSERT_GT(path.size(), 360U);
  Replace(path, "first");
  Replace(path, "second");
  EXPECT_EQ(ContentOf(path), "second");
  EXPECT_TRUE(WriteNewFile(deep + "\\new.qjt", "new"));
  EXPECT_FALSE(WriteNewFile(deep + "\\new.qjt", "newer"));
  EXPECT_EQ(WriteRescueCopy(path, "rescued", {}), deep + "\\job.rescue.qjt");
  const auto all = [](std::string_view) { return true; };
  EXPECT_EQ(files::NamesIn(deep, all).size(), 3U);
  EXPECT_EQ(files::TargetOf(path), path);
}

TEST_F(SavingOnWindows, NameOutsideTheCodePageIsKept) {
  const std::string name = "\u0141\u00f3d\u017a \u65e5\u672c \U0001F527.qjt";
  Module1 = JobState{};
  Module1.JobFileName = folder_.File(name);
  Module1.JobAnalyst = "Ann";
  WriteJobFile();
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW(WideText(folder_.File("*.qjt")).c_str(), &entry);
  ASSERT_NE(search, INVALID_HANDLE_VALUE);
  FindClose(search);
  EXPECT_STREQ(entry.cFileName, WideText(name).c_str());
  FolderReader reader(folder_.path());
  ASSERT_TRUE(reader.Next());
  EXPECT_EQ(reader.name(), name);
  EXPECT_FALSE(reader.Next());
  Module1.JobAnalyst = "";
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Ann"));
}

TEST_F(SavingOnWindows, ReadOnlyFileStaysAndLeavesNoCopy) {
  WriteBytes(path_, "old");
  ASSERT_NE(SetFileAttributesW(WideText(path_).c_str(), FILE_ATTRIBUTE_READONLY), 0);
  if (LetsWrite(path_)) GTEST_SKIP() << "the superuser of another system writes read-only files";
  EXPECT_EQ(
      MessageOf([this] { Replace(path_, "new"); }),
      "File error: " + path_ + ": Permission denied. " + path_ + " holds the job as it was before");
  ASSERT_NE(SetFileAttributesW(WideText(path_).c_str(), FILE_ATTRIBUTE_NORMAL), 0);
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(folder_.Names(), "job.qjt");
  EXPECT_EQ(elsewhere_.Names(), "");
}

TEST_F(SavingOnWindows, HiddenFileStaysHidden) {
  WriteBytes(path_, "old");
  ASSERT_NE(SetFileAttributesW(WideText(path_).c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
  Replace(path_, "new");
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_NE(GetFileAttributesW(WideText(path_).c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(SavingOnWindows, FileThatAnotherProgramSharesWithNobodyIsNotWritten) {
  WriteBytes(path_, "old");
  const HANDLE other = CreateFileW(WideText(path_).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_EQ(MessageOf([this] { Replace(path_, "new"); }),
            "File error: " + path_ + ": another program is using it. Nothing was written");
  CloseHandle(other);
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(SavingOnWindows, FileThatIsOpenElsewhereIsNeitherTakenNorReplacedByANewName) {
  WriteBytes(path_, "old");
  WriteBytes(folder_.File("new"), "new");
  EXPECT_EQ(files::RenameToFree(folder_.File("new"), path_), std::errc::file_exists);
  EXPECT_FALSE(WriteNewFile(path_, "new"));
  EXPECT_EQ(BytesOf(path_), "old");
}

TEST_F(SavingOnWindows, DeviceIsWrittenAndNotRead) {
  EXPECT_EQ(FailureOf([] { Replace("NUL", "new"); }), "none");
  EXPECT_EQ(MessageOf([] { InputFile file("NUL"); }), "File error: NUL: not a regular file");
}

TEST_F(SavingOnWindows, WordsOfUsualErrorsAreThoseOfAllSystems) {
  EXPECT_EQ(MessageOf([this] { InputFile file(path_); }),
            "File error: " + path_ + ": No such file or directory");
  EXPECT_EQ(MessageOf([this] { Replace(folder_.File("missing\\job.qjt"), ""); }),
            "File error: " + folder_.File("missing\\job.qjt") +
                ": No such file or directory. No file was made");
}

/// What happens to names in a folder, one line each.
class FolderWatch {
 public:
  explicit FolderWatch(const std::string& folder)
      : folder_(CreateFileW(WideText(folder).c_str(), FILE_LIST_DIRECTORY,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED,
                            nullptr)) {
    place_.hEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    Ask();
  }
  ~FolderWatch() {
    CloseHandle(folder_);
    CloseHandle(place_.hEvent);
  }
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  /// All that has happened up to the moment when `last` is removed.
  std::vector<std::string> EventsUntil(const std::string& last) {
    constexpr DWORD kLongest = 20'000;  // milliseconds
    std::vector<std::string> events;
    while (events.empty() || events.back() != last) {
      DWORD size = 0;
      if (WaitForSingleObject(place_.hEvent, kLongest) != WAIT_OBJECT_0 ||
          GetOverlappedResult(folder_, &place_, &size, FALSE) == 0 || size == 0) {
        ADD_FAILURE() << "nothing more happens";
        break;
      }
      Append(events, last);
      Ask();
    }
    return events;
  }

 private:
  void Ask() {
    ResetEvent(place_.hEvent);
    ASSERT_NE(
        ReadDirectoryChangesW(
            folder_, buffer_.data(), static_cast<DWORD>(sizeof buffer_), FALSE,
            FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_LAST_WRITE | FILE_NOTIFY_CHANGE_SIZE,
            nullptr, &place_, nullptr),
        0);
  }
  void Append(std::vector<std::string>& events, const std::string& last) const {
    const auto* next = reinterpret_cast<const char*>(buffer_.data());
    while (events.empty() || events.back() != last) {
      const auto* const info = reinterpret_cast<const FILE_NOTIFY_INFORMATION*>(next);
      static constexpr std::array kWhat{"?", "+ ", "- ", "* ", "< ", "> "};
      const std::string event = kWhat.at(info->Action) +
                                Utf8Text({info->FileName, info->FileNameLength / sizeof(wchar_t)});
      // One write may be told of more than once.
      if (events.empty() || events.back() != event) events.push_back(event);
      if (info->NextEntryOffset == 0) return;
      next += info->NextEntryOffset;
    }
  }

  HANDLE folder_;
  OVERLAPPED place_{};
  std::array<DWORD, 16384> buffer_{};
};

TEST_F(SavingOnWindows, CopyStandsWholeUnderItsNameWhileTheJobIsWritten) {
  WriteBytes(path_, "old");
  FolderWatch watch(folder_.path());
  Replace(path_, "foobar");
  const std::string copy = "job.qjt.85944171f73967e8.previous";
  const std::vector<std::string> expected{"+ " + copy + ".part", "* " + copy + ".part",
                                          "< " + copy + ".part", "> " + copy,
                                          "* job.qjt",           "- " + copy};
  EXPECT_EQ(watch.EventsUntil("- " + copy), expected);
}

TEST_F(SavingOnWindows, NewJobGetsItsNameWhenItIsWhole) {
  FolderWatch watch(folder_.path());
  Replace(path_, "foobar");
  const std::vector<std::string> events = watch.EventsUntil("> job.qjt");
  ASSERT_EQ(events.size(), 4U);
  EXPECT_TRUE(events[0].starts_with("+ job.qjt.") && events[0].ends_with(".part")) << events[0];
  EXPECT_EQ(events[1], "*" + events[0].substr(1));
  EXPECT_EQ(events[2], "<" + events[0].substr(1));
}

/// Who may do anything with a file, sorted. The system itself, which may do anything anyway, is
/// left out.
std::vector<std::string> UsersOf(const std::string& path) {
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const DWORD error =
      GetNamedSecurityInfoW(WideText(path).data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                            nullptr, nullptr, &list, nullptr, &descriptor);
  EXPECT_EQ(error, 0U);
  std::vector<std::string> users;
  for (WORD i = 0; list != nullptr && i < list->AceCount; ++i) {
    ACCESS_ALLOWED_ACE* entry = nullptr;
    EXPECT_NE(GetAce(list, i, reinterpret_cast<void**>(&entry)), 0);
    std::array<wchar_t, 256> name{};
    std::array<wchar_t, 256> domain{};
    auto nameSize = static_cast<DWORD>(name.size());
    auto domainSize = static_cast<DWORD>(domain.size());
    SID_NAME_USE use{};
    LookupAccountSidW(nullptr, &entry->SidStart, name.data(), &nameSize, domain.data(), &domainSize,
                      &use);
    const bool allows = entry->Header.AceType == ACCESS_ALLOWED_ACE_TYPE && entry->Mask != 0;
    if (allows && IsWellKnownSid(&entry->SidStart, WinLocalSystemSid) == 0) {
      users.push_back(Utf8Text(name.data()));
    }
  }
  LocalFree(descriptor);
  std::ranges::sort(users);
  return users;
}

TEST_F(SavingOnWindows, CopyIsForTheUserAlone) {
  std::array<wchar_t, 256> name{};
  auto size = static_cast<DWORD>(name.size());
  ASSERT_NE(GetUserNameW(name.data(), &size), 0);
  const std::vector<std::string> user{Utf8Text(name.data())};
  WriteBytes(path_, "old");
  // What is made in the usual way shows that others would be seen.
  EXPECT_NE(UsersOf(path_), user);
  EXPECT_EQ(UsersOf(MakeKeptCopy(path_, "new").path), user);
  EXPECT_TRUE(WriteNewFile(folder_.File("new"), "new"));
  EXPECT_EQ(UsersOf(folder_.File("new")), user);
  EXPECT_TRUE(MakeFolder(folder_.File("made")));
  EXPECT_EQ(UsersOf(folder_.File("made")), user);
}

}  // namespace
}  // namespace halvane
