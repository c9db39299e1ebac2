#include "reporter/report_writer.h"

#include "reporter/html_writer.h"
#include "reporter/json_writer.h"
#include "reporter/text_writer.h"

namespace halvane {

std::unique_ptr<ReportWriter> MakeReportWriter(ReportFormat format, bool several) {
  switch (format) {
    case ReportFormat::Json: return std::make_unique<JsonWriter>();
    case ReportFormat::Html: return std::make_unique<HtmlWriter>();
    case ReportFormat::Text:
    case ReportFormat::Csv: break;
  }
  return std::make_unique<TextWriter>(several);
}

}  // namespace halvane
