#include <fcntl.h>
#include <sys/stat.h>

#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/platform_file.h"

namespace halvane {

bool WriteNewFile(const std::string& path, std::string_view bytes) {
  files::Descriptor file(files::Open(path, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR));
  if (!file.isOpen()) {
    if (errno == EEXIST) return false;
    files::Fail(path, errno);
  }
  std::size_t written = 0;
  int error = files::WriteAll(file.get(), bytes, written);
  if (error == 0) error = files::Sync(file.get());
  if (error != 0) {
    files::Remove(path);
    files::Fail(path, error);
  }
  // Where this fails the content is whole on the disk all the same, and its name follows with
  // whatever the system writes next.
  files::SyncFolder(std::string(FolderOf(path)));
  return true;
}

}  // namespace halvane
