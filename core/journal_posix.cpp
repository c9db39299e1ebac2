#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <random>

#include "core/journal.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr std::string_view kStart = "journal-";
constexpr std::string_view kEnd = ".qjt";
constexpr std::string_view kPartEnd = ".qjt.part";
/// Far more than a job can be; a larger file is none of ours.
constexpr off_t kLargestJournal = 64 * 1024 * 1024;
/// Another program may take a file that is not yet locked for one that a kill left.
constexpr int kAttempts = 3;

/// A name that no other program has.
std::string NewName() {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr int kLength = 16;
  std::random_device random;
  std::string name(kStart);
  for (int i = 0; i < kLength; ++i) name += kDigits[random() % kDigits.size()];
  return name + std::string(kEnd);
}

bool WriteWhole(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  int result = 0;
  do {
    result = fdatasync(descriptor);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

std::optional<std::string> ReadWhole(int descriptor) {
  std::string bytes;
  std::array<char, 65536> block{};
  while (true) {
    const ssize_t count = read(descriptor, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) return bytes;
    bytes.append(block.data(), static_cast<std::size_t>(count));
  }
}

/// Whether the name still belongs to the open file.
bool IsStillAt(const std::string& path, int descriptor) {
  struct stat named {};
  struct stat opened {};
  return lstat(path.c_str(), &named) == 0 && fstat(descriptor, &opened) == 0 &&
         named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

/// A file that a dead program left, locked as long as this lives; nothing for any other.
class LeftFile {
 public:
  explicit LeftFile(const std::string& path)
      : descriptor_(open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)) {
    struct stat status {};
    isLeft_ = descriptor_ >= 0 && flock(descriptor_, LOCK_EX | LOCK_NB) == 0 &&
              IsStillAt(path, descriptor_) && fstat(descriptor_, &status) == 0 &&
              S_ISREG(status.st_mode) && status.st_size <= kLargestJournal;
  }
  ~LeftFile() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  LeftFile(const LeftFile&) = delete;
  LeftFile& operator=(const LeftFile&) = delete;

  [[nodiscard]] bool isLeft() const { return isLeft_; }
  [[nodiscard]] std::optional<JournalEntry> Entry() const {
    const auto text = ReadWhole(descriptor_);
    return text ? ReadJournal(*text) : std::nullopt;
  }

 private:
  int descriptor_;
  bool isLeft_ = false;
};

/// The names in a folder that begin as journals do, sorted.
std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (name.starts_with(kStart)) names.push_back(std::move(name));
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace

Journal::~Journal() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool Journal::Write(const JournalEntry& entry) {
  std::string text = JournalText(entry);
  if (!path_.empty() && text == text_) return true;
  if (!MakeFolder(folder_)) return false;
  bool written = false;
  for (int attempt = 0; attempt < kAttempts && !written; ++attempt) written = Replace(text);
  if (written) text_ = std::move(text);
  return written;
}

bool Journal::Replace(const std::string& text) {
  const std::string path = path_.empty() ? folder_ + '/' + NewName() : path_;
  const std::string part = path + std::string(kPartEnd.substr(kEnd.size()));
  const int descriptor =
      open(part.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) return false;
  // The lock goes with the file to its new name. Where a file system knows none, a left journal
  // can't be told from a living one, and stays.
  flock(descriptor, LOCK_EX | LOCK_NB);
  if (!WriteWhole(descriptor, text) || !IsStillAt(part, descriptor) ||
      rename(part.c_str(), path.c_str()) != 0) {
    unlink(part.c_str());
    close(descriptor);
    return false;
  }
  if (descriptor_ >= 0) close(descriptor_);
  descriptor_ = descriptor;
  path_ = path;
  return true;
}

void Journal::Remove() {
  if (path_.empty()) return;
  unlink(path_.c_str());
  close(descriptor_);
  descriptor_ = -1;
  path_.clear();
  text_.clear();
}

void KeepLeftJournals(const std::string& folder,
                      const std::function<bool(const JournalEntry&)>& keep) {
  if (folder.empty()) return;
  for (const std::string& name : NamesIn(folder)) {
    std::string path = folder;
    path.append("/").append(name);
    const bool isPart = name.ends_with(kPartEnd);
    if (!isPart && !IsJournalName(name)) continue;
    const LeftFile file(path);
    if (!file.isLeft()) continue;
    if (isPart) {
      unlink(path.c_str());
      continue;
    }
    const auto entry = file.Entry();
    if (entry && keep(*entry)) unlink(path.c_str());
  }
}

}  // namespace halvane
