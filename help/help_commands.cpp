#include "help/help_commands.h"

#include <QDir>
#include <QStringList>

#include "help/html_help.h"
#include "platform/platform.h"

namespace halvane {
namespace {

constexpr auto kHelpFile = "/QJT Tools 1.chm";
// From the folder of the programs, as installations have it.
constexpr auto kInstalledData = "/../share/halvane-tools";

/// Where the help file may stand; the first one is its place beside the program.
QStringList HelpFilePlaces() {
  Platform& platform = ThePlatform();
  return {platform.ProgramFolder() + kHelpFile,
          platform.ProgramFolder() + kInstalledData + kHelpFile, platform.DataFolder() + kHelpFile};
}

/// The shared object, told where the help file is or was looked for.
std::shared_ptr<HTMLHelp> PreparedHelp() {
  std::shared_ptr<HTMLHelp> help = HelpObject();
  help->CHMFile = HelpFilePath();
  help->SoughtToo.clear();
  for (const QString& path : HelpFilePlaces().mid(1)) {
    help->SoughtToo.append(QDir::cleanPath(path));
  }
  return help;
}

}  // namespace

std::shared_ptr<HTMLHelp> HelpObject() {
  static const auto shared = std::make_shared<HTMLHelp>();
  return shared;
}

QString HelpFilePath() {
  const QStringList places = HelpFilePlaces();
  for (const QString& path : places) {
    if (ThePlatform().FileExists(path)) return path;
  }
  return places.front();
}

void ShowHelpTopic(const QString& topic) {
  const std::shared_ptr<HTMLHelp> help = PreparedHelp();
  help->HHTopicURL = topic;
  help->HHDisplayTopicURL(nullptr);
}

void ShowHelpContents() { PreparedHelp()->HHDisplayContents(nullptr); }

}  // namespace halvane
