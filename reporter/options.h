#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/units.h"
#include "reporter/report_writer.h"
#include "tools/tool_table.h"

namespace halvane {

/// What messages of the program begin with.
inline constexpr std::string_view kProgramName = "halvane-report";

/// The most jobs that may be done at once.
inline constexpr int kMostJobsAtOnce = 256;

/// What is to be done with the jobs.
enum class Wish { Reports, Summary, Check };

/// What the user asked for.
struct Options {
  Wish wish = Wish::Reports;
  std::vector<const ToolRow*> tools;  ///< each once, in the order asked for
  ReportFormat format = ReportFormat::Text;
  const ToolRow* sortBy = nullptr;        ///< of a summary: by this one of `tools`, worst first
  LengthUnit units = LengthUnit::Metric;  ///< what the hand spans of the jobs are taken in
  std::vector<std::string> files;         ///< and folders
  /// Of the file that names the files, "-" for standard input; `files` is empty then.
  std::optional<std::string> list;
  bool namesEndInZero = false;    ///< names in the list, and in lines of a check
  std::optional<int> jobsAtOnce;  ///< nothing: as many as there are cores
};

/// An option as shells complete it.
struct OptionRow {
  std::string name;    ///< without its hyphens
  std::string letter;  ///< the same in one letter; empty: it has none
  std::string help;
  std::vector<std::string> words;  ///< of which it takes one
  bool takesFile = false;
  bool repeats = false;  ///< may be given more than once
};
/// All there are but the files; the one table that the parser, the help and the shells have.
std::vector<OptionRow> OptionTable(std::span<const ToolRow> tools);

/// The command line asks for no report: help, the version, or wrong use.
struct Notice {
  bool isError;      ///< wrong use; the text is for standard error
  std::string text;  ///< with its line end
};

/// Reads the command line without the program's name. `tools` are the tools that there are.
std::variant<Options, Notice> ParseOptions(std::vector<std::string> arguments,
                                           std::span<const ToolRow> tools);

}  // namespace halvane
