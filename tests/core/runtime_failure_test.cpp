#include "core/runtime_failure.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace halvane {
namespace {

struct KindRow {
  FailureKind kind;
  std::string_view name;
  std::string_view message;
};

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

TEST(RuntimeFailure, EachKindHasItsNameAndSentence) {
  for (const KindRow& row : kKinds) {
    EXPECT_EQ(KindName(row.kind), row.name);
    const RuntimeFailure plain(row.kind);
    EXPECT_EQ(plain.kind(), row.kind) << row.name;
    EXPECT_EQ(plain.what(), row.message) << row.name;
    const RuntimeFailure detailed(row.kind, "line 3");
    EXPECT_EQ(detailed.kind(), row.kind) << row.name;
    EXPECT_EQ(detailed.what(), std::string(row.message) + ": line 3") << row.name;
  }
}

}  // namespace
}  // namespace halvane
