#include "core/file_calls.h"
#include "reporter/piped_job.h"

namespace halvane {

PipedJob::~PipedJob() = default;

JobSource PipedJob::SourceOf(const std::string& name, bool isStandardInput) {
  // There are no files without a name here.
  if (isStandardInput) files::Fail(name, std::make_error_code(std::errc::not_supported));
  return name;
}

}  // namespace halvane
