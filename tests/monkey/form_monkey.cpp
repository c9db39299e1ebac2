// A user without a plan in front of one form: form_monkey FORM SEED EVENTS [KNOWN], with the key of
// a tool (ocra, ctd, si, reba, rula, hal). The same seed does the same again: nothing depends on
// the clock. Timers do not fire by themselves but all at once when the monkey lets time pass, so
// that a delay is over at the same event whatever the machine. Findings that match the regular
// expression KNOWN are counted, and the program starts anew.
//
// Exit status 0: all is well; 1: something is wrong, told with the last events; 2: wrong arguments.
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <iostream>

#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tests/monkey/monkey.h"
#include "tools/tool_table.h"

namespace {

using halvane::Dice;
using halvane::Monkey;
using halvane::RandomPlatform;
using halvane::RuntimeFailure;
using halvane::ToolForm;
using halvane::Trace;

/// Much longer than two events take, shorter than the time between two clicks; see `Hands`.
constexpr int kDoubleClickMilliseconds = 2000;
constexpr int kWrongArguments = 2;

Trace trace;

/// Ends nothing on a failure, but tells the monkey. Modal windows of the program close at once.
class MonkeyApplication : public halvane::HalvaneApplication {
 public:
  using HalvaneApplication::HalvaneApplication;

  void SetMonkey(Monkey* monkey) { monkey_ = monkey; }

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      if (event->type() == QEvent::Show) CloseSoon(receiver);
      return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure& failure) {
      if (monkey_ != nullptr) monkey_->Failed(failure.kind());
    } catch (const std::exception& failure) {
      trace.Find(QString("an exception: ") + failure.what());
    }
    return true;
  }

 private:
  /// A nested loop of a dialog ends before it comes to its timers.
  static void CloseSoon(QObject* receiver) {
    auto* dialog = qobject_cast<QDialog*>(receiver);
    if (dialog == nullptr || qobject_cast<ToolForm*>(dialog) != nullptr ||
        dialog->objectName() == "dialog") {
      return;
    }
    QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
  }

  Monkey* monkey_ = nullptr;
};

/// Every warning of the toolkit is a finding.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  // The offscreen platform has no windows to give the focus to or to move, and says so.
  if (text.contains("This plugin does not support")) return;
  trace.Find("the toolkit warns: " + text);
}

const halvane::ToolRow* ToolOf(const QString& key) {
  for (const halvane::ToolRow& row : halvane::Tools()) {
    if (key.toStdString() == row.key) return &row;
  }
  return nullptr;
}

int Report(const halvane::ToolRow& tool, qulonglong seed) {
  if (trace.finding().isEmpty()) {
    std::cout << tool.key << ": " << trace.event() << " events, seed " << seed << ": all is well\n";
    return 0;
  }
  std::cout << tool.key << ", seed " << seed << ", event " << trace.event() << ": "
            << trace.finding().toStdString() << "\nThe last events:\n";
  for (const QString& line : trace.lines()) std::cout << "  " << line.toStdString() << "\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const QStringList words(argv + 1, argv + argc);
  const halvane::ToolRow* tool =
      words.size() == 3 || words.size() == 4 ? ToolOf(words[0]) : nullptr;
  bool isSeed = false;
  bool isCount = false;
  const qulonglong seed = words.value(1).toULongLong(&isSeed);
  const int events = words.value(2).toInt(&isCount);
  if (tool == nullptr || !isSeed || !isCount) {
    std::cerr << "usage: form_monkey ocra|ctd|si|reba|rula|hal SEED EVENTS [KNOWN]\n";
    return kWrongArguments;
  }
  const QTemporaryDir home;
  for (const char* name : {"QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "QT_ENABLE_HIGHDPI_SCALING"}) {
    qunsetenv(name);
  }
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                           "XDG_RUNTIME_DIR", "XDG_STATE_HOME"}) {
    qputenv(name, home.path().toLocal8Bit());
  }
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The loop of the toolkit's own can leave the timers out, the other one cannot.
  qputenv("QT_NO_GLIB", "1");
  MonkeyApplication application(argc, argv);
  MonkeyApplication::setQuitOnLastWindowClosed(false);
  MonkeyApplication::setDoubleClickInterval(kDoubleClickMilliseconds);
  MonkeyApplication::setCursorFlashTime(0);
  qInstallMessageHandler(TakeMessage);

  Dice dice(seed);
  RandomPlatform platform(dice, trace, home.path(), halvane::MakeSampleJobs(home.path(), dice));
  Monkey monkey(tool->tool, dice, trace, platform);
  application.SetMonkey(&monkey);
  const QRegularExpression known(words.value(3));
  int knownFindings = 0;
  while (trace.event() < events && trace.finding().isEmpty()) {
    monkey.Act();
    if (words.size() < 4 || !known.match(trace.finding()).hasMatch()) continue;
    if (trace.finding().isEmpty()) continue;
    ++knownFindings;
    trace.ForgetFinding();
    monkey.StartProgram();
  }
  if (knownFindings > 0) std::cout << knownFindings << " findings that are known\n";
  return Report(*tool, seed);
}
