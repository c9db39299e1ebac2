#include "reporter/run_reporter.h"

#include "reporter/job_reports.h"
#include "reporter/options.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

constexpr int kAllDone = 0;
constexpr int kSomeFailed = 1;
constexpr int kWrongUse = 2;

void Complain(const std::string& complaint) {
  WriteErrorText(std::string(kProgramName) + ": " + PrintableText(complaint) +
                 std::string(kPlatformLineEnd));
}

int WriteNotice(StandardOutput& output, const Notice& notice) {
  if (notice.isError) {
    WriteErrorText(notice.text);
    return kWrongUse;
  }
  output.pending() += notice.text;
  output.Flush();
  return kAllDone;
}

int WriteReports(StandardOutput& output, const Options& options) {
  const bool several = options.files.size() * options.tools.size() > 1;
  const auto writer = MakeReportWriter(options.format, several);
  int status = kAllDone;
  writer->Begin(output.pending());
  for (const std::string& file : options.files) {
    const auto complaints =
        AppendReports(output.pending(), *writer, file, options.units, options.tools);
    output.WriteSome();
    if (complaints.empty()) continue;
    status = kSomeFailed;
    // Where both streams go to one terminal, they come in the order of the files.
    output.Flush();
    for (const std::string& complaint : complaints) Complain(complaint);
  }
  writer->End(output.pending());
  output.Flush();
  return status;
}

}  // namespace

int RunReporter(std::vector<std::string> arguments) {
  const auto asked = ParseOptions(std::move(arguments), Tools());
  StandardOutput output;
  try {
    if (const auto* notice = std::get_if<Notice>(&asked)) return WriteNotice(output, *notice);
    return WriteReports(output, std::get<Options>(asked));
  } catch (const OutputFailure& failure) {
    Complain(std::string("standard output: ") + failure.what());
    return kSomeFailed;
  }
}

}  // namespace halvane
