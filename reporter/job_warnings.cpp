#include "reporter/job_warnings.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "reporter/choices.h"
#include "reporter/field_notes.h"
#include "tools/ocra/ocra_controls.h"

namespace halvane {
namespace {

JobProblem Warning(const FieldNotes& notes, const FieldNote& note, std::string message) {
  return {true, notes.LineOf(note), note.name.text(), std::string(note.found()),
          std::move(message)};
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
  std::map<std::tuple<std::string_view, int, int>, const FieldNote*> seen;
  for (const FieldNote& note : notes.notes()) {
    const FieldNote*& before = seen[{note.name.field, note.name.first, note.name.second}];
    if (before != nullptr && !IsSame(before->value, note.value)) {
      warnings.push_back(Warning(notes, note,
                                 "differs from the copy on line " +
                                     PlainText(notes.LineOf(*before)) + ", \"" +
                                     ShownField(before->found()) + "\"; the later copy counts"));
    }
    before = &note;
  }
}

/// "0 to 4", "0, 2, 3, 4".
std::string RangeText(const std::vector<int>& choices) {
  const bool hasGaps = choices.back() - choices.front() + 1 != static_cast<int>(choices.size());
  if (choices.size() > 1 && !hasGaps) {
    return PlainText(choices.front()) + " to " + PlainText(choices.back());
  }
  std::string text;
  for (const int choice : choices) text += (text.empty() ? "" : ", ") + PlainText(choice);
  return text;
}

bool IsOneOf(const TaggedField& value, const std::vector<int>& choices) {
  try {
    return std::ranges::count(choices, value.AsDouble()) > 0;
  } catch (const RuntimeFailure&) {
    // A text that reads as a number beyond a double.
    return false;
  }
}

void WarnOfChoices(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  for (const FieldNote& note : notes.notes()) {
    const std::vector<int> choices = ChoicesOf(note.name);
    if (choices.empty() || IsOneOf(note.value, choices)) continue;
    warnings.push_back(Warning(notes, note, "is outside its range, " + RangeText(choices)));
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
    warnings.push_back(Warning(notes, *lists[i],
                               "is answered, and so is " + other.name.text() + " on line " +
                                   PlainText(notes.LineOf(other)) +
                                   ", the other list of the pair; both scores count"));
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
                      notes.reader().LineAt(end + start),
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
  WarnOfChoices(warnings, notes);
  WarnOfPairs(warnings, notes);
  WarnOfTextBehindTheEnd(warnings, notes, text);
  std::ranges::stable_sort(warnings, {}, &JobProblem::line);
  return warnings;
}

}  // namespace halvane
