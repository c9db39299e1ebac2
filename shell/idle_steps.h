#pragma once

#include <QObject>
#include <deque>
#include <functional>

class QTimer;

namespace halvane {

/// Does work ahead of its time while nobody uses the program: a step whenever there is nothing else
/// to do, with a pause behind each. The first key, mouse button or window that comes up ends it for
/// good, since from then on the user waits for every step.
class IdleSteps : public QObject {
  Q_OBJECT
 public:
  using Step = std::function<void()>;

  IdleSteps(std::deque<Step> steps, QObject* parent);

  [[nodiscard]] bool isOver() const { return steps_.empty(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void DoNext();
  void End();

  std::deque<Step> steps_;
  QTimer* timer_;
};

}  // namespace halvane
