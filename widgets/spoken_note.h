#pragma once

#include <QAccessibleObject>

namespace halvane {

class ReportNote;

/// A note of a report pane for screen readers: a picture with its sense as its name, or news.
class SpokenNote : public QAccessibleObject {
 public:
  explicit SpokenNote(ReportNote& note);

  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  [[nodiscard]] QWindow* window() const override;

  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QRect rect() const override;

 private:
  [[nodiscard]] ReportNote& note() const;
};

}  // namespace halvane
