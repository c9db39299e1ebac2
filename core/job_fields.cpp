#include "core/job_fields.h"

#include <algorithm>

namespace halvane {
namespace {

/// Counts the fields of the lines that it is run over.
class FieldCounter {
 public:
  void HeaderLine() { count_ += kMarkerLineFields; }
  template <typename... T>
  void Line(const JobField<T>&... /*fields*/) {
    count_ += sizeof...(T);
  }
  [[nodiscard]] std::size_t count() const { return count_; }

 private:
  std::size_t count_ = 0;
};

/// How many fields stand before the first task, and in each.
struct FieldCounts {
  FieldCounts() {
    JobState job;
    VisitJobFields(job, head);
    // All tasks have the same fields, and slot 0 is always there.
    VisitTaskFields(job, task, 0);
  }

  FieldCounter head;
  FieldCounter task;
};

}  // namespace

std::string FieldName::text() const {
  std::string name(field);
  if (first < 0) return name;
  name.append("(").append(std::to_string(first));
  if (second >= 0) name.append(", ").append(std::to_string(second));
  return name.append(")");
}

std::size_t CountJobFields(double taskCount) {
  static const FieldCounts counts;
  const double tasks = std::clamp(taskCount, 0.0, kHighestTask + 1.0);
  return counts.head.count() + static_cast<std::size_t>(tasks) * counts.task.count();
}

}  // namespace halvane
