#pragma once

#include <QPageLayout>
#include <memory>
#include <optional>

#include "platform/platform.h"

class QPrinter;

namespace halvane {

/// The desktop that the program runs on, through the toolkit.
class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

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
  bool FileExists(const QString& path) override;
  Registry& TheRegistry() override;
  bool StartProgram(const ProgramCall& call) override;
  ProgramCall SystemViewer() override;
  [[nodiscard]] QRect AvailableArea(QPoint at) override;
  void StartWindowMove(QWidget& window, Qt::MouseButton button) override;
  void EndProgram(int exitStatus) override;

  /// The printer that the two printer dialogs set up and `Print` prints on. Made at first use,
  /// since asking the system for its printers takes time.
  QPrinter& CurrentPrinter();

 private:
  /// Gives the current printer what was set up, with the margins that it needs at least.
  void UseSetup();

  std::unique_ptr<QPrinter> printer_;
  std::optional<QPageLayout> setup_;  ///< chosen in the setup dialog and not replaced since
};

}  // namespace halvane
