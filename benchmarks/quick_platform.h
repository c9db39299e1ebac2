#pragma once

#include <QTemporaryDir>

#include "platform/platform_qt.h"

namespace halvane {

/// Answers every question at once, so that nothing waits for a user: messages with their first
/// button, choices of a file with one in a folder of its own, where the journal is kept too. Stands
/// in the place of the real platform as long as it lives.
class QuickPlatform : public QtPlatform {
 public:
  QuickPlatform() { SetPlatform(this); }
  ~QuickPlatform() override { SetPlatform(nullptr); }

  Answer ShowMessage(QWidget* /*parent*/, const QString& /*title*/, const QString& text,
                     const std::vector<Answer>& buttons) override;
  QString ChooseFileToOpen(QWidget* /*parent*/, const QString& /*filter*/) override {
    return JobFile();
  }
  QString ChooseFileToSave(QWidget* /*parent*/, const QString& /*filter*/) override {
    return JobFile();
  }
  bool ChoosePrinter(QWidget* /*parent*/) override { return false; }
  void SetUpPrinter(QWidget* /*parent*/) override {}
  std::vector<std::string> RescueFolders() override { return {folder_.path().toStdString()}; }
  std::string StateFolder() override { return folder_.path().toStdString(); }
  bool StartProgram(const ProgramCall& /*call*/) override { return true; }
  /// A failure has ended what is measured: says so and ends with another status.
  void EndProgram(int exitStatus) override;

  [[nodiscard]] QString JobFile() const { return folder_.filePath("job.qjt"); }

 private:
  QTemporaryDir folder_;
};

}  // namespace halvane
