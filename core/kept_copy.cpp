#include "core/kept_copy.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/checksum.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr std::string_view kCopyEnd = ".previous";
/// How much of a job's name stands in a name that has to be short. With all that is put behind it,
/// it fits where encryption leaves names 143 bytes.
constexpr std::size_t kShortNameBytes = 60;
constexpr std::size_t kReadBlock = 65536;

/// A folder and the beginning of the names of copies in it.
struct Place {
  std::string folder;  ///< ends with a separator, or is empty
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
  if (!state.empty()) places.push_back({WithSeparator(state), ShortName(target)});
  places.push_back({WithSeparator(SystemTemporaryFolder()), ShortName(target)});
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
  files::File file;
  files::Status status;
  if (file.Open(path, files::Access::ReadItself) || file.GetStatus(status)) return false;
  if (status.kind != files::Kind::Regular) return false;
  Checksum checksum;
  std::array<char, kReadBlock> block{};
  std::size_t count = 0;
  do {
    if (file.ReadSome(block.data(), block.size(), count)) return false;
    checksum.Add({block.data(), count});
  } while (count > 0);
  return checksum.Text() == ChecksumIn(path);
}

/// Writes the part of a copy to the disk; nothing is left where that fails.
bool WritePart(const std::string& part, std::string_view bytes) {
  files::File file;
  if (files::OpenPart(file, part)) return false;
  std::size_t written = 0;
  if (!file.WriteAll(bytes, written) && !file.Sync()) return true;
  files::Remove(part);
  return false;
}

/// Writes a copy; whether it stands whole under its name. A whole one that stands there already is
/// replaced in one step: it may be the only whole version of the job.
bool WriteCopy(const std::string& path, std::string_view bytes) {
  const std::string part = path + std::string(kPartEnd);
  if (!WritePart(part, bytes)) return false;
  if (!files::RenameToFree(part, path)) return true;
  const bool isFree = !files::IsTaken(path) || IsWholeCopy(path);
  if (isFree && !files::RenameOver(part, path)) return true;
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
  return files::NamesIn(folder, [](std::string_view name) {
    return name.ends_with(kCopyEnd) || name.ends_with(kPartEnd);
  });
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

std::vector<std::string> NamesBeside(const std::string& target) {
  return {std::string(FileNameOf(target)), ShortName(target)};
}

KeptCopy MakeKeptCopy(const std::string& target, std::string_view bytes) {
  std::string end(".");
  end.append(ChecksumOf(bytes)).append(kCopyEnd);
  KeptCopy first;
  for (const Place& place : PlacesFor(target)) {
    if (place.folder == WithSeparator(StateFolder())) MakeFolder(StateFolder());
    const std::string path = place.folder + place.name + end;
    const KeptCopy copy{path, !files::IsTaken(path)};
    if (!WriteCopy(path, bytes)) continue;
    if (!files::SyncFolder(place.folder)) {
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
