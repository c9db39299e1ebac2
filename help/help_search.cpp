#include "help/help_search.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "widgets/layout.h"

namespace halvane {

HelpSearch::HelpSearch(QWidget* contents, QWidget* parent)
    : QWidget(parent),
      contents_(contents),
      text_(new QLineEdit(this)),
      result_(new QLabel(this)),
      list_(new QListWidget(this)) {
  setObjectName("HelpSearch");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* box = new QVBoxLayout;
  box->setContentsMargins(kGap, kGap, kGap, kGap);
  box->setSpacing(kGap);
  text_->setObjectName("HelpSearchText");
  text_->setPlaceholderText(tr("Search all pages"));
  text_->setAccessibleName(tr("Text to search all pages for"));
  text_->setClearButtonEnabled(true);
  result_->setObjectName("HelpSearchResult");
  result_->setWordWrap(true);
  list_->setObjectName("HelpSearchHits");
  list_->setAccessibleName(tr("Pages found"));
  list_->setWordWrap(true);
  list_->setSpacing(kGap / 4);
  box->addWidget(text_);
  box->addWidget(result_);
  column->addLayout(box);
  column->addWidget(list_, 1);
  column->addWidget(contents_, 1);
  connect(text_, &QLineEdit::textChanged, this, &HelpSearch::Search);
  connect(list_, &QListWidget::currentRowChanged, this, &HelpSearch::Choose);
  connect(list_, &QListWidget::itemClicked, this, &HelpSearch::Choose);
  ShowHits({});
}

void HelpSearch::SetPages(const HelpPages* pages) {
  pages_ = pages;
  index_.reset();
  text_->clear();
}

void HelpSearch::ShowContents() { text_->clear(); }

void HelpSearch::Open() {
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

QWidget& HelpSearch::List() const { return list_->isHidden() ? *contents_ : *list_; }

void HelpSearch::Search() {
  const QStringList words = HelpIndex::WordsOf(text_->text());
  if (!words.isEmpty() && !index_ && pages_ != nullptr) {
    index_ = std::make_unique<HelpIndex>(*pages_);
  }
  hits_ = index_ ? index_->Find(words) : std::vector<HelpHit>();
  ShowHits(words);
  emit wordsChanged(words);
}

void HelpSearch::ShowHits(const QStringList& words) {
  const QSignalBlocker guard(list_);
  list_->clear();
  for (const HelpHit& hit : hits_) {
    list_->addItem(QString("%1 (%2)").arg(hit.title).arg(hit.places));
  }
  list_->setCurrentRow(-1);
  const bool searching = !words.isEmpty();
  result_->setText(hits_.empty() ? tr("Found on no page") : tr("Pages with it, and how often:"));
  result_->setVisible(searching);
  list_->setVisible(searching);
  contents_->setVisible(!searching);
}

void HelpSearch::Choose() {
  const int row = list_->currentRow();
  if (row >= 0) emit pageChosen(hits_[static_cast<std::size_t>(row)].page);
}

void HelpSearch::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if ((enter || event->key() == Qt::Key_Down) && text_->hasFocus() && !hits_.empty()) {
    list_->setFocus();
    list_->setCurrentRow(0);
  } else if (event->key() == Qt::Key_Escape && !text_->text().isEmpty()) {
    ShowContents();
    contents_->setFocus();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace halvane
