#include "core/file_calls.h"
#include "reporter/piped_job.h"

namespace halvane {

bool PipedJob::IsPiped(const std::string& /*name*/, bool isStandardInput) {
  return isStandardInput;
}

JobSource PipedJob::SourceOf(const std::string& name, bool isStandardInput) {
  // An open file has no name here by which it can be read again.
  if (isStandardInput) files::Fail(name, std::make_error_code(std::errc::not_supported));
  return name;
}

}  // namespace halvane
