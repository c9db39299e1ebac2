#include "shell/halvane_application.h"

#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <exception>
#include <new>

#include "core/messages.h"
#include "core/runtime_failure.h"
#include "platform/end_signals.h"
#include "platform/platform.h"
#include "platform/platform_buttons.h"
#include "shell/held_keys.h"
#include "widgets/readable_style.h"
#include "widgets/spoken.h"
#include "widgets/user_input.h"

namespace halvane {
namespace {

constexpr int kFailureStatus = 1;
/// What a shell tells of a program that ended by signal number 0; the others follow.
constexpr int kSignalStatus = 128;

/// Where the job is, or why it is nowhere.
QString SentenceOn(const JobKeeper::Rescue& rescue) {
  if (!rescue.wasNeeded) return kNothingUnsaved;
  if (!rescue.copy.isEmpty()) return kCopySavedAs + rescue.copy;
  const QString failed = kJobNotSaved + rescue.reason;
  if (rescue.journal.isEmpty()) return failed;
  return failed + "\n\n" + kJournalIs + rescue.journal;
}

QString TextOf(const std::exception& failure) { return QString::fromUtf8(failure.what()); }

}  // namespace

HalvaneApplication::HalvaneApplication(int& argc, char** argv)
    : QApplication(argc, argv), keeper_(this) {
  setApplicationName("halvane-tools");
  setApplicationVersion(HALVANE_VERSION);
  setDesktopFileName(HALVANE_IDENTIFIER);
  // File dialogs of the desktop lose keys that come right behind them, even take them for a
  // cancelled Save As, and stay when the system ends the program.
  setAttribute(Qt::AA_DontUseNativeDialogs);
  setStyle(new ReadableStyle);
  installEventFilter(new HeldKeys(this));
  installEventFilter(new PromptButtons(this));
  UseSpokenControls();
}

HalvaneApplication::~HalvaneApplication() = default;

void HalvaneApplication::WatchOverJob() {
  signals_ = std::make_unique<EndSignals>();
  connect(signals_.get(), &EndSignals::came, this,
          [this](int number) { EndQuietly(kSignalStatus + number); });
  connect(this, &QGuiApplication::commitDataRequest, this, [this] { keeper_.RescueJob(); });
  // Made before what is registered below, so that it outlives it.
  ThePlatform();
  // The toolkit ends the program in the middle of the event loop when the display goes away.
  std::atexit([] {
    auto* application = qobject_cast<HalvaneApplication*>(QCoreApplication::instance());
    if (application != nullptr) application->RescueAtExit();
  });
  // The start of the program has a measured goal: what an earlier run left comes behind it.
  QTimer::singleShot(0, this, &JobKeeper::RescueLeftJournals);
}

int HalvaneApplication::Run() {
  const int status = exec();
  keeper_.End();
  signals_.reset();
  return status;
}

void HalvaneApplication::RescueAtExit() {
  // Behind `Run` there is none: the user has answered, or the job was rescued.
  if (signals_) keeper_.RescueJob();
}

bool HalvaneApplication::notify(QObject* receiver, QEvent* event) {
  // The event may be gone behind its handler.
  const bool isInput = IsUserInput(*event);
  if (isInput) keeper_.NoteInput();
  bool result = true;
  try {
    result = QApplication::notify(receiver, event);
  } catch (const RuntimeFailure& failure) {
    EndOn(TextOf(failure));
  } catch (const std::bad_alloc&) {
    EndOn(TextOf(RuntimeFailure(FailureKind::OutOfMemory)));
  } catch (const std::exception& failure) {
    EndOn(QString(kUnexpectedFailure) + ": " + TextOf(failure));
  } catch (...) {
    EndOn(kUnexpectedFailure);
  }
  if (isInput) keeper_.NoteInput();
  return result;
}

bool HalvaneApplication::event(QEvent* event) {
  if (event->type() != QEvent::Quit) return QApplication::event(event);
  // The session has ended. Closing the windows, as the toolkit would, asks a question that nobody
  // can answer any more.
  EndQuietly(0);
  return true;
}

void HalvaneApplication::EndOn(const QString& sentence) {
  // A second failure while the message of the first stands has nothing more to say.
  if (ending_) return;
  ending_ = true;
  // The copy comes first, so that it is safe whatever happens to the message.
  const QString rescue = SentenceOn(keeper_.RescueJob());
  const QString text = sentence + ".\n\n" + kProgramTitle + kHasToEnd + "\n\n" + rescue;
  ThePlatform().ShowMessage(activeWindow(), kProgramTitle, text, {Answer::Ok});
  ThePlatform().EndProgram(kFailureStatus);
  ending_ = false;
}

void HalvaneApplication::EndQuietly(int exitStatus) {
  keeper_.RescueJob();
  ThePlatform().EndProgram(exitStatus);
}

}  // namespace halvane
