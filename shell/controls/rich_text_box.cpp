#include "shell/controls/rich_text_box.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QUrl>
#include <algorithm>

namespace halvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kPaperMargin = 24;
/// How much finer than the screen a picture is kept, so that it is sharp when magnified or printed.
constexpr int kPictureScale = 4;

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

void InsertPicture(QTextCursor& cursor, const std::string& assetName) {
  const QString path = ":/assets/" + QString::fromStdString(assetName) + ".svg";
  QSvgRenderer renderer(path);
  QImage image(renderer.defaultSize() * kPictureScale, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  cursor.document()->addResource(QTextDocument::ImageResource, QUrl(path), image);
  QTextImageFormat format;
  format.setName(path);
  format.setWidth(renderer.defaultSize().width());
  format.setHeight(renderer.defaultSize().height());
  cursor.insertImage(format);
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
  setObjectName("RichTextBox1");
  setAccessibleName(tr("Report"));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  setPalette(paper);
  document()->setDocumentMargin(kPaperMargin);
}

void RichTextBox::ShowReport(const RichText& report) {
  document()->clear();
  QTextCursor cursor(document());
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
        InsertPicture(cursor, run.picture);
      }
    }
  }
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

QString RichTextBox::SelectedText() const { return textCursor().selection().toPlainText(); }

}  // namespace halvane
