#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "core/file_calls.h"
#include "core/number_text.h"
#include "reporter/nameless_file.h"

namespace halvane {
namespace {

/// Without a folder of the user's own choice.
constexpr const char* kFolder = "/tmp";

std::string Folder() {
  const char* chosen = std::getenv("TMPDIR");
  return chosen == nullptr || *chosen == '\0' ? kFolder : chosen;
}

[[noreturn]] void Fail() {
  const std::error_code error(errno, std::generic_category());
  files::Fail(Folder() + ": no temporary file", error);
}

}  // namespace

NamelessFile::NamelessFile() {
  std::string path = Folder() + "/halvane-report-XXXXXX";
  handle_ = mkstemp(path.data());
  if (handle_ < 0) Fail();
  unlink(path.c_str());
}

NamelessFile::~NamelessFile() { close(static_cast<int>(handle_)); }

void NamelessFile::Append(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count =
        pwrite(static_cast<int>(handle_), bytes.data(), bytes.size(), static_cast<off_t>(size_));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail();
    size_ += static_cast<std::uint64_t>(count);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::size_t NamelessFile::ReadAt(std::uint64_t position, std::span<char> room) const {
  while (true) {
    const ssize_t count =
        pread(static_cast<int>(handle_), room.data(), room.size(), static_cast<off_t>(position));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) Fail();
    return static_cast<std::size_t>(count);
  }
}

std::string NamelessFile::pathOfOpenFile() const {
  return "/dev/fd/" + PlainText(static_cast<int>(handle_));
}

}  // namespace halvane
