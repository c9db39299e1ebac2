#include "tests/forms/every_page.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <stdexcept>

#include "app/tool_forms.h"
#include "core/job_file.h"
#include "core/job_state.h"
#include "core/messages.h"
#include "help/help_find_bar.h"
#include "help/help_window.h"
#include "platform/platform_qt.h"
#include "shell/frm_about.h"
#include "shell/frm_hand_main.h"
#include "shell/tool_form.h"
#include "tests/forms/place_checks.h"
#include "tools/tool_table.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/window_place.h"

namespace halvane {
namespace {

void Settle() {
  // A layout that gives a caption another width may need another height.
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void LookAt(QWidget& window, const QString& page, const Look& look) {
  Settle();
  look(window, page);
}

void LookAtMenu(QMenu& menu, const QPoint& at, const Look& look) {
  menu.popup(at);
  LookAt(menu, "menu " + menu.title(), look);
  for (QAction* item : menu.actions()) {
    if (item->menu() != nullptr) LookAtMenu(*item->menu(), menu.geometry().topRight(), look);
  }
  menu.close();
}

void LookAtMainWindow(const Look& look) {
  FrmHandMain main(MakeToolForm);
  main.show();
  LookAt(main, "opening", look);
  main.Timer1_Timer();
  LookAt(main, "main", look);
  for (const char* name : {"mnuPopUp1", "mnuPopup2"}) {
    LookAtMenu(*main.findChild<QMenu*>(name), main.geometry().center(), look);
  }
  FrmAbout about(&main);
  about.show();
  LookAt(about, "about", look);
}

void LookAtMessage(const QString& text, const std::vector<Answer>& buttons, const Look& look) {
  QTimer::singleShot(0, [&look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) throw std::runtime_error("no message is on the screen");
    LookAt(*box, "message", look);
    box->reject();
  });
  ThePlatform().ShowMessage(nullptr, kProgramTitle, text, buttons);
}

void LookAtHelp(const QString& file, const Look& look) {
  LastPlace place;
  HelpWindow help(place);
  help.setAttribute(Qt::WA_DeleteOnClose, false);
  help.ShowContents(file);
  help.findChild<HelpFindBar*>()->Open();
  LookAt(help, "contents", look);
}

void LookAtPage(ToolForm& form, const QString& page, const Look& look) {
  const QSize opened = form.size();
  LookAt(form, page, look);
  form.resize(form.minimumSize());
  if (form.size() != opened) LookAt(form, page + " at its least", look);
  const QMargins frame(kBorder, kTitleBar, kBorder, kBorder);
  const QRect normal = form.geometry();
  const QRect whole = ThePlatform().AvailableArea(normal.center()).marginsRemoved(frame);
  if (whole.size() != opened) {
    form.setGeometry(whole);
    LookAt(form, page + " at its largest", look);
  }
  form.setGeometry(QRect(normal.topLeft(), opened));
}

void LookAtTabs(ToolForm& form, const Look& look) {
  auto* tabs = form.findChild<QTabWidget*>("SSTab1");
  for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
    if (tabs != nullptr) tabs->setCurrentIndex(tab);
    const QString page = QString("tab %1").arg(tab);
    // The body parts of the CTD tool show their frames one after the other.
    const bool hasParts = form.objectName() == "frmCTD" && tab == 1;
    for (int part = 0; part < (hasParts ? 4 : 1); ++part) {
      if (hasParts) {
        form.findChild<RibbonButton*>(ElementName("SSRibbon3", part))->click();
      }
      LookAtPage(form, hasParts ? page + QString(" part %1").arg(part) : page, look);
    }
  }
}

void LookAtTool(Tool tool, const Look& look) {
  const auto form = MakeToolForm(tool, nullptr);
  form->load();
  form->show();
  LookAtTabs(*form, look);
  auto* bar = form->findChild<QMenuBar*>();
  for (QAction* item : bar->actions()) {
    const QPoint below = bar->actionGeometry(item).bottomLeft();
    if (item->isEnabled()) LookAtMenu(*item->menu(), bar->mapToGlobal(below), look);
  }
}

}  // namespace

void OnEveryPage(const QString& jobFile, const QString& helpFile, const Look& look) {
  Module1 = JobState{};
  LookAtMainWindow(look);
  LookAtMessage(kExitQuestion, {Answer::Yes, Answer::No}, look);
  LookAtMessage(kSaveBeforeClosing, {Answer::Yes, Answer::No, Answer::Cancel}, look);
  LookAtMessage(kFileCopied, {Answer::Ok}, look);
  LookAtMessage(kDeleteTaskQuestion, {Answer::Yes, Answer::No}, look);
  LookAtHelp(helpFile, look);
  Module1.JobFileName = jobFile.toStdString();
  if (OpenJobFile() != OpenOutcome::Opened) {
    throw std::runtime_error("cannot open " + jobFile.toStdString());
  }
  for (const ToolRow& row : Tools()) LookAtTool(row.tool, look);
}

}  // namespace halvane
