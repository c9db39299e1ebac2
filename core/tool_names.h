#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace halvane {

/// The six tools, in the one order in which they stand wherever all of them do: that of the launch
/// buttons, then the one without a button.
enum class Tool { Ocra, Ctd, StrainIndex, Reba, Rula, Hal };

/// What a tool is called: all that whoever does not compute with it has to know of it.
struct ToolName {
  Tool tool;
  std::string_view key;            ///< name on the reporter's command line
  std::string_view buttonCaption;  ///< launch button; empty: no button
  std::string_view buttonTip;      ///< tool tip of the launch button
  std::string_view title;          ///< of the tool's form
  std::string_view helpTopic;      ///< page of the help file
};

/// A row stands at the number of its `Tool`.
inline constexpr std::array kToolNames{
    ToolName{Tool::Ocra, "ocra", "OCRA", "Occupational Repetitive Actions Index",
             "Occupational Repetitive Actions Index",
             "Occupational Repetitive Actions Index (OCRA)2.htm"},
    ToolName{Tool::Ctd, "ctd", "CTD Risk Index",
             "Cumulative Trauma Disorders Risk Assessment Model",
             "Cumulative Trauma Disorders Risk Assessment Model", "CTD2.htm"},
    ToolName{Tool::StrainIndex, "si", "SI", "Strain Index", "Strain Index", "Strain Index2.htm"},
    ToolName{Tool::Reba, "reba", "REBA", "Rapid Entire Body Assessment",
             "Rapid Entire Body Assessment", "REBA (Rapid Entire Body Assessment)2.htm"},
    // The form's title differs from the button's tip, which is wanted.
    ToolName{Tool::Rula, "rula", "RULA", "Rapid Upper Limb Assessment",
             "Repetitive Upper Limb Assessment", "RULA (Rapid Upper Limb Assessment)2.htm"},
    ToolName{Tool::Hal, "hal", "", "", "ACGIH: Hand Activity Level",
             "ACGIH Hand Activity Level2.htm"},
};

constexpr const ToolName& NameOf(Tool tool) { return kToolNames[static_cast<std::size_t>(tool)]; }

static_assert(
    [] {
      for (std::size_t i = 0; i < kToolNames.size(); ++i) {
        if (kToolNames[i].tool != static_cast<Tool>(i)) return false;
      }
      return static_cast<std::size_t>(Tool::Hal) + 1 == kToolNames.size();
    }(),
    "a row of names for each tool, at its place");

}  // namespace halvane
