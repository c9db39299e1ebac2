#include <windows.h>

#include "core/file_calls_windows.h"
#include "core/file_name.h"
#include "core/folder_reader.h"
#include "core/wide_text_windows.h"

namespace halvane {

struct FolderReader::System {
  HANDLE search = INVALID_HANDLE_VALUE;
  WIN32_FIND_DATAW entry{};
  bool isFirst = true;  ///< `entry` is the one that the search began with, not yet given
  std::string name;
};

FolderReader::FolderReader(const std::string& folder) : system_(std::make_unique<System>()) {
  const std::wstring pattern = WidePath(WithSeparator(folder) + "*");
  system_->search = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &system_->entry,
                                     FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  // The root of an empty disk has not even entries that stand for itself.
  if (system_->search == INVALID_HANDLE_VALUE && GetLastError() != ERROR_FILE_NOT_FOUND) {
    error_ = files::LastError();
  }
}

FolderReader::~FolderReader() {
  if (system_->search != INVALID_HANDLE_VALUE) FindClose(system_->search);
}

bool FolderReader::Next() {
  if (system_->search == INVALID_HANDLE_VALUE) return false;
  do {
    if (!system_->isFirst && FindNextFileW(system_->search, &system_->entry) == 0) {
      if (GetLastError() != ERROR_NO_MORE_FILES) error_ = files::LastError();
      return false;
    }
    system_->isFirst = false;
    system_->name = Utf8Text(static_cast<const wchar_t*>(system_->entry.cFileName));
  } while (name() == "." || name() == "..");
  return true;
}

std::string_view FolderReader::name() const { return system_->name; }

bool FolderReader::IsFolder() const {
  return (system_->entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && !IsLinkToFolder();
}

bool FolderReader::IsLinkToFolder() const {
  const DWORD attributes = system_->entry.dwFileAttributes;
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
         files::IsLink(attributes, system_->entry.dwReserved0);
}

}  // namespace halvane
