#include "core/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

struct ReadRow {
  std::string_view label;
  std::string text;
  double number;
};

TEST(NumberText, ReadsTheLongestLeadingNumber) {
  const std::vector<ReadRow> rows{
      {"empty", "", 0},
      {"digits", "42", 42},
      {"leading zeros", "007", 7},
      {"decimals", "2.5", 2.5},
      {"no digit before the point", ".5", 0.5},
      {"no digit behind the point", "5.", 5},
      {"point alone", ".", 0},
      {"second point ends it", "1.2.3", 1.2},
      {"minus", "-3", -3},
      {"plus", "+3", 3},
      {"sign and point", "-.25", -0.25},
      {"sign alone", "-", 0},
      {"two signs", "--3", 0},
      {"blank behind the sign", "- 3", 0},
      {"blanks and tabs in front", " \t 3", 3},
      {"line end in front", "\n3", 0},
      {"text behind", "3 min", 3},
      {"blank inside ends it", "1 000", 1},
      {"comma ends it", "1,5", 1},
      {"letters", "abc", 0},
      {"letters before digits", "a1", 0},
      {"exponent", "1E3", 1000},
      {"small exponent letter", "1e3", 1000},
      {"negative exponent", "25E-1", 2.5},
      {"exponent with plus", "1E+2", 100},
      {"exponent without digits", "1E", 1},
      {"exponent with a sign alone", "1E+", 1},
      {"exponent alone", "E3", 0},
      {"point before the exponent", "1.E2", 100},
      {"fraction in the exponent", "1E2.5", 100},
      {"other exponent letter", "1D3", 1},
      {"hexadecimal", "0x10", 0},
      {"ampersand", "&H10", 0},
      {"infinity", "inf", 0},
      {"no number", "nan", 0},
      {"too small for a double", "1e-400", 0},
      {"far too small for a double", "1e-99999999999999999999", 0},
      {"many zeros, then too small", "0." + std::string(400, '0') + "1", 0},
      {"zero with a huge exponent", "0e99999", 0},
      {"zero with an exponent beyond any number", "0.0E99999999999999999999", 0},
      {"least double", "4.94065645841247E-324", kLeast},
      {"largest double", "1.7976931348623157E+308", kLargest},
  };
  for (const ReadRow& row : rows) EXPECT_EQ(ReadsAs(row.text), row.number) << row.label;
}

TEST(NumberText, NumberBeyondADoubleOverflows) {
  const std::string digits(400, '9');
  for (const std::string_view text :
       {std::string_view("1E309"), std::string_view("-1E309"), std::string_view("1e400 min"),
        std::string_view("1.8E308"), std::string_view("1E99999999999999999999"),
        std::string_view("0.001E+312"), std::string_view(digits)}) {
    EXPECT_EQ(FailureOf([text] { ReadsAs(text); }), "Overflow") << text;
    EXPECT_EQ(FailureOf([text] { WholeTextAsNumber(text); }),
              text == "1e400 min" ? "none" : "Overflow")
        << text;
  }
}

TEST(NumberText, WholeTextIsANumberWithBlanksAroundIt) {
  EXPECT_EQ(WholeTextAsNumber("3"), 3);
  EXPECT_EQ(WholeTextAsNumber(" \t-3.5E1"), -35);
  EXPECT_EQ(WholeTextAsNumber("3 \t"), 3);
  EXPECT_EQ(WholeTextAsNumber("+.5"), 0.5);
}

TEST(NumberText, OtherTextAroundANumberIsNoNumber) {
  for (const std::string_view text :
       {"", " ", "\t", "abc", "3 min", "1E", "1.2.3", "1 000", "0x10", "inf", "-", ".", "3\r"}) {
    EXPECT_EQ(WholeTextAsNumber(text), std::nullopt) << "[" << text << "]";
  }
}

struct PlainRow {
  std::string_view label;
  double value;
  std::string_view text;
};

TEST(NumberText, PlainTextHasUpToFifteenDigits) {
  const std::vector<PlainRow> rows{
      {"zero", 0, "0"},
      {"negative zero", -0.0, "0"},
      {"whole", 8, "8"},
      {"negative", -32768, "-32768"},
      {"zero before the point", 0.5, "0.5"},
      {"negative fraction", -0.5, "-0.5"},
      {"no trailing point", 2.0, "2"},
      {"a tenth", 0.1, "0.1"},
      {"sum that is no tenth", 0.1 + 0.2, "0.3"},
      {"a third", 1.0 / 3, "0.333333333333333"},
      {"two thirds", 2.0 / 3, "0.666666666666667"},
      {"last without exponent below", 1E-4, "0.0001"},
      {"first exponent below", 9.99E-5, "9.99E-05"},
      {"two exponent digits", 1E-5, "1E-05"},
      {"three exponent digits", 1E-100, "1E-100"},
      {"last without exponent above", 999999999999999.0, "999999999999999"},
      {"first exponent above", 1E15, "1E+15"},
      {"digits and exponent", 1.5E20, "1.5E+20"},
      {"rounds up to the exponent form", 999999999999999.9, "1E+15"},
      {"least double", kLeast, "4.94065645841247E-324"},
      {"largest double", kLargest, "1.79769313486231E+308"},
      {"largest negative double", -kLargest, "-1.79769313486231E+308"},
  };
  for (const PlainRow& row : rows) {
    EXPECT_EQ(PlainText(row.value), row.text) << row.label;
    EXPECT_EQ(PlainText(ReadsAs(row.text)), row.text) << row.label << ", read back";
  }
}

