#include "reporter/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>

#include "core/number_text.h"
#include "reporter/near_name.h"
#include "reporter/output.h"
#include "reporter/piped_job.h"
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

constexpr std::array<Word<ReportFormat>, 4> kFormats{{
    {"text", ReportFormat::Text},
    {"json", ReportFormat::Json},
    {"html", ReportFormat::Html},
    {"csv", ReportFormat::Csv},
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

using Names = std::vector<std::string>;

Names NamesOf(std::span<const ToolRow> tools) {
  Names names;
  for (const ToolRow& row : tools) names.emplace_back(row.key);
  return names;
}

template <typename Value, std::size_t N>
Names NamesOf(const std::array<Word<Value>, N>& words) {
  Names names;
  for (const auto& word : words) names.emplace_back(word.name);
  return names;
}

std::string ToolHelp(std::span<const ToolRow> tools) {
  std::string keys;
  for (const std::string& name : NamesOf(tools)) keys += (keys.empty() ? "" : ", ") + name;
  return "Tool to report on; may be given more than once. One of: " + keys +
         ". Without it: all of them.";
}

/// Why `key` names no tool to report on; empty when it does. For the parser's check of an option.
std::string ToolComplaint(std::span<const ToolRow> tools, const std::string& key) {
  if (ToolNamed(tools, key) != nullptr) return {};
  return "there is no tool \"" + WithoutGuard(key) + "\"" +
         HintFor(WithoutGuard(key), NamesOf(tools));
}

std::string FormatComplaint(const std::string& name) {
  if (WordNamed(kFormats, name) != nullptr) return {};
  return "there is no format \"" + WithoutGuard(name) + "\"" +
         HintFor(WithoutGuard(name), NamesOf(kFormats));
}

std::string UnitsComplaint(const std::string& name) {
  if (WordNamed(kUnits, name) != nullptr) return {};
  return "there are no units \"" + WithoutGuard(name) + "\"" +
         HintFor(WithoutGuard(name), NamesOf(kUnits));
}

/// The number that `text` is, of jobs done at once; nothing for any other text.
std::optional<int> JobsAtOnceIn(const std::string& text) {
  constexpr std::size_t kMostDigits = 3;
  const bool isShort = !text.empty() && text.size() <= kMostDigits;
  if (!isShort || text.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  const int number = static_cast<int>(*WholeTextAsNumber(text));
  if (number < 1 || number > kMostJobsAtOnce) return std::nullopt;
  return number;
}

std::string JobsComplaint(const std::string& text) {
  if (JobsAtOnceIn(text)) return {};
  return "\"" + WithoutGuard(text) + "\" is no number from 1 to " + PlainText(kMostJobsAtOnce);
}

/// The options as the parser leaves them.
struct Given {
  std::vector<std::string> tools;
  bool summary = false;
  bool check = false;
  std::string sort;
  std::string format;
  std::string units;
  std::string filesFrom;
  bool null = false;
  std::string jobs;
  std::vector<std::string> files;
};

ReportFormat FormatOf(const Given& given) {
  if (!given.format.empty()) return WordNamed(kFormats, given.format)->value;
  return given.filesFrom.empty() ? ReportFormat::Text : ReportFormat::Json;
}

/// Why the options do not go together; empty when they do.
std::string ComplaintOf(const Given& given) {
  if (given.filesFrom.empty() && given.files.empty()) return "FILE is required";
  if (!given.filesFrom.empty() && !given.files.empty()) {
    return "--files-from: no FILE may stand beside it";
  }
  if (given.summary && given.check) return "--check: --summary may not stand beside it";
  if (given.check && !given.tools.empty()) return "--check: --tool may not stand beside it";
  if (given.check && !given.units.empty()) return "--check: --units may not stand beside it";
  if (given.check && (given.format == "html" || given.format == "csv")) {
    return "--check: its format is text or json";
  }
  if (!given.sort.empty() && !given.summary) return "--sort: is for --summary alone";
  if (given.format == "csv" && !given.summary) return "--format: csv is for --summary alone";
  if (!given.sort.empty() && !given.tools.empty() &&
      std::ranges::count(given.tools, given.sort) == 0) {
    return "--sort: the tool \"" + given.sort + "\" is not among those of --tool";
  }
  const bool isCheckAsText = given.check && FormatOf(given) == ReportFormat::Text;
  if (given.null && given.filesFrom.empty() && !isCheckAsText) {
    return "--null: is for --files-from and for --check as text";
  }
  if (std::ranges::count(given.files, kStandardInput) > 1) return "-: may be given once";
  return {};
}

std::vector<const ToolRow*> ToolsOf(std::span<const ToolRow> tools,
                                    const std::vector<std::string>& keys) {
  std::vector<const ToolRow*> rows;
  for (const std::string& key : keys) {
    const ToolRow* const row = ToolNamed(tools, key);
    if (std::ranges::find(rows, row) == rows.end()) rows.push_back(row);
  }
  if (keys.empty()) {
    for (const ToolRow& row : tools) rows.push_back(&row);
  }
  return rows;
}

Options Collect(std::span<const ToolRow> tools, Given given) {
  Options options;
  if (given.summary) options.wish = Wish::Summary;
  if (given.check) options.wish = Wish::Check;
  options.tools = ToolsOf(tools, given.tools);
  if (!given.sort.empty()) options.sortBy = ToolNamed(tools, given.sort);
  options.format = FormatOf(given);
  if (!given.units.empty()) options.units = WordNamed(kUnits, given.units)->value;
  if (!given.filesFrom.empty()) options.list = WithoutGuard(given.filesFrom);
  options.namesEndInZero = given.null;
  if (!given.jobs.empty()) options.jobsAtOnce = JobsAtOnceIn(given.jobs);
  options.files = std::move(given.files);
  for (std::string& file : options.files) file = WithoutGuard(std::move(file));
  return options;
}

std::string WrongUse(std::string_view complaint) {
  const std::string name(kProgramName);
  const std::string lineEnd(kLineEnd);
  return name + ": " + PrintableText(complaint) + lineEnd + "Run \"" + name +
         " --help\" for the options." + lineEnd;
}

/// Tells the parser of the options.
void Define(CLI::App& app, Given& given, std::span<const ToolRow> tools) {
  // A path from the root begins with a slash wherever the program runs.
  app.allow_windows_style_options(false);
  app.set_version_flag("-V,--version", std::string(kProgramName) + " " + HALVANE_VERSION);
  const auto isTool = [tools](const std::string& key) { return ToolComplaint(tools, key); };
  app.add_option("--tool", given.tools, ToolHelp(tools))
      ->type_name("NAME")
      // Else it would take the files behind it for names of tools.
      ->allow_extra_args(false)
      ->check(isTool);
  app.add_flag("--summary", given.summary,
               "One line a job with the headline of each tool instead of reports")
      ->disable_flag_override();
  app.add_option("--sort", given.sort, "Summary: the jobs that are worst by this tool first")
      ->type_name("NAME")
      ->check(isTool);
  app.add_flag("--check", given.check,
               "Instead of reports, what the program would not take of the files and what of them "
               "would surprise")
      ->disable_flag_override();
  app.add_option("--format", given.format,
                 "text (default), json (one object a line), html (one page) or, of a summary, csv")
      ->type_name("NAME")
      ->check(FormatComplaint);
  app.add_option("--units", given.units,
                 "metric (default) or english: what the hand spans of the jobs are taken in")
      ->type_name("NAME")
      ->check(UnitsComplaint);
  app.add_option("--files-from", given.filesFrom,
                 "A file that names the files, one a line; - is standard input, and each job is "
                 "then written as it is done; the format is json by default")
      ->type_name("LIST");
  app.add_flag("-0,--null", given.null,
               "A zero byte ends each name: in LIST, and in the lines of a check as text")
      ->disable_flag_override();
  app.add_option("--jobs", given.jobs,
                 "How many jobs are done at once, 1 to " + PlainText(kMostJobsAtOnce) +
                     "; without it: as many as there are cores. The output is the same")
      ->type_name("N")
      ->check(JobsComplaint);
  app.add_option("FILE", given.files,
                 "Job file (.qjt), or a folder for all those in and below it; - is standard input")
      ->type_name("");
  app.footer(
      "Exit status: 0 all is done, 1 a file could not be read or not whole, a computation failed "
      "or the output could not be written, 2 wrong use, 130 ended by Ctrl-C, 143 by SIGTERM, 141 "
      "by the end of who reads the output.");
}

/// The names that may stand for an option, "-V" and "--version".
Names NamesOf(const CLI::App& app) {
  Names names;
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

/// What the parser says of an option without its value, and of a value where none is expected.
std::string InOwnWords(std::string_view said) {
  constexpr std::string_view kMissing = ": 1 required ";
  constexpr std::string_view kOverride = " was given a disallowed flag override";
  if (said.ends_with(kOverride)) {
    said.remove_suffix(kOverride.size());
    return std::string("--").append(said).append(": takes no value");
  }
  const std::size_t option = said.find(kMissing);
  if (option == std::string_view::npos) return std::string(said);
  const std::string_view value = said.substr(option + kMissing.size());
  return std::string(said.substr(0, option))
      .append(": its ")
      .append(value.substr(0, value.find(' ')))
      .append(" is missing");
}

/// Why the parser takes no such arguments, in the words of this program where the parser's own tell
/// of the parser.
std::string ComplaintOf(const CLI::App& app, const CLI::ParseError& wrong) {
  const Names unknown = app.remaining();
  if (dynamic_cast<const CLI::ExtrasError*>(&wrong) != nullptr && !unknown.empty()) {
    const std::string typed = WithoutGuard(unknown.front().substr(0, unknown.front().find('=')));
    return "there is no option \"" + typed + "\"" + HintFor(typed, NamesOf(app));
  }
  for (const CLI::Option* option : app.get_options()) {
    const bool isSingle = option->get_expected_max() == 1 && option->get_items_expected_max() == 1;
    if (isSingle && !option->get_lnames().empty() && option->get_lnames().front() != "tool" &&
        option->count() > 1) {
      return option->get_name() + ": may be given once";
    }
  }
  return InOwnWords(wrong.what());
}

/// Whether the argument behind this one is its value.
bool TakesNext(const CLI::App& app, std::string_view argument) {
  return std::ranges::any_of(app.get_options(), [argument](const CLI::Option* option) {
    return option->get_items_expected_min() > 0 && option->nonpositional() &&
           argument == "--" + option->get_lnames().front();
  });
}

/// An argument of letters and a hyphen, "-0--summary", of whose end the parser would make an
/// argument that nobody gave; empty where there is none.
std::string LettersWithHyphen(const CLI::App& app, const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    const std::string_view argument = arguments[i];
    if (TakesNext(app, argument)) {
      ++i;
    } else if (argument.size() > 2 && argument[0] == '-' && argument[1] != '-' &&
               argument.find('-', 2) != std::string_view::npos) {
      return std::string(argument);
    }
  }
  return {};
}

constexpr const char* kAbout =
    "Prints the reports of the tools on job files, one line a job, or what is wrong with the "
    "files.";

}  // namespace

std::variant<Options, Notice> ParseOptions(std::vector<std::string> arguments,
                                           std::span<const ToolRow> tools) {
  Given given;
  CLI::App app(kAbout, std::string(kProgramName));
  Define(app, given, tools);
  const std::string letters = LettersWithHyphen(app, arguments);
  if (!letters.empty()) return Notice{true, WrongUse("there is no option \"" + letters + "\"")};
  GuardBrackets(arguments);
  std::reverse(arguments.begin(), arguments.end());  // the order that the parser takes them in
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    return Notice{false, app.help()};
  } catch (const CLI::CallForVersion& version) {
    return Notice{false, std::string(version.what()).append(kLineEnd)};
  } catch (const CLI::ParseError& wrong) {
    return Notice{true, WrongUse(ComplaintOf(app, wrong))};
  }
  const std::string complaint = ComplaintOf(given);
  if (!complaint.empty()) return Notice{true, WrongUse(complaint)};
  return Collect(tools, std::move(given));
}

std::vector<OptionRow> OptionTable(std::span<const ToolRow> tools) {
  Given given;
  CLI::App app(kAbout, std::string(kProgramName));
  Define(app, given, tools);
  const std::map<std::string, Names> words{{"tool", NamesOf(tools)},
                                           {"sort", NamesOf(tools)},
                                           {"format", NamesOf(kFormats)},
                                           {"units", NamesOf(kUnits)}};
  std::vector<OptionRow> rows;
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_lnames().empty()) continue;
    OptionRow row;
    row.name = option->get_lnames().front();
    if (!option->get_snames().empty()) row.letter = option->get_snames().front();
    row.help = option->get_description();
    row.takesFile = row.name == "files-from";
    row.repeats = row.name == "tool";
    const auto found = words.find(row.name);
    if (found != words.end()) row.words = found->second;
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace halvane
