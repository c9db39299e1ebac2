#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "core/kept_copy.h"
#include "core/platform_file.h"
#include "core/wide_text_windows.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr std::size_t kSize = 3'000'000;
constexpr DWORD kMinute = 60'000;  // milliseconds

/// A program that saves one job over and over.
class SaveLoop {
 public:
  SaveLoop(const std::string& path, const std::string& letters, int count) {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    program.resize(program.rfind(L'\\') + 1);
    program += WideText(HALVANE_SAVE_LOOP);
    std::wstring command = L"save_loop \"" + WideText(path) + L"\" " + WideText(letters) + L" " +
                           std::to_wstring(kSize) + L" " + std::to_wstring(count);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    EXPECT_NE(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                             nullptr, &startup, &process_),
              0)
        << GetLastError();
  }
  ~SaveLoop() {
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }
  SaveLoop(const SaveLoop&) = delete;
  SaveLoop& operator=(const SaveLoop&) = delete;

  /// Ends the program in the middle of what it is doing, so many milliseconds from now.
  void KillAfter(DWORD milliseconds) const {
    ASSERT_EQ(WaitForSingleObject(process_.hProcess, milliseconds),
              static_cast<DWORD>(WAIT_TIMEOUT));
    ASSERT_NE(TerminateProcess(process_.hProcess, 9), 0);
    ASSERT_EQ(WaitForSingleObject(process_.hProcess, kMinute), WAIT_OBJECT_0);
  }
  /// Waits for the end and gives the exit status.
  DWORD Status() const {
    EXPECT_EQ(WaitForSingleObject(process_.hProcess, kMinute), WAIT_OBJECT_0);
    DWORD status = 0;
    EXPECT_NE(GetExitCodeProcess(process_.hProcess, &status), 0);
    return status;
  }

 private:
  PROCESS_INFORMATION process_{};
};

class KilledSave : public testing::Test {
 protected:
  bool IsWhole(const std::string& bytes) const {
    return bytes == std::string(kSize, 'o') || bytes == std::string(kSize, 'n');
  }

  const TemporaryFolder folder_;
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{kStateVariable, elsewhere_.path()};
  const EnvironmentVariable temporary_{kTemporaryVariable, elsewhere_.path()};
  const std::string path_ = folder_.File("job.qjt");
};

TEST_F(KilledSave, LeavesAWholeJobAndTheNextSaveClearsUp) {
  constexpr DWORD kKills = 25;
  constexpr DWORD kStarted = 300;  // milliseconds
  constexpr DWORD kStep = 7;
  WriteBytes(path_, std::string(kSize, 'o'));
  DWORD inTheMiddle = 0;
  for (DWORD kill = 0; kill < kKills; ++kill) {
    SCOPED_TRACE(kill);
    SaveLoop(path_, "no", 1'000'000).KillAfter(kStarted + kill * kStep);
    const std::vector<std::string> copies = KeptCopiesOf(files::TargetOf(path_));
    if (folder_.Names() != "job.qjt") ++inTheMiddle;
    if (!IsWhole(BytesOf(path_))) {
      ASSERT_FALSE(copies.empty());
    }
    for (const std::string& copy : copies) EXPECT_TRUE(IsWhole(BytesOf(copy))) << copy;
    FileReplacement(path_).Write(std::string(kSize, 'o'));
    EXPECT_TRUE(IsWhole(BytesOf(path_)));
    EXPECT_EQ(folder_.Names(), "job.qjt");
  }
  // Else no kill came in the middle of a save, and the test has shown nothing.
  EXPECT_GT(inTheMiddle, 0U);
}

TEST_F(KilledSave, TwoProgramsThatSaveAtOnceTakeTurns) {
  WriteBytes(path_, std::string(kSize, 'o'));
  const SaveLoop first(path_, "n", 30);
  const SaveLoop second(path_, "o", 30);
  EXPECT_EQ(first.Status(), 0U);
  EXPECT_EQ(second.Status(), 0U);
  EXPECT_TRUE(IsWhole(BytesOf(path_)));
  EXPECT_EQ(folder_.Names(), "job.qjt");
  EXPECT_EQ(elsewhere_.Names(), "");
}

}  // namespace
}  // namespace halvane
