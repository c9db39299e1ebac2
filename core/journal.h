#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_calls.h"

namespace halvane {

/// What a journal holds.
struct JournalEntry {
  std::string job;             ///< the bytes of a job file
  std::string jobFile;         ///< path of the job's file; empty: none
  bool markedChanged = false;  ///< else a save or an open failed
};

/// The text of a journal: the job, so that it opens as a job file, and behind its last task, where
/// no reader looks, a line with the rest.
std::string JournalText(const JournalEntry& entry);

/// The entry of a text that is a whole journal.
std::optional<JournalEntry> ReadJournal(std::string_view text);

/// Whether a file of this name in the folder for journals may be one.
bool IsJournalName(std::string_view name);

/// The journal of a running program: the job as it was a moment ago, for a program that is killed.
/// It is locked as long as the program lives. Nothing here throws for what the system refuses.
class Journal {
 public:
  /// `folder` is made at the first write.
  explicit Journal(std::string folder) : folder_(std::move(folder)) {}
  /// The file stays; `Remove` removes it.
  ~Journal() = default;
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  /// Puts `entry` in the place of the one before and brings it to the disk; nothing is done when it
  /// is the same one. On a failure the one before stays. True when the entry stands.
  bool Write(const JournalEntry& entry);
  void Remove();

  /// Empty while there is no journal.
  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  bool Replace(const std::string& text);
  bool Place(const std::string& part, const std::string& path);

  std::string folder_;
  std::string path_;
  std::string text_;  ///< what stands in it
  files::File file_;  ///< holds the lock
};

/// Hands each journal that a program which is dead has left in `folder` to `keep`, in the order of
/// their names, and removes those for which it gives true. Journals of living programs and files
/// that are no whole journal are left alone; what a kill left of one that was being written goes.
void KeepLeftJournals(const std::string& folder,
                      const std::function<bool(const JournalEntry&)>& keep);

}  // namespace halvane
