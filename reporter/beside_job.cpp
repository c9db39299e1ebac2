#include "reporter/beside_job.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "core/checksum.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/folder_reader.h"
#include "core/journal.h"
#include "core/rescue_copy.h"
#include "reporter/job_check.h"

namespace halvane {
namespace {

constexpr std::string_view kKeptEnd = ".previous";
constexpr std::string_view kRescueEnd = ".rescue.qjt";
/// Folders whose names are remembered: those on the way to the one that is walked through.
constexpr std::size_t kMostListings = 32;
/// How much of a job's name any of the names has at least.
constexpr std::size_t kCommonBytes = 60;

std::string_view VerdictOn(const std::string& path) {
  switch (CheckJobFile(path).verdict) {
    case JobVerdict::Good: return "it reads whole";
    case JobVerdict::ReadInPart: return "the program reads a part of it";
    case JobVerdict::Refused: break;
  }
  return "the program does not read it";
}

/// Takes `.<checksum>` from the end of a name; false where there is none.
bool TakeChecksum(std::string_view& name) {
  if (name.size() <= kChecksumDigits + 1) return false;
  const std::size_t dot = name.size() - kChecksumDigits - 1;
  if (name[dot] != '.' || !IsChecksum(name.substr(dot + 1))) return false;
  name.remove_suffix(kChecksumDigits + 1);
  return true;
}

/// Whether a file of this name is what a save kept of the job file at `target`, the path from the
/// root. Names of copies in a folder for many jobs tell the job's path.
bool IsKeptCopy(std::string_view name, std::string_view target, bool forManyJobs) {
  if (!name.ends_with(kKeptEnd)) return false;
  name.remove_suffix(kKeptEnd.size());
  const std::string_view jobFile = FileNameOf(target);
  // As programs before this one called it.
  if (name == jobFile) return !forManyJobs;
  if (!TakeChecksum(name)) return false;
  if (name == jobFile) return !forManyJobs;
  std::string pathSum(".");
  pathSum.append(ChecksumOf(target));
  if (!name.ends_with(pathSum)) return false;
  name.remove_suffix(pathSum.size());
  return !name.empty() && jobFile.starts_with(name);
}

/// Whether a numbered copy belongs to a job of its own, "line (2).qjt".
bool HasJobOfItsOwn(const std::string& folder, const std::string& copy, std::string_view jobFile) {
  if (copy == RescueName(jobFile, 1, kLongestFileName)) return false;
  std::string own = copy.substr(0, copy.size() - kRescueEnd.size()) + ".qjt";
  files::Status status;
  return own != jobFile && !files::StatusOf(folder + own, status);
}

/// What the names of all that belongs to a job file begin with.
std::string CommonStart(std::string_view path) {
  const std::string_view name = FileNameOf(path);
  // The nameless job has another name.
  if (name == ".qjt") return "";
  return std::string(ShortenedName(name.substr(0, name.rfind(".qjt")), kCommonBytes));
}

std::optional<JournalEntry> JournalAt(const std::string& path) {
  files::File file;
  files::Status status;
  if (file.Open(path, files::Access::Read) || file.GetStatus(status)) return std::nullopt;
  if (status.kind != files::Kind::Regular) return std::nullopt;
  std::string text;
  if (files::ReadWhole(file, SIZE_MAX, text)) return std::nullopt;
  return ReadJournal(text);
}

/// The path from the root of a job file in a folder, links followed, whether it exists or not.
std::string TargetOf(const std::string& file, const std::string& folder) {
  files::Status status;
  if (!files::StatusOfName(file, status) && status.kind == files::Kind::Link) {
    std::string target = files::WholePathOf(file);
    if (!target.empty()) return target;
  }
  return WithSeparator(folder).append(FileNameOf(file));
}

bool IsSameFile(const std::string& a, const std::string& target) {
  if (a == target) return true;
  if (a.empty() || FileNameOf(a) != FileNameOf(target)) return false;
  files::Status status;
  files::Status targetStatus;
  return !files::StatusOf(a, status) && !files::StatusOf(target, targetStatus) &&
         status.IsSameFileAs(targetStatus);
}

}  // namespace

BesideJob::Listing BesideJob::Read(const std::string& folder) {
  Listing listing{folder, {}, {}, {}};
  const std::string path = folder.empty() ? "." : folder;
  listing.whole = files::WholePathOf(path);
  FolderReader reader(path);
  while (reader.Next()) {
    std::string name(reader.name());
    if (name.ends_with(kKeptEnd) || name.ends_with(kRescueEnd)) {
      listing.names.push_back(std::move(name));
    } else if (IsJournalName(name)) {
      if (auto entry = JournalAt(folder + name)) {
        listing.journals.push_back({std::move(name), std::move(entry->jobFile)});
      }
    }
  }
  std::ranges::sort(listing.names);
  std::ranges::sort(listing.journals, {}, &JournalFile::name);
  return listing;
}

const BesideJob::Listing& BesideJob::ListingOf(const std::string& folder) {
  const auto known = std::ranges::find(listings_, folder, &Listing::folder);
  if (known != listings_.end()) {
    listings_.splice(listings_.begin(), listings_, known);
  } else {
    listings_.push_front(Read(folder));
    if (listings_.size() > kMostListings) listings_.pop_back();
  }
  return listings_.front();
}

void BesideJob::AppendTo(std::vector<JobProblem>& problems, const std::string& file) {
  const std::string folder(FolderOf(file));
  const std::string whole = ListingOf(folder).whole;
  const std::string target = TargetOf(file, whole);
  AppendFrom(ListingOf(folder), Place::Beside, {file, target}, problems);
  // What a save keeps stands beside the file itself, not beside a link to it.
  const std::string targetFolder(FolderOf(target));
  if (targetFolder != WithSeparator(whole)) {
    AppendFrom(ListingOf(targetFolder), Place::BesideTarget, {file, target}, problems);
  }
  if (!stateFolder_.empty()) {
    AppendFrom(ListingOf(WithSeparator(stateFolder_)), Place::State, {file, target}, problems);
  }
}

void BesideJob::AppendFrom(const Listing& listing, Place place, const Job& job,
                           std::vector<JobProblem>& problems) {
  const auto tell = [&](const std::string& name, const std::string& what) {
    const std::string path = listing.folder + name;
    problems.push_back({true, 0, "", place == Place::Beside ? name : path,
                        what + "; " + std::string(VerdictOn(path))});
  };
  const std::string_view name = FileNameOf(job.file);
  // All names that may belong to the job begin as its own does.
  const std::string start = CommonStart(place == Place::BesideTarget ? job.target : job.file);
  for (auto at = std::ranges::lower_bound(listing.names, start);
       at != listing.names.end() && at->starts_with(start); ++at) {
    if (IsKeptCopy(*at, job.target, place == Place::State)) {
      tell(*at, "is what a save that was cut short kept of this job");
    }
    if (!IsRescueName(*at, name) || HasJobOfItsOwn(listing.folder, *at, name)) continue;
    if (place == Place::Beside) tell(*at, "is a rescue copy of this job");
    if (place == Place::State) tell(*at, "is a rescue copy of a job of this name");
  }
  for (const JournalFile& journal : listing.journals) {
    if (IsSameFile(journal.jobFile, job.target)) {
      tell(journal.name, "is the journal of a program that had this job");
    }
  }
}

}  // namespace halvane
