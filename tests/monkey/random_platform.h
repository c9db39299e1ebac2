#pragma once

#include <functional>
#include <vector>

#include "help/help_viewer.h"
#include "tests/monkey/dice.h"
#include "tests/monkey/sample_jobs.h"
#include "tests/monkey/trace.h"
#include "tests/support/test_platform.h"

namespace halvane {

/// A platform whose user answers at random, and the help viewer that shows nothing. What it was
/// asked is in the trace; what must not be asked is a finding there.
class RandomPlatform : public TestPlatform, public HelpViewer {
 public:
  /// Files are opened from `jobs` and saved into `folder`.
  RandomPlatform(Dice& dice, Trace& trace, QString folder, std::vector<SampleJob> jobs);
  ~RandomPlatform() override;

  /// Stands for a dialog of the toolkit on top of a window: called whenever there would be one.
  void SetDialog(std::function<void(QWidget*)> dialog) { dialog_ = std::move(dialog); }

  /// Tells that the job that was opened last is the whole job in memory now.
  void Loaded();
  /// Whether something of an odd file is in the job: it may have been opened only half.
  [[nodiscard]] bool openedAnOddJob() const { return openedAnOddJob_; }
  /// Whether the last place that the user chose to save at can take no file.
  [[nodiscard]] bool savedInABadPlace() const { return savedInABadPlace_; }
  /// Whether the user has chosen a file to open since this was asked last.
  bool TakeHasOpened();
  /// Forgets all this, for a program that starts anew.
  void Forget();

  Answer ShowMessage(QWidget* parent, const QString& title, const QString& text,
                     const std::vector<Answer>& buttons) override;
  QString ChooseFileToOpen(QWidget* parent, const QString& filter) override;
  QString ChooseFileToSave(QWidget* parent, const QString& filter) override;
  bool ChoosePrinter(QWidget* parent) override;
  void SetUpPrinter(QWidget* parent) override;
  void Print(const QTextDocument& document) override;
  void ClearClipboard() override {}
  void SetClipboardText(const QString& text) override;
  bool StartProgram(const ProgramCall& call) override;
  void EndProgram(int exitStatus) override;

  void Show(QWidget* owner, const QString& file, HelpCommand command,
            const QString& topic) override;

 private:
  Dice& dice_;
  Trace& trace_;
  QString folder_;
  std::vector<SampleJob> jobs_;
  std::function<void(QWidget*)> dialog_ = [](QWidget*) {};
  bool openedAnOddJob_ = false;
  bool lastIsOdd_ = false;
  bool savedInABadPlace_ = false;
  bool hasOpened_ = false;
};

}  // namespace halvane
