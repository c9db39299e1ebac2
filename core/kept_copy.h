#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// Copies that stand beside a job while its file is written. A copy is called
/// `<name>.<checksum of its content>.previous`, or, where that name cannot stand or in a folder
/// that is not the job's, `<beginning of the name>.<checksum of the job's path>.<...>.previous`. So
/// it tells by itself that it is whole, and nothing else is taken for one. Until it is whole
/// `.part` stands behind its name. The functions below take a path that `files::TargetOf` gives.

/// The names in the job's own folder under which files for `target` may stand, without their ends:
/// the next one is for where the one before is too long.
std::vector<std::string> NamesBeside(const std::string& target);

/// The end of the name of a file that is not whole yet.
constexpr std::string_view kPartEnd = ".part";

/// A copy that stands on the disk.
struct KeptCopy {
  std::string path;    ///< empty when no place took it
  bool isNew = false;  ///< none of the same content stood there before
};

/// Writes `bytes` to the disk as a copy for the writer's eyes alone: beside `target`, in the user's
/// state folder of the program or among the temporary files, wherever it can stand first. What
/// stands there and is no copy of ours stays.
KeptCopy MakeKeptCopy(const std::string& target, std::string_view bytes);

/// Removes a copy that is not needed after all. One that stood there before may be the only whole
/// version of the job, and stays.
void TakeBack(const KeptCopy& copy);

/// The whole copies for `target` in all these places, that a save left which was cut short.
std::vector<std::string> KeptCopiesOf(const std::string& target);

/// Removes them, and with them what is not whole. Nothing else goes; what cannot go stays.
void RemoveKeptCopies(const std::string& target);

}  // namespace halvane
