#include "core/file_calls.h"

#include <array>

#include "core/folder_reader.h"
#include "core/runtime_failure.h"

namespace halvane::files {
namespace {

constexpr std::size_t kReadBlock = 65536;

}  // namespace

void Fail(const std::string& path, const std::error_code& error, const std::string& sentence) {
  const std::string reason = path + ": " + ReasonOf(error);
  throw RuntimeFailure(FailureKind::FileError,
                       sentence.empty() ? reason : reason + ". " + sentence);
}

File::~File() { Close(); }

void File::TakeFrom(File& other) {
  Close();
  handle_ = other.handle_;
  other.handle_ = kNone;
}

std::error_code OpenPart(File& file, const std::string& path) {
  const std::error_code error = file.Open(path, Access::MakeForWriter);
  if (error != std::errc::file_exists || !IsRegularFile(path)) return error;
  Remove(path);
  return file.Open(path, Access::MakeForWriter);
}

std::error_code ReadWhole(File& file, std::uint64_t most, std::string& bytes) {
  std::array<char, kReadBlock> block{};
  while (true) {
    std::size_t count = 0;
    if (const auto error = file.ReadSome(block.data(), block.size(), count)) return error;
    if (count == 0) return {};
    bytes.append(block.data(), count);
    if (bytes.size() > most) return std::make_error_code(std::errc::file_too_large);
  }
}

std::vector<std::string> NamesIn(const std::string& folder,
                                 const std::function<bool(std::string_view name)>& isWanted) {
  std::vector<std::string> names;
  FolderReader reader(folder.empty() ? "." : folder);
  while (reader.Next()) {
    if (isWanted(reader.name())) names.emplace_back(reader.name());
  }
  return names;
}

bool IsTaken(const std::string& path) {
  Status status;
  const std::error_code error = StatusOfName(path, status);
  return !error || error != std::errc::no_such_file_or_directory;
}

bool IsRegularFile(const std::string& path) {
  Status status;
  return !StatusOfName(path, status) && status.kind == Kind::Regular;
}

bool IsFolder(const std::string& path) {
  Status status;
  return !StatusOf(path, status) && status.kind == Kind::Folder;
}

}  // namespace halvane::files
