#pragma once

#include <QString>
#include <memory>

namespace halvane {

class HTMLHelp;

/// The one `HTMLHelp` of the program, made at the first use and kept to its end.
std::shared_ptr<HTMLHelp> HelpObject();

/// The program's help file: beside the program, as it is named for one that was copied there; else
/// where an installation puts the program's data, else in the user's folder for it. The first of
/// these when the file is in none.
QString HelpFilePath();

/// Shows a topic of the program's help file.
void ShowHelpTopic(const QString& topic);
/// Shows its table of contents.
void ShowHelpContents();

}  // namespace halvane
