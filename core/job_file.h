#pragma once

#include <string>

#include "core/job_state.h"
#include "core/job_text.h"

namespace halvane {

/// How opening a file ended, failures aside.
enum class OpenOutcome {
  Opened,
  NotAJobFile,  ///< the marker is missing; the job is as it was, and the file closed
};

/// Writes the present job to `JobFileName`, replacing what is there. `JobDirty` becomes false
/// first, so a failed write leaves the job marked as saved.
///
/// Throws `FileAlreadyOpen` while an earlier failure keeps the file open; `FileError` when the path
/// cannot be opened (nothing stays open then) or written; `SubscriptOutOfRange` at task 41, with
/// the lines before its loads written. A failure behind the opening leaves the file open.
void WriteJobFile();

/// Reads the file at `JobFileName` into the job, whose per-task arrays the caller has sized.
/// `JobDirty` becomes false and the posture factors of RULA and REBA 0 first.
///
/// Throws `FileAlreadyOpen` and `FileError` as above and `JobReadFailure` at the field that could
/// not be read: the fields before it are in the job, and the file stays open.
void ReadJobFile();

/// Opens `JobFileName` as the Open commands do: tests the marker, reads `TaskCount`, sizes the
/// per-task arrays and reads the job. Throws as `ReadJobFile` does, and a `JobReadFailure` for a
/// task count that no array can have, which leaves the file closed.
///
/// A file shorter than `JobText::Limits::inMemory` needs five fields to be told that it is no job
/// file: it is `InputPastEnd` before. A longer one is told so by its first bytes alone, whether
/// five fields end within them or not.
OpenOutcome OpenJobFile();

/// The two steps of `OpenJobFile` behind the opening of the file, for who looks closer at its text:
/// the first tests the marker, reads `TaskCount` and sizes the per-task arrays, the second reads
/// the job. Both throw as `OpenJobFile` does.
OpenOutcome SizeForJobText(JobText& text);
void ReadJobText(const JobText& text);

/// The bytes of a job file for `job`. Throws `SubscriptOutOfRange` at task 41.
std::string JobFileBytes(JobState& job);

}  // namespace halvane
