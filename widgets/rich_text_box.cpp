#include "widgets/rich_text_box.h"

#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QLayout>
#include <QMimeData>
#include <QPalette>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>
#include <utility>

#include "widgets/focus_frame.h"
#include "widgets/report_note.h"
#include "widgets/report_pictures.h"

namespace halvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kPaperMargin = 24;
constexpr auto kNews = "Report computed anew";
/// A report that is written with each key that is typed is told of behind the last one.
constexpr int kNewsMilliseconds = 500;
/// Paragraphs of a report that is laid out whole before it is painted.
constexpr std::size_t kMostAtOnce = 256;
/// From so many paragraphs on that differ all of them are written faster.
constexpr std::size_t kMostDifferent = 24;

QTextCharFormat CharFormat(const CharacterFormat& format) {
  QTextCharFormat result;
  result.setFontPointSize(format.size);
  result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  result.setFontUnderline(format.underline);
  return result;
}

QTextBlockFormat BlockFormat(const ParagraphFormat& format, int dotsPerInch) {
  QTextBlockFormat result;
  result.setAlignment(format.alignment == Alignment::Center  ? Qt::AlignHCenter
                      : format.alignment == Alignment::Right ? Qt::AlignRight
                                                             : Qt::AlignLeft);
  QList<QTextOption::Tab> tabs;
  for (const int twips : format.tabStops) {
    tabs.append(QTextOption::Tab(twips * dotsPerInch / kTwipsPerInch, QTextOption::LeftTab));
  }
  result.setTabPositions(tabs);
  return result;
}

bool HasPicture(const Paragraph& paragraph) {
  return std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                     [](const Run& run) { return !run.picture.empty(); });
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setObjectName("RichTextBox1");
  setAccessibleName(tr("Report"));
  SetUpFocusFrame(*this);
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  // What is pasted takes the look of the report.
  setAcceptRichText(false);
  // The wheel scrolls and leaves the focus where it is.
  setFocusPolicy(Qt::StrongFocus);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  setPalette(paper);
  // The tab stops of the reports fit texts of this width; wider fonts push columns over them.
  QFont paperFont = font();
  paperFont.setFamilies({"Arial", "Liberation Sans", "Nimbus Sans", font().family()});
  document()->setDefaultFont(paperFont);
  document()->setDocumentMargin(kPaperMargin);
  setUndoRedoEnabled(false);
  document()->documentLayout()->registerHandler(ReportPictures::kObjectType,
                                                new ReportPictures(document()));
  newsDelay_.setSingleShot(true);
  newsDelay_.setInterval(kNewsMilliseconds);
  connect(&newsDelay_, &QTimer::timeout, this, &RichTextBox::TellNews);
}

void RichTextBox::OpenToTyping() {
  setReadOnly(false);
  setUndoRedoEnabled(true);
}

void RichTextBox::SetLeast(int columns, int lines) {
  leastColumns_ = columns;
  leastLines_ = lines;
  updateGeometry();
}

QSize RichTextBox::minimumSizeHint() const {
  const QFontMetrics letters = fontMetrics();
  return QTextEdit::minimumSizeHint().expandedTo(
      {leastColumns_ * letters.averageCharWidth(), leastLines_ * letters.lineSpacing()});
}

void RichTextBox::ShowReport(const RichText& report) {
  // A report is nothing that the user could undo.
  setUndoRedoEnabled(false);
  ForgetNews();
  const auto differences = Differences(report);
  if (!differences) {
    ForgetPictures();
    document()->clear();
  }
  // What its form shows or hides beside a report changes the width that it is laid out in.
  if (isVisible() && window()->layout() != nullptr) window()->layout()->activate();
  CatchUp();
  if (differences) {
    WriteAgain(*differences, report);
  } else {
    WriteAnew(report);
  }
  KeepShown(report);
  setUndoRedoEnabled(!isReadOnly());
  Select(0, 0);
  ensureCursorVisible();
  // A pane that is cleared is no news.
  if (!document()->isEmpty()) newsDelay_.start();
}

