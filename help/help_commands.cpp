#include "help/help_commands.h"

#include "help/html_help.h"
#include "platform/platform.h"

namespace halvane {
namespace {

constexpr auto kHelpFile = "/QJT Tools 1.chm";
// From the folder of the programs, as installations have it.
constexpr auto kInstalledData = "/../share/halvane-tools";

}  // namespace

std::shared_ptr<HTMLHelp> HelpObject() {
  static const auto shared = std::make_shared<HTMLHelp>();
  return shared;
}

QString HelpFilePath() {
  Platform& platform = ThePlatform();
  const QString beside = platform.ProgramFolder() + kHelpFile;
  for (const QString& path : {beside, platform.ProgramFolder() + kInstalledData + kHelpFile,
                              platform.DataFolder() + kHelpFile}) {
    if (platform.FileExists(path)) return path;
  }
  return beside;
}

void ShowHelpTopic(const QString& topic) {
  const std::shared_ptr<HTMLHelp> help = HelpObject();
  help->CHMFile = HelpFilePath();
  help->HHTopicURL = topic;
  help->HHDisplayTopicURL(nullptr);
}

void ShowHelpContents() {
  const std::shared_ptr<HTMLHelp> help = HelpObject();
  help->CHMFile = HelpFilePath();
  help->HHDisplayContents(nullptr);
}

}  // namespace halvane
