#pragma once

#include <QString>
#include <vector>

class QTextDocument;
class QWidget;

namespace halvane {

/// A button of a message box.
enum class Answer { Yes, No, Cancel, Ok };

/// Everything that reaches outside the program's own windows: messages, dialogs, printer,
/// clipboard, folders, the end of the program. The one in use is `ThePlatform()`; tests put their
/// double there.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  /// Shows a message until one of `buttons` is chosen. Closing the box counts as Cancel, else No,
  /// else the only button.
  virtual Answer ShowMessage(QWidget* parent, const QString& title, const QString& text,
                             const std::vector<Answer>& buttons) = 0;

  /// The file that the user chooses, empty when cancelled. `filter` is the list of patterns on
  /// offer.
  virtual QString ChooseFileToOpen(QWidget* parent, const QString& filter) = 0;
  /// The same for a file to write: asks before one is overwritten, takes no folder that is not
  /// there, adds no extension and leaves the current folder as it is.
  virtual QString ChooseFileToSave(QWidget* parent, const QString& filter) = 0;

  /// Lets the user choose the printer, without a choice of selection or pages; false when
  /// cancelled.
  virtual bool ChoosePrinter(QWidget* parent) = 0;
  /// Lets the user set up paper and orientation of the current printer.
  virtual void SetUpPrinter(QWidget* parent) = 0;
  /// Prints a whole document on the current printer.
  virtual void Print(const QTextDocument& document) = 0;

  virtual void ClearClipboard() = 0;
  virtual void SetClipboardText(const QString& text) = 0;

  /// The folder that the program stands in.
  virtual QString ProgramFolder() = 0;
  /// The user's folder for the program's data.
  virtual QString DataFolder() = 0;
  /// Copies a file, replacing one that is there; makes the target's folder. False when it failed.
  virtual bool CopyFile(const QString& source, const QString& target) = 0;

  /// The folder for the user's documents.
  virtual QString DocumentsFolder() = 0;

  /// Ends the program: every event loop returns, with no further question. The caller returns at
  /// once.
  virtual void EndProgram(int exitStatus) = 0;
};

/// The platform in use; the real one unless a test put its own there.
Platform& ThePlatform();
/// Puts another platform in its place; null brings the real one back.
void SetPlatform(Platform* platform);

}  // namespace halvane