void RichTextBox::KeepShown(const RichText& report) {
  document()->setModified(false);
  dotsPerInch_ = logicalDpiX();
  shown_.clear();
  if (report.paragraphs().size() <= kMostAtOnce) shown_ = report.paragraphs();
}

std::optional<std::vector<std::size_t>> RichTextBox::Differences(const RichText& report) const {
  const std::vector<Paragraph>& paragraphs = report.paragraphs();
  // What was typed is no longer there when the next report is.
  const bool stands = !document()->isModified() && dotsPerInch_ == logicalDpiX();
  if (!stands || paragraphs.size() != shown_.size()) return std::nullopt;
  std::vector<std::size_t> differences;
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (paragraphs[i] == shown_[i]) continue;
    if (HasPicture(paragraphs[i]) || HasPicture(shown_[i])) return std::nullopt;
    differences.push_back(i);
    if (differences.size() > kMostDifferent) return std::nullopt;
  }
  return differences;
}

void RichTextBox::WriteAgain(const std::vector<std::size_t>& paragraphs, const RichText& report) {
  for (const std::size_t number : paragraphs) {
    const Paragraph& paragraph = report.paragraphs()[number];
    QTextCursor cursor(document()->findBlockByNumber(static_cast<int>(number)));
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.setBlockFormat(BlockFormat(paragraph.format, dotsPerInch_));
    for (const Run& run : paragraph.runs) {
      cursor.insertText(QString::fromStdString(run.text), CharFormat(run.format));
    }
    cursor.endEditBlock();
  }
}

