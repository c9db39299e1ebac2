#pragma once

#include <string>

namespace halvane {

/// Writes a copy of the job, for a program that is about to end on a failure: beside the job file
/// as
/// `<name>.rescue.qjt`, or into `fallbackFolder` where the job has no file or the copy cannot stand
/// there. Never over an existing file, and with every task that the format can hold. The job and
/// the state of its file stay as they are.
///
/// Gives the path of the copy. Throws `FileError` when it can be written in neither place.
std::string WriteRescueCopy(const std::string& fallbackFolder);

}  // namespace halvane
