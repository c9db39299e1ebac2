#include "tests/reporter/completions.h"

#include <algorithm>

#include "reporter/options.h"

namespace halvane {
namespace {

constexpr std::string_view kNote = "# Made by make_result_pages from the program's own options.\n";

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

/// Help that means nothing to a shell: without quotes, brackets and colons.
std::string Plain(std::string help) {
  std::erase_if(
      help, [](char c) { return std::string_view("'\"[]()").find(c) != std::string_view::npos; });
  std::ranges::replace(help, ':', ',');
  return help.substr(0, help.find_first_of(".;"));
}

std::string Names(const OptionRow& row) {
  return (row.letter.empty() ? "" : "-" + row.letter + " ") + "--" + row.name;
}

}  // namespace

std::string BashCompletion() {
  std::string cases;
  std::string names;
  for (const OptionRow& row : OptionTable(Tools())) {
    names += (names.empty() ? "" : " ") + Names(row);
    if (!row.words.empty()) {
      cases += "    --" + row.name + ")\n      mapfile -t COMPREPLY < <(compgen -W \"" +
               Joined(row.words) + "\" -- \"$current\")\n      return\n      ;;\n";
    }
    if (row.takesFile) cases += "    --" + row.name + ") return ;;\n";
  }
  return "# shellcheck shell=bash\n" + std::string(kNote) +
         R"(_halvane_report() {
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
  if [[ $current == = ]]; then current=; elif [[ $before == = ]]; then before=${COMP_WORDS[COMP_CWORD-2]}; fi
  COMPREPLY=()
  case $before in
)" + cases +
         R"(  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W ")" +
         names + R"(" -- "$current")
  fi
}
complete -o default -F _halvane_report halvane-report
)";
}

std::string ZshCompletion() {
  std::string text = "#compdef halvane-report\n" + std::string(kNote) + "_arguments -S \\\n";
  for (const OptionRow& row : OptionTable(Tools())) {
    std::string takes;
    if (!row.words.empty()) takes = ":" + row.name + ":(" + Joined(row.words) + ")";
    if (row.takesFile) takes = ":list:_files";
    const std::string help = "[" + Plain(row.help) + "]" + takes;
    const std::string repeats = row.repeats ? "*" : "";
    const std::string equals = takes.empty() ? "" : "=";
    text += "  '" + repeats + "--" + row.name + equals + help + "' \\\n";
    if (!row.letter.empty()) text += "  '-" + row.letter + help + "' \\\n";
  }
  return text + "  '*:job file:_files -g \"(#i)*.qjt(-.)\"'\n";
}

std::string FishCompletion() {
  std::string text(kNote);
  for (const OptionRow& row : OptionTable(Tools())) {
    text += "complete -c halvane-report";
    if (!row.letter.empty()) text += " -s " + row.letter;
    text += " -l " + row.name;
    if (!row.words.empty()) text += " -x -a '" + Joined(row.words) + "'";
    if (row.takesFile) text += " -r";
    text += " -d '" + Plain(row.help) + "'\n";
  }
  return text;
}

}  // namespace halvane
