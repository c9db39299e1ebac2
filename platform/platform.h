#pragma once

#include <QString>
#include <QStringList>
#include <Qt>
#include <string>
#include <vector>

class QPoint;
class QRect;
class QTextDocument;
class QWidget;

namespace halvane {

/// A button of a message box.
enum class Answer { Yes, No, Cancel, Ok };

/// A program and what it is started with.
struct ProgramCall {
  QString program;
  QStringList arguments;

  bool operator==(const ProgramCall&) const = default;
};

class Registry;

/// Everything that reaches outside the program's own windows: messages, dialogs, printer,
/// clipboard, folders, registry, other programs, the screen, the end of this one. The one in use is
/// `ThePlatform()`; tests put their double there.
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
  /// Lets the user set up paper, orientation and margins of the current printer.
  virtual void SetUpPrinter(QWidget* parent) = 0;
  /// Prints a whole document on the current printer, in whose queue it has its title.
  virtual void Print(const QTextDocument& document) = 0;

  virtual void ClearClipboard() = 0;
  virtual void SetClipboardText(const QString& text) = 0;

  /// The folder that the program stands in.
  virtual QString ProgramFolder() = 0;
  /// The user's folder for the program's data.
  virtual QString DataFolder() = 0;
  /// Copies a file, replacing one that is there; makes the target's folder. False when it failed.
  virtual bool CopyFile(const QString& source, const QString& target) = 0;

  /// Where a copy of a job may stand that can't stand beside its file, best first: documents, home,
  /// the program's own folder, temporary files. They need not exist.
  virtual std::vector<std::string> RescueFolders() = 0;
  /// The program's own folder for what it needs to go on after its end; empty where there is none.
  /// It need not exist.
  virtual std::string StateFolder() = 0;

  [[nodiscard]] virtual bool FileExists(const QString& path) = 0;
  /// The system's registry; an empty one where there is none.
  virtual Registry& TheRegistry() = 0;
  /// Starts a program that runs on by itself, in a normal window; false when that failed.
  virtual bool StartProgram(const ProgramCall& call) = 0;
  /// The desktop's own viewer of system information; no program where none is installed.
  virtual ProgramCall SystemViewer() = 0;

  /// The part that windows may cover of the screen at that point, of the first screen where there
  /// is none. In logical pixels.
  [[nodiscard]] virtual QRect AvailableArea(QPoint at) = 0;
  /// Lets the user drag a window by the mouse button that is held down on it, as by its title bar.
  virtual void StartWindowMove(QWidget& window, Qt::MouseButton button) = 0;

  /// Ends the program: every event loop returns, with no further question. The caller returns at
  /// once.
  virtual void EndProgram(int exitStatus) = 0;
};

/// The platform in use; the real one unless a test put its own there.
Platform& ThePlatform();
/// Puts another platform in its place; null brings the real one back.
void SetPlatform(Platform* platform);

}  // namespace halvane
