#include <shlobj.h>
#include <windows.h>

#include <optional>

#include "core/user_folders.h"
#include "core/wide_text_windows.h"

namespace halvane {
namespace {

std::string WithoutSeparators(std::string folder) {
  // The one behind a disk belongs to its root.
  while (folder.size() > 3 && (folder.back() == '\\' || folder.back() == '/')) folder.pop_back();
  return folder;
}

bool IsFromTheRoot(const std::wstring& folder) {
  const bool hasDisk = folder.size() > 2 && folder[1] == L':' && folder[2] == L'\\';
  return hasDisk || folder.starts_with(L"\\\\");
}

/// The folder that a variable of the environment names; empty for none and for a relative one,
/// which would be another folder wherever the program is started.
std::string NamedFolder(const wchar_t* variable) {
  std::wstring value(MAX_PATH, L'\0');
  while (true) {
    const auto room = static_cast<DWORD>(value.size());
    const DWORD length = GetEnvironmentVariableW(variable, value.data(), room);
    value.resize(length);
    if (length < room) break;
  }
  return IsFromTheRoot(value) ? WithoutSeparators(Utf8Text(value)) : "";
}

/// A folder that the system keeps for the user; empty where it knows none.
std::string KnownFolder(const KNOWNFOLDERID& id) {
  PWSTR path = nullptr;
  std::string folder;
  if (SUCCEEDED(SHGetKnownFolderPath(id, KF_FLAG_DONT_VERIFY, nullptr, &path))) {
    folder = Utf8Text(path);
  }
  CoTaskMemFree(path);
  return WithoutSeparators(folder);
}

}  // namespace

std::string HomeFolder() {
  const std::string named = NamedFolder(L"USERPROFILE");
  return named.empty() ? KnownFolder(FOLDERID_Profile) : named;
}

std::string StateFolder() {
  std::string folder = NamedFolder(L"LOCALAPPDATA");
  if (folder.empty()) folder = KnownFolder(FOLDERID_LocalAppData);
  return folder.empty() ? "" : folder + "\\halvane-tools";
}

std::string SystemTemporaryFolder() {
  for (const wchar_t* const variable : {L"TMP", L"TEMP"}) {
    std::string named = NamedFolder(variable);
    if (!named.empty()) return named;
  }
  std::wstring path(MAX_PATH + 1, L'\0');
  path.resize(GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
  return WithoutSeparators(Utf8Text(path));
}

}  // namespace halvane
