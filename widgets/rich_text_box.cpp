#include "widgets/rich_text_box.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "widgets/focus_frame.h"
#include "widgets/report_pictures.h"

namespace halvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kPaperMargin = 24;

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
}

void RichTextBox::OpenToTyping() {
  setReadOnly(false);
  setUndoRedoEnabled(true);
}

void RichTextBox::ShowReport(const RichText& report) {
  // A report is nothing that the user could undo.
  setUndoRedoEnabled(false);
  document()->clear();
  QTextCursor cursor(document());
  // One layout of the whole instead of one for each piece.
  cursor.beginEditBlock();
  bool first = true;
  for (const Paragraph& paragraph : report.paragraphs()) {
    const QTextBlockFormat format = BlockFormat(paragraph.format, logicalDpiX());
    if (first) {
      cursor.setBlockFormat(format);
    } else {
      cursor.insertBlock(format, CharFormat({}));
    }
    first = false;
    for (const Run& run : paragraph.runs) {
      if (run.picture.empty()) {
        cursor.insertText(QString::fromStdString(run.text), CharFormat(run.format));
      } else {
        ReportPictures::Insert(cursor, QString::fromStdString(run.picture));
      }
    }
  }
  cursor.endEditBlock();
  setUndoRedoEnabled(!isReadOnly());
  Select(0, 0);
  ensureCursorVisible();
}

void RichTextBox::Select(int start, int length) {
  const int last = document()->characterCount() - 1;
  QTextCursor cursor(document());
  cursor.setPosition(std::min(start, last));
  cursor.setPosition(std::min(start + length, last), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
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

QMimeData* RichTextBox::createMimeDataFromSelection() const {
  auto* text = new QMimeData;
  text->setText(SelectedText());
  return text;
}

}  // namespace halvane
