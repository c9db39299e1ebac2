#include "reporter/job_warnings.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "reporter/field_notes.h"
#include "reporter/field_rules.h"
#include "reporter/hidden_characters.h"
#include "reporter/tool_warnings.h"
#include "tools/ocra/ocra_controls.h"

namespace halvane {
namespace {

JobProblem Warning(const FieldNote& note, std::string message) {
  return {true, note.line, note.name.text(), std::string(note.found()), std::move(message)};
}

bool IsText(const TaggedField& field) { return std::holds_alternative<std::string>(field.value()); }

/// Whether two copies of a field are one value, quoted or not.
bool IsSame(const TaggedField& a, const TaggedField& b) {
  // Looked at where they stand, since they may be long.
  if (IsText(a) && IsText(b)) return a == b;
  if (IsText(a) || IsText(b)) return a.AsText() == b.AsText();
  return a.AsDouble() == b.AsDouble();
}

void WarnOfCopies(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  std::vector<const FieldNote*> copies;
  copies.reserve(notes.notes().size());
  for (const FieldNote& note : notes.notes()) copies.push_back(&note);
  // Those of one field come to stand side by side, and stay in the order of the file.
  std::ranges::stable_sort(copies, std::less<>(), &FieldNote::place);
  std::vector<std::pair<const FieldNote*, const FieldNote*>> differing;
  for (std::size_t i = 1; i < copies.size(); ++i) {
    const FieldNote* const before = copies[i - 1];
    const FieldNote* const note = copies[i];
    const bool isCopy = before->place == note->place;
    if (isCopy && !IsSame(before->value, note->value)) differing.emplace_back(note, before);
  }
  std::ranges::sort(differing);
  for (const auto& [note, before] : differing) {
    warnings.push_back(Warning(*note, "differs from the copy on line " + PlainText(before->line) +
                                          ", \"" + ShownField(before->found()) +
                                          "\"; the later copy counts"));
  }
}

void WarnOfValues(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  for (const FieldNote& note : notes.notes()) {
    const auto wrong = WrongWith(note.name, note.value);
    if (wrong) warnings.push_back(Warning(note, wrong->expected + "; " + wrong->effect));
  }
}

/// The job has no element for what is no answer at all; the range tells of that.
bool IsAnswered(const FieldNote& note) {
  const double answer = note.value.AsDouble();
  return answer >= 0 && answer < kOcraNotApplicable;
}

void WarnOfPairs(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  std::vector<const FieldNote*> lists;
  for (const FieldNote& note : notes.notes()) {
    if (note.name.field == "OcraComboChoice") lists.push_back(&note);
  }
  for (std::size_t i = 0; i < lists.size(); ++i) {
    const int pair = kOcraLists[i].pair;
    // Told once, at the second list of the two.
    if (pair == kOcraNoPair || static_cast<std::size_t>(pair) > i) continue;
    const FieldNote& other = *lists[static_cast<std::size_t>(pair)];
    if (!IsAnswered(*lists[i]) || !IsAnswered(other)) continue;
    warnings.push_back(Warning(*lists[i], "is answered, and so is " + other.name.text() +
                                              " on line " + PlainText(other.line) +
                                              ", the other list of the pair; both scores count"));
  }
}

void WarnOfHiddenCharacters(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  for (const FieldNote& note : notes.notes()) {
    const std::string hidden = HiddenCharactersIn(note.found());
    if (!hidden.empty()) warnings.push_back(Warning(note, "holds hidden characters, " + hidden));
  }
}

void WarnOfTextBehindTheEnd(std::vector<JobProblem>& warnings, const FieldNotes& notes,
                            const JobText& text) {
  // Blanks and line ends are none, nor is the mark that old systems put at the end of a text file.
  const auto isText = [](char c) { return static_cast<unsigned char>(c) > ' '; };
  const std::size_t end = notes.reader().position();
  const std::string rest = text.From(end);
  const auto found = std::ranges::find_if(rest, isText);
  if (found == rest.end()) return;
  const auto start = static_cast<std::size_t>(found - rest.begin());
  warnings.push_back({true,
                      notes.LineBehind(end + start),
                      {},
                      rest.substr(start, rest.find_first_of("\r\n", start) - start),
                      "stands behind the last task and is not read"});
}

}  // namespace

std::vector<JobProblem> WarningsOn(const JobText& text) {
  FieldNotes notes(text.Reader());
  VisitJobFields(Module1, notes);
  std::vector<JobProblem> warnings;
  WarnOfCopies(warnings, notes);
  WarnOfValues(warnings, notes);
  WarnOfFailures(warnings, notes);
  WarnOfPairs(warnings, notes);
  WarnOfHiddenCharacters(warnings, notes);
  WarnOfTextBehindTheEnd(warnings, notes, text);
  std::ranges::stable_sort(warnings, {}, &JobProblem::line);
  return warnings;
}

}  // namespace halvane
