#include "help/html_help.h"

#include <QApplication>

#include "core/messages.h"
#include "core/silently.h"
#include "help/help_viewer.h"
#include "platform/platform.h"
#include "platform/registry.h"

namespace halvane {
namespace {

constexpr auto kListedHelpFiles = "Software\\Microsoft\\Windows\\HTML Help";

bool IsSeparator(QChar c) { return c == '/' || c == '\\'; }

bool HasFolder(const QString& path) { return path.contains('/') || path.contains('\\'); }

void Tell(const QString& text) {
  ThePlatform().ShowMessage(QApplication::activeWindow(), kProgramTitle, text, {Answer::Ok});
}

/// The folder of a help file that the system has a list of; empty when it is not on it.
QString ListedFolder(const QString& name) {
  QString folder;
  GetKeyValue(ThePlatform().TheRegistry(), RegistryRoot::LocalMachine, kListedHelpFiles, name,
              folder);
  return folder;
}

}  // namespace

bool HTMLHelp::IsChmFile() const {
  if (CHMFile.right(3).compare("chm", Qt::CaseInsensitive) == 0) return true;
  Tell(CHMFile + kNoHelpFileName);
  return false;
}

bool HTMLHelp::EnsureFileExists() {
  if (!HasFolder(CHMFile)) {
    QString folder = ListedFolder(CHMFile);
    if (folder.isEmpty()) folder = ThePlatform().ProgramFolder();
    if (!IsSeparator(folder.back())) folder += '/';
    CHMFile = folder + CHMFile;
  }
  if (ThePlatform().FileExists(CHMFile)) return true;
  QString text = "The file " + CHMFile + kHelpFileMissing + kProgramTitle + ".";
  if (!SoughtToo.isEmpty()) text += QString(kHelpFileSoughtToo) + "\n" + SoughtToo.join('\n');
  Tell(text);
  return false;
}

void HTMLHelp::Display(QWidget* handle, HelpCommand command, const QString& topic) {
  Silently([&] {
    if (!IsChmFile() || !EnsureFileExists()) return;
    const QString window = HHWindow.trimmed();
    const QString file = window.isEmpty() ? CHMFile : CHMFile + ">" + HHWindow;
    TheHelpViewer().Show(HHShowOnTop ? handle : nullptr, file, command, topic);
  });
}

void HTMLHelp::HHDisplayTopicURL(QWidget* handle) {
  Display(handle, HelpCommand::DisplayTopic, HHTopicURL);
}

void HTMLHelp::HHDisplayContents(QWidget* handle) {
  Display(handle, HelpCommand::DisplayContents, QString());
}

}  // namespace halvane
