// Compares a compiled help file with the folder it was made from:
// verify_help_file FILE.chm FOLDER. Exit status 1, with a line for each difference, when a file of
// the folder is missing or differs, or when the description or the contents cannot be read.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>

#include "help/help_file.h"

namespace {

namespace fs = std::filesystem;

std::optional<std::string> BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file || file.bad()) return std::nullopt;
  return bytes;
}

class Verification {
 public:
  Verification(const halvane::HelpFile& help, fs::path folder)
      : help_(help), folder_(std::move(folder)) {}

  /// True when nothing was found.
  bool Run() {
    CheckFiles();
    CheckDescription();
    CheckContents(help_.contents());
    if (help_.contents().empty()) Tell("there is no table of contents");
    return findings_ == 0;
  }
  [[nodiscard]] int files() const { return files_; }
  [[nodiscard]] int contentsEntries() const { return contentsEntries_; }

 private:
  void Tell(const std::string& finding) {
    std::cerr << "verify_help_file: " << finding << '\n';
    ++findings_;
  }

  void CheckFiles() {
    for (const auto& each : fs::recursive_directory_iterator(folder_)) {
      if (!each.is_regular_file()) continue;
      ++files_;
      CheckFile(each.path());
    }
    if (files_ == 0) Tell("there is no file in " + folder_.string());
  }

  void CheckFile(const fs::path& path) {
    const std::string name = path.lexically_relative(folder_).generic_string();
    try {
      const auto entry = help_.Entry(name);
      const auto bytes = BytesOf(path);
      if (!bytes) {
        Tell(path.string() + " cannot be read");
      } else if (!entry) {
        Tell("no entry " + name);
      } else if (*entry != *bytes) {
        Tell("the entry " + name + " differs from its file");
      }
    } catch (const halvane::HelpFileFailure& failure) {
      Tell(name + ": " + failure.what());
    }
  }

  void CheckDescription() {
    const halvane::HelpFileDescription& description = help_.description();
    if (description.title.empty()) Tell("the help file has no title");
    if (!help_.Has(description.defaultTopic))
      Tell("no entry for the default topic " + description.defaultTopic);
    if (!help_.Has(description.contentsFile))
      Tell("no entry for the contents " + description.contentsFile);
  }

  void CheckContents(const std::vector<halvane::HelpContentsEntry>& list) {
    for (const halvane::HelpContentsEntry& entry : list) {
      ++contentsEntries_;
      const std::string page = entry.topic.substr(0, entry.topic.find('#'));
      if (!page.empty() && !help_.Has(page)) {
        Tell("the contents' \"" + entry.title + "\" leads to no entry: " + page);
      }
      CheckContents(entry.children);
    }
  }

  const halvane::HelpFile& help_;
  fs::path folder_;
  int files_ = 0;
  int contentsEntries_ = 0;
  int findings_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: verify_help_file FILE.chm FOLDER\n";
    return 2;
  }
  try {
    const auto bytes = BytesOf(argv[1]);
    if (!bytes) {
      std::cerr << "verify_help_file: " << argv[1] << " cannot be read\n";
      return 1;
    }
    const halvane::HelpFile help(*bytes);
    Verification verification(help, argv[2]);
    if (!verification.Run()) return 1;
    std::cout << argv[1] << ": " << verification.files() << " files and "
              << verification.contentsEntries() << " lines of contents as they should be\n";
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "verify_help_file: " << argv[1] << ": " << failure.what() << '\n';
    return 1;
  }
}
