#include "tests/fuzz/options_check.h"

#include <algorithm>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "reporter/options.h"
#include "tests/fuzz/output_shape.h"

namespace halvane {
namespace {

using Arguments = std::vector<std::string>;

/// No argument of a program holds a zero byte: it ends one, as a line end does.
Arguments ArgumentsIn(std::string_view bytes) {
  constexpr std::string_view kEnds("\n\0", 2);
  Arguments arguments;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of(kEnds), bytes.size());
    arguments.emplace_back(bytes.substr(0, end));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return arguments;
}

std::string ProblemOfNotice(const Notice& notice) {
  if (!notice.text.ends_with('\n')) return "a notice without its line end";
  if (!notice.isError) return {};
  if (!notice.text.starts_with("halvane-report: ")) return "a complaint without a name";
  if (std::ranges::count(notice.text, '\n') != 2) return "a complaint of other than two lines";
  return TerminalProblem(notice.text);
}

/// Whether the program was given `name`, alone or behind the name of an option.
bool IsGiven(const Arguments& arguments, const std::string& name) {
  return std::ranges::any_of(arguments, [&name](const std::string& argument) {
    return argument == name || argument.ends_with("=" + name);
  });
}

std::string ProblemOf(const Options& options, const Arguments& arguments) {
  if (options.files.empty() == !options.list) return "neither files nor a list, or both";
  for (const std::string& file : options.files) {
    if (std::ranges::count(arguments, file) == 0) return "a file that nobody named: " + file;
  }
  if (options.list && !IsGiven(arguments, *options.list)) return "another list: " + *options.list;
  if (options.tools.empty()) return "no tool";
  const std::set<const ToolRow*> tools(options.tools.begin(), options.tools.end());
  if (tools.size() != options.tools.size()) return "a tool twice";
  if (tools.contains(nullptr)) return "no such tool";
  if (options.sortBy != nullptr && !tools.contains(options.sortBy)) return "sorted by another tool";
  const bool isSummary = options.wish == Wish::Summary;
  if (options.sortBy != nullptr && !isSummary) return "sorted, and no summary";
  if (options.format == ReportFormat::Csv && !isSummary) return "a table, and no summary";
  return {};
}

}  // namespace

std::string ProblemOfOptions(std::string_view bytes) {
  const Arguments arguments = ArgumentsIn(bytes);
  const auto asked = ParseOptions(arguments, Tools());
  if (const auto* notice = std::get_if<Notice>(&asked)) return ProblemOfNotice(*notice);
  return ProblemOf(std::get<Options>(asked), arguments);
}

}  // namespace halvane
