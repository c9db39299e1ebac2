#include "platform/registry.h"

#include <gtest/gtest.h>

#include "tests/support/form_support.h"
#include "tests/support/made_up_registry.h"

namespace halvane {
namespace {

const std::string kKey = "SOFTWARE\\Maker";

/// Reads the value "Name" of a registry that has just this one; `text` starts as "before".
struct Reading {
  explicit Reading(const RegistryValue& value) {
    registry.Put(kKey, "Name", value);
    Read("Name");
  }
  void Read(const QString& name, const QString& key = QString::fromStdString(kKey)) {
    text = "before";
    success = GetKeyValue(registry, RegistryRoot::LocalMachine, key, name, text);
  }

  MadeUpRegistry registry;
  QString text;
  bool success = false;
};

std::string Bytes(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

struct ValueRow {
  const char* label;
  RegistryValue value;
  const char* text;
};

TEST(RegistryValues, AreReadByTheirKind) {
  const std::vector<ValueRow> rows{
      {"string", {1, std::string("C:\\Viewer.exe\0", 14)}, "C:\\Viewer.exe"},
      {"string that fills its bytes", {1, "C:\\Viewer.exe"}, "C:\\Viewer.exe"},
      {"string with more behind its zero", {1, std::string("one\0two\0", 8)}, "one"},
      {"empty string", {1, ""}, ""},
      {"string beyond ASCII", {1, "C:\\Stra\u00dfe"}, "C:\\Stra\u00dfe"},
      {"small number", {4, Bytes({5, 0, 0, 0})}, "5"},
      {"number of two bytes", {4, Bytes({0x10, 0x02, 0, 0})}, "528"},
      {"bytes count from last to first", {4, Bytes({4, 3, 2, 1})}, "16909060"},
      {"a byte below 16 has two digits", {4, Bytes({0x0A, 0x01, 0x0B, 0x01})}, "17498378"},
      {"largest number", {4, Bytes({0xFF, 0xFF, 0xFF, 0xFF})}, "4294967295"},
      {"zero", {4, Bytes({0, 0, 0, 0})}, "0"},
      {"number cut at its lowest byte", {4, Bytes({0, 1, 0, 0})}, "0"},
      {"number cut at its second byte", {4, Bytes({7, 0, 1, 0})}, "7"},
      {"string with names to expand", {2, "%TEMP%"}, "before"},
      {"binary", {3, Bytes({1, 2})}, "before"},
      {"many strings", {7, "a"}, "before"},
  };
  for (const ValueRow& row : rows) {
    const Reading reading(row.value);
    EXPECT_TRUE(reading.success) << row.label;
    EXPECT_EQ(reading.text, row.text) << row.label;
  }
}

TEST(RegistryValues, ReadingOpensQueriesAndCloses) {
  const Reading reading({1, "text"});
  EXPECT_EQ(reading.registry.calls(),
            (QStringList{"open SOFTWARE\\Maker 131135", "query Name 1024", "close"}));
}

TEST(RegistryValues, MissingKeyGivesAnEmptyTextAndFalse) {
  Reading reading({1, "text"});
  reading.Read("Name", "SOFTWARE\\Other");
  EXPECT_FALSE(reading.success);
  EXPECT_EQ(reading.text, "");
}

TEST(RegistryValues, MissingValueGivesAnEmptyTextAndFalseAndClosesItsKey) {
  Reading reading({1, "text"});
  reading.Read("Other");
  EXPECT_FALSE(reading.success);
  EXPECT_EQ(reading.text, "");
  EXPECT_EQ(reading.registry.calls().last(), "close");
}

TEST(RegistryValues, FitIntoABufferOf1024Characters) {
  const Reading fits({1, std::string(1024, 'a')});
  EXPECT_TRUE(fits.success);
  EXPECT_EQ(fits.text, QString(1024, 'a'));
  const Reading tooLong({1, std::string(1025, 'a')});
  EXPECT_FALSE(tooLong.success);
  EXPECT_EQ(tooLong.text, "");
}

TEST(RegistryValues, DoubleWordThatIsLongerOverflowsAndClosesItsKey) {
  Reading reading({1, "text"});
  reading.registry.Put(kKey, "Long", {4, Bytes({1, 2, 3, 4, 5})});
  EXPECT_EQ(FailureOf([&] { reading.Read("Long"); }), "Overflow");
  EXPECT_EQ(reading.registry.calls().last(), "close");
}

}  // namespace
}  // namespace halvane
