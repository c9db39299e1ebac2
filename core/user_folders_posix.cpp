#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "core/user_folders.h"

namespace halvane {
namespace {

/// The folder that a variable of the environment names; empty for none and for a relative one,
/// which would be another folder wherever the program is started.
std::string NamedFolder(const char* variable) {
  const char* value = std::getenv(variable);
  std::string folder = value == nullptr || *value != '/' ? "" : value;
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
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

}  // namespace halvane
