#include "shell/idle_steps.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <utility>

namespace halvane {
namespace {

constexpr int kPauseMilliseconds = 40;

bool IsUse(const QObject& receiver, const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin: return true;
    case QEvent::Show:
      return receiver.isWidgetType() && static_cast<const QWidget&>(receiver).isWindow();
    default: return false;
  }
}

}  // namespace

IdleSteps::IdleSteps(std::deque<Step> steps, QObject* parent)
    : QObject(parent), steps_(std::move(steps)), timer_(new QTimer(this)) {
  qApp->installEventFilter(this);
  timer_->setInterval(kPauseMilliseconds);
  connect(timer_, &QTimer::timeout, this, &IdleSteps::DoNext);
  timer_->start();
}

void IdleSteps::DoNext() {
  if (!steps_.empty()) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step();
  }
  if (steps_.empty()) End();
}

void IdleSteps::End() {
  steps_.clear();
  timer_->stop();
  // From here on no event need be looked at.
  qApp->removeEventFilter(this);
}

bool IdleSteps::eventFilter(QObject* watched, QEvent* event) {
  if (IsUse(*watched, *event)) End();
  return QObject::eventFilter(watched, event);
}

}  // namespace halvane
