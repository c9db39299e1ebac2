#include "widgets/spoken_slider.h"

#include <QSlider>

#include "widgets/mouse_slider.h"
#include "widgets/spoken.h"

namespace halvane {

SpokenSlider::SpokenSlider(QSlider& slider) : QAccessibleWidget(&slider, QAccessible::Slider) {}

QSlider& SpokenSlider::slider() const { return *static_cast<QSlider*>(widget()); }

double SpokenSlider::Step() const {
  const QVariant step = slider().property(kStep);
  return step.isValid() ? step.value<double>() : 1;
}

bool SpokenSlider::IsForTheMouseAlone() const {
  return qobject_cast<const MouseSlider*>(widget()) != nullptr;
}

QString SpokenSlider::text(QAccessible::Text kind) const {
  switch (kind) {
    case QAccessible::Name: return SpokenCaption(QAccessibleWidget::text(kind));
    case QAccessible::Value: return currentValue().toString();
    case QAccessible::Description: {
      const QVariant words = slider().property(kWords);
      if (words.isValid()) return words.toStringList().value(slider().value());
      return QAccessibleWidget::text(kind).trimmed();
    }
    default: return QAccessibleWidget::text(kind);
  }
}

QAccessible::State SpokenSlider::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = IsForTheMouseAlone();
  return state;
}

void* SpokenSlider::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QVariant SpokenSlider::currentValue() const { return slider().value() * Step(); }

void SpokenSlider::setCurrentValue(const QVariant& value) {
  // What moves it otherwise than the mouse changes nothing in the job.
  if (!IsForTheMouseAlone()) slider().setValue(qRound(value.value<double>() / Step()));
}

QVariant SpokenSlider::maximumValue() const { return slider().maximum() * Step(); }

QVariant SpokenSlider::minimumValue() const { return slider().minimum() * Step(); }

QVariant SpokenSlider::minimumStepSize() const { return slider().singleStep() * Step(); }

}  // namespace halvane
