#include "core/job_text_writer.h"

namespace halvane {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

void JobTextWriter::HeaderLine() {
  Write(std::string(kJobFileMarker));
  // Constants of the format; readers pass over them.
  for (const Integer constant : {Integer{1}, Integer{0}, Integer{0}, Integer{0}}) Write(constant);
  EndLine();
}

void JobTextWriter::Write(const std::string& value) {
  Separate();
  // Nothing is escaped: a quote inside ends the field early for every reader, which is wanted.
  text_ += '"';
  text_ += value;
  text_ += '"';
}

void JobTextWriter::Write(Integer value) { Write(static_cast<double>(value)); }

void JobTextWriter::Write(double value) {
  Separate();
  text_ += PlainText(value);
}

void JobTextWriter::Write(const TaggedField& value) {
  if (const auto* text = std::get_if<std::string>(&value.value())) {
    Write(*text);
  } else if (std::holds_alternative<std::monostate>(value.value())) {
    Separate();
  } else {
    Write(value.AsDouble());
  }
}

void JobTextWriter::Separate() {
  if (!atLineStart_) text_ += ',';
  atLineStart_ = false;
}

void JobTextWriter::EndLine() {
  text_ += kLineEnd;
  atLineStart_ = true;
}

}  // namespace halvane
