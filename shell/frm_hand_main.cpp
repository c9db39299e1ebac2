#include "shell/frm_hand_main.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

#include "core/job_state.h"
#include "core/messages.h"
#include "core/units.h"
#include "help/help_commands.h"
#include "platform/platform.h"
#include "shell/frm_about.h"
#include "shell/hand_main_look.h"
#include "shell/idle_steps.h"
#include "shell/tool_form.h"
#include "widgets/layout.h"
#include "widgets/link_label.h"
#include "widgets/menu_item.h"
#include "widgets/raised_button.h"
#include "widgets/raised_ribbon.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr int kOpeningMilliseconds = 3500;

}  // namespace

FrmHandMain::FrmHandMain(ToolFormMaker makeToolForm)
    : makeToolForm_(makeToolForm), fileCommands_(*this), Timer1_(new QTimer(this)) {
  setObjectName("frmHand_Main");
  setWindowTitle("Halvane Tools V1.0");
  HandMainLook::Arrange(*this);
  SSSplash1_->setMouseTracking(true);
  for (QWidget* area : {SSSplash1_, Picture1_, static_cast<QWidget*>(Label1_)}) {
    area->installEventFilter(this);
  }
  connect(Hyperlink1_, &LinkLabel::clicked, this, &FrmHandMain::Hyperlink1_Click);
  MakeMenus();
  MakeButtons();
  Timer1_->setObjectName("Timer1");
  Timer1_->setSingleShot(true);
  connect(Timer1_, &QTimer::timeout, this, &FrmHandMain::Timer1_Timer);
  Load();
}

FrmHandMain::~FrmHandMain() = default;

void FrmHandMain::Load() {
  Module1.JobDirty = kFalse;
  JobReset();
  ShowUnits();
  EnableShortcuts(false);
  Timer1_->start(kOpeningMilliseconds);
}

void FrmHandMain::MakeMenus() {
  mnuPopUp1_ = new QMenu("Popup1", this);
  mnuPopUp1_->setObjectName("mnuPopUp1");
  QMenu& file = *mnuPopUp1_;
  AddMenuItem(file, "mnuNew", "New", this, &FrmHandMain::mnuNew_Click)
      ->setShortcut(Qt::CTRL | Qt::Key_N);
  AddMenuItem(file, "mnuOpen", "Open", this, &FrmHandMain::mnuOpen_Click)
      ->setShortcut(Qt::CTRL | Qt::Key_O);
  file.addSeparator();
  AddMenuItem(file, "mnuSave", "Save", this, &FrmHandMain::mnuSave_Click)
      ->setShortcut(Qt::CTRL | Qt::Key_S);
  AddMenuItem(file, "mnuSaveAs", "Save As...", this, &FrmHandMain::mnuSaveAs_Click);
  file.addSeparator();
  QMenu& unit = *file.addMenu("Unit");
  unit.menuAction()->setObjectName("mnuUnit");
  mnuMetric_ = AddMenuItem(unit, "mnuMetric", "Metric", this, &FrmHandMain::mnuMetric_Click);
  mnuEnglish_ = AddMenuItem(unit, "mnuEnglish", "English", this, &FrmHandMain::mnuEnglish_Click);
  // No group of actions, which would have a bullet for its check mark.
  for (QAction* choice : {mnuMetric_, mnuEnglish_}) choice->setCheckable(true);
  file.addSeparator();
  AddMenuItem(file, "mnuExit", "Exit Program", this, &FrmHandMain::mnuExit_Click);
  // The menu never stands in a bar, so the window itself has to know its shortcuts.
  addActions(file.actions());

  mnuPopup2_ = new QMenu("Popup2", this);
  mnuPopup2_->setObjectName("mnuPopup2");
  AddMenuItem(*mnuPopup2_, "mnuContent", "Content...", this, &FrmHandMain::mnuContent_Click);
  helpKey_ = new QShortcut(Qt::Key_F1, this);
  connect(helpKey_, &QShortcut::activated, this, &FrmHandMain::mnuContent_Click);
  mnuPopup2_->addSeparator();
  AddMenuItem(*mnuPopup2_, "mnuAbout", "About Ostrel...", this, &FrmHandMain::mnuAbout_Click);
}

