#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/checksum.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/kept_copy.h"
#include "core/runtime_failure.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr std::string_view kCopyEnd = ".previous";
constexpr mode_t kForTheWriterAlone = S_IRUSR | S_IWUSR;
/// How much of a job's name stands in a name that has to be short. With all that is put behind it,
/// it fits where encryption leaves names 143 bytes.
constexpr std::size_t kShortNameBytes = 60;
/// As many links in a row as the system follows.
constexpr int kMostLinks = 40;
constexpr std::size_t kReadBlock = 65536;

/// A folder and the beginning of the names of copies in it.
struct Place {
  std::string folder;  ///< ends with a slash, or is empty
  std::string name;
};

/// A name that fits everywhere and tells jobs of the same name apart.
std::string ShortName(const std::string& target) {
  return std::string(ShortenedName(FileNameOf(target), kShortNameBytes)) + "." + ChecksumOf(target);
}

/// Where copies stand, in the order of trying.
std::vector<Place> PlacesFor(const std::string& target) {
  std::vector<Place> places;
  const std::string folder(FolderOf(target));
  for (const std::string& name : NamesBeside(target)) places.push_back({folder, name});
  const std::string state = StateFolder();
  if (!state.empty()) places.push_back({state + "/", ShortName(target)});
  places.push_back({SystemTemporaryFolder() + "/", ShortName(target)});
  return places;
}

/// What a name ends with behind `<start>.<checksum>`; empty for a name of another shape.
std::string_view EndOf(std::string_view name, std::string_view start) {
  if (!name.starts_with(start)) return "";
  name.remove_prefix(start.size());
  if (!name.starts_with('.') || !IsChecksum(name.substr(1, kChecksumDigits))) return "";
  return name.substr(1 + kChecksumDigits);
}

/// The checksum in the name of a whole copy.
std::string_view ChecksumIn(std::string_view path) {
  path.remove_suffix(kCopyEnd.size());
  return path.substr(path.size() - kChecksumDigits);
}

/// Whether a file, and no link to one, has the content that its name tells.
bool IsWholeCopy(const std::string& path) {
  const files::Descriptor file(files::Open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.isOpen() || !files::StatusOf(file.get(), status) || !S_ISREG(status.st_mode))
    return false;
  Checksum checksum;
  std::array<char, kReadBlock> block{};
  try {
    while (const std::size_t count =
               files::ReadSome(file.get(), block.data(), block.size(), path)) {
      checksum.Add({block.data(), count});
    }
  } catch (const RuntimeFailure&) {
    return false;
  }
  return checksum.Text() == ChecksumIn(path);
}

/// Opens a new file for the part of a copy. What a killed save left under its name goes.
int OpenPart(const std::string& part) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL;
  const int descriptor = files::Open(part, kFlags, kForTheWriterAlone);
  if (descriptor >= 0 || errno != EEXIST || !files::IsRegularFile(part)) return descriptor;
  files::Remove(part);
  return files::Open(part, kFlags, kForTheWriterAlone);
}

/// Writes the part of a copy to the disk; nothing is left where that fails.
bool WritePart(const std::string& part, std::string_view bytes) {
  const files::Descriptor file(OpenPart(part));
  if (!file.isOpen()) return false;
  // The user's mask may have taken rights that reading the copy again needs.
  files::Again([&file] { return fchmod(file.get(), kForTheWriterAlone); });
  std::size_t written = 0;
  if (files::WriteAll(file.get(), bytes, written) == 0 && files::Sync(file.get()) == 0) return true;
  files::Remove(part);
  return false;
}

/// Writes a copy; whether it stands whole under its name. A whole one that stands there already is
/// replaced in one step: it may be the only whole version of the job.
bool WriteCopy(const std::string& path, std::string_view bytes) {
  const std::string part = path + std::string(kPartEnd);
  if (!WritePart(part, bytes)) return false;
  if (files::RenameToFree(part, path)) return true;
  const bool isFree = !files::IsTaken(path) || IsWholeCopy(path);
  if (isFree && files::RenameOver(part, path)) return true;
  files::Remove(part);
  return false;
}

/// Whether a name in a place is that of a whole copy.
bool IsCopyIn(const Place& place, const std::string& name) {
  return EndOf(name, place.name) == kCopyEnd && IsWholeCopy(place.folder + name);
}

/// Whether a name in a place is that of a part.
bool IsPartIn(const Place& place, const std::string& name) {
  const std::string_view end = EndOf(name, place.name);
  const bool isPart = end == kPartEnd || end == std::string(kCopyEnd) + std::string(kPartEnd);
  return isPart && files::IsRegularFile(place.folder + name);
}

/// The names in a folder that end as those of copies and parts do.
std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error);
  while (!error && entry != std::filesystem::directory_iterator()) {
    const std::string name = entry->path().filename().string();
    if (name.ends_with(kCopyEnd) || name.ends_with(kPartEnd)) names.push_back(name);
    entry.increment(error);
  }
  return names;
}

/// Calls `visit` with each place and each such name in its folder. They are collected first, since
/// what is visited may go.
template <typename Visit>
void VisitNames(const std::string& target, const Visit& visit) {
  std::optional<std::string> folder;
  std::vector<std::string> names;
  for (const Place& place : PlacesFor(target)) {
    // A folder with several names for copies is read once.
    if (place.folder != folder) names = NamesIn(place.folder);
    folder = place.folder;
    for (const std::string& name : names) visit(place, name);
  }
}

}  // namespace

std::string TargetOf(const std::string& path) {
  std::filesystem::path target = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks; ++i) {
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error == std::errc::interrupted) continue;
    if (error) break;
    // A whole path as `next` takes the place of the folder.
    target = target.parent_path() / next;
  }
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  const std::filesystem::path whole = std::filesystem::canonical(folder, error);
  return error ? target.string() : (whole / target.filename()).string();
}

std::vector<std::string> NamesBeside(const std::string& target) {
  return {std::string(FileNameOf(target)), ShortName(target)};
}

KeptCopy MakeKeptCopy(const std::string& target, std::string_view bytes) {
  std::string end(".");
  end.append(ChecksumOf(bytes)).append(kCopyEnd);
  KeptCopy first;
  for (const Place& place : PlacesFor(target)) {
    if (place.folder == StateFolder() + "/") MakeFolder(StateFolder());
    const std::string path = place.folder + place.name + end;
    const KeptCopy copy{path, !files::IsTaken(path)};
    if (!WriteCopy(path, bytes)) continue;
    if (files::SyncFolder(place.folder) == 0) {
      if (first.path != path) TakeBack(first);
      return copy;
    }
    // Its name may not have reached the disk. It is good where no other place takes a copy.
    if (first.path.empty()) first = copy;
  }
  return first;
}

void TakeBack(const KeptCopy& copy) {
  if (copy.isNew) files::Remove(copy.path);
}

std::vector<std::string> KeptCopiesOf(const std::string& target) {
  std::vector<std::string> copies;
  VisitNames(target, [&copies](const Place& place, const std::string& name) {
    if (IsCopyIn(place, name)) copies.push_back(place.folder + name);
  });
  std::sort(copies.begin(), copies.end());
  copies.erase(std::unique(copies.begin(), copies.end()), copies.end());
  return copies;
}

void RemoveKeptCopies(const std::string& target) {
  VisitNames(target, [](const Place& place, const std::string& name) {
    if (IsPartIn(place, name) || IsCopyIn(place, name)) files::Remove(place.folder + name);
  });
}

}  // namespace halvane
