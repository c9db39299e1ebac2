#pragma once

#include <list>
#include <string>
#include <vector>

#include "reporter/job_problem.h"

namespace halvane {

/// Tells of what stands beside a job file because a save was cut short or a program ended before
/// its user ended it: copies that saves keep, rescue copies, journals. They are looked for in the
/// folder of the job file and in the program's own folder.
class BesideJob {
 public:
  /// `stateFolder` is the program's own folder, empty for none.
  explicit BesideJob(std::string stateFolder) : stateFolder_(std::move(stateFolder)) {}

  /// Appends a warning for each such file of the job file `file`, with what the program makes of
  /// it, those in its folder first, each time in the order of their names. Reads them into
  /// `Module1`. A folder is read once for all its job files.
  void AppendTo(std::vector<JobProblem>& problems, const std::string& file);

 private:
  struct JournalFile {
    std::string name;
    std::string jobFile;  ///< path of the job's file that it tells
  };
  /// What of a folder may belong to a job file.
  struct Listing {
    std::string folder;                 ///< as paths to it begin
    std::string whole;                  ///< the same from the root, links followed
    std::vector<std::string> names;     ///< of copies, sorted
    std::vector<JournalFile> journals;  ///< sorted by name
  };

  /// A job file as the user named it, and its path from the root, links followed.
  struct Job {
    const std::string& file;
    const std::string& target;
  };
  enum class Place { Beside, BesideTarget, State };

  static void AppendFrom(const Listing& listing, Place place, const Job& job,
                         std::vector<JobProblem>& problems);
  const Listing& ListingOf(const std::string& folder);
  static Listing Read(const std::string& folder);

  std::string stateFolder_;
  std::list<Listing> listings_;  ///< the one used last comes first
};

}  // namespace halvane
