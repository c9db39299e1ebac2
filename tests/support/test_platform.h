#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "core/runtime_failure.h"
#include "platform/platform.h"
#include "tests/support/made_up_registry.h"

class QTextDocument;

namespace halvane {

/// A message that the program showed.
struct ShownMessage {
  QString title;
  QString text;
  std::vector<Answer> buttons;

  bool operator==(const ShownMessage&) const = default;
};

/// The platform of a test: answers from queues and keeps a record. It is the program's platform as
/// long as it lives. Asked for what is not queued, it fails the test at once and answers something
/// harmless; at its end it fails the test for every answer that was not used.
class TestPlatform : public Platform {
 public:
  TestPlatform();
  ~TestPlatform() override;

  // What the user will do, in order. An empty file name stands for a cancelled dialog.
  void WillAnswer(Answer answer) { answers_.push_back(answer); }
  void WillOpen(const QString& path) { filesToOpen_.push_back(path); }
  void WillSave(const QString& path) { filesToSave_.push_back(path); }
  void WillChoosePrinter(bool accepted) { printerChoices_.push_back(accepted); }
  /// Runs `step` while the next message stands.
  void WhileNextMessageStands(std::function<void()> step) { duringMessage_ = std::move(step); }
  /// Runs `step` when something is printed; it may throw.
  void WhenPrinted(std::function<void()> step) { whenPrinted_ = std::move(step); }
  /// Runs `step` in the printer setup dialog; it may throw.
  void WhenPrinterIsSetUp(std::function<void()> step) { whenSetUp_ = std::move(step); }
  void SetFolders(const QString& program, const QString& data) {
    programFolder_ = program;
    dataFolder_ = data;
  }
  void WillCopyFile(bool succeeds) { copies_.push_back(succeeds); }
  /// One answer for each program that is to be started: whether the start succeeds.
  void WillStartProgram(bool succeeds) { starts_.push_back(succeeds); }
  void SetSystemViewer(const ProgramCall& viewer) { systemViewer_ = viewer; }
  void AddFile(const QString& path) { files_.append(path); }
  /// The part of the screen that windows may cover.
  void SetAvailableArea(const QRect& area) { availableArea_ = area; }
  /// The one folder where a rescue copy may stand that can't stand beside its file.
  void SetDocumentsFolder(const QString& folder) { rescueFolders_ = {folder.toStdString()}; }
  /// Without it there is no journal.
  void SetStateFolder(const std::string& folder) { stateFolder_ = folder; }

  // What happened, in order.
  [[nodiscard]] const std::vector<ShownMessage>& messages() const { return messages_; }
  /// The patterns that each file dialog offered.
  [[nodiscard]] const QStringList& filters() const { return filters_; }
  /// The plain text of each printed document.
  [[nodiscard]] const QStringList& printed() const { return printed_; }
  /// What each of them is called.
  [[nodiscard]] const QStringList& printedTitles() const { return printedTitles_; }
  /// "clear" or "text: ..." for each operation.
  [[nodiscard]] const QStringList& clipboard() const { return clipboard_; }
  /// Exit status of each end of the program.
  [[nodiscard]] const std::vector<int>& ends() const { return ends_; }
  /// "source -> target" of each file that was to be copied.
  [[nodiscard]] const QStringList& copied() const { return copied_; }
  [[nodiscard]] const std::vector<ProgramCall>& started() const { return started_; }
  /// The mouse button of each drag of a window.
  [[nodiscard]] const std::vector<Qt::MouseButton>& moves() const { return moves_; }
  /// The registry, to be filled.
  [[nodiscard]] MadeUpRegistry& registry() { return registry_; }
  [[nodiscard]] int printerSetups() const { return printerSetups_; }

  Answer ShowMessage(QWidget* parent, const QString& title, const QString& text,
                     const std::vector<Answer>& buttons) override;
  QString ChooseFileToOpen(QWidget* parent, const QString& filter) override;
  QString ChooseFileToSave(QWidget* parent, const QString& filter) override;
  bool ChoosePrinter(QWidget* parent) override;
  void SetUpPrinter(QWidget* parent) override;
  void Print(const QTextDocument& document) override;
  void ClearClipboard() override;
  void SetClipboardText(const QString& text) override;
  QString ProgramFolder() override;
  QString DataFolder() override;
  bool CopyFile(const QString& source, const QString& target) override;
  std::vector<std::string> RescueFolders() override;
  std::string StateFolder() override;
  [[nodiscard]] bool FileExists(const QString& path) override;
  Registry& TheRegistry() override { return registry_; }
  bool StartProgram(const ProgramCall& call) override;
  ProgramCall SystemViewer() override { return systemViewer_; }
  [[nodiscard]] QRect AvailableArea(QPoint /*at*/) override { return availableArea_; }
  void StartWindowMove(QWidget& window, Qt::MouseButton button) override;
  void EndProgram(int exitStatus) override;

 private:
  std::deque<Answer> answers_;
  std::deque<QString> filesToOpen_;
  std::deque<QString> filesToSave_;
  std::deque<bool> printerChoices_;
  std::deque<bool> copies_;
  std::deque<bool> starts_;
  std::function<void()> duringMessage_;
  std::function<void()> whenPrinted_;
  std::function<void()> whenSetUp_;
  MadeUpRegistry registry_;
  ProgramCall systemViewer_;
  QRect availableArea_{0, 0, 1920, 1080};
  QStringList files_;
  std::vector<std::string> rescueFolders_;
  std::string stateFolder_;
  QString programFolder_;
  QString dataFolder_;

  std::vector<ShownMessage> messages_;
  QStringList filters_;
  QStringList printed_;
  QStringList printedTitles_;
  QStringList clipboard_;
  QStringList copied_;
  std::vector<ProgramCall> started_;
  std::vector<Qt::MouseButton> moves_;
  std::vector<int> ends_;
  int printerSetups_ = 0;
};

/// How GoogleTest shows a message that differs.
void PrintTo(const ShownMessage& message, std::ostream* stream);

}  // namespace halvane
