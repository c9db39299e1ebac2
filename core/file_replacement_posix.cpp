#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
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

constexpr mode_t kNewFileMode = 0666;
/// A save takes milliseconds, so whoever holds a file for so long does something else with it.
constexpr std::chrono::milliseconds kLongestWait{4000};
constexpr std::chrono::milliseconds kWaitStep{10};
constexpr std::size_t kReadBlock = 65536;
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

/// A checksum that no other save has, here or in another program.
std::string PassingMark(const std::string& target) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const pid_t program = getpid();
  Checksum mark;
  mark.Add(target);
  mark.Add({reinterpret_cast<const char*>(&now), sizeof now});
  mark.Add({reinterpret_cast<const char*>(&program), sizeof program});
  return mark.Text();
}

/// The whole content of a file; false when it cannot be read.
bool Read(const std::string& path, std::string& bytes) {
  const files::Descriptor file(files::Open(path, O_RDONLY));
  if (!file.isOpen()) return false;
  std::array<char, kReadBlock> block{};
  try {
    while (const std::size_t count =
               files::ReadSome(file.get(), block.data(), block.size(), path)) {
      bytes.append(block.data(), count);
    }
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path) : path_(path) {
  struct stat status {};
  const bool exists = files::StatusOf(path, status);
  // Opening a pipe would wait for somebody to read from it.
  if (exists && S_ISFIFO(status.st_mode)) Refuse(path, "not a regular file");
  target_ = TargetOf(path);
  if (!OpenExisting()) OpenPart();
}

FileReplacement::~FileReplacement() {
  if (!part_.empty()) files::Remove(part_);
}

bool FileReplacement::OpenExisting() {
  do {
    file_.Reset(files::Open(path_, O_WRONLY | O_NOCTTY));
    if (!file_.isOpen()) {
      const int error = errno;
      if (error == ENOENT) return false;
      files::Fail(path_, error, UntouchedSentence());
    }
    struct stat status {};
    if (!files::StatusOf(file_.get(), status)) {
      const int error = errno;
      files::Fail(path_, error, OldStandsIn(path_));
    }
    isRegular_ = S_ISREG(status.st_mode);
    if (!isRegular_) return true;
    Lock();
  } while (!IsStillThere());
  return true;
}

std::string FileReplacement::UntouchedSentence() const {
  if (files::IsRegularFile(target_)) return OldStandsIn(path_);
  return files::IsTaken(target_) ? "" : kNoFileMade;
}

void FileReplacement::Lock() {
  const auto end = std::chrono::steady_clock::now() + kLongestWait;
  while (files::Again([this] { return flock(file_.get(), LOCK_EX | LOCK_NB); }) != 0) {
    // A file system without locks lets everybody write at any time.
    if (errno != EWOULDBLOCK) return;
    if (std::chrono::steady_clock::now() > end) {
      Refuse(path_, "another program is using it. Nothing was written");
    }
    std::this_thread::sleep_for(kWaitStep);
  }
}

bool FileReplacement::IsStillThere() const {
  struct stat opened {};
  struct stat named {};
  if (!files::StatusOf(file_.get(), opened)) return true;
  if (!files::StatusOf(path_, named)) return errno != ENOENT;
  return opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

void FileReplacement::OpenPart() {
  // Names of folders end so, and none of them can be made by writing a file.
  if (FileNameOf(target_).empty()) files::Fail(path_, path_.empty() ? ENOENT : EISDIR);
  std::string end(".");
  end.append(PassingMark(target_)).append(kPartEnd);
  int error = 0;
  for (const std::string& name : NamesBeside(target_)) {
    std::string part(FolderOf(target_));
    part.append(name).append(end);
    file_.Reset(files::Open(part, O_WRONLY | O_CREAT | O_EXCL, kNewFileMode));
    error = errno;
    if (!file_.isOpen()) continue;
    part_ = part;
    // Who finds the file under its own name waits until this save is over.
    files::Again([this] { return flock(file_.get(), LOCK_EX | LOCK_NB); });
    return;
  }
  files::Fail(path_, error, kNoFileMade);
}

void FileReplacement::Write(std::string_view bytes) {
  if (!isRegular_) return WriteToDevice(bytes);
  if (!part_.empty()) return WriteNew(bytes);
  // The room first: a copy must not take what the file itself needs.
  if (const int error = Reserve(bytes.size())) files::Fail(path_, error, OldStandsIn(path_));
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
  if (!Read(path_, old) || Reserve(bytes.size()) != 0) return path_;
  const KeptCopy copy = MakeKeptCopy(target_, old);
  if (copy.path.empty()) return path_;
  Overwrite(bytes, copy, OldStandsIn(copy.path));
  return copy.path;
}

void FileReplacement::WriteToDevice(std::string_view bytes) {
  std::size_t written = 0;
  int error = files::WriteAll(file_.get(), bytes, written);
  if (error == 0) error = file_.Reset();
  if (error != 0) files::Fail(path_, error);
}

void FileReplacement::WriteNew(std::string_view bytes) {
  std::size_t written = 0;
  int error = files::WriteAll(file_.get(), bytes, written);
  if (error == 0) error = files::Sync(file_.get());
  if (error != 0) files::Fail(path_, error, kNoFileMade);
  if (PlacePart()) {
    files::SyncFolder(std::string(FolderOf(target_)));
    RemoveKeptCopies(target_);
    return;
  }
  files::Remove(part_);
  part_.clear();
  if (!OpenExisting()) files::Fail(path_, ENOENT, kNoFileMade);
  Write(bytes);
}

bool FileReplacement::PlacePart() {
  if (files::RenameToFree(part_, target_)) {
    part_.clear();
    return true;
  }
  // Some file systems know only the other way to a name without taking it from anybody.
  if (files::Again([this] { return link(part_.c_str(), target_.c_str()); }) == 0) {
    files::Remove(part_);
    part_.clear();
    return true;
  }
  if (files::IsTaken(target_)) return false;
  if (!files::RenameOver(part_, target_)) files::Fail(path_, errno, kNoFileMade);
  part_.clear();
  return true;
}

void FileReplacement::Overwrite(std::string_view bytes, const KeptCopy& copy,
                                const std::string& sentence) {
  std::size_t written = 0;
  int error = files::WriteAll(file_.get(), bytes, written);
  if (error != 0 && written == 0) {
    TakeBack(copy);
    files::Fail(path_, error, OldStandsIn(path_));
  }
  const auto size = static_cast<off_t>(bytes.size());
  const auto cut = [&] { return ftruncate(file_.get(), size); };
  if (error == 0 && files::Again(cut) != 0) error = errno;
  if (error == 0) error = files::Sync(file_.get());
  if (error != 0) files::Fail(path_, error, sentence);
}

int FileReplacement::Reserve(std::size_t size) {
  struct stat before {};
  if (size == 0 || !files::StatusOf(file_.get(), before)) return 0;
  const auto length = static_cast<off_t>(size);
  const auto call = [&] { return fallocate(file_.get(), FALLOC_FL_KEEP_SIZE, 0, length); };
  if (files::Again(call) == 0) return 0;
  const int error = errno;
  // Any other error tells that the file system cannot reserve, not that the bytes cannot be
  // written.
  if (error != ENOSPC && error != EDQUOT && error != EFBIG) return 0;
  struct stat after {};
  // What it reserved before the room ended goes back.
  if (files::StatusOf(file_.get(), after) && after.st_blocks > before.st_blocks) {
    files::Again([&] { return ftruncate(file_.get(), before.st_size); });
  }
  return error;
}

}  // namespace halvane
