#include "reporter/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

/// CLI11 takes an argument like "[a,b]" apart as a list. A character that no argument can hold
/// keeps such a file name whole on its way through.
constexpr char kGuard = '\0';

void GuardBrackets(std::vector<std::string>& arguments) {
  for (std::string& argument : arguments) {
    if (argument.starts_with('[') && argument.ends_with(']')) argument += kGuard;
  }
}

std::string WithoutGuard(std::string argument) {
  if (argument.ends_with(kGuard)) argument.pop_back();
  return argument;
}

/// A word of the command line and what it stands for.
template <typename Value>
struct Word {
  std::string_view name;
  Value value;
};

constexpr std::array<Word<ReportFormat>, 3> kFormats{{
    {"text", ReportFormat::Text},
    {"json", ReportFormat::Json},
    {"html", ReportFormat::Html},
}};
constexpr std::array<Word<LengthUnit>, 2> kUnits{{
    {"metric", LengthUnit::Metric},
    {"english", LengthUnit::English},
}};

template <typename Value, std::size_t N>
const Word<Value>* WordNamed(const std::array<Word<Value>, N>& words, std::string_view name) {
  const auto* const found =
      std::find_if(words.begin(), words.end(), [name](auto& word) { return word.name == name; });
  return found == words.end() ? nullptr : found;
}

const ToolRow* ToolNamed(std::span<const ToolRow> tools, std::string_view key) {
  const auto found =
      std::find_if(tools.begin(), tools.end(), [key](auto& row) { return row.key == key; });
  return found == tools.end() ? nullptr : &*found;
}

/// "ocra, ctd, si": the keys of the tools that are built, or of those that are not.
std::string KeysOf(std::span<const ToolRow> tools, bool built) {
  std::string keys;
  for (const ToolRow& row : tools) {
    if (row.isBuilt() != built) continue;
    if (!keys.empty()) keys += ", ";
    keys += row.key;
  }
  return keys;
}

std::string ToolHelp(std::span<const ToolRow> tools) {
  std::string help =
      "Tool to report on; may be given more than once. One of: " + KeysOf(tools, true) +
      ". Without it: all of them.";
  const std::string notBuilt = KeysOf(tools, false);
  if (!notBuilt.empty()) help += " Not built yet: " + notBuilt + ".";
  return help;
}

/// Why `key` names no tool to report on; empty when it does. For the parser's check of an option.
std::string ToolComplaint(std::span<const ToolRow> tools, const std::string& key) {
  const ToolRow* const row = ToolNamed(tools, key);
  if (row == nullptr) return "there is no tool \"" + WithoutGuard(key) + "\"";
  if (!row->isBuilt()) return "the tool \"" + key + "\" is not built yet";
  return {};
}

std::string FormatComplaint(const std::string& name) {
  if (WordNamed(kFormats, name) != nullptr) return {};
  return "there is no format \"" + WithoutGuard(name) + "\"";
}

std::string UnitsComplaint(const std::string& name) {
  if (WordNamed(kUnits, name) != nullptr) return {};
  return "there are no units \"" + WithoutGuard(name) + "\"";
}

Options Collect(std::span<const ToolRow> tools, const std::vector<std::string>& keys,
                std::vector<std::string> files) {
  Options options;
  for (const std::string& key : keys) {
    const ToolRow* const row = ToolNamed(tools, key);
    if (std::ranges::find(options.tools, row) == options.tools.end()) options.tools.push_back(row);
  }
  if (keys.empty()) {
    for (const ToolRow& row : tools) {
      if (row.isBuilt()) options.tools.push_back(&row);
    }
  }
  options.files = std::move(files);
  for (std::string& file : options.files) file = WithoutGuard(std::move(file));
  return options;
}

std::string WrongUse(std::string_view complaint) {
  const std::string name(kProgramName);
  const std::string lineEnd(kPlatformLineEnd);
  return name + ": " + PrintableText(complaint) + lineEnd + "Run \"" + name +
         " --help\" for the options." + lineEnd;
}

}  // namespace

std::variant<Options, Notice> ParseOptions(std::vector<std::string> arguments,
                                           std::span<const ToolRow> tools) {
  std::vector<std::string> keys;
  std::string format = "text";
  std::string units = "metric";
  std::vector<std::string> files;

  CLI::App app("Prints the reports of the tools on job files.", std::string(kProgramName));
  app.set_version_flag("--version", std::string(kProgramName) + " " + HALVANE_VERSION);
  app.add_option("--tool", keys, ToolHelp(tools))
      ->type_name("NAME")
      // Else it would take the files behind it for names of tools.
      ->allow_extra_args(false)
      ->check([tools](const std::string& key) { return ToolComplaint(tools, key); });
  app.add_option("--format", format, "text (default), json (one object a line) or html (one page)")
      ->type_name("NAME")
      ->check(FormatComplaint);
  app.add_option("--units", units,
                 "metric (default) or english: what the hand spans of the jobs are taken in")
      ->type_name("NAME")
      ->check(UnitsComplaint);
  app.add_option("FILE", files, "Job file (.qjt)")->type_name("")->required();
  app.footer(
      "Exit status: 0 all reports are done, 1 a file could not be read, a computation failed or "
      "the output could not be written, 2 wrong use.");

  GuardBrackets(arguments);
  std::reverse(arguments.begin(), arguments.end());  // the order that the parser takes them in
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::ParseError& end) {
    std::ostringstream out;
    if (app.exit(end, out, out) == 0) return Notice{false, out.str()};
    return Notice{true, WrongUse(end.what())};
  }
  Options options = Collect(tools, keys, std::move(files));
  options.format = WordNamed(kFormats, format)->value;
  options.units = WordNamed(kUnits, units)->value;
  return options;
}

}  // namespace halvane
