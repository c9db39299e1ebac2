#include "reporter/check_command.h"

#include "core/job_text_reader.h"
#include "core/number_text.h"
#include "reporter/json_text.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

std::string_view NameOf(JobVerdict verdict) {
  switch (verdict) {
    case JobVerdict::Refused: return "refused";
    case JobVerdict::ReadInPart: return "read in part";
    case JobVerdict::Good: break;
  }
  return "good";
}

void AppendProblem(std::string& out, const JobProblem& problem) {
  out += "{\"warning\":";
  AppendJsonBoolean(out, problem.isWarning);
  out += ",\"line\":" + (problem.line > 0 ? PlainText(problem.line) : "null") + ",\"field\":";
  AppendJsonString(out, problem.field);
  out += ",\"found\":";
  AppendJsonString(out, problem.found);
  out += ",\"message\":";
  AppendJsonString(out, problem.message);
  out += '}';
}

}  // namespace

void AppendCheckText(std::string& out, std::string_view file, const JobCheck& check,
                     NameEnd nameEnd) {
  for (const JobProblem& problem : check.problems) {
    if (nameEnd == NameEnd::Zero) {
      out.append(file) += '\0';
    } else {
      out += PrintableText(file) + ":";
    }
    if (problem.line > 0) out += PlainText(problem.line) + ":";
    out += ' ';
    out += problem.isWarning ? "warning" : NameOf(check.verdict);
    if (!problem.field.empty()) out += ": " + problem.field;
    if (!problem.found.empty()) {
      // The name of a file is of use when all of it is there.
      const std::string found = problem.line > 0 ? ShownField(problem.found) : problem.found;
      out += ": \"" + PrintableText(found) + "\"";
    }
    out += ": " + PrintableText(problem.message);
    out += kLineEnd;
  }
}

void AppendCheckJson(std::string& out, std::string_view file, const JobCheck& check) {
  BeginJsonLine(out, file);
  out += ",\"verdict\":";
  AppendJsonString(out, NameOf(check.verdict));
  out += ",\"problems\":";
  AppendJsonList(out, '[', ']', check.problems,
                 [&out](const JobProblem& problem) { AppendProblem(out, problem); });
  out += ",\"error\":";
  if (check.failure) {
    AppendJsonFailure(out, *check.failure);
  } else {
    out += "null";
  }
  out += "}\n";
}

JobOutcome CheckCommand::Do(std::string& out, const JobSource& job) {
  JobCheck check = CheckJobFile(job.path);
  if (!job.isPiped()) besideJob_.AppendTo(check.problems, job.name);
  if (format_ == ReportFormat::Json) {
    AppendCheckJson(out, job.name, check);
  } else {
    AppendCheckText(out, job.name, check, nameEnd_);
  }
  JobOutcome outcome{check.verdict != JobVerdict::Good, {}};
  if (check.failure) outcome.complaints.push_back(Complaint(job.name, *check.failure));
  return outcome;
}

}  // namespace halvane
