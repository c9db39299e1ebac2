#include "shell/hand_main_look.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>
#include <vector>

#include "core/messages.h"
#include "platform/platform.h"
#include "shell/frm_hand_main.h"
#include "widgets/font_share.h"
#include "widgets/gradient_panel.h"
#include "widgets/layout.h"
#include "widgets/link_label.h"
#include "widgets/product_icon.h"
#include "widgets/raised_button.h"
#include "widgets/ribbon_button.h"
#include "widgets/splash_picture.h"
#include "widgets/spoken.h"

namespace halvane {
namespace {

// Places in logical pixels of the picture. The palm is wide from 78 to 278 and narrows to the wrist
// from 440 on.
constexpr QSize kSize{306, 501};
constexpr QRect kTitleStrip{78, 206, 200, 28};
constexpr QRect kPalm{78, 240, 200, 200};
constexpr QRect kLaunchButtons{78, 240, 200, 165};
constexpr QRect kRibbons{100, 410, 156, 63};
constexpr int kStripButton = 20;
constexpr int kStripPicture = 16;
constexpr int kStripGap = 4;
constexpr int kButtonGap = 5;
constexpr int kRibbonPicture = 32;

constexpr auto kShownTitle = "Halvane Tools 1.8B";
constexpr double kProductNameScale = 1.7;
/// The five lines of the opening panel have room for so high a text each.
constexpr int kLargestLine = 34;
constexpr int kCaptionMargin = 8;
/// Above and below the caption of a launch button.
constexpr int kButtonEdges = 6;

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

QLabel* AddLabel(QBoxLayout& layout, const QString& name, const QString& text, double scale,
                 QSize room) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  label->setFont(Bold(label->font()));
  layout.addWidget(label);
  new FontShare(*label, scale, room);
  return label;
}

}  // namespace

void HandMainLook::Arrange(FrmHandMain& form) {
  form.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
  form.setFixedSize(kSize);
  const QRect screen = ThePlatform().AvailableArea({});
  if (screen.height() < kSize.height()) {
    // The hand keeps its size: rather fingertips above the screen than buttons below it.
    form.move(screen.left() + (screen.width() - kSize.width()) / 2,
              screen.top() + screen.height() - kSize.height());
  }
  // Only X11 can cut a window to its outline; elsewhere nothing is seen of what is not painted.
  form.setAttribute(Qt::WA_TranslucentBackground, QApplication::platformName() != "xcb");
  form.SSSplash1_ = new SplashPicture("SSSplash1", "hand", "hand_mask", kSize, &form);
  KeepUnspoken(*form.SSSplash1_);
  MakeTitleStrip(form);
  MakeOpeningPanel(form);
  // Else the link of the opening panel would have it.
  form.setFocus();
}

void HandMainLook::MakeTitleStrip(FrmHandMain& form) {
  auto* strip = new GradientPanel("Picture1", &form);
  strip->RoundCorners();
  form.Picture1_ = strip;
  form.Picture1_->setGeometry(kTitleStrip);
  auto* row = new QHBoxLayout(form.Picture1_);
  row->setContentsMargins(kStripGap, 0, kStripGap, 0);
  const int buttons = 2 * (kStripButton + kStripGap) + 2 * kStripGap;
  form.Label1_ = AddLabel(*row, "Label1", kShownTitle, 1.0, kTitleStrip.size() - QSize(buttons, 0));
  form.Label1_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void HandMainLook::MakeOpeningPanel(FrmHandMain& form) {
  auto* panel = new GradientPanel("Picture3", &form);
  panel->RoundCorners();
  form.Picture3_ = panel;
  panel->setGeometry(kPalm);
  // The window is dragged by its strip and by the hand.
  panel->setAttribute(Qt::WA_NoMousePropagation);
  auto* column = new QVBoxLayout(panel);
  const QSize line(kPalm.width() - 2 * kMargin, kLargestLine);
  column->addStretch(2);
  AddLabel(*column, ElementName("lblProductName", 0), kShownTitle, kProductNameScale, line);
  auto* maker = new QHBoxLayout;
  column->addLayout(maker);
  maker->addStretch();
  AddLabel(*maker, ElementName("lblProductName", 1), kMaker, 1.3,
           {line.width() / 2, line.height()});
  AddLabel(*maker, ElementName("lblProductName", 2), "tm", 1.0, {line.width() / 4, line.height()})
      ->setAlignment(Qt::AlignTop);
  maker->addStretch();
  column->addStretch(2);
  AddLabel(*column, "lblMaker", kMadeBy, 1.0, line);
  form.Hyperlink1_ = new LinkLabel("Hyperlink1", "How to use the program", panel);
  form.Hyperlink1_->setFont(Bold(form.Hyperlink1_->font()));
  new FontShare(*form.Hyperlink1_, 1.0, line);
  column->addWidget(form.Hyperlink1_, 0, Qt::AlignHCenter);
  column->addStretch(1);
}

void HandMainLook::ShowButtons(FrmHandMain& form) {
  PlaceButtons(form);
  // The panel's shadow goes, theirs come.
  form.SSSplash1_->update();
  form.SSRibbon1_.at(0)->SetPicture("main_window/file", kRibbonPicture);
  form.SSRibbon1_.at(1)->SetPicture("main_window/help", kRibbonPicture);
  form.SSCommand3_.at(0)->setIcon(QIcon(":/assets/main_window/close.svg"));
  form.SSCommand3_.at(1)->setIcon(QIcon(":/assets/main_window/minimize.svg"));
  QApplication::setWindowIcon(ProductIcon());
}

void HandMainLook::PlaceButtons(FrmHandMain& form) {
  const int count = static_cast<int>(form.SSCommand2_.size());
  const int height = (kLaunchButtons.height() - (count - 1) * kButtonGap) / count;
  int top = kLaunchButtons.top();
  for (RaisedButton* button : form.SSCommand2_) {
    new FontShare(*button, 1.0,
                  {kLaunchButtons.width() - 2 * kCaptionMargin, height - kButtonEdges});
    button->setGeometry(kLaunchButtons.left(), top, kLaunchButtons.width(), height);
    top += height + kButtonGap;
  }
  // File and Help side by side.
  const int width = (kRibbons.width() - kButtonGap) / 2;
  int left = kRibbons.left();
  const QSize caption(width - kCaptionMargin,
                      kRibbons.height() - kRibbonPicture - 3 * kCaptionMargin / 2);
  for (RibbonButton* ribbon : form.SSRibbon1_) {
    new FontShare(*ribbon, 1.0, caption);
    ribbon->setGeometry(left, kRibbons.top(), width, kRibbons.height());
    left += width + kButtonGap;
  }
  // Close stands at the end of the strip and Minimize left of it, as on other windows.
  const int middle = kTitleStrip.top() + (kTitleStrip.height() - kStripButton) / 2;
  left = kTitleStrip.left() + kTitleStrip.width();
  for (RaisedButton* button : form.SSCommand3_) {
    left -= kStripButton + kStripGap;
    button->setIconSize({kStripPicture, kStripPicture});
    button->setGeometry(left, middle, kStripButton, kStripButton);
  }

  // The Tab key goes as one reads: title strip, tools, menus.
  std::vector<QWidget*> order{form.SSCommand3_.at(1), form.SSCommand3_.at(0)};
  order.insert(order.end(), form.SSCommand2_.begin(), form.SSCommand2_.end());
  order.insert(order.end(), form.SSRibbon1_.begin(), form.SSRibbon1_.end());
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace halvane
