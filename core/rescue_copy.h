#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"

namespace halvane {

/// Whether no whole file holds the job: it is marked as changed, or a save or an open that failed
/// has taken the mark away.
bool NeedsRescue(const JobState& job);

/// The bytes of a job file for `job`, with as many of its tasks as a file can hold, whatever
/// `TaskCount` says; the job is as it was when they are there. Throws `OutOfMemory`'s own exception
/// alone.
std::string RescueBytes(JobState& job);

/// The name of the copy of that number, counted from 1, of a job whose file has this name (empty:
/// none): "<name>.rescue.qjt", "<name> (2).rescue.qjt" and so on, `longest` bytes at most.
std::string RescueName(std::string_view jobFileName, int number, std::size_t longest);

/// Whether a file of this name may be a copy of the job whose file has that name.
bool IsRescueName(std::string_view name, std::string_view jobFileName);

/// The longest name that file systems take, in bytes.
inline constexpr std::size_t kLongestFileName = 255;

/// Writes a copy of a job, for a program that is about to end, for the writer's eyes alone: beside
/// the job file, which is `jobFile` (empty: none), else in the first of `folders` that takes it. A
/// missing one of `folders` is made. Never over an existing file; where a copy with the same bytes
/// stands in one of these places, it counts as written. A name too long for a place is shortened.
///
/// Gives the path of the copy. Throws the `FileError` of the last place when none takes it.
std::string WriteRescueCopy(const std::string& jobFile, const std::string& bytes,
                            const std::vector<std::string>& folders);

}  // namespace halvane
