#include "shell/frm_about.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/messages.h"
#include "core/silently.h"
#include "platform/platform.h"
#include "platform/registry.h"
#include "widgets/layout.h"
#include "widgets/product_icon.h"

namespace halvane {
namespace {

constexpr double kTitleScale = 1.6;
/// Texts are so wide, in average letters.
constexpr int kTextColumns = 45;
constexpr int kLargeIcon = 64;
constexpr int kSmallIcon = 24;

constexpr auto kContact = "How to use the program: Help, Content...";
constexpr auto kContactReport =
    "To report an error, send the job file and the version above to whoever gave you the program.";
constexpr auto kNotice =
    "This program is provided as it is, without warranty of any kind. Its figures support the "
    "judgement of an analyst; they do not replace it.";

// Where the system's registry names the viewer: by its own path, else by its folder.
constexpr auto kViewerKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr auto kFolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr auto kViewerInFolder = R"(\MSINFO32.EXE)";

QLabel* AddLine(QBoxLayout& column, const QString& name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  column.addWidget(label);
  return label;
}

void AddWrapped(QBoxLayout& column, const QString& name, const QString& text) {
  QLabel* label = AddLine(column, name, text);
  label->setWordWrap(true);
  label->setMinimumWidth(kTextColumns * label->fontMetrics().averageCharWidth());
}

QLabel* MakeIcon(const QString& name, int size) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setPixmap(ProductIcon().pixmap(QSize(size, size), label->devicePixelRatioF()));
  label->setFixedSize(size, size);
  return label;
}

}  // namespace

FrmAbout::FrmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(QString("About ") + kProgramTitle);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(2 * kMargin, 2 * kMargin, 2 * kMargin, 2 * kMargin);
  grid->setHorizontalSpacing(2 * kMargin);
  grid->setVerticalSpacing(kGap);
  grid->addWidget(MakeIcon("picIcon", kLargeIcon), 0, 0, Qt::AlignTop);

  auto* names = new QVBoxLayout;
  grid->addLayout(names, 0, 1);
  names->setSpacing(kGap / 2);
  auto* series = new QHBoxLayout;
  series->setSpacing(kGap);
  names->addLayout(series);
  series->addWidget(MakeIcon("Image1", kSmallIcon));
  AddLine(*series, "Label1", QString(kMaker) + " Series:");
  series->addStretch();
  QLabel* title = AddLine(*names, "lblTitle", kProgramTitle);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * kTitleScale);
  font.setBold(true);
  title->setFont(font);
  AddLine(*names, "lblVersion", "Version " + QCoreApplication::applicationVersion());
  AddLine(*names, "lblMaker", kMadeBy);
  names->addSpacing(kGap / 2);
  AddWrapped(*names, "lblContact(0)", kContact);
  AddWrapped(*names, "lblContact(1)", kContactReport);
  names->addSpacing(kGap / 2);
  AddWrapped(*names, "lblNotice", kNotice);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(0, 1);

  auto* buttons = new QHBoxLayout;
  grid->addLayout(buttons, 1, 0, 1, 2);
  buttons->setSpacing(kGap);
  buttons->addStretch();
  auto* information = new QPushButton("&System Info...");
  information->setObjectName("cmdSysInfo");
  information->setMinimumWidth(information->sizeHint().width() + 2 * kMargin);
  auto* ok = new QPushButton("OK");
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  buttons->addWidget(information);
  buttons->addWidget(ok);
  setTabOrder(information, ok);
  ok->setFocus();
  connect(ok, &QPushButton::clicked, this, &FrmAbout::cmdOK_Click);
  connect(information, &QPushButton::clicked, this, &FrmAbout::cmdSysInfo_Click);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmAbout::cmdOK_Click() { accept(); }

void FrmAbout::cmdSysInfo_Click() {
  Silently([this] { StartSystemInformation(); });
}

void FrmAbout::StartSystemInformation() {
  Platform& platform = ThePlatform();
  Registry& registry = platform.TheRegistry();
  QString path;
  // Whether that file is there is not asked: a start that fails says nothing.
  if (GetKeyValue(registry, RegistryRoot::LocalMachine, kViewerKey, "PATH", path)) {
    platform.StartProgram({path, {}});
    return;
  }
  if (GetKeyValue(registry, RegistryRoot::LocalMachine, kFolderKey, "MSINFO", path)) {
    path += kViewerInFolder;
    if (platform.FileExists(path)) {
      platform.StartProgram({path, {}});
      return;
    }
  }
  const ProgramCall viewer = platform.SystemViewer();
  if (viewer.program.isEmpty()) {
    platform.ShowMessage(this, kProgramTitle, kNoSystemInformation, {Answer::Ok});
  } else {
    platform.StartProgram(viewer);
  }
}

}  // namespace halvane
