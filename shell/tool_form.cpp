#include "shell/tool_form.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "core/silently.h"
#include "help/help_commands.h"
#include "platform/platform.h"
#include "shell/frm_about.h"
#include "shell/hand_frame.h"
#include "widgets/input_lock.h"
#include "widgets/layout.h"
#include "widgets/menu_item.h"
#include "widgets/menu_letters.h"
#include "widgets/rich_text_box.h"
#include "widgets/scroll_page.h"
#include "widgets/window_place.h"
#include "widgets/wrap_row.h"

namespace halvane {
namespace {

constexpr QSize kDefaultSize{1120, 700};
constexpr QSize kLeastSize{960, 620};
constexpr int kWider = 40;

}  // namespace

ToolForm::ToolForm(Tool tool, const char* objectName, const IdentificationNames& names,
                   QWidget* parent)
    : QDialog(parent), toolName_(NameOf(tool)), names_(names), fileCommands_(*this) {
  setObjectName(objectName);
  setWindowTitle(ScreenText(toolName_.title));
  setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  // Holds up the main window alone; the help beside it stays usable.
  setWindowModality(Qt::WindowModal);
  place_ = new WindowPlace(
      *this, kDefaultSize, [this] { return LeastSize(); }, lastPlace_);
  body_ = new QVBoxLayout(this);
  body_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  body_->setSpacing(kGap);
  pane_ = new RichTextBox(this);
  MakeMenus();
}

ToolForm::~ToolForm() {
  // A name that is being edited ends with the focus, which goes after the tool's own part of the
  // form is gone.
  for (const QObject* child : findChildren<QObject*>()) child->disconnect(this);
}

QSize ToolForm::LeastSize() const {
  // With large fonts the controls need more, captions that wrap included. In a window that is too
  // narrow what stands side by side would go one under another, and the window would get high: so
  // it gets wider until it has its usual shape.
  int width = std::max(kLeastSize.width(), layout()->totalMinimumSize().width());
  const auto height = [this](int at) { return layout()->totalMinimumHeightForWidth(at); };
  while (height(width) * kLeastSize.width() > width * kLeastSize.height()) width += kWider;
  return {width, std::max(kLeastSize.height(), height(width))};
}

IdentificationStrip* ToolForm::MakeIdentification(QWidget* stripParent) {
  identification_ = new IdentificationStrip(names_, stripParent);
  connect(identification_, &IdentificationStrip::typed, this, &ToolForm::identificationTyped);
  return identification_;
}

HandFrame* ToolForm::MakeHand(QWidget* frameParent) {
  hand_ = new HandFrame(names_.handOptions, frameParent);
  connect(hand_, &HandFrame::handChosen, this, &ToolForm::handChosen);
  return hand_;
}

QWidget* ToolForm::MakeIdentificationWithHand(QWidget* rowParent) {
  auto* widget = new QWidget(rowParent);
  auto* row = new WrapRow(1, widget);
  row->Add(MakeIdentification(widget), 1);
  row->Add(MakeHand(widget), 0);
  return widget;
}

QWidget* ToolForm::MakeScrolling(QWidget* page, QWidget* pageParent) {
  return new ScrollPage(page, pageParent);
}

void ToolForm::MakeMenus() {
  auto* bar = new QMenuBar(this);
  body_->setMenuBar(bar);

  QMenu& file = *bar->addMenu("&File");
  file.setObjectName("mnuFile");
  new MenuLetters(file);
  AddMenuItem(file, "mnuFileNew", "&New", this, &ToolForm::mnuFileNew_Click);
  AddMenuItem(file, "mnuFileOpen", "&Open...", this, &ToolForm::mnuFileOpen_Click);
  AddMenuItem(file, "mnuSave", "&Save", this, &ToolForm::mnuSave_Click);
  AddMenuItem(file, "mnuSaveAs", "&Save &As...", this, &ToolForm::mnuSaveAs_Click);
  file.addSeparator();
  AddMenuItem(file, "mnuPrint", "&Print...", this, &ToolForm::mnuPrint_Click);
  AddMenuItem(file, "mnuFilePrintSetup", "Print Setup...", this,
              &ToolForm::mnuFilePrintSetup_Click);
  file.addSeparator();
  AddMenuItem(file, "mnuFileExit", "E&xit", this, &ToolForm::mnuFileExit_Click);

  mnuEdit_ = bar->addMenu("&Edit");
  mnuEdit_->setObjectName("mnuEdit");
  AddMenuItem(*mnuEdit_, "mnuEditSelect", "&Select All...", this, &ToolForm::mnuEditSelect_Click);
  AddMenuItem(*mnuEdit_, "mnuEditCopy", "&Copy Output", this, &ToolForm::mnuEditCopy_Click);

  QMenu& help = *bar->addMenu("&Help");
  help.setObjectName("mnuHelp");
  AddMenuItem(help, "mnuHelpContent", "&Content...", this, &ToolForm::mnuHelpContent_Click);
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          &ToolForm::mnuHelpContent_Click);
  // Has no action, which is wanted.
  AddMenuItem(help, "mnuHelpSearch", "&Search...");
  help.addSeparator();
  AddMenuItem(help, "mnuHelpAbout", "About Ostrel...", this, &ToolForm::mnuHelpAbout_Click);
}

