#include "help/help_find_bar.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "help/help_browser.h"
#include "widgets/layout.h"
#include "widgets/wrap_row.h"

namespace halvane {
namespace {

template <typename Handler>
QToolButton* AddButton(WrapRow& row, const QString& name, const QString& caption, HelpFindBar* bar,
                       Handler handler) {
  auto* button = new QToolButton(bar);
  button->setObjectName(name);
  button->setText(caption);
  button->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(button, &QToolButton::clicked, bar, handler);
  row.Add(button, 0);
  return button;
}

}  // namespace

HelpFindBar::HelpFindBar(HelpBrowser& page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)), result_(new QLabel(this)) {
  setObjectName("HelpFindBar");
  setContentsMargins(kMargin, kGap / 2, kMargin, kGap / 2);
  auto* row = new WrapRow(2, this);
  auto* label = new QLabel(tr("F&ind:"), this);
  label->setBuddy(text_);
  text_->setObjectName("HelpFindText");
  text_->setAccessibleName(tr("Text to find in this page"));
  text_->setClearButtonEnabled(true);
  result_->setObjectName("HelpFindResult");
  row->Add(label, 0);
  row->Add(text_, 1);
  AddButton(*row, "HelpFindNext", tr("Next"), this, &HelpFindBar::FindNext);
  AddButton(*row, "HelpFindPrevious", tr("Previous"), this, &HelpFindBar::FindPrevious);
  row->Add(result_, 1);
  AddButton(*row, "HelpFindClose", tr("Close"), this, &HelpFindBar::Close);
  connect(text_, &QLineEdit::textEdited, this, &HelpFindBar::FindWhileTyping);
  hide();
}

void HelpFindBar::Open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void HelpFindBar::Close() {
  hide();
  page_.setFocus();
}

void HelpFindBar::Find(bool backward) {
  if (text_->text().isEmpty()) {
    Open();
    return;
  }
  bool wrapped = false;
  const bool found = page_.FindText(text_->text(), backward, wrapped);
  Show(found, wrapped, backward);
}

void HelpFindBar::FindWhileTyping() {
  // The place found so far is looked at first, so that one more letter does not skip it.
  QTextCursor place = page_.textCursor();
  place.setPosition(place.selectionStart());
  page_.setTextCursor(place);
  if (text_->text().isEmpty()) {
    result_->clear();
    return;
  }
  bool wrapped = false;
  const bool found = page_.FindText(text_->text(), false, wrapped);
  Show(found, wrapped, false);
}

void HelpFindBar::Show(bool found, bool wrapped, bool backward) {
  show();
  result_->setText(!found     ? tr("Not found on this page")
                   : !wrapped ? QString()
                   : backward ? tr("Went on from the end")
                              : tr("Went on from the beginning"));
}

void HelpFindBar::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && text_->hasFocus()) {
    Find(event->modifiers().testFlag(Qt::ShiftModifier));
  } else if (event->key() == Qt::Key_Escape) {
    Close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace halvane
