#pragma once

#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>

struct stat;

/// The system's calls on files as the program uses them: a call that a signal interrupts is made
/// again, so that it never counts as failed.
namespace halvane::files {

/// Throws a `FileError` that names the file, the system's reason for `error` and, where it is
/// given, a sentence about what stands on the disk now.
[[noreturn]] void Fail(const std::string& path, int error, const std::string& sentence = "");

/// Makes a system call until no signal interrupts it; `errno` is that of the last try.
template <typename Call>
auto Again(const Call& call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// A descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor() { Reset(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] int get() const { return number_; }
  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  /// Closes what is open and takes another one; the error number of the closing, else 0.
  int Reset(int number = -1);

 private:
  int number_;
};

/// A descriptor that no other program inherits; negative when the path cannot be opened.
int Open(const std::string& path, int flags, unsigned mode = 0);

/// Reads into `buffer`; 0 at the end of the file. Throws a `FileError` that names `path`.
std::size_t ReadSome(int descriptor, char* buffer, std::size_t size, const std::string& path);

/// Writes all of `bytes`. Gives the error number, else 0; `written` is how many went out.
int WriteAll(int descriptor, std::string_view bytes, std::size_t& written);

/// Brings a file to the disk; the error number, else 0. A file system that cannot do so has nothing
/// to bring.
int Sync(int descriptor);

/// Brings names made or removed in a folder to the disk; the error number, else 0.
int SyncFolder(const std::string& folder);

/// Removes a file; whether that went well.
bool Remove(const std::string& path);

/// Gives a file another name that nothing has; false, with `errno`, when that fails.
bool RenameToFree(const std::string& from, const std::string& to);

/// Gives a file another name; what had it is gone.
bool RenameOver(const std::string& from, const std::string& to);

/// What the system knows of an opened file, of a name and of a name without following a link;
/// false, with `errno`, when it knows nothing.
bool StatusOf(int descriptor, struct stat& status);
bool StatusOf(const std::string& path, struct stat& status);
bool StatusOfName(const std::string& path, struct stat& status);

/// Whether anything has this name, be it a link that leads nowhere.
bool IsTaken(const std::string& path);

/// Whether a regular file has this name, and no link to one.
bool IsRegularFile(const std::string& path);

}  // namespace halvane::files
