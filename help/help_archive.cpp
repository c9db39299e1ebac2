#include "help/help_archive.h"

#include <mspack.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "core/ascii.h"

namespace halvane {
namespace {

/// The unpacker's view of the program: the file it reads, the entry it writes, the memory it holds.
struct Surroundings {
  mspack_system calls{};
  std::string bytes;
  std::string output;
  std::size_t mostOutput = 0;
  std::size_t allocated = 0;
};

// The unpacker hands its functions a copy of the table of calls, so that the way from there to the
// surroundings is lost; they are those of the archive at work.
thread_local Surroundings* atWork = nullptr;

class AtWork {
 public:
  explicit AtWork(Surroundings& surroundings) : before_(std::exchange(atWork, &surroundings)) {}
  ~AtWork() { atWork = before_; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;

 private:
  Surroundings* before_;
};

/// An open file: the help file itself, or the entry being written.
struct OpenFile : mspack_file {
  Surroundings* surroundings;
  std::size_t position;
};

OpenFile& Of(mspack_file* file) { return *static_cast<OpenFile*>(file); }

// A block of memory has its size and its owner in front, to count what is held.
struct BlockHead {
  Surroundings* owner;
  std::size_t size;
};
constexpr std::size_t kHeadSize = std::max(sizeof(BlockHead), alignof(std::max_align_t));

void* Allocate(mspack_system* /*self*/, std::size_t size) {
  Surroundings& surroundings = *atWork;
  if (size > help_limits::kWorkingBytes - surroundings.allocated) return nullptr;
  // The unpacker is C code that gives its memory back through `Free`. Cleared, since it decodes
  // damaged data into tables that it fills only in part.
  auto* block = static_cast<char*>(std::calloc(1, kHeadSize + size));  // NOLINT(*-no-malloc)
  if (block == nullptr) return nullptr;
  const BlockHead head{&surroundings, size};
  std::memcpy(block, &head, sizeof head);
  surroundings.allocated += size;
  return block + kHeadSize;
}

void Free(void* memory) {
  if (memory == nullptr) return;
  char* block = static_cast<char*>(memory) - kHeadSize;
  BlockHead head{};
  std::memcpy(&head, block, sizeof head);
  head.owner->allocated -= head.size;
  std::free(block);  // NOLINT(*-no-malloc)
}

mspack_file* Open(mspack_system* /*self*/, const char* /*name*/, int mode) {
  auto* file = new OpenFile{};
  file->surroundings = atWork;
  if (mode == MSPACK_SYS_OPEN_WRITE) file->surroundings->output.clear();
  return file;
}

void Close(mspack_file* file) { delete &Of(file); }

int Read(mspack_file* file, void* buffer, int size) {
  OpenFile& open = Of(file);
  const std::string& bytes = open.surroundings->bytes;
  if (size < 0 || open.position > bytes.size()) return -1;
  const std::size_t count = std::min(bytes.size() - open.position, static_cast<std::size_t>(size));
  std::memcpy(buffer, bytes.data() + open.position, count);
  open.position += count;
  return static_cast<int>(count);
}

int Write(mspack_file* file, void* buffer, int size) {
  Surroundings& surroundings = *Of(file).surroundings;
  if (size < 0) return -1;
  const auto count = static_cast<std::size_t>(size);
  if (count > surroundings.mostOutput - surroundings.output.size()) return -1;
  surroundings.output.append(static_cast<const char*>(buffer), count);
  return size;
}

int Seek(mspack_file* file, off_t offset, int mode) {
  OpenFile& open = Of(file);
  const auto end = static_cast<off_t>(open.surroundings->bytes.size());
  const off_t base = mode == MSPACK_SYS_SEEK_START ? 0
                     : mode == MSPACK_SYS_SEEK_CUR ? static_cast<off_t>(open.position)
                                                   : end;
  if (offset < -base || offset > end - base) return -1;
  open.position = static_cast<std::size_t>(base + offset);
  return 0;
}

off_t Tell(mspack_file* file) { return static_cast<off_t>(Of(file).position); }

void Message(mspack_file* /*file*/, const char* /*format*/, ...) {}  // NOLINT(cert-dcl50-cpp)

void Copy(void* source, void* target, std::size_t size) { std::memcpy(target, source, size); }

mspack_system Calls() {
  return {Open, Close, Read, Write, Seek, Tell, Message, Allocate, Free, Copy, nullptr};
}

constexpr auto kNoHelpFile = "This is no compiled HTML help file.";
constexpr auto kDamaged = "The help file is damaged.";
constexpr auto kTooLarge = "The help file is larger than this program can show.";

constexpr std::string_view kMark = "ITSF";

// Some compilers of help files write the first byte of the second identification one too low; their
// files are whole otherwise, and other viewers show them.
constexpr std::size_t kSecondIdentification = 0x28;
constexpr char kWritten = 0x10;
constexpr char kRight = 0x11;

}  // namespace

bool HelpArchive::FoldedLess::operator()(std::string_view a, std::string_view b) const {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return static_cast<unsigned char>(LowerCase(x)) < static_cast<unsigned char>(LowerCase(y));
  });
}

