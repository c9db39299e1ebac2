#include "shell/hand_main_look.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <vector>

#include "shell/controls/gradient_panel.h"
#include "shell/frm_hand_main.h"
#include "shell/layout.h"

namespace halvane {
namespace {

constexpr QSize kSize{306, 501};
constexpr auto kShownTitle = "Halvane Tools 1.8B";
constexpr int kButtonHeight = 44;
constexpr double kProductNameScale = 1.9;

QLabel* AddLabel(QBoxLayout& layout, const QString& name, const QString& text, double scale) {
  auto* label = new QLabel(text, layout.parentWidget());
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * scale);
  font.setBold(scale > 1);
  label->setFont(font);
  layout.addWidget(label);
  return label;
}

QWidget* MakeTitleStrip(QWidget& form) {
  auto* strip = new GradientPanel("Picture1", &form);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kGap);
  AddLabel(*row, "Label1", kShownTitle, 1.1)->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  row->addStretch();
  return strip;
}

QWidget* MakeOpeningPanel(QWidget& form) {
  auto* panel = new GradientPanel("Picture3", &form);
  auto* column = new QVBoxLayout(panel);
  column->addStretch(2);
  AddLabel(*column, ElementName("lblProductName", 0), kShownTitle, kProductNameScale);
  auto* maker = new QHBoxLayout;
  column->addLayout(maker);
  maker->addStretch();
  AddLabel(*maker, ElementName("lblProductName", 1), "Ostrel", 1.3);
  AddLabel(*maker, ElementName("lblProductName", 2), "tm", 0.8)->setAlignment(Qt::AlignTop);
  maker->addStretch();
  column->addStretch(3);
  return panel;
}

}  // namespace

void HandMainLook::Arrange(FrmHandMain& form) {
  form.setFixedSize(kSize);
  form.Picture1_ = MakeTitleStrip(form);
  form.Picture3_ = MakeOpeningPanel(form);

  auto* grid = new QGridLayout(&form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->setRowStretch(1, 1);
  grid->addWidget(form.Picture1_, 0, 0);

  auto* strip = form.Picture1_->layout();
  // Minimise stands left of Close, as on other windows.
  strip->addWidget(form.SSCommand3_.at(1));
  strip->addWidget(form.SSCommand3_.at(0));

  auto* buttons = new QVBoxLayout;
  buttons->setContentsMargins(5 * kMargin, 3 * kMargin, 5 * kMargin, 3 * kMargin);
  buttons->setSpacing(kGap);
  for (QPushButton* button : form.SSCommand2_) {
    button->setMinimumHeight(kButtonHeight);
    buttons->addWidget(button);
  }
  buttons->addStretch();
  auto* ribbons = new QHBoxLayout;
  ribbons->setSpacing(kGap);
  for (QToolButton* ribbon : form.SSRibbon1_) {
    ribbon->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ribbons->addWidget(ribbon);
  }
  buttons->addLayout(ribbons);
  grid->addLayout(buttons, 1, 0);
  // The opening panel covers the place of the buttons.
  grid->addWidget(form.Picture3_, 1, 0);
  form.Picture3_->raise();

  // The Tab key goes as one reads: title strip, tools, menus.
  std::vector<QWidget*> order{form.SSCommand3_.at(1), form.SSCommand3_.at(0)};
  order.insert(order.end(), form.SSCommand2_.begin(), form.SSCommand2_.end());
  order.insert(order.end(), form.SSRibbon1_.begin(), form.SSRibbon1_.end());
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace halvane
