#include "core/job_fields.h"

namespace halvane {

std::string FieldName::text() const {
  std::string name(field);
  if (first < 0) return name;
  name.append("(").append(std::to_string(first));
  if (second >= 0) name.append(", ").append(std::to_string(second));
  return name.append(")");
}

}  // namespace halvane
