#include "core/wide_text_windows.h"

#include <gtest/gtest.h>

#include <string>

namespace halvane {
namespace {

TEST(WideTextTest, EveryCharacterComesBack) {
  EXPECT_EQ(WideText("caf\u00e9 \u65e5 \U0001F527"), L"caf\u00e9 \u65e5 \U0001F527");
  EXPECT_EQ(Utf8Text(L"caf\u00e9 \u65e5 \U0001F527"), "caf\u00e9 \u65e5 \U0001F527");
  EXPECT_EQ(WideText(""), L"");
  EXPECT_EQ(Utf8Text(L""), "");
}

TEST(WideTextTest, WhatIsNoTextIsReplaced) {
  EXPECT_EQ(WideText("a\xFFz"), L"a\uFFFDz");
  const std::wstring half = {L'a', static_cast<wchar_t>(0xD83D), L'z'};
  EXPECT_EQ(Utf8Text(half), "a\uFFFDz");
}

TEST(WidePathTest, IsFromTheRootAndMayBeLong) {
  EXPECT_EQ(WidePath("C:\\jobs\\line.qjt"), L"\\\\?\\C:\\jobs\\line.qjt");
  EXPECT_EQ(WidePath("C:/jobs/old/../line.qjt"), L"\\\\?\\C:\\jobs\\line.qjt");
  EXPECT_EQ(WidePath("\\\\server\\share\\line.qjt"), L"\\\\?\\UNC\\server\\share\\line.qjt");
  EXPECT_EQ(WidePath("\\\\?\\C:\\line.qjt"), L"\\\\?\\C:\\line.qjt");
  EXPECT_TRUE(WidePath("line.qjt").starts_with(L"\\\\?\\"));
  EXPECT_TRUE(WidePath("line.qjt").ends_with(L"\\line.qjt"));
  const std::string name(400, 'x');
  EXPECT_EQ(WidePath("C:\\" + name), L"\\\\?\\C:\\" + std::wstring(400, L'x'));
}

TEST(WidePathTest, DeviceAndNothingStayWhatTheyAre) {
  EXPECT_EQ(WidePath("NUL"), L"\\\\.\\NUL");
  EXPECT_EQ(WidePath("\\\\.\\pipe\\halvane"), L"\\\\.\\pipe\\halvane");
  EXPECT_EQ(WidePath(""), L"");
}

TEST(Utf8PathTest, IsAsUsersKnowIt) {
  EXPECT_EQ(Utf8Path(L"\\\\?\\C:\\jobs\\\u65e5.qjt"), "C:\\jobs\\\u65e5.qjt");
  EXPECT_EQ(Utf8Path(L"\\\\?\\UNC\\server\\share\\line.qjt"), "\\\\server\\share\\line.qjt");
  EXPECT_EQ(Utf8Path(L"C:\\line.qjt"), "C:\\line.qjt");
}

}  // namespace
}  // namespace halvane
