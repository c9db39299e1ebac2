#include "core/tagged_field.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct FieldRow {
  std::string_view label;
  TaggedField field;
  double number;
  std::string_view text;
  std::string_view oneDecimal;
};

TEST(TaggedField, CountsAndShowsAsWhatItHolds) {
  const std::vector<FieldRow> rows{
      {"empty", {}, 0, "", "0.0"},
      {"integer", Integer{-7}, -7, "-7", "-7.0"},
      {"double", 2.25, 2.25, "2.25", "2.3"},
      {"negative zero", -0.0, 0, "0", "0.0"},
      {"empty text", "", 0, "", "0.0"},
      {"number as text", "2.50", 2.5, "2.50", "2.5"},
      {"number and other text", " 3 min", 3, " 3 min", "3.0"},
      {"other text", "many", 0, "many", "0.0"},
  };
  for (const FieldRow& row : rows) {
    EXPECT_EQ(row.field.AsDouble(), row.number) << row.label;
    EXPECT_EQ(row.field.AsText(), row.text) << row.label;
    EXPECT_EQ(Format(row.field, Pattern::OneDecimal), row.oneDecimal) << row.label;
  }
}

TEST(TaggedField, KeepsTheKindOfWhatWasPutIn) {
  TaggedField field;
  EXPECT_TRUE(std::holds_alternative<std::monostate>(field.value()));
  field = Integer{3};
  EXPECT_EQ(std::get<Integer>(field.value()), 3);
  field = 3.0;
  EXPECT_EQ(std::get<double>(field.value()), 3.0);
  field = std::string_view("3");
  EXPECT_EQ(std::get<std::string>(field.value()), "3");
  field = std::string("4");
  EXPECT_EQ(std::get<std::string>(field.value()), "4");
}

TEST(TaggedField, EqualMeansSameKindAndContent) {
  EXPECT_EQ(TaggedField(Integer{3}), TaggedField(Integer{3}));
  EXPECT_NE(TaggedField(Integer{3}), TaggedField(3.0));
  EXPECT_NE(TaggedField(3.0), TaggedField("3"));
  EXPECT_NE(TaggedField(), TaggedField(""));
}

TEST(TaggedField, TextBeyondADoubleOverflowsWhenItCounts) {
  const TaggedField field = "1E999";
  EXPECT_EQ(field.AsText(), "1E999");
  EXPECT_EQ(FailureOf([&] { (void)field.AsDouble(); }), "Overflow");
  EXPECT_EQ(FailureOf([&] { Format(field, Pattern::Whole); }), "Overflow");
}

}  // namespace
}  // namespace halvane
