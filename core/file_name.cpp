#include "core/file_name.h"

namespace halvane {
namespace {

/// Whether a byte goes on with a character that began before it.
bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

std::string_view FileNameOf(std::string_view path) { return path.substr(LengthOfFolder(path)); }

std::string_view FolderOf(std::string_view path) { return path.substr(0, LengthOfFolder(path)); }

std::string_view ShortenedName(std::string_view name, std::size_t bytes) {
  if (name.size() <= bytes) return name;
  std::size_t end = bytes;
  while (end > 0 && ContinuesCharacter(name[end])) --end;
  // A name that is no UTF-8 is cut where it has to end.
  return name.substr(0, end == 0 ? bytes : end);
}

}  // namespace halvane
