#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "core/file_calls.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr mode_t kForTheUserAlone = 0700;

/// The folder that a variable of the environment names; empty for none and for a relative one,
/// which would be another folder wherever the program is started.
std::string NamedFolder(const char* variable) {
  const char* value = std::getenv(variable);
  std::string folder = value == nullptr || *value != '/' ? "" : value;
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

bool IsFolder(const std::string& path) {
  struct stat status {};
  return files::StatusOf(path, status) && S_ISDIR(status.st_mode);
}

}  // namespace

std::string HomeFolder() {
  const std::string named = NamedFolder("HOME");
  if (!named.empty()) return named;
  const passwd* user = getpwuid(getuid());
  return user == nullptr || user->pw_dir == nullptr ? "" : user->pw_dir;
}

std::string StateFolder() {
  std::string folder = NamedFolder("XDG_STATE_HOME");
  if (folder.empty()) {
    const std::string home = HomeFolder();
    if (home.empty()) return "";
    folder = home + "/.local/state";
  }
  return folder + "/halvane-tools";
}

std::string SystemTemporaryFolder() {
  const std::string named = NamedFolder("TMPDIR");
  return named.empty() ? "/tmp" : named;
}

bool MakeFolder(const std::string& path) {
  if (path.empty()) return false;
  if (IsFolder(path)) return true;
  const std::size_t slash = path.rfind('/');
  const std::string parent = slash == std::string::npos ? "." : path.substr(0, slash);
  if (slash != std::string::npos && slash > 0 && !MakeFolder(parent)) return false;
  const auto make = [&path] { return mkdir(path.c_str(), kForTheUserAlone); };
  // Another program may have made it meanwhile.
  if (files::Again(make) != 0) return IsFolder(path);
  files::SyncFolder(parent.empty() ? "/" : parent);
  return true;
}

}  // namespace halvane
