// What stops a job is told on its line, whatever it is, and the run goes on.
#include "reporter/failure.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace halvane {
namespace {

using Stopped = std::optional<ReportFailure>;

TEST(Failure, NothingIsToldWhereNothingStopped) {
  EXPECT_FALSE(Try([]() -> Stopped { return std::nullopt; }));
}

TEST(Failure, AFailureOfTheComputationHasItsKindAndSentence) {
  const Stopped failure =
      Try([]() -> Stopped { throw RuntimeFailure(FailureKind::Overflow, "8 hours"); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->kind, "Overflow");
  EXPECT_EQ(failure->message, "Overflow: 8 hours");
}

TEST(Failure, WantOfMemoryIsOneOfThem) {
  const Stopped failure = Try([]() -> Stopped { throw std::bad_alloc(); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->kind, "OutOfMemory");
}

TEST(Failure, WhatNobodyForesawDoesNotEndTheRun) {
  const Stopped failure = Try([]() -> Stopped { throw std::length_error("too long"); });
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->kind, "Unexpected");
  EXPECT_EQ(failure->message, "too long");
}

}  // namespace
}  // namespace halvane
