#include "core/user_folders.h"

#include "core/file_calls.h"
#include "core/file_name.h"

namespace halvane {

bool MakeFolder(const std::string& path) {
  if (path.empty()) return false;
  if (files::IsFolder(path)) return true;
  const std::string above(FolderOf(path));
  const std::string parent = above.substr(0, above.empty() ? 0 : above.size() - 1);
  if (!parent.empty() && !MakeFolder(parent)) return false;
  // Another program may have made it meanwhile.
  if (files::MakeOneFolder(path)) return files::IsFolder(path);
  files::SyncFolder(parent.empty() ? above : parent);
  return true;
}

}  // namespace halvane
