#pragma once

#include <QTabWidget>
#include <memory>
#include <string>
#include <vector>

#include "app/tool_forms.h"
#include "core/task_list.h"
#include "shell/frm_about.h"
#include "shell/frm_hand_main.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/tool_table.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"

namespace halvane {

/// A test of what every window has to keep.
class EveryWindow : public ShellTest {
 protected:
  /// Every window of the program, ready for input.
  std::vector<std::unique_ptr<QWidget>> Windows() {
    std::vector<std::unique_ptr<QWidget>> windows;
    windows.push_back(IdleMainWindow());
    windows.push_back(std::make_unique<FrmAbout>(nullptr));
    for (auto& form : ToolForms()) windows.push_back(std::move(form));
    return windows;
  }

  /// Every tool, on a job with a task.
  static std::vector<std::unique_ptr<ToolForm>> ToolForms() {
    if (Module1.TaskCount.AsDouble() == 0) AddTaskRecord();
    std::vector<std::unique_ptr<ToolForm>> forms;
    for (const ToolRow& row : Tools()) {
      forms.push_back(MakeToolForm(row.tool, nullptr));
      forms.back()->load();
    }
    return forms;
  }
};

/// Runs `check` on every tab of a window, or once where it has none.
template <typename Check>
void OnEveryTab(QWidget& window, const Check& check) {
  auto* tabs = window.findChild<QTabWidget*>("SSTab1");
  for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
    SCOPED_TRACE(window.objectName().toStdString() + ", tab " + std::to_string(tab));
    if (tabs != nullptr) tabs->setCurrentIndex(tab);
    check();
    // The body parts of the CTD tool show their frames one after the other.
    const int parts = window.objectName() == "frmCTD" && tab == 1 ? 4 : 0;
    for (int part = 0; part < parts; ++part) {
      SCOPED_TRACE("part " + std::to_string(part));
      Find<RibbonButton>(window, ElementName("SSRibbon3", part)).click();
      check();
    }
  }
}

}  // namespace halvane
