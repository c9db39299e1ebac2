#pragma once

#include "reporter/report_writer.h"

namespace halvane {

/// Reports as one page that needs nothing else: pictures inline, no script, a heading for each job
/// and below it one for each report, which begins a sheet of paper when printed.
class HtmlWriter : public ReportWriter {
 public:
  void Begin(std::string& out) override;
  void BeginJob(std::string& out, std::string_view file) override;
  void Report(std::string& out, std::string_view file, const ToolRow& tool, const RichText& report,
              const std::vector<WorkingValue>& results) override;
  void NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                const ReportFailure& reason) override;
  void ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                  const ReportFailure& failure) override;
  void FileFailed(std::string& out, std::string_view file, std::span<const ToolRow* const> tools,
                  const ReportFailure& failure) override;
  void EndJob(std::string& out) override;
  void End(std::string& out) override;
};

}  // namespace halvane
