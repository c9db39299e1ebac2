#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "core/folder_reader.h"

namespace halvane {

struct FolderReader::System {
  DIR* folder;
  const dirent* entry;
};

namespace {

/// The type of an entry by the system's own word, links followed or not.
bool IsFolderByStatus(DIR* folder, const char* name, int flags) {
  struct stat status {};
  return fstatat(dirfd(folder), name, &status, flags) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

FolderReader::FolderReader(const std::string& folder)
    : system_(std::make_unique<System>(System{opendir(folder.c_str()), nullptr})) {
  if (system_->folder == nullptr) error_ = {errno, std::generic_category()};
}

FolderReader::~FolderReader() {
  if (system_->folder != nullptr) closedir(system_->folder);
}

bool FolderReader::Next() {
  if (error_) return false;
  do {
    errno = 0;
    system_->entry = readdir(system_->folder);
    if (system_->entry == nullptr) {
      if (errno != 0) error_ = {errno, std::generic_category()};
      return false;
    }
  } while (name() == "." || name() == "..");
  return true;
}

std::string_view FolderReader::name() const { return system_->entry->d_name; }

bool FolderReader::IsFolder() const {
  // Some file systems do not tell the type.
  if (system_->entry->d_type != DT_UNKNOWN) return system_->entry->d_type == DT_DIR;
  return IsFolderByStatus(system_->folder, system_->entry->d_name, AT_SYMLINK_NOFOLLOW);
}

bool FolderReader::IsLinkToFolder() const {
  const bool mayBeLink = system_->entry->d_type == DT_LNK || system_->entry->d_type == DT_UNKNOWN;
  return mayBeLink && !IsFolder() && IsFolderByStatus(system_->folder, system_->entry->d_name, 0);
}

}  // namespace halvane
