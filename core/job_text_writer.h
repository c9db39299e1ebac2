#pragma once

#include <string>
#include <string_view>

#include "core/job_fields.h"

namespace halvane {

/// Builds the text of a job file, line after line, for `VisitJobFields`.
class JobTextWriter {
 public:
  void HeaderLine();

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Write(fields.value), ...);
    EndLine();
  }

  /// What has been written so far, in UTF-8.
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  void Write(const std::string& value);
  void Write(Integer value);
  void Write(double value);
  void Write(const TaggedField& value);
  void Separate();
  void EndLine();

  std::string text_;
  bool atLineStart_ = true;
};

}  // namespace halvane
