#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// What the program asks the system about files, the same on each system: paths are UTF-8, a call
/// that a signal interrupts is made again, and an error has the same condition and the same words
/// wherever the system has one of the usual ones.
namespace halvane::files {

/// The words for an error, as a message has them.
std::string ReasonOf(const std::error_code& error);

/// Throws a `FileError` that names the file, the system's reason for `error` and, where it is
/// given, a sentence about what stands on the disk now.
[[noreturn]] void Fail(const std::string& path, const std::error_code& error,
                       const std::string& sentence = "");

enum class Kind { Regular, Folder, Link, Pipe, Other };

/// What the system knows of a file.
struct Status {
  Kind kind = Kind::Other;
  std::uint64_t size = 0;
  /// When its content changed last, in seconds and what the system tells of a part of one.
  std::int64_t seconds = 0;
  std::int64_t fraction = 0;
  /// Which file it is, whatever its name.
  std::uint64_t disk = 0;
  std::uint64_t number = 0;
  std::uint64_t names = 0;  ///< how many it has

  [[nodiscard]] bool IsSameFileAs(const Status& other) const {
    return disk == other.disk && number == other.number;
  }
};

/// What a file is opened for. Nothing is waited for, and no other program inherits it.
enum class Access {
  Read,
  ReadItself,     ///< and no file that a link leads to
  Write,          ///< over what stands there
  Watch,          ///< to read and to lock it, and no file that a link leads to
  MakeNew,        ///< to write a file that is not there yet
  MakeForWriter,  ///< the same for the writer's eyes alone
};

/// A file that closes itself. An operation that goes well gives no error. Others may read, write,
/// rename and remove the file meanwhile.
class File {
 public:
  File() = default;
  ~File();
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  /// Closes what is open first.
  std::error_code Open(const std::string& path, Access access);
  std::error_code Close();
  [[nodiscard]] bool isOpen() const { return handle_ != kNone; }
  /// Takes what `other` has open; what was open here is closed.
  void TakeFrom(File& other);

  std::error_code GetStatus(Status& status) const;
  /// Reads what comes next into `buffer`; `count` is 0 at the end of the file.
  std::error_code ReadSome(char* buffer, std::size_t size, std::size_t& count);
  /// The same from a position on, which may give less than there is.
  std::error_code ReadSomeAt(std::uint64_t position, char* buffer, std::size_t size,
                             std::size_t& count) const;
  /// Writes all of `bytes`; `written` is how many went out.
  std::error_code WriteAll(std::string_view bytes, std::size_t& written);
  /// Brings the file to the disk. A file system that cannot do so has nothing to bring.
  std::error_code Sync();
  /// Ends the file behind so many bytes.
  std::error_code CutTo(std::uint64_t size);
  /// Finds room on the disk for so many bytes from the begin of the file on, and changes nothing.
  /// No error where the file system cannot tell.
  std::error_code Reserve(std::uint64_t size);
  /// Locks the file against whoever locks it too, until it is closed.
  /// `std::errc::operation_would_block` where another one has it.
  std::error_code TryLock();

 private:
  static constexpr std::intptr_t kNone = -1;

  std::intptr_t handle_ = kNone;  ///< as the system calls an open file
};

/// What is known of a name, of what a link leads to or of the link itself.
std::error_code StatusOf(const std::string& path, Status& status);
std::error_code StatusOfName(const std::string& path, Status& status);

/// Removes a file.
std::error_code Remove(const std::string& path);

/// Gives a file another name that nothing has.
std::error_code RenameToFree(const std::string& from, const std::string& to);

/// Gives a file another name; what had it is gone.
std::error_code RenameOver(const std::string& from, const std::string& to);

/// Brings names made or removed in a folder (empty: the current one) to the disk.
std::error_code SyncFolder(const std::string& folder);

/// Makes a folder for the user's eyes alone.
std::error_code MakeOneFolder(const std::string& path);

/// The path from the root of what stands at `path`, links followed; empty for nothing.
std::string WholePathOf(const std::string& path);

/// The file behind `path`, symbolic links followed, whether it exists or not.
std::string TargetOf(const std::string& path);

/// What no other program has that runs now.
std::uint64_t NumberOfProgram();

// The following is made from the above.

/// Opens a file that is not whole yet with `Access::MakeForWriter`. A regular file that stands
/// under its name was left by somebody who was killed, and goes.
std::error_code OpenPart(File& file, const std::string& path);

/// The whole content of an open regular file of at most so many bytes; an error for more of them.
std::error_code ReadWhole(File& file, std::uint64_t most, std::string& bytes);

/// The names in a folder (empty: the current one) that are wanted, as far as it can be read.
std::vector<std::string> NamesIn(const std::string& folder,
                                 const std::function<bool(std::string_view name)>& isWanted);

/// Whether anything has this name, be it a link that leads nowhere.
bool IsTaken(const std::string& path);

/// Whether a regular file has this name, and no link to one.
bool IsRegularFile(const std::string& path);

/// Whether a folder or a link to one has this name.
bool IsFolder(const std::string& path);

}  // namespace halvane::files
