#include "core/job_text_encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace halvane {
namespace {

// The upper half of Windows-1252, sixteen bytes a row from 80 on. The five bytes without a letter
// are written as the control characters of their number.
constexpr std::array<std::string_view, 8> kUpperHalf{
    "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F",
    "\u0090‘’“”•–—˜™š›œ\u009DžŸ",
    "\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯",
    "°±²³´µ¶·¸¹º»¼½¾¿",
    "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ",
    "ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß",
    "àáâãäåæçèéêëìíîï",
    "ðñòóôõö÷øùúûüýþÿ",
};

/// Splits UTF-8 text into its characters.
std::vector<std::string> Characters(std::string_view text) {
  std::vector<std::string> characters;
  for (const char c : text) {
    if ((static_cast<unsigned char>(c) & 0xC0U) == 0x80U) {
      characters.back() += c;
    } else {
      characters.emplace_back(1, c);
    }
  }
  return characters;
}

TEST(JobTextEncoding, CharacterCutAtTheEndIsToldApart) {
  EXPECT_EQ(WholeCharacters(""), 0);
  EXPECT_EQ(WholeCharacters("abc"), 3);
  EXPECT_EQ(WholeCharacters("caf\xC3\xA9"), 5);
  EXPECT_EQ(WholeCharacters("caf\xC3"), 3);
  EXPECT_EQ(WholeCharacters("\xE2\x82"), 0);
  EXPECT_EQ(WholeCharacters("a\xE2"), 1);
  EXPECT_EQ(WholeCharacters("\xE2\x82\xAC"), 3);
  EXPECT_EQ(WholeCharacters("a\xF0\x9F\x98"), 1);
  EXPECT_EQ(WholeCharacters("a\xF0\x9F\x98\x80"), 5);
  // No character either way.
  EXPECT_EQ(WholeCharacters("\x80\x80\x80\x80"), 4);
}

TEST(JobTextEncoding, SizeOfTheCodePageInUtf8IsToldBefore) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes = std::string(1, static_cast<char>(byte)) + "\xFF";
    EXPECT_EQ(Utf8SizeOfWindows1252(bytes), DecodeJobText(bytes).size()) << byte;
  }
}

TEST(JobTextEncoding, EveryByteOfTheUpperHalfHasItsLetter) {
  for (std::size_t row = 0; row < kUpperHalf.size(); ++row) {
    const std::vector<std::string> letters = Characters(kUpperHalf[row]);
    ASSERT_EQ(letters.size(), 16U) << row;
    for (std::size_t column = 0; column < 16; ++column) {
      const std::string byte(1, static_cast<char>(0x80 + row * 16 + column));
      EXPECT_EQ(DecodeJobText(byte), letters[column]) << row << " " << column;
      EXPECT_EQ(EncodeJobText(letters[column]), byte) << row << " " << column;
    }
  }
}

TEST(JobTextEncoding, LowerHalfStaysAsItIs) {
  std::string ascii;
  for (int code = 0; code < 0x80; ++code) ascii += static_cast<char>(code);
  EXPECT_EQ(DecodeJobText(ascii), ascii);
  EXPECT_EQ(EncodeJobText(ascii), ascii);
  EXPECT_EQ(DecodeJobText(ascii + "\xFF"), ascii + "ÿ");
  EXPECT_EQ(EncodeJobText(ascii + "ÿ"), ascii + "\xFF");
}

TEST(JobTextEncoding, TextThatTheCodePageCannotHoldIsWrittenAsUtf8) {
  for (const std::string text : {"Łódź", "日本", "🔧", "café 日本", "ā", "\u0100", "\uFFFD"}) {
    EXPECT_EQ(EncodeJobText(text), text);
    EXPECT_EQ(DecodeJobText(EncodeJobText(text)), text);
  }
}

