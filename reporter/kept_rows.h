#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "reporter/nameless_file.h"

namespace halvane {

/// Rows that wait until the last one is there. A few megabytes of them are in memory; what is more
/// goes to a temporary file in sorted runs, which are merged when the rows are taken. So the memory
/// grows by the small buffer that each run is read through, and by nothing else.
class KeptRows {
 public:
  /// How many bytes of rows are held in memory, and through how many a run is read.
  struct Limits {
    std::size_t inMemory = std::size_t{4} << 20;
    std::size_t buffer = std::size_t{1} << 14;
  };

  KeptRows() : KeptRows(Limits{}) {}
  explicit KeptRows(Limits limits) : limits_(limits) {}

  /// Rows of a higher rank come first, those without one last, and rows of one rank in the order in
  /// which they are added. Throws `FileError` where the temporary file takes no more.
  void Add(std::optional<double> rank, std::string row);

  /// The next row; nothing behind the last one. None may be added any more. Throws as above.
  std::optional<std::string> Next();

 private:
  struct Row {
    std::optional<double> rank;
    std::string text;
  };
  /// A run, and how far it has been read.
  struct Run {
    std::uint64_t position;
    std::uint64_t end;
    std::string buffer = {};
    std::size_t used = 0;  ///< of `buffer`
    Row next = {};
    bool isOver = false;
  };

  void SortRows();
  void WriteRun();
  void BeginTaking();
  void Advance(Run& run) const;
  void Read(Run& run, char* to, std::size_t size) const;

  Limits limits_;
  std::vector<Row> rows_;
  std::size_t bytes_ = 0;  ///< of `rows_`
  std::unique_ptr<NamelessFile> file_;
  std::vector<Run> runs_;
  bool isTaking_ = false;
  std::size_t taken_ = 0;  ///< of `rows_`, where there are no runs
};

}  // namespace halvane
