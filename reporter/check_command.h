#pragma once

#include "reporter/job_check.h"
#include "reporter/job_command.h"
#include "reporter/report_writer.h"

namespace halvane {

/// What stands behind the name of a file in a line of text: a colon, and the name as it can be
/// shown, or a zero byte, and the name as it is.
enum class NameEnd { Colon, Zero };

/// Tells what is wrong with each job file: in text a line for each problem, in JSON an object a
/// line for each file, good ones too.
class CheckCommand : public JobCommand {
 public:
  /// `stateFolder` is where the program keeps what it needs to go on after its end, empty for none.
  explicit CheckCommand(ReportFormat format, std::string stateFolder = {},
                        NameEnd nameEnd = NameEnd::Colon)
      : format_(format), nameEnd_(nameEnd), stateFolder_(std::move(stateFolder)) {}

  [[nodiscard]] std::unique_ptr<JobWorker> MakeWorker() const override;

 private:
  ReportFormat format_;
  NameEnd nameEnd_;
  std::string stateFolder_;
};

/// The lines of a check, each with its end.
void AppendCheckText(std::string& out, std::string_view file, const JobCheck& check,
                     NameEnd nameEnd = NameEnd::Colon);
void AppendCheckJson(std::string& out, std::string_view file, const JobCheck& check);

}  // namespace halvane