void ToolForm::load() {
  fileCommands_.Load();
  mnuEdit_->setEnabled(false);
  report_ = RichText();
  pane_->ShowReport(report_);
  loadFromJob();
  identification_->ShowJob();
  // What has the focus already would not be brought into view.
  for (auto* page : findChildren<ScrollPage*>()) page->ShowTop();
  identification_->FocusFirst();
}

void ToolForm::DrawAhead() {
  place_->TakePlace();
  grab();
}

int ToolForm::exec() {
  lock_.reset();
  setResult(Rejected);
  show();
  loop_.exec(QEventLoop::DialogExec);
  return result();
}

void ToolForm::done(int result) {
  if (result != Reload || !loop_.isRunning()) return QDialog::done(result);
  setResult(result);
  // Whatever the user did meanwhile is still handed out in this turn of the loop.
  lock_ = std::make_unique<InputLock>(*this);
  loop_.exit();
  emit finished(result);
}

void ToolForm::setVisible(bool visible) {
  // Passed on while the tool still has it: behind that the window manager gives the keyboard to the
  // help, if that is open, and some then take the wish of the main window for an older one.
  if (!visible && isActiveWindow() && parentWidget() != nullptr) parentWidget()->activateWindow();
  QDialog::setVisible(visible);
  if (!visible) loop_.exit();
}

void ToolForm::ShowReport() {
  WriteAndShow([this] { writeReport(report_); });
}

template <typename Write>
void ToolForm::WriteAndShow(const Write& write) {
  try {
    write();
  } catch (...) {
    // What was appended before the failure stands in the pane.
    pane_->ShowReport(report_);
    throw;
  }
  pane_->ShowReport(report_);
}

void ToolForm::mnuFileNew_Click() {
  if (fileCommands_.New()) done(Reload);
}

void ToolForm::mnuFileOpen_Click() {
  if (fileCommands_.Open()) done(Reload);
}

void ToolForm::mnuSave_Click() { fileCommands_.Save(); }

void ToolForm::mnuSaveAs_Click() { fileCommands_.SaveAs(); }

void ToolForm::mnuPrint_Click() {
  Silently([this] {
    fileCommands_.SetCancelIsFailure();
    if (!ThePlatform().ChoosePrinter(this)) return;
    WriteAndShow([this] { printReport(report_); });
    pane_->SelectAll();
    pane_->document()->setMetaInformation(QTextDocument::DocumentTitle, windowTitle());
    ThePlatform().Print(*pane_->document());
    pane_->Select(0, 0);
  });
}

void ToolForm::mnuFilePrintSetup_Click() {
  Silently([this] { ThePlatform().SetUpPrinter(this); });
}

void ToolForm::mnuFileExit_Click() { done(Rejected); }

void ToolForm::mnuEditSelect_Click() {
  pane_->setFocus();
  pane_->SelectAll();
}

void ToolForm::mnuEditCopy_Click() {
  pane_->setFocus();
  CopySelection();
}

void ToolForm::CopySelection() {
  ThePlatform().ClearClipboard();
  // With no selection the clipboard ends empty, which is wanted.
  const QString selected = pane_->SelectedText();
  if (!selected.isEmpty()) ThePlatform().SetClipboardText(selected);
}

void ToolForm::mnuHelpContent_Click() { ShowHelpTopic(ScreenText(toolName_.helpTopic)); }

void ToolForm::mnuHelpAbout_Click() { FrmAbout(this).exec(); }

void ToolForm::keyPressEvent(QKeyEvent* event) {
  // A dialog closes on Escape and presses a button on Return; a tool does neither.
  const bool dialogKey = event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
  if (!dialogKey) QDialog::keyPressEvent(event);
}

}  // namespace halvane
