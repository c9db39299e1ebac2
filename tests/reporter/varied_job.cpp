#include "tests/reporter/varied_job.h"

#include <array>
#include <random>
#include <string>

#include "core/job_fields.h"
#include "reporter/choices.h"

namespace halvane {
namespace {

/// Puts a value into each field of a job: of a choice one that its control stores, else a number of
/// any size with some decimals. One field in a hundred has another one, as people's files have.
class Filler {
 public:
  explicit Filler(std::uint32_t number) : random_(number) {}

  void HeaderLine() {}
  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Fill(fields.name, fields.value), ...);
  }

  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(random_() % bound); }

 private:
  std::string Name() {
    constexpr std::array<std::string_view, 6> kWords{"Press",         "caf\u00e9",  "\u65e5\u672c",
                                                     "a & b < \"c\"", "line\nfeed", ""};
    return std::string(kWords.at(Below(kWords.size()))) + " " + std::to_string(Below(1000));
  }
  double Number() {
    constexpr std::array kUnits{1.0, 4.0, 10.0, 100.0, 1000.0, 1000.0 * 1000.0};
    const double value = Below(20000) / kUnits.at(Below(kUnits.size()));
    return Below(100) == 0 ? -value : value;
  }
  /// A number that the field may have.
  double NumberFor(const FieldName& name) {
    if (Below(100) == 0) return Number();
    if (name.field == "TaskActive") return 1;
    const auto choices = ChoicesOf(name);
    if (!choices.empty()) return choices.at(Below(static_cast<std::uint32_t>(choices.size())));
    return Number();
  }

  void Fill(const FieldName& /*name*/, std::string& value) { value = Name(); }
  void Fill(const FieldName& name, double& value) { value = NumberFor(name); }
  void Fill(const FieldName& name, Integer& value) {
    value = static_cast<Integer>(static_cast<int>(NumberFor(name)) % 1000);
  }
  void Fill(const FieldName& name, TaggedField& value) {
    if (name.field == "TaskCount") return;
    const bool isName =
        name.field == "TaskNames" || name.field == "JobAnalyst" || name.field == "JobName";
    value = isName ? TaggedField(Name()) : TaggedField(NumberFor(name));
  }

  std::mt19937 random_;
};

}  // namespace

void MakeVariedJob(std::uint32_t number) {
  Filler filler(number);
  Module1 = JobState{};
  Module1.TaskCount = static_cast<Integer>(filler.Below(12));
  ResizeTaskArrays();
  VisitJobFields(Module1, filler);
}

}  // namespace halvane
