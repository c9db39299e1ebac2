#pragma once

#include "reporter/report_writer.h"

namespace halvane {

/// Reports as lines of equally wide characters: tab columns aligned, titles centred, a picture as
/// its name in brackets. Failures stand on standard error alone.
class TextWriter : public ReportWriter {
 public:
  /// `withHeadings`: a line with file and tool stands above each report.
  explicit TextWriter(bool withHeadings) : withHeadings_(withHeadings) {}

  void Report(std::string& out, std::string_view file, const ToolRow& tool, const RichText& report,
              const std::vector<WorkingValue>& results) override;
  void NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                const ReportFailure& reason) override;
  void ToolFailed(std::string& /*out*/, std::string_view /*file*/, const ToolRow& /*tool*/,
                  const ReportFailure& /*failure*/) override {}
  void FileFailed(std::string& /*out*/, std::string_view /*file*/,
                  std::span<const ToolRow* const> /*tools*/,
                  const ReportFailure& /*failure*/) override {}
  [[nodiscard]] std::string_view betweenJobs() const override;

 private:
  void AppendHeading(std::string& out, std::string_view file, const ToolRow& tool);

  bool withHeadings_;
  bool isFirst_ = true;
};

}  // namespace halvane
