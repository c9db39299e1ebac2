#include "shell/frm_about.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "core/messages.h"
#include "core/silently.h"
#include "platform/platform.h"
#include "platform/registry.h"
#include "widgets/font_share.h"
#include "widgets/layout.h"
#include "widgets/product_icon.h"
#include "widgets/spoken.h"

namespace halvane {
namespace {

constexpr double kTitleShare = 1.6;
/// A line of the longer texts, in letters of a usual width; less on a narrow screen.
constexpr int kLineLetters = 44;
/// What stands beside those texts.
constexpr int kBeside = 160;
/// Frame, margins and buttons above and below them.
constexpr int kAround = 160;
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

/// A text that wraps in lines of a width that is good to read, whichever the font.
class Notice : public QLabel {
 public:
  using QLabel::QLabel;

  [[nodiscard]] QSize minimumSizeHint() const override {
    const int screen = ThePlatform().AvailableArea(window()->geometry().center()).width();
    const int width = std::min(kLineLetters * fontMetrics().averageCharWidth(), screen - kBeside);
    return {width, heightForWidth(width)};
  }
  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
};

void AddNotice(QBoxLayout& column, const QString& name, const QString& text) {
  auto* notice = new Notice(text);
  notice->setObjectName(name);
  notice->setWordWrap(true);
  column.addWidget(notice);
}

/// What is told, which scrolls on a screen that is too low for it.
class NoticeArea : public QScrollArea {
 public:
  explicit NoticeArea(QWidget* texts) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(texts);
  }

  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize size = widget()->minimumSizeHint();
    const QRect screen = ThePlatform().AvailableArea(window()->geometry().center());
    const int room = screen.height() - kAround;
    if (size.height() <= room) return size;
    return {size.width() + verticalScrollBar()->sizeHint().width(), room};
  }
  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    const bool scrolls = widget()->minimumSizeHint().height() > viewport()->height();
    setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
  }
};

QLabel* MakeIcon(const QString& name, int size) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setPixmap(ProductIcon().pixmap(QSize(size, size), label->devicePixelRatioF()));
  label->setFixedSize(size, size);
  KeepUnspoken(*label);
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

  auto* texts = new QWidget;
  auto* names = new QVBoxLayout(texts);
  names->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(new NoticeArea(texts), 0, 1);
  names->setSpacing(kGap / 2);
  auto* series = new QHBoxLayout;
  series->setSpacing(kGap);
  names->addLayout(series);
  series->addWidget(MakeIcon("Image1", kSmallIcon));
  AddLine(*series, "Label1", QString(kMaker) + " Series:");
  series->addStretch();
  QLabel* title = AddLine(*names, "lblTitle", kProgramTitle);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  new FontShare(*title, kTitleShare);
  AddLine(*names, "lblVersion", "Version " + QCoreApplication::applicationVersion());
  AddLine(*names, "lblMaker", kMadeBy);
  names->addSpacing(kGap / 2);
  AddNotice(*names, "lblContact(0)", kContact);
  AddNotice(*names, "lblContact(1)", kContactReport);
  names->addSpacing(kGap / 2);
  AddNotice(*names, "lblNotice", kNotice);
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
