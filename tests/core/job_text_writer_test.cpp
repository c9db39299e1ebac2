#include "core/job_text_writer.h"

#include <gtest/gtest.h>

namespace halvane {
namespace {

TEST(JobTextWriter, FirstLineIsTheMarkerAndItsConstants) {
  JobTextWriter writer;
  EXPECT_EQ(writer.text(), "");
  writer.HeaderLine();
  EXPECT_EQ(writer.text(), "\"qjt\",1,0,0,0\r\n");
}

TEST(JobTextWriter, EachKindIsWrittenInItsWay) {
  std::string text = "a";
  Integer integer = -3;
  double number = 2.5;
  TaggedField empty;
  TaggedField taggedText = "7";
  TaggedField taggedInteger = Integer{7};
  TaggedField taggedDouble = 1.5E20;
  JobTextWriter writer;
  writer.Line(Named("", text), Named("", integer), Named("", number), Named("", empty),
              Named("", taggedText), Named("", taggedInteger), Named("", taggedDouble),
              Named("", empty));
  writer.Line(Named("", empty));
  writer.Line(Named("", empty), Named("", empty));
  EXPECT_EQ(writer.text(), "\"a\",-3,2.5,,\"7\",7,1.5E+20,\r\n\r\n,\r\n");
}

TEST(JobTextWriter, TextsStandBetweenQuotesAsTheyAre) {
  std::string quote = "6\" wide";
  TaggedField lines = "a\r\nb, \"c\"";
  JobTextWriter writer;
  writer.Line(Named("", quote), Named("", lines));
  EXPECT_EQ(writer.text(), "\"6\" wide\",\"a\r\nb, \"c\"\"\r\n");
}

}  // namespace
}  // namespace halvane
