// Draws the forms into PNG files and prints the reports into PDF files, for looking at them and for
// the documents:
// form_pictures FOLDER [JOBFILE], with QT_SCALE_FACTOR=2 for twice the size, HALVANE_DARK=1 for the
// dark palette, HALVANE_FONT=14 for a font of so many points, HALVANE_LEAST=1 for the least size of
// each tool, HALVANE_SIZE=1900x1040 for that size and HALVANE_SCREEN=800x600 for a screen of that
// size.
#include <QApplication>
#include <QDir>
#include <QPrinter>
#include <QTabWidget>
#include <QTest>
#include <cstdlib>
#include <iostream>

#include "app/tool_forms.h"
#include "core/job_file.h"
#include "core/job_state.h"
#include "platform/printed_pages.h"
#include "shell/frm_about.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tests/support/dark_palette.h"
#include "tests/support/picture_screen.h"
#include "tools/tool_table.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"

namespace {

using halvane::Module1;

void TakeFontIfAsked() {
  if (!qEnvironmentVariableIsSet("HALVANE_FONT")) return;
  QFont font = QApplication::font();
  font.setPointSize(qEnvironmentVariableIntValue("HALVANE_FONT"));
  QApplication::setFont(font);
}

void TakeSizeIfAsked(QWidget& form) {
  if (qEnvironmentVariableIsSet("HALVANE_LEAST")) form.resize(form.minimumSize());
  const QStringList size = qEnvironmentVariable("HALVANE_SIZE").split('x');
  if (size.size() == 2) form.resize(size[0].toInt(), size[1].toInt());
}

void Draw(QWidget& form, const QString& path) {
  QTest::qWait(50);
  if (!form.grab().save(path)) {
    std::cerr << "cannot write " << path.toStdString() << "\n";
    std::exit(1);
  }
}

void PrintReport(const QWidget& form, const QString& folder) {
  QPrinter pdf(QPrinter::HighResolution);
  pdf.setOutputFormat(QPrinter::PdfFormat);
  pdf.setOutputFileName(folder + "/" + form.objectName() + ".pdf");
  halvane::PrintPages(*form.findChild<halvane::RichTextBox*>()->document(), pdf);
}

void DrawTool(halvane::Tool tool, const QString& folder) {
  const auto form = halvane::MakeToolForm(tool, nullptr);
  form->load();
  form->show();
  TakeSizeIfAsked(*form);
  auto* tabs = form->findChild<QTabWidget*>("SSTab1");
  if (tabs == nullptr) {
    Draw(*form, QString("%1/%2.png").arg(folder, form->objectName()));
    return;
  }
  for (int tab = 0; tab < tabs->count(); ++tab) {
    tabs->setCurrentIndex(tab);
    const QString name = QString("%1/%2-%3").arg(folder, form->objectName()).arg(tab);
    Draw(*form, name + ".png");
    // The body parts of a posture tab, where it has them.
    for (int part = 0; auto* ribbon = form->findChild<halvane::RibbonButton*>(
                           halvane::ElementName("SSRibbon3", part));
         ++part) {
      if (tab != 1 || !ribbon->isVisible()) break;
      ribbon->click();
      Draw(*form, QString("%1-%2.png").arg(name).arg(part));
    }
  }
  PrintReport(*form, folder);
}

}  // namespace

int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  if (argc < 2) {
    std::cerr << "usage: form_pictures FOLDER [JOBFILE]\n";
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  QDir().mkpath(folder);
  halvane::TakeDarkPaletteIfAsked();
  TakeFontIfAsked();
  const halvane::PictureScreen screen;
  halvane::FrmHandMain window(halvane::MakeToolForm);
  window.show();
  Draw(window, folder + "/frmHand_Main-opening.png");
  window.Timer1_Timer();
  Draw(window, folder + "/frmHand_Main.png");
  halvane::FrmAbout about(&window);
  about.show();
  Draw(about, folder + "/frmAbout.png");
  if (argc > 2) {
    Module1.JobFileName = argv[2];
    halvane::OpenJobFile();
  }
  for (const halvane::ToolRow& row : halvane::Tools()) DrawTool(row.tool, folder);
  return 0;
}
