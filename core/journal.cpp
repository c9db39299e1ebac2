#include "core/journal.h"

#include <algorithm>
#include <cstdint>
#include <random>

#include "core/file_name.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr std::string_view kStart = "journal-";
constexpr std::string_view kEnd = ".qjt";
constexpr std::string_view kPartEnd = ".qjt.part";
/// Far more than a job can be; a larger file is none of ours.
constexpr std::uint64_t kLargestJournal = 64 * 1024 * 1024;
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

/// Whether the name still belongs to the open file.
bool IsStillAt(const std::string& path, const files::File& file) {
  files::Status named;
  files::Status opened;
  return !files::StatusOfName(path, named) && !file.GetStatus(opened) && named.IsSameFileAs(opened);
}

/// A file that a dead program left, locked as long as this lives; nothing for any other.
class LeftFile {
 public:
  explicit LeftFile(const std::string& path) {
    files::Status status;
    isLeft_ = !file_.Open(path, files::Access::Watch) && !file_.TryLock() &&
              IsStillAt(path, file_) && !file_.GetStatus(status) &&
              status.kind == files::Kind::Regular && status.size <= kLargestJournal;
  }

  [[nodiscard]] bool isLeft() const { return isLeft_; }
  [[nodiscard]] std::optional<JournalEntry> Entry() {
    std::string text;
    if (files::ReadWhole(file_, kLargestJournal, text)) return std::nullopt;
    return ReadJournal(text);
  }

 private:
  files::File file_;
  bool isLeft_ = false;
};

/// The names in a folder that begin as journals do, sorted.
std::vector<std::string> NamesOfJournalsIn(const std::string& folder) {
  auto names =
      files::NamesIn(folder, [](std::string_view name) { return name.starts_with(kStart); });
  std::ranges::sort(names);
  return names;
}

}  // namespace

bool IsJournalName(std::string_view name) {
  return name.starts_with(kStart) && name.ends_with(kEnd);
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
  const std::string path = path_.empty() ? WithSeparator(folder_) + NewName() : path_;
  const std::string part = path + std::string(kPartEnd.substr(kEnd.size()));
  files::File file;
  if (files::OpenPart(file, part)) return false;
  // The lock goes with the file to its new name. Where a file system knows none, a left journal
  // can't be told from a living one, and stays.
  file.TryLock();
  std::size_t written = 0;
  if (file.WriteAll(text, written) || file.Sync() || !IsStillAt(part, file) || !Place(part, path)) {
    files::Remove(part);
    return false;
  }
  file_.TakeFrom(file);
  path_ = path;
  return true;
}

/// Puts the part in the place of the journal.
bool Journal::Place(const std::string& part, const std::string& path) {
  const std::error_code error = files::RenameOver(part, path);
  if (!error) return true;
  if (!file_.isOpen() || error != std::errc::permission_denied) return false;
  // Some systems give an open file's name to no other. A program that starts at this very moment
  // takes the journal for a left one and keeps what it holds.
  file_.Close();
  if (!files::RenameOver(part, path)) return true;
  if (!file_.Open(path, files::Access::Watch)) file_.TryLock();
  return false;
}

void Journal::Remove() {
  if (path_.empty()) return;
  files::Remove(path_);
  file_.Close();
  path_.clear();
  text_.clear();
}

void KeepLeftJournals(const std::string& folder,
                      const std::function<bool(const JournalEntry&)>& keep) {
  if (folder.empty()) return;
  for (const std::string& name : NamesOfJournalsIn(folder)) {
    const std::string path = WithSeparator(folder) + name;
    const bool isPart = name.ends_with(kPartEnd);
    if (!isPart && !IsJournalName(name)) continue;
    LeftFile file(path);
    if (!file.isLeft()) continue;
    if (isPart) {
      files::Remove(path);
      continue;
    }
    const auto entry = file.Entry();
    if (entry && keep(*entry)) files::Remove(path);
  }
}

}  // namespace halvane
