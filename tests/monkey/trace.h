#pragma once

#include <QString>
#include <deque>

namespace halvane {

/// What was done last, for who has to find out why something is wrong.
class Trace {
 public:
  void Add(const QString& what) {
    lines_.push_back(QString("%1: %2").arg(event_).arg(what));
    if (lines_.size() > kKept) lines_.pop_front();
  }
  void NextEvent() { ++event_; }
  [[nodiscard]] int event() const { return event_; }
  [[nodiscard]] const std::deque<QString>& lines() const { return lines_; }

  /// The first thing that is wrong; empty while nothing is.
  [[nodiscard]] const QString& finding() const { return finding_; }
  void Find(const QString& what) {
    if (finding_.isEmpty()) finding_ = what;
  }
  void ForgetFinding() { finding_.clear(); }

 private:
  static constexpr std::size_t kKept = 30;
  std::deque<QString> lines_;
  QString finding_;
  int event_ = 0;
};

}  // namespace halvane
