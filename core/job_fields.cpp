#include "core/job_fields.h"

namespace halvane {

std::string FieldName::text() const {
  std::string name(field);
  if (first < 0) return name;
  name += "(" + std::to_string(first);
  if (second >= 0) name += ", " + std::to_string(second);
  return name + ")";
}

}  // namespace halvane
