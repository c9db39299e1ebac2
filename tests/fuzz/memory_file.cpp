#include "tests/fuzz/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

namespace halvane {

MemoryFile::MemoryFile(std::string_view bytes) : descriptor_(memfd_create("job", MFD_CLOEXEC)) {
  if (descriptor_ < 0) std::abort();
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
    if (written <= 0) std::abort();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

MemoryFile::~MemoryFile() { close(descriptor_); }

}  // namespace halvane