void FrmHandMain::MakeButtons() {
  for (const ToolName& tool : kToolNames) {
    if (tool.buttonCaption.empty()) continue;
    const int index = static_cast<int>(SSCommand2_.size());
    auto* button = new RaisedButton(ElementName("SSCommand2", index), this);
    button->setText(ScreenText(tool.buttonCaption));
    button->setToolTip(ScreenText(tool.buttonTip));
    connect(button, &RaisedButton::clicked, this, [this, index] { SSCommand2_Click(index); });
    SSCommand2_.push_back(button);
  }
  const std::array captions{"File", "Help"};
  const std::array tips{"File Menu", "Help Menu"};
  for (int i = 0; i < 2; ++i) {
    const auto at = static_cast<std::size_t>(i);
    auto* ribbon = new RaisedRibbon(ElementName("SSRibbon1", i), captions.at(at), this);
    ribbon->SetOneLine();
    ribbon->setToolTip(tips.at(at));
    connect(ribbon, &RibbonButton::clicked, this,
            [this, i](bool pressed) { SSRibbon1_Click(i, pressed); });
    SSRibbon1_.push_back(ribbon);
  }
  const std::array closeTips{"Close", "Minimize"};
  for (int i = 0; i < 2; ++i) {
    const auto at = static_cast<std::size_t>(i);
    auto* button = new RaisedButton(ElementName("SSCommand3", i), this);
    button->setToolTip(closeTips.at(at));
    button->setAccessibleName(closeTips.at(at));
    connect(button, &RaisedButton::clicked, this, [this, i] { SSCommand3_Click(i); });
    SSCommand3_.push_back(button);
  }
  SSCommand1_ = new QPushButton("ssCommand1", this);
  SSCommand1_->setObjectName("SSCommand1");
  connect(SSCommand1_, &QPushButton::clicked, this, &FrmHandMain::SSCommand1_Click);

  for (QWidget* control : findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
    // The mouse leaves no button in its focused look.
    control->setFocusPolicy(Qt::TabFocus);
    control->hide();
  }
}

void FrmHandMain::Timer1_Timer() {
  Picture3_->hide();
  HandMainLook::ShowButtons(*this);
  for (QWidget* control : SSCommand2_) control->show();
  for (QWidget* control : SSRibbon1_) control->show();
  for (QWidget* control : SSCommand3_) control->show();
  EnableShortcuts(true);
  ParkFocus();
  MakeFormsAhead();
}

ToolForm& FrmHandMain::FormOf(Tool tool) {
  std::unique_ptr<ToolForm>& form = forms_[tool];
  if (!form) form = makeToolForm_(tool, this);
  return *form;
}

void FrmHandMain::MakeFormsAhead() {
  std::deque<IdleSteps::Step> steps;
  for (const ToolName& tool : kToolNames) {
    if (tool.buttonCaption.empty()) continue;
    steps.emplace_back([this, &tool] { FormOf(tool.tool); });
    steps.emplace_back([this, &tool] { FormOf(tool.tool).DrawAhead(); });
  }
  new IdleSteps(std::move(steps), this);
}

void FrmHandMain::EnableShortcuts(bool enabled) {
  for (QAction* item : actions()) item->setEnabled(enabled);
  helpKey_->setEnabled(enabled);
}

void FrmHandMain::ParkFocus() {
  SSCommand1_->setEnabled(true);
  SSCommand1_->show();
  SSCommand1_->setFocus();
  SSCommand1_->setEnabled(false);
  SSCommand1_->hide();
  setFocus();
}

bool FrmHandMain::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  // The message, dialog or tool in front of the window has gone.
  if (event->type() == QEvent::WindowUnblocked) ParkFocus();
  return handled;
}

void FrmHandMain::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
  if (before.testFlag(Qt::WindowMinimized) && !isMinimized()) ParkFocus();
}

