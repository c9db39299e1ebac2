// Captions and messages that the help pages quote are in the program, letter by letter.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "expected_tables.h"
#include "help_pages.h"

namespace halvane {
namespace {

namespace fs = std::filesystem;

/// The string literals of a source; neighbours are one literal, as for the compiler.
std::vector<std::string> LiteralsOf(const std::string& source) {
  std::vector<std::string> literals;
  bool joined = false;
  for (std::size_t at = 0; at < source.size(); ++at) {
    if (source.compare(at, 2, "//") == 0) {
      at = source.find('\n', at);
      if (at == std::string::npos) break;
    } else if (source.compare(at, 3, "'\"'") == 0) {
      at += 2;
    } else if (source[at] == '"') {
      if (!joined) literals.emplace_back();
      for (++at; at < source.size() && source[at] != '"'; ++at) {
        if (source[at] == '\\') ++at;
        literals.back() += source[at];
      }
      joined = true;
      continue;
    }
    if (source[at] != ' ' && source[at] != '\n') joined = false;
  }
  return literals;
}

std::vector<std::string> ProgramLiterals() {
  std::vector<std::string> all;
  for (const char* folder : {"core", "tools", "shell"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(std::string(HALVANE_SOURCE_DIR) + "/" + folder)) {
      const fs::path extension = entry.path().extension();
      if (extension != ".cpp" && extension != ".h") continue;
      for (std::string& literal : LiteralsOf(BytesOfFile(entry.path().string()))) {
        all.push_back(std::move(literal));
      }
    }
  }
  return all;
}

const std::vector<std::string>& Literals() {
  static const std::vector<std::string> literals = ProgramLiterals();
  return literals;
}

TEST(HelpQuotations, LiteralsOfASourceAreFound) {
  const std::string source =
      "f(\"one\", '\"', \"two \"\n   \"halves\"); // \"none\"\ng(\"a \\\"b\\\"\");";
  EXPECT_EQ(LiteralsOf(source), (std::vector<std::string>{"one", "two halves", "a \"b\""}));
}

TEST(HelpQuotations, EveryCaptionIsOneOfTheProgram) {
  std::set<std::string> captions;
  for (std::string literal : Literals()) {
    // The letter behind an ampersand is the key of the command.
    std::erase(literal, '&');
    captions.insert(Simplified(literal));
  }
  for (const HelpPage& page : HelpPages()) {
    for (const std::string& caption : page.captions) {
      EXPECT_TRUE(captions.contains(caption)) << page.file << ": " << caption;
    }
  }
}

TEST(HelpQuotations, EveryQuotedTextIsWrittenByTheProgram) {
  for (const HelpPage& page : HelpPages()) {
    for (const std::string& quotation : page.quotations) {
      EXPECT_FALSE(quotation.empty()) << page.file;
      EXPECT_TRUE(std::ranges::any_of(Literals(),
                                      [&](const std::string& literal) {
                                        return Simplified(literal).find(quotation) !=
                                               std::string::npos;
                                      }))
          << page.file << ": " << quotation;
    }
  }
}

}  // namespace
}  // namespace halvane
