#pragma once

#include <QWidget>
#include <map>
#include <memory>

#include "core/tool_names.h"
#include "shell/file_commands.h"

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QShortcut;
class QTimer;

namespace halvane {

class HandMainLook;
class LinkLabel;
class RaisedButton;
class RibbonButton;
class ToolForm;

/// Makes the form of a tool, not yet loaded.
using ToolFormMaker = std::unique_ptr<ToolForm> (*)(Tool tool, QWidget* parent);

/// The main window: opening phase, launch buttons, file and help menus, the way out. How it looks
/// and where things stand is the business of `HandMainLook`.
class FrmHandMain : public QWidget {
  Q_OBJECT
 public:
  explicit FrmHandMain(ToolFormMaker makeToolForm);
  ~FrmHandMain() override;

  // In the order of the screen.
  void SSSplash1_MouseDown(Qt::MouseButton button);
  void SSSplash1_MouseMove();
  void SSSplash1_Click();
  void Picture1_MouseDown(Qt::MouseButton button);
  void Label1_MouseDown(Qt::MouseButton button);
  void Hyperlink1_Click();           ///< on the opening panel
  void SSCommand3_Click(int index);  ///< 0 close, 1 minimise
  void SSCommand2_Click(int index);  ///< launch buttons
  void SSRibbon1_Click(int index, bool pressed);
  void SSCommand1_Click();
  void Timer1_Timer();

  // In the order of the menus.
  void mnuNew_Click();
  void mnuOpen_Click();
  void mnuSave_Click();
  void mnuSaveAs_Click();
  void mnuMetric_Click();
  void mnuEnglish_Click();
  void mnuExit_Click();
  void mnuContent_Click();
  void mnuAbout_Click();

  /// Takes the focus off every button, so that none stays in its focused look. The window itself
  /// holds it then, else the toolkit would give it to the first button when the window becomes the
  /// active one.
  void ParkFocus();

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class HandMainLook;

  void Load();
  void MakeMenus();
  void MakeButtons();
  void ReleaseRibbons();
  /// Lets the window follow the mouse until that button is released.
  void Drag(Qt::MouseButton button);
  void ShowUnits();
  void EnableShortcuts(bool enabled);
  /// The tool's form, which is made when it is asked for the first time.
  ToolForm& FormOf(Tool tool);
  /// Has the forms made and drawn while nobody does anything, so that a tool's first opening has
  /// only to fill its form.
  void MakeFormsAhead();

  ToolFormMaker makeToolForm_;
  FileCommands fileCommands_;
  QTimer* Timer1_;
  QWidget* SSSplash1_ = nullptr;
  QWidget* Picture1_ = nullptr;
  QLabel* Label1_ = nullptr;
  QWidget* Picture3_ = nullptr;
  LinkLabel* Hyperlink1_ = nullptr;
  QPushButton* SSCommand1_ = nullptr;
  std::vector<RaisedButton*> SSCommand2_;
  std::vector<RaisedButton*> SSCommand3_;
  std::vector<RibbonButton*> SSRibbon1_;
  QMenu* mnuPopUp1_ = nullptr;
  QMenu* mnuPopup2_ = nullptr;
  QAction* mnuMetric_ = nullptr;
  QAction* mnuEnglish_ = nullptr;
  QShortcut* helpKey_ = nullptr;
  std::map<Tool, std::unique_ptr<ToolForm>> forms_;
};

}  // namespace halvane
