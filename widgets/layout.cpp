#include "widgets/layout.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>

#include "widgets/spoken.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

/// A caption beside its tick box; a click on it is a click on the box.
class WrappedCaption : public QLabel {
 public:
  WrappedCaption(QCheckBox& box, const QString& caption, QWidget* parent)
      : QLabel(caption, parent), box_(box) {
    setWordWrap(true);
    // The box has it as its name.
    KeepUnspoken(*this);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLabel::mouseReleaseEvent(event);
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && inside) box_.click();
  }

 private:
  QCheckBox& box_;
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
  auto* box = new TextBox(boxName, grid.parentWidget());
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance('0') * (kNumberDigits + 2));
  box->setMaximumWidth(box->minimumWidth() * 2);
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
  auto* box = new TextBox(boxName, parent);
  box->setAccessibleName(name);
  box->setFixedWidth(box->fontMetrics().horizontalAdvance('0') * (kNumberDigits + 2));
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
  auto* box = new QCheckBox(grid.parentWidget());
  box->setObjectName(boxName);
  box->setAccessibleName(caption);
  auto* text = new WrappedCaption(*box, caption, grid.parentWidget());
  const int row = grid.rowCount();
  grid.addWidget(box, row, 0, Qt::AlignTop);
  grid.addWidget(text, row, 1);
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

void KeepWheelOff(QWidget& input) {
  input.setFocusPolicy(Qt::StrongFocus);
  input.installEventFilter(new WheelGuard(input));
}

QLabel* MakeReadout(const QString& widest, QWidget* parent) {
  auto* readout = new QLabel(parent);
  QFont large = readout->font();
  large.setPointSizeF(large.pointSizeF() * 1.8);
  large.setBold(true);
  readout->setFont(large);
  readout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  readout->setMinimumWidth(readout->fontMetrics().horizontalAdvance(widest) + kGap);
  return readout;
}

QString ScreenText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ElementName(const QString& array, int index) {
  return QString("%1(%2)").arg(array).arg(index);
}

}  // namespace halvane