struct FormatRow {
  std::string_view label;
  double value;
  std::string_view whole;
  std::string_view oneDecimal;
  std::string_view twoDecimals;
};

TEST(NumberText, FormatsRoundHalfAwayFromZero) {
  const std::vector<FormatRow> rows{
      {"zero", 0, "0", "0.0", "0.00"},
      {"negative zero", -0.0, "0", "0.0", "0.00"},
      {"whole", 3, "3", "3.0", "3.00"},
      {"negative", -3, "-3", "-3.0", "-3.00"},
      {"quarter", 0.25, "0", "0.3", "0.25"},
      {"negative quarter", -0.25, "0", "-0.3", "-0.25"},
      {"half", 0.5, "1", "0.5", "0.50"},
      {"negative half", -0.5, "-1", "-0.5", "-0.50"},
      {"one and a half", 1.5, "2", "1.5", "1.50"},
      {"two and a half", 2.5, "3", "2.5", "2.50"},
      {"a double just below its text", 1.005, "1", "1.0", "1.01"},
      {"the same at one decimal", 0.15, "0", "0.2", "0.15"},
      {"below a half", 0.49, "0", "0.5", "0.49"},
      {"carry", 0.999, "1", "1.0", "1.00"},
      {"carry into a new digit", 9.96, "10", "10.0", "9.96"},
      {"carry through nines", 99.999, "100", "100.0", "100.00"},
      {"below the last place", 0.004, "0", "0.0", "0.00"},
      {"negative below the last place", -0.004, "0", "0.0", "0.00"},
      {"half of the last place", 0.005, "0", "0.0", "0.01"},
      {"negative half of the last place", -0.005, "0", "0.0", "-0.01"},
      {"a tenth of the last place", 0.0005, "0", "0.0", "0.00"},
      {"cut on fifteen digits", 0.4999999999999999, "1", "0.5", "0.50"},
      {"fourteen nines stay below", 0.49999999999999, "0", "0.5", "0.50"},
      {"tiny", kLeast, "0", "0.0", "0.00"},
      {"fifteen digits", 123456789012345.0, "123456789012345", "123456789012345.0",
       "123456789012345.00"},
      {"fourteen digits and a decimal", 12345678901234.5, "12345678901235", "12345678901234.5",
       "12345678901234.50"},
      {"sixteenth digit is cut", 1234567890123456.0, "1234567890123460", "1234567890123460.0",
       "1234567890123460.00"},
      {"exponent range", 1E15, "1000000000000000", "1000000000000000.0", "1000000000000000.00"},
      {"twenty digits", -1.5E20, "-150000000000000000000", "-150000000000000000000.0",
       "-150000000000000000000.00"},
  };
  for (const FormatRow& row : rows) {
    EXPECT_EQ(Format(row.value, Pattern::Whole), row.whole) << row.label;
    EXPECT_EQ(Format(row.value, Pattern::OneDecimal), row.oneDecimal) << row.label;
    EXPECT_EQ(Format(row.value, Pattern::TwoDecimals), row.twoDecimals) << row.label;
  }
}

TEST(NumberText, LargestDoubleFormatsAsItsFifteenDigitsAndZeros) {
  const std::string digits = "179769313486232" + std::string(294, '0');
  EXPECT_EQ(Format(kLargest, Pattern::Whole), digits);
  EXPECT_EQ(Format(-kLargest, Pattern::TwoDecimals), "-" + digits + ".00");
}

TEST(NumberText, SeparatorIsThePointInEveryLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "C"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    EXPECT_EQ(ReadsAs("2.5"), 2.5) << locale;
    EXPECT_EQ(ReadsAs("2,5"), 2) << locale;
    EXPECT_EQ(PlainText(2.5), "2.5") << locale;
    EXPECT_EQ(Format(1234.5, Pattern::OneDecimal), "1234.5") << locale;
  }
  std::setlocale(LC_ALL, before.c_str());
}

TEST(NumberText, WholeNumberReadsAsItsDouble) {
  for (const int value : {0, 7, -1, 40, 32767, -32768, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(PlainText(value), PlainText(static_cast<double>(value)));
  }
  EXPECT_EQ(PlainText(-32768), "-32768");
}

TEST(TypedNumber, ReadsAsTextDoesAndGivesZeroBeyondADouble) {
  EXPECT_EQ(TypedNumber(" 2.5 min"), 2.5);
  EXPECT_EQ(TypedNumber("abc"), 0);
  EXPECT_EQ(TypedNumber("1e308"), 1e308);
  EXPECT_EQ(TypedNumber("1e309"), 0);
  EXPECT_EQ(TypedNumber("-1e400"), 0);
}

}  // namespace
}  // namespace halvane
