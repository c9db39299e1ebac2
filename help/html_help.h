#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace halvane {

enum class HelpCommand;

/// Help from one compiled help file, through the viewer. A failure ends an operation without a
/// word, apart from the two messages on the file.
class HTMLHelp {
 public:
  QString CHMFile;           ///< full path of the help file
  QStringList SoughtToo;     ///< where else the file was looked for, told when it is missing
  QString HHTopicURL;        ///< topic file inside the help file
  QString HHWindow;          ///< name of a help window; the program never sets it
  bool HHShowOnTop = false;  ///< the viewer stays above the given window; the program never sets it

  /// Shows the topic. `handle` is the window asking, null for none.
  void HHDisplayTopicURL(QWidget* handle);
  /// Shows the table of contents.
  void HHDisplayContents(QWidget* handle);

 private:
  [[nodiscard]] bool IsChmFile() const;
  /// Completes a name without a folder. False, after a message, when the file is not there.
  bool EnsureFileExists();
  void Display(QWidget* handle, HelpCommand command, const QString& topic);
};

}  // namespace halvane