void RichTextBox::WriteAnew(const RichText& report) {
  // A bar that goes with the old text and comes back with the new one would have all of it laid out
  // in one width more each time.
  setVerticalScrollBarPolicy(IsLikelyToScroll(report) ? Qt::ScrollBarAlwaysOn
                                                      : Qt::ScrollBarAsNeeded);
  const QSizeF page = document()->pageSize();
  const bool isLong = report.paragraphs().size() > kMostAtOnce;
  // Without a page nothing is laid out. A page that is new has the first lines laid out at once and
  // the others whenever there is nothing else to do, or when somebody comes to them.
  if (isLong) document()->setPageSize(QSizeF(0, 0));
  Fill(report);
  if (isLong) {
    // The caret stands behind what was filled in, and would have all of it laid out.
    Select(0, 0);
    document()->setPageSize(page);
  }
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

bool RichTextBox::IsLikelyToScroll(const RichText& report) const {
  const auto lines = static_cast<int>(report.paragraphs().size());
  // The paper's font takes as long to load as a page to draw.
  if (lines <= 1) return false;
  return lines * QFontMetrics(document()->defaultFont()).height() > viewport()->height();
}

void RichTextBox::Fill(const RichText& report) {
  QTextCursor cursor(document());
  // One layout of the whole instead of one for each piece.
  cursor.beginEditBlock();
  // A format that has been made once is found faster than one that is made anew.
  const QTextCharFormat plain = CharFormat({});
  const ParagraphFormat* paragraphFormat = nullptr;
  QTextBlockFormat block;
  CharacterFormat runFormat;
  QTextCharFormat characters = plain;
  for (const Paragraph& paragraph : report.paragraphs()) {
    const bool isFirst = paragraphFormat == nullptr;
    if (isFirst || *paragraphFormat != paragraph.format) {
      block = BlockFormat(paragraph.format, logicalDpiX());
    }
    paragraphFormat = &paragraph.format;
    if (isFirst) {
      cursor.setBlockFormat(block);
    } else {
      cursor.insertBlock(block, plain);
    }
    for (const Run& run : paragraph.runs) {
      if (run.picture.empty()) {
        if (run.format != runFormat) characters = CharFormat(run.format);
        runFormat = run.format;
        cursor.insertText(QString::fromStdString(run.text), characters);
      } else {
        InsertPicture(cursor, run);
      }
    }
  }
  cursor.endEditBlock();
}

void RichTextBox::InsertPicture(QTextCursor& cursor, const Run& run) {
  QTextCursor place(cursor);
  place.setKeepPositionOnInsert(true);
  ReportPictures::Insert(cursor, QString::fromStdString(run.picture));
  pictures_.push_back(new ReportNote(*this, QString::fromStdString(run.sense), place));
}

void RichTextBox::ForgetNews() {
  newsDelay_.stop();
  delete std::exchange(news_, nullptr);
}

void RichTextBox::ForgetPictures() {
  for (const ReportNote* picture : pictures_) delete picture;
  pictures_.clear();
}

void RichTextBox::TellNews() {
  if (!isVisible()) return;
  news_ = new ReportNote(*this, tr(kNews));
  // A screen reader speaks a notification when it shows, wherever the focus is; of changes of a
  // text it speaks only what the user does where the focus is.
  QAccessibleEvent shown(news_, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

QList<ReportNote*> RichTextBox::notes() const {
  QList<ReportNote*> notes(pictures_.begin(), pictures_.end());
  if (news_ != nullptr) notes.append(news_);
  return notes;
}

QRect RichTextBox::PlaceOf(int position) const {
  const QTextBlock paragraph = document()->findBlock(position);
  // Asked first, since that lays out the paragraph.
  const QRectF place = document()->documentLayout()->blockBoundingRect(paragraph);
  const int within = position - paragraph.position();
  const QTextLine line = paragraph.layout()->lineForTextPosition(within);
  if (!line.isValid()) return {};
  const double left = line.cursorToX(within);
  const QRectF character(left, line.y(), line.cursorToX(within + 1) - left, line.height());
  const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  return character.translated(place.topLeft() - scrolled).toAlignedRect();
}

void RichTextBox::Select(int start, int length) {
  const int last = document()->characterCount() - 1;
  QTextCursor cursor(document());
  cursor.setPosition(std::min(start, last));
  cursor.setPosition(std::min(start + length, last), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  // The caret at the start may be in sight without the margin above it.
  if (cursor.position() == 0) verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

void RichTextBox::SelectAll() { Select(0, document()->characterCount() - 1); }

QString RichTextBox::SelectedText() const {
  QString text = textCursor().selectedText();
  text.replace(QChar::ParagraphSeparator, '\n');
  text.replace(QChar::LineSeparator, '\n');
  text.remove(QChar::ObjectReplacementCharacter);
  return text;
}

bool RichTextBox::event(QEvent* event) {
  const bool handled = QTextEdit::event(event);
  if (event->type() == QEvent::Paint) PaintFocusFrame(*this);
  return handled;
}

void RichTextBox::resizeEvent(QResizeEvent* event) {
  // A pane that comes into view in a window gets its size in several steps and then, mostly, a new
  // report: the old one would be laid out for nothing.
  const bool comesIntoView =
      !isWindow() && window()->isVisible() && !viewport()->isVisible() && !document()->isEmpty();
  isBehind_ = isBehind_ || comesIntoView;
  if (isBehind_) return;
  QTextEdit::resizeEvent(event);
  laidOut_ = event->size();
}

void RichTextBox::showEvent(QShowEvent* event) {
  QTextEdit::showEvent(event);
  if (isBehind_) QMetaObject::invokeMethod(this, &RichTextBox::CatchUp, Qt::QueuedConnection);
}

void RichTextBox::CatchUp() {
  if (!std::exchange(isBehind_, false)) return;
  QResizeEvent all(viewport()->size(), laidOut_);
  QTextEdit::resizeEvent(&all);
  laidOut_ = all.size();
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
  auto* text = new QMimeData;
  text->setText(SelectedText());
  return text;
}

}  // namespace halvane
