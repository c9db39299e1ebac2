#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/file_name.h"
#include "core/runtime_failure.h"

namespace halvane {

/// A new folder of its own for one test, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::string& path() const { return path_; }
  /// The path of a file in it.
  [[nodiscard]] std::string File(std::string_view name) const {
    return WithSeparator(path_) + std::string(name);
  }
  /// The names in it, sorted, a blank between them.
  [[nodiscard]] std::string Names() const;

 private:
  std::string path_;
};

/// A variable of the environment with another value, or without one, while it lives.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<std::string>& value);
  ~EnvironmentVariable();
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  void SetTo(const std::optional<std::string>& value) const;

  const char* name_;
  std::optional<std::string> before_;
};

/// The variables that name the folders for the program's own files and for temporary ones.
#ifdef _WIN32
inline constexpr const char* kStateVariable = "LOCALAPPDATA";
inline constexpr const char* kTemporaryVariable = "TMP";
#else
inline constexpr const char* kStateVariable = "XDG_STATE_HOME";
inline constexpr const char* kTemporaryVariable = "TMPDIR";

/// While it lives, the test has the rights of a user who owns nothing, also when it runs as root.
class RightsOfNobody {
 public:
  RightsOfNobody();
  ~RightsOfNobody();
  RightsOfNobody(const RightsOfNobody&) = delete;
  RightsOfNobody& operator=(const RightsOfNobody&) = delete;

 private:
  bool wasRoot_;
};
#endif

std::string BytesOf(const std::string& path);
void WriteBytes(const std::string& path, std::string_view bytes);
bool Exists(const std::string& path);

/// The name of the one file in `folder` that begins with `start` and ends with `end`; empty where
/// there is none or more than one.
std::string NameLike(const TemporaryFolder& folder, std::string_view start, std::string_view end);

/// The text of an empty job as the program writes it, line ends as in the file, with other text in
/// one line, counted from 1.
std::string EmptyJobWith(int line, std::string_view text);
/// The 64 lines of an empty job, with `taskCount` in line 2.
std::string EmptyJobText(std::string_view taskCount = "0");
/// A job of two tasks with another value in every field and every kind in the tagged ones.
std::string_view FilledJobText();
/// The 15 lines of a task that was made and never touched.
std::string UntouchedTaskText(int task);

/// The name of the failure kind that `action` throws, "none" when it throws none.
template <typename Action>
std::string FailureOf(const Action& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return std::string(KindName(failure.kind()));
  }
  return "none";
}

/// The message of the failure that `action` throws, "none" when it throws none.
template <typename Action>
std::string MessageOf(const Action& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.what();
  }
  return "none";
}

}  // namespace halvane
