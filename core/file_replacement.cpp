#include <chrono>
#include <cstdint>
#include <string>
#include <thread>

#include "core/checksum.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/kept_copy.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

/// A save takes milliseconds, so whoever holds a file for so long does something else with it.
constexpr std::chrono::milliseconds kLongestWait{4000};
constexpr std::chrono::milliseconds kWaitStep{10};
constexpr const char* kNoFileMade = "No file was made";

std::string OldStandsIn(const std::string& path) {
  return path + " holds the job as it was before";
}

std::string NewStandsIn(const std::string& copy) {
  if (copy.empty()) return "No file holds the whole job, since no place took a copy";
  return "The whole job stands in " + copy;
}

[[noreturn]] void Refuse(const std::string& path, const std::string& reason) {
  throw RuntimeFailure(FailureKind::FileError, path + ": " + reason);
}

[[noreturn]] void RefuseAsInUse(const std::string& path) {
  Refuse(path, "another program is using it. Nothing was written");
}

/// A checksum that no other save has, here or in another program.
std::string PassingMark(const std::string& target) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const std::uint64_t program = files::NumberOfProgram();
  Checksum mark;
  mark.Add(target);
  mark.Add({reinterpret_cast<const char*>(&now), sizeof now});
  mark.Add({reinterpret_cast<const char*>(&program), sizeof program});
  return mark.Text();
}

/// The whole content of a file; false when it cannot be read.
bool Read(const std::string& path, std::string& bytes) {
  files::File file;
  return !file.Open(path, files::Access::Read) && !files::ReadWhole(file, SIZE_MAX, bytes);
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path) : path_(path) {
  files::Status status;
  const bool exists = !files::StatusOf(path, status);
  // Opening a pipe would wait for somebody to read from it.
  if (exists && status.kind == files::Kind::Pipe) Refuse(path, "not a regular file");
  target_ = files::TargetOf(path);
  if (!OpenExisting()) OpenPart();
}

FileReplacement::~FileReplacement() {
  if (!part_.empty()) files::Remove(part_);
}

bool FileReplacement::OpenExisting() {
  do {
    const std::error_code error = OpenWhenShared();
    if (error == std::errc::no_such_file_or_directory) return false;
    if (error == std::errc::device_or_resource_busy) RefuseAsInUse(path_);
    if (error) files::Fail(path_, error, UntouchedSentence());
    files::Status status;
    if (const auto unknown = file_.GetStatus(status)) {
      files::Fail(path_, unknown, OldStandsIn(path_));
    }
    isRegular_ = status.kind == files::Kind::Regular;
    if (!isRegular_) return true;
    Lock();
  } while (!IsStillThere());
  return true;
}

std::error_code FileReplacement::OpenWhenShared() {
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  while (true) {
    const std::error_code error = file_.Open(path_, files::Access::Write);
    // So systems tell that somebody has the file open and lets nobody else write.
    if (error != std::errc::device_or_resource_busy || std::chrono::steady_clock::now() > end) {
      return error;
    }
    std::this_thread::sleep_for(kWaitStep);
  }
}

std::string FileReplacement::UntouchedSentence() const {
  if (files::IsRegularFile(target_)) return OldStandsIn(path_);
  return files::IsTaken(target_) ? "" : kNoFileMade;
}

void FileReplacement::Lock() {
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  // A file system without locks, which gives any other error, lets everybody write at any time.
  while (file_.TryLock() == std::errc::operation_would_block) {
    if (std::chrono::steady_clock::now() > end) RefuseAsInUse(path_);
    std::this_thread::sleep_for(kWaitStep);
  }
}

bool FileReplacement::IsStillThere() const {
  files::Status opened;
  files::Status named;
  if (file_.GetStatus(opened)) return true;
  if (opened.names == 0) return false;
  const std::error_code error = files::StatusOf(path_, named);
  if (error) return error != std::errc::no_such_file_or_directory;
  return opened.IsSameFileAs(named);
}

void FileReplacement::OpenPart() {
  // Names of folders end so, and none of them can be made by writing a file.
  if (FileNameOf(target_).empty()) {
    files::Fail(path_, std::make_error_code(path_.empty() ? std::errc::no_such_file_or_directory
                                                          : std::errc::is_a_directory));
  }
  std::string end(".");
  end.append(PassingMark(target_)).append(kPartEnd);
  std::error_code error;
  for (const std::string& name : NamesBeside(target_)) {
    std::string part(FolderOf(target_));
    part.append(name).append(end);
    error = file_.Open(part, files::Access::MakeNew);
    if (error) continue;
    part_ = part;
    // Who finds the file under its own name waits until this save is over.
    file_.TryLock();
    return;
  }
  files::Fail(path_, error, kNoFileMade);
}

void FileReplacement::Write(std::string_view bytes) {
  if (!isRegular_) return WriteToDevice(bytes);
  if (!part_.empty()) return WriteNew(bytes);
  // The room first: a copy must not take what the file itself needs.
  if (const auto error = file_.Reserve(bytes.size())) {
    files::Fail(path_, error, OldStandsIn(path_));
  }
  const KeptCopy copy = MakeKeptCopy(target_, bytes);
  Overwrite(bytes, copy, NewStandsIn(copy.path));
  // The job is saved; whatever stays from here on goes with a later save.
  if (!copy.path.empty()) files::Remove(copy.path);
  RemoveKeptCopies(target_);
}

std::string FileReplacement::WriteIncomplete(std::string_view bytes) {
  if (!isRegular_ || !part_.empty()) {
    Write(bytes);
    return "";
  }
  std::string old;
  if (!Read(path_, old) || file_.Reserve(bytes.size())) return path_;
  const KeptCopy copy = MakeKeptCopy(target_, old);
  if (copy.path.empty()) return path_;
  Overwrite(bytes, copy, OldStandsIn(copy.path));
  return copy.path;
}

void FileReplacement::WriteToDevice(std::string_view bytes) {
  std::size_t written = 0;
  std::error_code error = file_.WriteAll(bytes, written);
  if (!error) error = file_.Close();
  if (error) files::Fail(path_, error);
}

void FileReplacement::WriteNew(std::string_view bytes) {
  std::size_t written = 0;
  std::error_code error = file_.WriteAll(bytes, written);
  if (!error) error = file_.Sync();
  if (error) files::Fail(path_, error, kNoFileMade);
  if (PlacePart()) {
    files::SyncFolder(std::string(FolderOf(target_)));
    RemoveKeptCopies(target_);
    return;
  }
  files::Remove(part_);
  part_.clear();
  if (!OpenExisting()) {
    files::Fail(path_, std::make_error_code(std::errc::no_such_file_or_directory), kNoFileMade);
  }
  Write(bytes);
}

bool FileReplacement::PlacePart() {
  if (files::RenameToFree(part_, target_)) {
    if (files::IsTaken(target_)) return false;
    if (const auto error = files::RenameOver(part_, target_)) {
      files::Fail(path_, error, kNoFileMade);
    }
  }
  part_.clear();
  return true;
}

void FileReplacement::Overwrite(std::string_view bytes, const KeptCopy& copy,
                                const std::string& sentence) {
  std::size_t written = 0;
  std::error_code error = file_.WriteAll(bytes, written);
  if (error && written == 0) {
    TakeBack(copy);
    files::Fail(path_, error, OldStandsIn(path_));
  }
  if (!error) error = file_.CutTo(bytes.size());
  if (!error) error = file_.Sync();
  if (error) files::Fail(path_, error, sentence);
}

}  // namespace halvane
