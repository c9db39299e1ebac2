#include "help/help_window_viewer.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QWindow>

namespace halvane {
namespace {

HelpViewer* viewerInUse = nullptr;

}  // namespace

HelpViewer& TheHelpViewer() {
  static HelpWindowViewer own;
  return viewerInUse != nullptr ? *viewerInUse : own;
}

void SetHelpViewer(HelpViewer* viewer) { viewerInUse = viewer; }

HelpWindowViewer::~HelpWindowViewer() { delete window_; }

HelpWindow& HelpWindowViewer::Window() {
  if (!window_) {
    // Without a parent, so that no tool that holds up the program's other windows holds up this
    // one.
    window_ = new HelpWindow(lastPlace_);
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, window_,
                     [window = window_] { delete window; });
  }
  return *window_;
}

void HelpWindowViewer::Show(QWidget* owner, const QString& file, HelpCommand command,
                            const QString& topic) {
  // The name of a help window follows the file's ending; there is one window for all.
  static const QRegularExpression windowName("(?<=chm)>.*$",
                                             QRegularExpression::CaseInsensitiveOption);
  const QString path = QString(file).remove(windowName);
  HelpWindow& window = Window();
  if (command == HelpCommand::DisplayTopic) {
    window.ShowTopic(path, topic);
  } else {
    window.ShowContents(path);
  }
  window.windowHandle()->setTransientParent(owner != nullptr ? owner->window()->windowHandle()
                                                             : nullptr);
}

}  // namespace halvane
