#pragma once

#include <QDialog>
#include <QEventLoop>
#include <memory>

#include "core/rich_text.h"
#include "core/tool_names.h"
#include "shell/file_commands.h"
#include "shell/identification_strip.h"
#include "widgets/window_place.h"

class QMenu;
class QTabWidget;
class QVBoxLayout;

namespace halvane {

class HandFrame;
class InputLock;
class RichTextBox;

/// What all six tools share: window, menus, file and report commands, identification strip, report
/// pane. A tool says what differs through the functions at the end; the Edit commands may differ
/// too. It keeps no data of the job.
class ToolForm : public QDialog {
  Q_OBJECT
 public:
  /// Result of `exec`: the job was replaced, and the form has to be loaded and shown again. Until
  /// then it stays on the screen, where only what changes is drawn, and takes no keys and no mouse.
  static constexpr int Reload = 2;

  ~ToolForm() override;

  /// Brings the form to its design state and fills it from the job. Throws what the tool's load
  /// throws.
  void load();
  /// Lays the form out and draws it without showing it, so that its pictures and fonts are there
  /// when it is shown.
  void DrawAhead();

  /// Shows the form, where it is not on the screen yet, until it is closed or has to be loaded
  /// again; gives the result.
  int exec() override;
  void done(int result) override;
  void setVisible(bool visible) override;

  /// What the tool that the form is for is called.
  [[nodiscard]] const ToolName& toolName() const { return toolName_; }

  // In the order of the menus.
  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuSave_Click();
  void mnuSaveAs_Click();
  void mnuPrint_Click();
  void mnuFilePrintSetup_Click();
  void mnuFileExit_Click();
  virtual void mnuEditSelect_Click();
  virtual void mnuEditCopy_Click();
  void mnuHelpContent_Click();
  void mnuHelpAbout_Click();

 protected:
  /// `objectName` is the form's own name, "frmSI"; `names` has to outlive the form.
  ToolForm(Tool tool, const char* objectName, const IdentificationNames& names, QWidget* parent);

  /// Computes, writes the report and shows it. Throws what the tool's computation throws.
  void ShowReport();
  /// Puts what is selected in the report pane on the clipboard and nothing else there.
  void CopySelection();

  // Makes the identification strip and the Hand frame. The tool calls them where these stand in
  // reading order, since that is the order of the Tab key.
  IdentificationStrip* MakeIdentification(QWidget* stripParent);
  HandFrame* MakeHand(QWidget* frameParent);
  /// Both in one row, as most tools have them.
  QWidget* MakeIdentificationWithHand(QWidget* rowParent);
  /// Puts a page of controls on what scrolls it in a window that is too small for the page.
  static QWidget* MakeScrolling(QWidget* page, QWidget* pageParent);
  IdentificationStrip& identification() { return *identification_; }
  HandFrame& hand() { return *hand_; }
  RichTextBox& RichTextBox1() { return *pane_; }
  QMenu& mnuEdit() { return *mnuEdit_; }
  /// The space below the menu bar; the tool puts its controls there.
  QVBoxLayout& body() { return *body_; }

  void keyPressEvent(QKeyEvent* event) override;

  /// Fills the tool's controls from the job, running the handlers that a load runs.
  virtual void loadFromJob() = 0;
  /// Computes and writes the report.
  virtual void writeReport(RichText& RichTextBox1) = 0;
  /// Rewrites the report for printing; computes anew unless a tool says otherwise.
  virtual void printReport(RichText& RichTextBox1) { writeReport(RichTextBox1); }
  /// The user chose a hand.
  virtual void handChosen(int index) = 0;
  /// A key was released in a box of the identification strip, which has stored its text.
  virtual void identificationTyped() {}

 private:
  /// The size at which nothing on the form has to scroll.
  [[nodiscard]] QSize LeastSize() const;
  void MakeMenus();
  /// Runs what writes the report, and shows what it has written however that ends.
  template <typename Write>
  void WriteAndShow(const Write& write);

  const ToolName& toolName_;
  const IdentificationNames& names_;
  FileCommands fileCommands_;
  LastPlace lastPlace_;
  WindowPlace* place_;
  RichText report_;
  IdentificationStrip* identification_ = nullptr;
  HandFrame* hand_ = nullptr;
  RichTextBox* pane_;
  QMenu* mnuEdit_ = nullptr;
  QVBoxLayout* body_;
  /// Of `exec`.
  QEventLoop loop_;
  /// From the end of the job that the form shows to the next one.
  std::unique_ptr<InputLock> lock_;
};

}  // namespace halvane
