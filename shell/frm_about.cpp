#include "shell/frm_about.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/layout.h"
#include "shell/program_title.h"

namespace halvane {
namespace {

constexpr double kTitleScale = 1.6;
constexpr int kLeastWidth = 320;

QLabel* AddLine(QVBoxLayout& column, const QString& name, const QString& text) {
  auto* label = new QLabel(text, column.parentWidget());
  label->setObjectName(name);
  column.addWidget(label);
  return label;
}

}  // namespace

FrmAbout::FrmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(QString("About ") + kProgramTitle);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(2 * kMargin, 2 * kMargin, 2 * kMargin, 2 * kMargin);
  column->setSpacing(kGap);

  AddLine(*column, "Label1", QString(kMaker) + " Series:");
  QLabel* title = AddLine(*column, "lblTitle", kProgramTitle);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * kTitleScale);
  font.setBold(true);
  title->setFont(font);
  AddLine(*column, "lblVersion", "Version " + QCoreApplication::applicationVersion());
  column->addSpacing(2 * kGap);

  auto* buttons = new QHBoxLayout;
  auto* ok = new QPushButton("OK", this);
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  buttons->addStretch();
  buttons->addWidget(ok);
  column->addLayout(buttons);
  connect(ok, &QPushButton::clicked, this, &FrmAbout::cmdOK_Click);
  setMinimumWidth(kLeastWidth);
}

void FrmAbout::cmdOK_Click() { accept(); }

}  // namespace halvane