TEST(JobTextEncoding, TextWhoseBytesWouldPassForUtf8IsWrittenAsUtf8) {
  // In the code page these would be C3 A9 (another letter in UTF-8), C2 80 and E2 82 AC.
  for (const std::string text : {"Ã©", "Â€", "â‚¬"}) {
    EXPECT_EQ(EncodeJobText(text), text);
    EXPECT_EQ(DecodeJobText(EncodeJobText(text)), text);
  }
  // One more letter that no UTF-8 has at this place, and the code page serves again.
  EXPECT_EQ(EncodeJobText("Ã© é"), "\xC3\xA9 \xE9");
  EXPECT_EQ(DecodeJobText("\xC3\xA9 \xE9"), "Ã© é");
}

TEST(JobTextEncoding, BytesThatAreUtf8AreTakenAsSuch) {
  EXPECT_EQ(DecodeJobText("caf\xC3\xA9"), "café");
  EXPECT_EQ(DecodeJobText("caf\xE9"), "café");
  EXPECT_EQ(DecodeJobText(""), "");
}

struct Utf8Row {
  std::string_view label;
  std::string_view bytes;
  bool isUtf8;
};

TEST(JobTextEncoding, OnlyWellFormedBytesAreUtf8) {
  const std::array rows{
      Utf8Row{"empty", "", true},
      Utf8Row{"ASCII", "abc", true},
      Utf8Row{"first of two bytes", "\xC2\x80", true},
      Utf8Row{"last of two bytes", "\xDF\xBF", true},
      Utf8Row{"first of three bytes", "\xE0\xA0\x80", true},
      Utf8Row{"last below the surrogates", "\xED\x9F\xBF", true},
      Utf8Row{"first above the surrogates", "\xEE\x80\x80", true},
      Utf8Row{"last of three bytes", "\xEF\xBF\xBF", true},
      Utf8Row{"first of four bytes", "\xF0\x90\x80\x80", true},
      Utf8Row{"last character", "\xF4\x8F\xBF\xBF", true},
      Utf8Row{"continuation alone", "\x80", false},
      Utf8Row{"two bytes, longer than needed", "\xC0\xAF", false},
      Utf8Row{"two bytes, longer than needed, second lead", "\xC1\xBF", false},
      Utf8Row{"three bytes, longer than needed", "\xE0\x9F\xBF", false},
      Utf8Row{"four bytes, longer than needed", "\xF0\x8F\xBF\xBF", false},
      Utf8Row{"first surrogate", "\xED\xA0\x80", false},
      Utf8Row{"last surrogate", "\xED\xBF\xBF", false},
      Utf8Row{"beyond the last character", "\xF4\x90\x80\x80", false},
      Utf8Row{"lead byte that is none", "\xF5\x80\x80\x80", false},
      Utf8Row{"FE", "\xFE", false},
      Utf8Row{"cut after the lead", "a\xC3", false},
      Utf8Row{"cut in the middle", "\xE2\x82", false},
      Utf8Row{"lead and letter",
              "\xC3"
              "a",
              false},
      Utf8Row{"third byte no continuation",
              "\xE2\x82"
              "a",
              false},
  };
  for (const Utf8Row& row : rows) EXPECT_EQ(IsUtf8(row.bytes), row.isUtf8) << row.label;
}

TEST(JobTextEncoding, CharactersAreCountedNotBytes) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("abc"), 3U);
  EXPECT_EQ(CharacterCount("é日🔧"), 3U);
}

TEST(JobTextEncoding, AnyBytesGiveWellFormedTextThatSurvivesWritingAndReading) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
      const std::string text = DecodeJobText(bytes);
      ASSERT_TRUE(IsUtf8(text)) << first << " " << second;
      ASSERT_EQ(DecodeJobText(EncodeJobText(text)), text) << first << " " << second;
    }
  }
}

TEST(Utf8, CharactersAreAppendedInTheirShortestForm) {
  std::string text;
  for (const char32_t character :
       {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x1F600', U'\x10FFFF'}) {
    AppendUtf8(text, character);
    text += ' ';
  }
  EXPECT_EQ(text,
            "\x7F \xC2\x80 \xDF\xBF \xE0\xA0\x80 \xEF\xBF\xBF \xF0\x90\x80\x80 "
            "\xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF ");
}

}  // namespace
}  // namespace halvane