struct HelpArchive::Unpacker {
  Surroundings surroundings;
  mschm_decompressor* decompressor = nullptr;
  mschmd_header* header = nullptr;

  Unpacker() = default;
  Unpacker(const Unpacker&) = delete;
  Unpacker& operator=(const Unpacker&) = delete;
  ~Unpacker() {
    if (header != nullptr) decompressor->close(decompressor, header);
    if (decompressor != nullptr) mspack_destroy_chm_decompressor(decompressor);
  }
};

HelpArchive::HelpArchive(std::string bytes) : unpacker_(std::make_unique<Unpacker>()) {
  if (bytes.size() > help_limits::kFileBytes) throw HelpFileFailure(kTooLarge);
  if (!bytes.starts_with(kMark)) throw HelpFileFailure(kNoHelpFile);
  if (bytes.size() > kSecondIdentification && bytes[kSecondIdentification] == kWritten) {
    bytes[kSecondIdentification] = kRight;
  }
  Surroundings& surroundings = unpacker_->surroundings;
  surroundings.bytes = std::move(bytes);
  surroundings.calls = Calls();
  const AtWork work(surroundings);
  int compatible = MSPACK_ERR_OK;
  MSPACK_SYS_SELFTEST(compatible);
  if (compatible == MSPACK_ERR_OK) {
    unpacker_->decompressor = mspack_create_chm_decompressor(&surroundings.calls);
  }
  mschm_decompressor* decompressor = unpacker_->decompressor;
  if (decompressor == nullptr) throw HelpFileFailure("The unpacker of help files cannot be used.");
  unpacker_->header = decompressor->open(decompressor, "");
  if (unpacker_->header == nullptr) {
    throw HelpFileFailure(
        decompressor->last_error(decompressor) == MSPACK_ERR_SIGNATURE ? kNoHelpFile : kDamaged);
  }
  std::size_t count = 0;
  for (mschmd_file* file = unpacker_->header->files; file != nullptr; file = file->next) {
    if (++count > help_limits::kEntries) throw HelpFileFailure(kTooLarge);
    std::string_view name = file->filename;
    while (name.starts_with('/')) name.remove_prefix(1);
    // A folder is an entry whose name ends with a slash.
    if (!name.empty() && !name.ends_with('/')) entries_.try_emplace(std::string(name), file);
  }
}

HelpArchive::~HelpArchive() = default;

std::optional<std::string> HelpArchive::Read(std::string_view name) const {
  const auto found = entries_.find(name);
  if (found == entries_.end()) return std::nullopt;
  mschmd_file* file = found->second;
  const auto most = static_cast<off_t>(help_limits::kUnpackedBytes);
  if (file->length < 0 || file->offset < 0) throw HelpFileFailure(kDamaged);
  if (file->length > static_cast<off_t>(help_limits::kEntryBytes) ||
      file->offset > most - file->length) {
    throw HelpFileFailure(kTooLarge);
  }
  Surroundings& surroundings = unpacker_->surroundings;
  const AtWork work(surroundings);
  surroundings.output.clear();
  surroundings.mostOutput = static_cast<std::size_t>(file->length);
  mschm_decompressor* decompressor = unpacker_->decompressor;
  if (decompressor->extract(decompressor, file, "") != MSPACK_ERR_OK ||
      surroundings.output.size() != surroundings.mostOutput) {
    throw HelpFileFailure(kDamaged);
  }
  return std::exchange(surroundings.output, std::string());
}

}  // namespace halvane
