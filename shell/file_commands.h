#pragma once

class QWidget;

namespace halvane {

/// New, Open, Save and Save As on the one job, written once for the main window and all tools. Each
/// form has its own object, which stands for the form's own file dialog.
class FileCommands {
 public:
  /// `form` is the parent of messages and dialogs.
  explicit FileCommands(QWidget& form) : form_(form) {}

  /// The form was loaded: its dialog is as new.
  void Load() { cancelIsFailure_ = false; }
  /// Print has been used on the form: from now on a cancelled dialog ends Open and Save As at once,
  /// with name and mark of the job as they were.
  void SetCancelIsFailure() { cancelIsFailure_ = true; }

  /// True when the job was replaced by the empty one, so that a tool has to load again.
  bool New();
  /// True when a job was read, so that a tool has to load again. Every failure ends it silently.
  bool Open();
  /// Throws what `WriteJobFile` throws: a job that cannot be saved ends the program.
  void Save();
  /// Every failure ends it silently. A cancelled dialog takes the job's name away and marks it as
  /// saved, which is wanted.
  void SaveAs();

 private:
  bool GoOnWithUnsavedJob();

  QWidget& form_;
  bool cancelIsFailure_ = false;
};

}  // namespace halvane
