#include "core/job_text_reader.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

template <typename T>
T ReadOne(std::string_view text) {
  T value{};
  JobTextReader(text).Line(Named("Field", value));
  return value;
}

/// The failure of reading one field of kind T, nothing where it reads.
template <typename T>
std::optional<JobReadFailure> FailureIn(std::string_view text) {
  try {
    ReadOne<T>(text);
  } catch (const JobReadFailure& failure) {
    return failure;
  }
  return std::nullopt;
}

template <typename T>
std::string KindIn(std::string_view text) {
  const auto failure = FailureIn<T>(text);
  return failure ? std::string(KindName(failure->kind())) : "none";
}

TEST(JobTextReader, TextIsWhatStandsBetweenQuotesOrUpToTheSeparator) {
  EXPECT_EQ(ReadOne<std::string>("\"a, b\",2"), "a, b");
  EXPECT_EQ(ReadOne<std::string>(" \t\"a\"\r\n"), "a");
  EXPECT_EQ(ReadOne<std::string>("\"\""), "");
  EXPECT_EQ(ReadOne<std::string>("\"two\r\nlines\""), "two\r\nlines");
  EXPECT_EQ(ReadOne<std::string>(" plain text ,2"), "plain text ");
  EXPECT_EQ(ReadOne<std::string>("a \"b\" c\n"), "a \"b\" c");
  EXPECT_EQ(ReadOne<std::string>(",x"), "");
  EXPECT_EQ(ReadOne<std::string>("12.5"), "12.5");
  EXPECT_EQ(ReadOne<std::string>("\"never closed, 3\r\n4"), "never closed, 3\r\n4");
  EXPECT_EQ(ReadOne<std::string>("\""), "");
}

TEST(JobTextReader, NumberIsReadWithOrWithoutQuotes) {
  EXPECT_EQ(ReadOne<double>(".5"), 0.5);
  EXPECT_EQ(ReadOne<double>("0.5"), 0.5);
  EXPECT_EQ(ReadOne<double>(" -1.5E+2 \t,"), -150);
  EXPECT_EQ(ReadOne<double>("\" 2.5 \""), 2.5);
  EXPECT_EQ(ReadOne<double>(","), 0);
  EXPECT_EQ(ReadOne<double>("\r\n"), 0);
  EXPECT_EQ(ReadOne<double>("\"\""), 0);
  EXPECT_EQ(ReadOne<double>("\"  \""), 0);
  EXPECT_EQ(ReadOne<double>("1E-400"), 0);
}

TEST(JobTextReader, IntegerIsRoundedHalfToEven) {
  EXPECT_EQ(ReadOne<Integer>("2.5"), 2);
  EXPECT_EQ(ReadOne<Integer>("3.5"), 4);
  EXPECT_EQ(ReadOne<Integer>("-0.5"), 0);
  EXPECT_EQ(ReadOne<Integer>("32767.4"), 32767);
  EXPECT_EQ(ReadOne<Integer>("-32768"), -32768);
  EXPECT_EQ(ReadOne<Integer>("\"12\""), 12);
  EXPECT_EQ(ReadOne<Integer>(""
                             "\n"),
            0);
}

TEST(JobTextReader, NumberOutOfSixteenBitsOverflows) {
  for (const std::string_view text : {"32768", "-32769", "32767.5", "1E9", "\"32768\"", "1E999"}) {
    EXPECT_EQ(KindIn<Integer>(text), "Overflow") << text;
  }
  EXPECT_EQ(KindIn<double>("1E309"), "Overflow");
  EXPECT_EQ(KindIn<TaggedField>("1E309"), "Overflow");
  EXPECT_EQ(KindIn<TaggedField>("\"1E309\""), "none");
}

TEST(JobTextReader, OtherTextInANumberIsAMismatch) {
  for (const std::string_view text : {"abc", "3 min", "\"3 min\"", "1E", "0x10", "1 2", "-"}) {
    EXPECT_EQ(KindIn<Integer>(text), "TypeMismatch") << text;
    EXPECT_EQ(KindIn<double>(text), "TypeMismatch") << text;
    EXPECT_EQ(KindIn<TaggedField>(text), "none") << text;
    EXPECT_EQ(KindIn<std::string>(text), "none") << text;
  }
}

struct TaggedRow {
  std::string_view text;
  TaggedField field;
};

TEST(JobTextReader, TaggedFieldTakesTheKindOfTheText) {
  const std::vector<TaggedRow> rows{
      {",", {}},
      {"\r\n", {}},
      {"  ,", {}},
      {"\"\"", ""},
      {"\"12\"", "12"},
      {"\" a \"", " a "},
      {"12", Integer{12}},
      {"-12 ", Integer{-12}},
      {"+12", Integer{12}},
      {"007", Integer{7}},
      {"-0", Integer{0}},
      {"32767", Integer{32767}},
      {"-32768", Integer{-32768}},
      {"32768", 32768.0},
      {"-32769", -32769.0},
      {"12.0", 12.0},
      {"12.", 12.0},
      {".5", 0.5},
      {"1E2", 100.0},
      {"1e2", 100.0},
      {"12 parts", "12 parts"},
      {"plain ", "plain "},
  };
  for (const TaggedRow& row : rows)
    EXPECT_EQ(ReadOne<TaggedField>(row.text), row.field) << row.text;
}

