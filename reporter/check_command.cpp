#include "reporter/check_command.h"

#include "core/job_text_reader.h"
#include "core/number_text.h"
#include "reporter/beside_job.h"
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

class CheckWorker : public JobWorker {
 public:
  CheckWorker(ReportFormat format, const std::string& stateFolder, NameEnd nameEnd)
      : format_(format), nameEnd_(nameEnd), besideJob_(stateFolder) {}

  JobResult Do(const JobSource& job) override {
    JobCheck check = CheckJobFile(job.path);
    if (!job.isPiped()) besideJob_.AppendTo(check.problems, job.name);
    JobResult result;
    if (format_ == ReportFormat::Json) {
      AppendCheckJson(result.text, job.name, check);
    } else {
      AppendCheckText(result.text, job.name, check, nameEnd_);
    }
    result.outcome.failed = check.verdict != JobVerdict::Good;
    if (check.failure) result.outcome.complaints.push_back(Complaint(job.name, *check.failure));
    return result;
  }

 private:
  ReportFormat format_;
  NameEnd nameEnd_;
  BesideJob besideJob_;
};

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

std::unique_ptr<JobWorker> CheckCommand::MakeWorker() const {
  return std::make_unique<CheckWorker>(format_, stateFolder_, nameEnd_);
}

}  // namespace halvane
