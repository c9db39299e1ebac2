// Writes what a screen reader finds on each window, for reading it as it will be spoken:
// form_words FOLDER [JOBFILE]
#include <QDir>
#include <QTest>
#include <cstdlib>
#include <iostream>

#include "app/tool_forms.h"
#include "core/job_file.h"
#include "core/job_state.h"
#include "shell/frm_about.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tests/forms/every_window.h"
#include "tests/support/picture_screen.h"
#include "tests/support/spoken_tree.h"
#include "tools/tool_table.h"

namespace {

using halvane::Module1;

void Write(QWidget& window, const QString& path) {
  QTest::qWait(1);
  QFile file(path);
  const QByteArray lines = halvane::SpokenLines(halvane::SpokenTree(window)).toUtf8();
  if (!file.open(QFile::WriteOnly) || file.write(lines) != lines.size()) {
    std::cerr << "cannot write " << path.toStdString() << "\n";
    std::exit(1);
  }
}

void WriteTool(halvane::Tool tool, const QString& folder) {
  const auto form = halvane::MakeToolForm(tool, nullptr);
  form->load();
  form->show();
  int page = 0;
  halvane::OnEveryTab(*form, [&] {
    Write(*form, QString("%1/%2-%3.txt").arg(folder, form->objectName()).arg(page++));
  });
}

}  // namespace

int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  if (argc < 2) {
    std::cerr << "usage: form_words FOLDER [JOBFILE]\n";
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  QDir().mkpath(folder);
  const halvane::PictureScreen screen;
  halvane::FrmHandMain window(halvane::MakeToolForm);
  window.show();
  Write(window, folder + "/frmHand_Main-opening.txt");
  window.Timer1_Timer();
  Write(window, folder + "/frmHand_Main.txt");
  halvane::FrmAbout about(&window);
  about.show();
  Write(about, folder + "/frmAbout.txt");
  if (argc > 2) {
    Module1.JobFileName = argv[2];
    halvane::OpenJobFile();
  }
  for (const halvane::ToolRow& row : halvane::Tools()) WriteTool(row.tool, folder);
  return 0;
}
