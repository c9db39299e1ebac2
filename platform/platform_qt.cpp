#include "platform/platform_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QTextDocument>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <array>

#include "core/user_folders.h"
#include "platform/platform_x11.h"
#include "platform/printed_pages.h"
#include "platform/registry_access.h"
#include "platform/system_viewer.h"

namespace halvane {
namespace {

struct ButtonRow {
  Answer answer;
  QMessageBox::StandardButton button;
};

constexpr std::array kButtons{
    ButtonRow{Answer::Yes, QMessageBox::Yes},
    ButtonRow{Answer::No, QMessageBox::No},
    ButtonRow{Answer::Cancel, QMessageBox::Cancel},
    ButtonRow{Answer::Ok, QMessageBox::Ok},
};

/// The answer of a box that ends without one.
Answer AnswerOfClosing(const std::vector<Answer>& buttons) {
  for (const Answer harmless : {Answer::Cancel, Answer::No}) {
    if (std::find(buttons.begin(), buttons.end(), harmless) != buttons.end()) return harmless;
  }
  return buttons.front();
}

/// What is printed to when the user names no other file.
constexpr const char* kPrintedFile = "print.pdf";

/// A title bar has so much beside its title: icon and buttons.
constexpr int kBesideTitle = 128;

/// A box of few words would cut its title.
void MakeRoomForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  QFont font = box.font();
  font.setBold(true);
  const int title = QFontMetrics(font).horizontalAdvance(box.windowTitle());
  auto* room = new QSpacerItem(title + kBesideTitle, 0);
  grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
}

QString RunFileDialog(QFileDialog& dialog, const QString& filter) {
  // Each pattern has a name of its own; behind it the toolkit would show the pattern once more.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(filter.split(";;"));
  // The list of names below the box would stay until the dialog has written its settings to the
  // disk, and keep the keys that come meanwhile.
  const auto hideNames = [] {
    if (QWidget* names = QApplication::activePopupWidget()) names->close();
  };
  QObject::connect(&dialog, &QDialog::finished, &dialog, hideNames, Qt::SingleShotConnection);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

Platform* platformInUse = nullptr;

}  // namespace

Platform& ThePlatform() {
  static QtPlatform real;
  return platformInUse != nullptr ? *platformInUse : real;
}

void SetPlatform(Platform* platform) { platformInUse = platform; }

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() = default;

Answer QtPlatform::ShowMessage(QWidget* parent, const QString& title, const QString& text,
                               const std::vector<Answer>& buttons) {
  QMessageBox box(parent);
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  for (const Answer answer : buttons) {
    box.addButton(kButtons.at(static_cast<std::size_t>(answer)).button);
  }
  box.setDefaultButton(kButtons.at(static_cast<std::size_t>(buttons.front())).button);
  MakeRoomForTitle(box);
  const int chosen = box.exec();
  for (const ButtonRow& row : kButtons) {
    if (row.button == chosen) return row.answer;
  }
  return AnswerOfClosing(buttons);
}

QString QtPlatform::ChooseFileToOpen(QWidget* parent, const QString& filter) {
  QFileDialog dialog(parent, QFileDialog::tr("Open"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return RunFileDialog(dialog, filter);
}

QString QtPlatform::ChooseFileToSave(QWidget* parent, const QString& filter) {
  QFileDialog dialog(parent, QFileDialog::tr("Save As"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // Asked behind the dialog: of two windows that end together the window manager may give the focus
  // to another one than the tool's, and keys that come then are lost.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  const auto show = [&](const QString& text, const std::vector<Answer>& buttons) {
    return ShowMessage(parent, dialog.windowTitle(), text, buttons);
  };
  for (;;) {
    const QString name = RunFileDialog(dialog, filter);
    if (name.isEmpty()) return name;
    const QFileInfo file(name);
    if (!QFileInfo(file.path()).isDir()) {
      show(file.path() + "\nThis folder does not exist.", {Answer::Ok});
    } else if (!file.exists() ||
               show(file.fileName() + " already exists.\nDo you want to replace it?",
                    {Answer::No, Answer::Yes}) == Answer::Yes) {
      return name;
    }
  }
}

QPrinter& QtPlatform::CurrentPrinter() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

bool QtPlatform::ChoosePrinter(QWidget* parent) {
  QPrintDialog dialog(&CurrentPrinter(), parent);
  // Printing to PDF stays on offer: here it is a printer of the list and not a box beside it.
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  // On X11 alone the toolkit proposes a file in the folder.
  auto* file = dialog.findChild<QLineEdit*>("filename");
  if (file != nullptr && file->text().endsWith('/')) file->setText(file->text() + kPrintedFile);
  const auto* properties = dialog.findChild<QPushButton*>("properties");
  bool hasOwnPaper = properties == nullptr;
  if (properties != nullptr) {
    // Comes when the toolkit's own handler has shown them, in a dialog below this one.
    QObject::connect(properties, &QPushButton::clicked, [&] {
      for (const QDialog* shown : dialog.findChildren<QDialog*>()) {
        if (shown->result() == QDialog::Accepted) hasOwnPaper = true;
      }
    });
  }
  const int result = dialog.exec();
  // Where the dialog and its question about a file that is there end together, the window manager
  // may give the focus to another window than the one below, and keys that come then are lost.
  if (parent != nullptr) parent->activateWindow();
  if (result != QDialog::Accepted) return false;
  // The toolkit's own dialog goes back to a printer's usual paper unless another one is chosen in
  // the printer's properties; what was set up has to hold.
  if (hasOwnPaper) {
    setup_.reset();
  } else if (setup_) {
    UseSetup();
  }
  return true;
}

void QtPlatform::SetUpPrinter(QWidget* parent) {
  // Of a printer of the system the toolkit's dialog takes over the orientation alone: it asks for
  // margins of nothing, which no printer has. A file can have any.
  QPrinter paper(QPrinter::HighResolution);
  paper.setOutputFormat(QPrinter::PdfFormat);
  paper.setPageLayout(CurrentPrinter().pageLayout());
  QPageSetupDialog dialog(&paper, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  setup_ = paper.pageLayout();
  UseSetup();
}

void QtPlatform::UseSetup() {
  QPrinter& printer = CurrentPrinter();
  printer.setPageSize(setup_->pageSize());
  printer.setPageOrientation(setup_->orientation());
  QPageLayout own = printer.pageLayout();
  own.setUnits(setup_->units());
  // Raises margins that are smaller.
  QPageLayout wanted = *setup_;
  wanted.setMinimumMargins(own.minimumMargins());
  printer.setPageMargins(wanted.margins(), wanted.units());
}

void QtPlatform::Print(const QTextDocument& document) {
  QPrinter& printer = CurrentPrinter();
  printer.setDocName(document.metaInformation(QTextDocument::DocumentTitle));
  PrintPages(document, printer);
  // The next dialog would propose a file of this name for another document.
  printer.setDocName({});
}

void QtPlatform::ClearClipboard() { QGuiApplication::clipboard()->clear(); }

void QtPlatform::SetClipboardText(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
}

QString QtPlatform::ProgramFolder() { return QCoreApplication::applicationDirPath(); }

QString QtPlatform::DataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

bool QtPlatform::CopyFile(const QString& source, const QString& target) {
  QDir().mkpath(QFileInfo(target).path());
  QFile from(source);
  // Replaces what is there only when the copy is whole.
  QSaveFile to(target);
  if (!from.open(QFile::ReadOnly) || !to.open(QFile::WriteOnly)) return false;
  const QByteArray bytes = from.readAll();
  if (from.error() != QFile::NoError || to.write(bytes) != bytes.size()) return false;
  return to.commit();
}

std::vector<std::string> QtPlatform::RescueFolders() {
  // Without a home, the toolkit would name a folder in the root of all.
  const std::string documents =
      qEnvironmentVariableIsEmpty("HOME")
          ? std::string()
          : QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                .toStdString();
  return {documents, HomeFolder(), StateFolder(), SystemTemporaryFolder()};
}

std::string QtPlatform::StateFolder() { return halvane::StateFolder(); }

bool QtPlatform::FileExists(const QString& path) { return QFileInfo::exists(path); }

Registry& QtPlatform::TheRegistry() { return SystemRegistry(); }

bool QtPlatform::StartProgram(const ProgramCall& call) {
  return QProcess::startDetached(call.program, call.arguments);
}

ProgramCall QtPlatform::SystemViewer() {
  const QStringList desktops = QString::fromLocal8Bit(qgetenv("XDG_CURRENT_DESKTOP")).split(':');
  return FindSystemViewer(desktops, [](const QString& program) {
    return !QStandardPaths::findExecutable(program).isEmpty();
  });
}

QRect QtPlatform::AvailableArea(QPoint at) {
  const QScreen* screen = QGuiApplication::screenAt(at);
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  return screen->availableGeometry();
}

void QtPlatform::StartWindowMove(QWidget& window, Qt::MouseButton button) {
  QWindow* native = window.windowHandle();
  if (native == nullptr) return;
  if (!MoveX11Window(window, button)) {
    native->startSystemMove();
    return;
  }
  // The release goes to the window manager; without one, the pressed widget would keep the mouse.
  const QPointF global = QCursor::pos();
  QMouseEvent release(QEvent::MouseButtonRelease, native->mapFromGlobal(global), global, button,
                      Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(native, &release);
}

void QtPlatform::EndProgram(int exitStatus) { QCoreApplication::exit(exitStatus); }

}  // namespace halvane
