#include "shell/halvane_application.h"

#include <QFile>
#include <QWidget>
#include <new>

#include "core/rescue_copy.h"
#include "shell/held_keys.h"
#include "shell/platform.h"
#include "shell/program_title.h"

namespace halvane {
namespace {

constexpr int kFailureStatus = 1;

/// Saves the copy and tells where it is, or why there is none.
QString RescueSentence() {
  try {
    const std::string folder = QFile::encodeName(ThePlatform().DocumentsFolder()).toStdString();
    const QString path = QFile::decodeName(WriteRescueCopy(folder).c_str());
    return "A copy of the job was saved as\n" + path;
  } catch (const RuntimeFailure& failure) {
    return QString("The job could not be saved.\n") + failure.what();
  } catch (const std::bad_alloc&) {
    return "The job could not be saved.";
  }
}

}  // namespace

HalvaneApplication::HalvaneApplication(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName("halvane-tools");
  setApplicationVersion(HALVANE_VERSION);
  setDesktopFileName("halvane-tools");
  installEventFilter(new HeldKeys(this));
}

bool HalvaneApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RuntimeFailure& failure) {
    EndOn(failure);
  } catch (const std::bad_alloc&) {
    EndOn(RuntimeFailure(FailureKind::OutOfMemory));
  }
  return true;
}

void HalvaneApplication::EndOn(const RuntimeFailure& failure) {
  // A second failure while the message of the first stands has nothing more to say.
  if (ending_) return;
  ending_ = true;
  // The copy comes first, so that it is safe whatever happens to the message.
  const QString rescue = RescueSentence();
  const QString text = QString("%1.\n\n%2 has to end.\n\n%3")
                           .arg(QString::fromUtf8(failure.what()), kProgramTitle, rescue);
  ThePlatform().ShowMessage(activeWindow(), kProgramTitle, text, {Answer::Ok});
  ThePlatform().EndProgram(kFailureStatus);
  ending_ = false;
}

}  // namespace halvane
