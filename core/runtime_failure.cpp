#include "core/runtime_failure.h"

#include <array>
#include <cstddef>

namespace halvane {
namespace {

struct KindRow {
  FailureKind kind;
  std::string_view name;
  std::string_view sentence;
};

// In the order of the enumeration, so that a kind is its row's number.
constexpr std::array kKinds{
    KindRow{FailureKind::SubscriptOutOfRange, "SubscriptOutOfRange", "Subscript out of range"},
    KindRow{FailureKind::Overflow, "Overflow", "Overflow"},
    KindRow{FailureKind::DivisionByZero, "DivisionByZero", "Division by zero"},
    KindRow{FailureKind::InvalidCall, "InvalidCall", "Invalid call"},
    KindRow{FailureKind::TypeMismatch, "TypeMismatch", "Type mismatch"},
    KindRow{FailureKind::InputPastEnd, "InputPastEnd", "Input past end of file"},
    KindRow{FailureKind::FileAlreadyOpen, "FileAlreadyOpen", "File already open"},
    KindRow{FailureKind::FileError, "FileError", "File error"},
    KindRow{FailureKind::OutOfMemory, "OutOfMemory", "Out of memory"},
};

const KindRow& RowOf(FailureKind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

}  // namespace

std::string_view KindName(FailureKind kind) { return RowOf(kind).name; }

RuntimeFailure::RuntimeFailure(FailureKind kind)
    : std::runtime_error(std::string(RowOf(kind).sentence)), kind_(kind) {}

RuntimeFailure::RuntimeFailure(FailureKind kind, const std::string& detail)
    : std::runtime_error(std::string(RowOf(kind).sentence) + ": " + detail), kind_(kind) {}

}  // namespace halvane