TEST(JobTextReader, EndOfTheTextWhereAFieldShouldStartFailsForEveryKind) {
  for (const std::string_view text : {"", " ", "\t \t"}) {
    EXPECT_EQ(KindIn<std::string>(text), "InputPastEnd");
    EXPECT_EQ(KindIn<Integer>(text), "InputPastEnd");
    EXPECT_EQ(KindIn<double>(text), "InputPastEnd");
    EXPECT_EQ(KindIn<TaggedField>(text), "InputPastEnd");
  }
}

std::vector<std::string> FieldsOf(std::string_view text) {
  JobTextReader reader(text);
  std::vector<std::string> fields;
  try {
    for (;;) {
      std::string field;
      reader.Line(Named("Field", field));
      fields.push_back(field);
    }
  } catch (const JobReadFailure& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::InputPastEnd);
  }
  return fields;
}

TEST(JobTextReader, LineEndsAndCommasSeparateAlike) {
  using Fields = std::vector<std::string>;
  EXPECT_EQ(FieldsOf("a,b"), (Fields{"a", "b"}));
  EXPECT_EQ(FieldsOf("a\r\nb\r\n"), (Fields{"a", "b"}));
  EXPECT_EQ(FieldsOf("a\nb\n"), (Fields{"a", "b"}));
  EXPECT_EQ(FieldsOf("a\rb\r"), (Fields{"a", "b"}));
  EXPECT_EQ(FieldsOf("a\n\rb"), (Fields{"a", "", "b"}));
  EXPECT_EQ(FieldsOf("a\r\n\r\nb"), (Fields{"a", "", "b"}));
  EXPECT_EQ(FieldsOf("\r\r"), (Fields{"", ""}));
  EXPECT_EQ(FieldsOf("a,\r\nb"), (Fields{"a", "", "b"}));
  EXPECT_EQ(FieldsOf("\"a\" \t,b"), (Fields{"a", "b"}));
  EXPECT_EQ(FieldsOf("\"a\"\r\nb"), (Fields{"a", "b"}));
  // What follows a closing quote goes up to the next separator.
  EXPECT_EQ(FieldsOf("\"6\" wide, 2\" deep\",b"), (Fields{"6", "2\" deep\"", "b"}));
  EXPECT_EQ(FieldsOf("\"a \"big\" job\",b"), (Fields{"a ", "b"}));
}

TEST(JobTextReader, FailureTellsLineFieldAndWhatStoodThere) {
  std::string text = "\"two\r\nlines\",1\r2\n";
  std::string first;
  Integer second = 0;
  Integer third = 0;
  Integer wrong = 77;
  Integer never = 78;
  text += "3,seven,5\r\n";
  JobTextReader reader(text);
  reader.Line(Named("First", first), Named("Second", second));
  reader.Line(Named("Third", third));
  try {
    reader.Line(Named("Third", third), Named("Wrong", wrong, 4, 2), Named("Never", never));
    FAIL() << "read";
  } catch (const JobReadFailure& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.line(), 4);
    EXPECT_EQ(failure.field(), "Wrong(4, 2)");
    EXPECT_EQ(failure.found(), "seven");
    EXPECT_STREQ(failure.what(), "Type mismatch: line 4, field Wrong(4, 2): \"seven\"");
  }
  EXPECT_EQ(third, 3);
  EXPECT_EQ(wrong, 77);
  EXPECT_EQ(never, 78);
}

TEST(JobTextReader, FailureAtTheEndTellsTheLineAndTheField) {
  const auto failure = FailureIn<double>("");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->line(), 1);
  EXPECT_EQ(failure->field(), "Field");
  EXPECT_EQ(failure->found(), "");
  EXPECT_STREQ(failure->what(), "Input past end of file: line 1, field Field");
}

TEST(JobTextReader, LongTextIsCutAtACharacterInTheMessageAlone) {
  const std::string letters = std::string(39, 'x') + "éééé";
  const auto failure = FailureIn<double>(letters);
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->found(), letters);
  EXPECT_EQ(failure->what(),
            "Type mismatch: line 1, field Field: \"" + std::string(39, 'x') + "...\"");
}

TEST(JobTextReader, MarkerIsTheExactText) {
  EXPECT_TRUE(JobTextReader("\"qjt\",1,0,0,0\r\n").ReadMarkerLine());
  EXPECT_TRUE(JobTextReader("qjt\n9\n9\nx\n\n").ReadMarkerLine());
  for (const std::string_view text : {"\"QJT\",1,0,0,0", "\"qjt \",1,0,0,0", "\" qjt\",1,0,0,0",
                                      "1,1,0,0,0", ",1,0,0,0", "\"qjtx\",1,0,0,0"}) {
    EXPECT_FALSE(JobTextReader(text).ReadMarkerLine()) << text;
  }
}

TEST(JobTextReader, MarkerLineHasFiveFieldsOfAnyKind) {
  Integer next = 0;
  const std::string text = "qjt,,\"x\",2.5,text\r\n42";
  JobTextReader reader(text);
  EXPECT_TRUE(reader.ReadMarkerLine());
  reader.Line(Named("Next", next));
  EXPECT_EQ(next, 42);
  EXPECT_EQ(FailureOf([] { JobTextReader("\"qjt\",1,0,0").ReadMarkerLine(); }), "InputPastEnd");
}

TEST(JobTextReader, FieldNamesShowTheirSubscripts) {
  EXPECT_EQ((FieldName{"Hand"}).text(), "Hand");
  EXPECT_EQ((FieldName{"TaskNames", 2}).text(), "TaskNames(2)");
  EXPECT_EQ((FieldName{"CtdLoadHeld", 2, 0}).text(), "CtdLoadHeld(2, 0)");
}

}  // namespace
}  // namespace halvane
