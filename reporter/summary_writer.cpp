#include "reporter/summary_writer.h"

#include "core/number_text.h"
#include "reporter/csv_summary.h"
#include "reporter/html_summary.h"
#include "reporter/json_summary.h"
#include "reporter/text_summary.h"

namespace halvane {

std::unique_ptr<SummaryWriter> MakeSummaryWriter(ReportFormat format, const SummaryTools& tools) {
  switch (format) {
    case ReportFormat::Csv: return std::make_unique<CsvSummary>(tools);
    case ReportFormat::Json: return std::make_unique<JsonSummary>(tools);
    case ReportFormat::Html: return std::make_unique<HtmlSummary>(tools);
    case ReportFormat::Text: break;
  }
  return std::make_unique<TextSummary>(tools);
}

std::string ShownValue(const Headline::Value& value, const HeadlineColumn& column) {
  if (const auto* whole = std::get_if<int>(&value)) return PlainText(*whole);
  if (const auto* number = std::get_if<double>(&value)) return Format(*number, column.pattern);
  return std::string(std::get<std::string_view>(value));
}

}  // namespace halvane
