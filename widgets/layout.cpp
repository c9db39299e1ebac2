#include "widgets/layout.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSlider>
#include <QStyleOptionSlider>

#include "widgets/number_box.h"
#include "widgets/wrapped_caption.h"

namespace halvane {
namespace {

/// A tick box without a caption of its own, as high as a line of the caption beside it, so that its
/// mark stands at the middle of that line.
class LineHighBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

  [[nodiscard]] QSize sizeHint() const override {
    return QCheckBox::sizeHint().expandedTo({0, fontMetrics().lineSpacing()});
  }
};

class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QWidget& input) : QObject(&input), input_(input) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || input_.hasFocus()) {
      return QObject::eventFilter(watched, event);
    }
    // Refused, it goes on to what is behind.
    event->ignore();
    return true;
  }

 private:
  QWidget& input_;
};

}  // namespace

Frame MakeFrame(const QString& caption, QWidget* parent) {
  auto* box = new QGroupBox(caption, parent);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kGap);
  return {box, grid};
}

TextBox* AddNumberRow(QGridLayout& grid, const QString& label, const QString& boxName) {
  return AddNumberAt(grid, grid.rowCount(), 0, label, boxName);
}

TextBox* AddNumberAt(QGridLayout& grid, int row, int column, const QString& label,
                     const QString& boxName) {
  // A label comes first for who reads on from one control to the next.
  auto* caption = new QLabel(label, grid.parentWidget());
  auto* box = new NumberBox(boxName, kNumberDigits, grid.parentWidget());
  caption->setBuddy(box);
  grid.addWidget(caption, row, column);
  grid.addWidget(box, row, column + 1);
  grid.setColumnStretch(column, 1);
  grid.setAlignment(Qt::AlignTop);
  return box;
}

void KeepLeft(QGridLayout& grid) {
  const int columns = grid.columnCount();
  for (int column = 0; column < columns; ++column) grid.setColumnStretch(column, 0);
  grid.setColumnStretch(columns, 1);
}

TextBox* MakeNumberBox(const QString& boxName, const QString& name, QWidget* parent) {
  auto* box = new NumberBox(boxName, kNumberDigits, parent);
  box->setAccessibleName(name);
  return box;
}

TextBox* AddNumberWithUnit(QGridLayout& grid, const QString& boxName, const QString& name,
                           const QString& unit, const QString& unitName) {
  TextBox* box = MakeNumberBox(boxName, name, grid.parentWidget());
  const int row = grid.rowCount();
  grid.addWidget(box, row, 0);
  auto* label = new QLabel(unit, grid.parentWidget());
  label->setObjectName(unitName);
  box->setAccessibleDescription(unit);
  grid.addWidget(label, row, 1);
  grid.setColumnStretch(1, 1);
  return box;
}

QCheckBox* AddWrappedCheck(QGridLayout& grid, const QString& boxName, const QString& caption) {
  auto* box = new LineHighBox(grid.parentWidget());
  box->setObjectName(boxName);
  box->setAccessibleName(caption);
  auto* text = new WrappedCaption(*box, caption, grid.parentWidget());
  const int row = grid.rowCount();
  grid.addWidget(box, row, 0, Qt::AlignTop);
  grid.addWidget(text, row, 1, Qt::AlignTop);
  grid.setColumnStretch(1, 1);
  return box;
}

void SetUpSlider(QSlider& slider, const QString& name, int highest, int pageStep) {
  slider.setObjectName(name);
  slider.setOrientation(Qt::Horizontal);
  slider.setRange(0, highest);
  slider.setSingleStep(1);
  slider.setPageStep(pageStep);
  slider.setTickPosition(QSlider::TicksBelow);
  slider.setTickInterval(highest / 10);
  KeepWheelOff(slider);
}

int HandleLength(const QSlider& slider) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.orientation = Qt::Horizontal;
  return slider.style()->pixelMetric(QStyle::PM_SliderLength, &option, &slider);
}

void KeepWheelOff(QWidget& input) {
  input.setFocusPolicy(Qt::StrongFocus);
  input.installEventFilter(new WheelGuard(input));
}

QString ScreenText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ElementName(const QString& array, int index) {
  return QString("%1(%2)").arg(array).arg(index);
}

}  // namespace halvane
