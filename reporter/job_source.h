#pragma once

#include <string>
#include <utility>

namespace halvane {

/// A job file: what it is called in all that is written, and where it is read from.
struct JobSource {
  // Implicit, since nearly all job files are read where their names say.
  // NOLINTNEXTLINE(google-explicit-constructor)
  JobSource(std::string file) : name(file), path(std::move(file)) {}
  JobSource(std::string shown, std::string readFrom)
      : name(std::move(shown)), path(std::move(readFrom)) {}

  std::string name;
  std::string path;

  /// Whether it comes from a pipe, so that nothing stands beside it.
  [[nodiscard]] bool isPiped() const { return name != path; }
};

}  // namespace halvane
