#pragma once

#include <string>

namespace halvane {

/// The user's own folder; empty where the system knows none. No folder here ends with a slash.
std::string HomeFolder();

/// Where the program keeps what is neither a job nor a setting: `halvane-tools` in the folder that
/// the desktop names for it, else in `.local/state` of the home folder; empty where there is no
/// home. It need not exist: `MakeFolder` makes it.
std::string StateFolder();

/// Where files may stand for a short time.
std::string SystemTemporaryFolder();

/// Makes a folder with those above it that are missing, for the user's eyes alone, and brings them
/// to the disk; true when it is there afterwards.
bool MakeFolder(const std::string& path);

}  // namespace halvane
