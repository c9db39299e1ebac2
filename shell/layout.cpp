#include "shell/layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "shell/controls/text_box.h"

namespace halvane {

Frame MakeFrame(const QString& caption, QWidget* parent) {
  auto* box = new QGroupBox(caption, parent);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kGap);
  return {box, grid};
}

TextBox* AddNumberRow(QGridLayout& grid, const QString& label, const QString& boxName) {
  const int row = grid.rowCount();
  auto* box = new TextBox(boxName, grid.parentWidget());
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance('0') * (kNumberDigits + 2));
  box->setMaximumWidth(box->minimumWidth() * 2);
  auto* caption = new QLabel(label, grid.parentWidget());
  caption->setBuddy(box);
  grid.addWidget(caption, row, 0);
  grid.addWidget(box, row, 1);
  grid.setColumnStretch(0, 1);
  grid.setAlignment(Qt::AlignTop);
  return box;
}

QString ElementName(const QString& array, int index) {
  return QString("%1(%2)").arg(array).arg(index);
}

}  // namespace halvane
