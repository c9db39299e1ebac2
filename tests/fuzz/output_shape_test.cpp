#include "tests/fuzz/output_shape.h"

#include <gtest/gtest.h>

namespace halvane {
namespace {

TEST(OutputShape, LinesOfJsonAreTakenAndWhatIsNoneIsNot) {
  for (const char* good :
       {"", "{}\n",
        "{\"a\":[1,-0.5,2e-3,true,null,\"\\u00e9\\n\"],\"b\":{}}\n{\"c\":\"\xC3\xA9\"}\n"}) {
    EXPECT_EQ(JsonLinesProblem(good), "") << good;
  }
  for (const char* bad :
       {"{}", "[]\n", "{}{}\n", "{\"a\":1,}\n", "{\"a\":01}\n", "{\"a\":.5}\n", "{\"a\":nan}\n",
        "{\"a\":\"\t\"}\n", "{\"a\":\"\\x41\"}\n", "{\"a\":\"\\u00g1\"}\n", "{\"a\":\"b\"c\"}\n",
        "{\"a\":\"\\\"}\n", "{\"a\":[1}\n", "{\"a\":\"\xFF\"}\n", "{a:1}\n", "{\"a\":1e}\n"}) {
    EXPECT_NE(JsonLinesProblem(bad), "") << bad;
  }
}

TEST(OutputShape, RecordsOfATableHaveTheirFields) {
  for (const char* good :
       {"", "a,b\r\n1,2\r\n", "a,b\r\n\"1,\"\"x\"\"\r\n\",\r\n", "a\r\n\"\"\r\n"}) {
    EXPECT_EQ(CsvProblem(good), "") << good;
  }
  for (const char* bad : {"a,b\r\n1\r\n", "a,b\n1,2\n", "a,b\r\n1,2", "a,b\r\n1,x\"y\r\n",
                          "a,b\r\n\"1\"2,3\r\n", "a,b\r\n\"1,2\r\n", "a\r\n\xFF\r\n"}) {
    EXPECT_NE(CsvProblem(bad), "") << bad;
  }
}

TEST(OutputShape, NothingButLineEndsSteersATerminal) {
  EXPECT_EQ(TerminalProblem("one\ntwo \xC3\xA9\n"), "");
  for (const char* bad : {"a\rb", "a\tb", "\x1B[2J", "\x7F", "\xC3"}) {
    EXPECT_NE(TerminalProblem(bad), "") << bad;
  }
}

TEST(OutputShape, TagsAreFoundWithAllThatStandsInThem) {
  EXPECT_EQ(TagsOf("<p class=\"a\">1 &lt; 2<br></p> x"), "<p class=\"a\">\n<br>\n</p>\n");
  EXPECT_EQ(TagsOf("no tag"), "");
  EXPECT_EQ(TagsOf("not closed <b"), "<b\n");
}

}  // namespace
}  // namespace halvane
