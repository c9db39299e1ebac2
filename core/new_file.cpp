#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/platform_file.h"

namespace halvane {

bool WriteNewFile(const std::string& path, std::string_view bytes) {
  files::File file;
  std::error_code error = file.Open(path, files::Access::MakeForWriter);
  if (error == std::errc::file_exists) return false;
  if (error) files::Fail(path, error);
  std::size_t written = 0;
  error = file.WriteAll(bytes, written);
  if (!error) error = file.Sync();
  if (error) {
    files::Remove(path);
    files::Fail(path, error);
  }
  // Where this fails the content is whole on the disk all the same, and its name follows with
  // whatever the system writes next.
  files::SyncFolder(std::string(FolderOf(path)));
  return true;
}

}  // namespace halvane
