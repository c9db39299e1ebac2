#pragma once

#include "reporter/report_writer.h"

namespace halvane {

/// Reports for programs: one JSON object a line for each file and tool. A text that is no
/// well-formed UTF-8, as a file name can be, has U+FFFD in its place.
class JsonWriter : public ReportWriter {
 public:
  void Report(std::string& out, std::string_view file, const ToolRow& tool, const RichText& report,
              const std::vector<WorkingValue>& results) override;
  void NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                const ReportFailure& reason) override;
  void ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                  const ReportFailure& failure) override;
  void FileFailed(std::string& out, std::string_view file, std::span<const ToolRow* const> tools,
                  const ReportFailure& failure) override;
};

}  // namespace halvane
