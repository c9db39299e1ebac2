#include "core/tagged_field.h"

namespace halvane {

double TaggedField::NumberOfText() const {
  if (const auto* text = std::get_if<std::string>(&value_)) return ReadsAs(*text);
  return 0;
}

std::string TaggedField::AsText() && {
  if (auto* text = std::get_if<std::string>(&value_)) return std::move(*text);
  return std::as_const(*this).AsText();
}

std::string TaggedField::AsText() const& {
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  if (std::holds_alternative<std::monostate>(value_)) return {};
  return PlainText(AsDouble());
}

std::string Format(const TaggedField& field, Pattern pattern) {
  return Format(field.AsDouble(), pattern);
}

}  // namespace halvane