void FrmHandMain::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QAbstractButton*>(focusWidget());
  if (isReturn && button != nullptr && !event->isAutoRepeat()) {
    button->click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void FrmHandMain::SSCommand1_Click() { ThePlatform().EndProgram(0); }

void FrmHandMain::SSCommand2_Click(int index) {
  if (index >= 0 && index < static_cast<int>(SSCommand2_.size())) {
    ToolForm& form = FormOf(kToolNames.at(static_cast<std::size_t>(index)).tool);
    // New and Open on a tool ask for another showing; so nothing nests, and one close comes back
    // here.
    do {
      form.load();
    } while (form.exec() == ToolForm::Reload);
  }
  ParkFocus();
  ReleaseRibbons();
}

void FrmHandMain::SSCommand3_Click(int index) {
  ParkFocus();
  if (index == 0) {
    mnuExit_Click();
  } else {
    showMinimized();
  }
}

void FrmHandMain::SSRibbon1_Click(int index, bool pressed) {
  if (!pressed) return;
  const QWidget* ribbon = SSRibbon1_.at(static_cast<std::size_t>(index));
  QMenu* menu = index == 0 ? mnuPopUp1_ : mnuPopup2_;
  menu->exec(ribbon->mapToGlobal(QPoint(0, ribbon->height())));
}

void FrmHandMain::ReleaseRibbons() {
  for (RibbonButton* ribbon : SSRibbon1_) ribbon->setChecked(false);
}

void FrmHandMain::Drag(Qt::MouseButton button) { ThePlatform().StartWindowMove(*this, button); }

bool FrmHandMain::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
  const bool release = type == QEvent::MouseButtonRelease;
  if (!press && !release && type != QEvent::MouseMove) return QWidget::eventFilter(watched, event);
  const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
  if (watched == SSSplash1_) {
    if (press) SSSplash1_MouseDown(button);
    if (release) SSSplash1_Click();
    if (type == QEvent::MouseMove) SSSplash1_MouseMove();
  } else if (press && watched == Picture1_) {
    Picture1_MouseDown(button);
  } else if (press) {
    Label1_MouseDown(button);
  }
  // What happens on one of these areas is not an event of the form below it as well.
  return true;
}

void FrmHandMain::SSSplash1_MouseDown(Qt::MouseButton button) {
  ReleaseRibbons();
  // The hand covers the form, so it is what the window is dragged by.
  Drag(button);
}

void FrmHandMain::SSSplash1_MouseMove() { ReleaseRibbons(); }

void FrmHandMain::SSSplash1_Click() { ReleaseRibbons(); }

void FrmHandMain::Picture1_MouseDown(Qt::MouseButton button) { Drag(button); }

void FrmHandMain::Label1_MouseDown(Qt::MouseButton button) { Drag(button); }

void FrmHandMain::mousePressEvent(QMouseEvent* event) {
  ReleaseRibbons();
  Drag(event->button());
}

void FrmHandMain::mouseReleaseEvent(QMouseEvent* /*event*/) { ReleaseRibbons(); }

void FrmHandMain::Hyperlink1_Click() { mnuContent_Click(); }

void FrmHandMain::mnuNew_Click() { fileCommands_.New(); }

void FrmHandMain::mnuOpen_Click() { fileCommands_.Open(); }

void FrmHandMain::mnuSave_Click() { fileCommands_.Save(); }

void FrmHandMain::mnuSaveAs_Click() { fileCommands_.SaveAs(); }

void FrmHandMain::mnuMetric_Click() {
  ChooseUnits(LengthUnit::Metric);
  ShowUnits();
}

void FrmHandMain::mnuEnglish_Click() {
  ChooseUnits(LengthUnit::English);
  ShowUnits();
}

void FrmHandMain::ShowUnits() {
  const bool english = Module1.Units == static_cast<Integer>(LengthUnit::English);
  mnuMetric_->setChecked(!english);
  mnuEnglish_->setChecked(english);
}

void FrmHandMain::mnuExit_Click() {
  Platform& platform = ThePlatform();
  const Answer leave =
      platform.ShowMessage(this, kProgramTitle, kExitQuestion, {Answer::Yes, Answer::No});
  if (leave != Answer::Yes) return;
  if (Module1.JobDirty != kFalse) {
    const Answer save = platform.ShowMessage(this, kProgramTitle, kSaveBeforeExiting,
                                             {Answer::Yes, Answer::No, Answer::Cancel});
    if (save == Answer::Cancel) return;
    if (save == Answer::Yes) mnuSave_Click();
  }
  platform.EndProgram(0);
}

void FrmHandMain::mnuContent_Click() { ShowHelpContents(); }

void FrmHandMain::mnuAbout_Click() { FrmAbout(this).exec(); }

void FrmHandMain::closeEvent(QCloseEvent* event) {
  // The window manager's close is the close button; only the end of the program closes the window.
  event->ignore();
  SSCommand3_Click(0);
}

}  // namespace halvane
