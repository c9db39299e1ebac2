#pragma once

#include <QAccessibleWidget>

class QSlider;

namespace halvane {

/// A slider for screen readers: its value is the one on its scale, its description the words that
/// stand there.
class SpokenSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  /// Properties of a slider: what one position counts, and the words of its positions.
  static constexpr auto kStep = "halvaneSpokenStep";
  static constexpr auto kWords = "halvaneSpokenWords";

  explicit SpokenSlider(QSlider& slider);

  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  [[nodiscard]] QVariant maximumValue() const override;
  [[nodiscard]] QVariant minimumValue() const override;
  [[nodiscard]] QVariant minimumStepSize() const override;

 private:
  [[nodiscard]] QSlider& slider() const;
  [[nodiscard]] double Step() const;
  [[nodiscard]] bool IsForTheMouseAlone() const;
};

}  // namespace halvane
