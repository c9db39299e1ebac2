#include "help/help_document.h"

#include <QFontInfo>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>
#include <array>
#include <vector>

#include "help/help_pages.h"

namespace halvane {
namespace {

constexpr int kPageMargin = 16;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

/// The same colour with its lightness turned over, black kept apart from white as far as before.
QColor TurnedOver(const QColor& colour) {
  float hue = 0;
  float saturation = 0;
  float lightness = 0;
  float alpha = 0;
  colour.getHslF(&hue, &saturation, &lightness, &alpha);
  return QColor::fromHslF(std::max(hue, 0.0F), saturation, 1 - lightness, alpha);
}

/// Changes formats of one document for one look.
class Adapting {
 public:
  Adapting(QTextDocument& document, const HelpLook& look)
      : document_(document), look_(look), dark_(IsDark(look.palette)) {}

  void Run() {
    if (!dark_ && look_.zoom == 1) return;
    QTextCursor cursor(&document_);
    cursor.beginEditBlock();
    AdaptFrame(*document_.rootFrame());
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      AdaptBlock(block);
    }
    cursor.endEditBlock();
  }

 private:
  void AdaptFrame(QTextFrame& frame) {
    QTextFrameFormat format = frame.frameFormat();
    Recolour(format, {QTextFormat::BackgroundBrush, QTextFormat::FrameBorderBrush});
    frame.setFrameFormat(format);
    if (auto* table = qobject_cast<QTextTable*>(&frame)) {
      for (int row = 0; row < table->rows(); ++row) {
        for (int column = 0; column < table->columns(); ++column) {
          QTextTableCell cell = table->cellAt(row, column);
          // A cell over several rows and columns is met once.
          if (cell.row() != row || cell.column() != column) continue;
          QTextCharFormat cellFormat = cell.format();
          Recolour(cellFormat, {QTextFormat::BackgroundBrush});
          cell.setFormat(cellFormat);
        }
      }
    }
    for (QTextFrame* child : frame.childFrames()) AdaptFrame(*child);
  }

  void AdaptBlock(const QTextBlock& block) {
    QTextCursor cursor(block);
    QTextBlockFormat blockFormat = block.blockFormat();
    Recolour(blockFormat, {QTextFormat::BackgroundBrush});
    cursor.setBlockFormat(blockFormat);
    QTextCharFormat blockCharFormat = block.charFormat();
    AdaptCharacters(blockCharFormat);
    cursor.setBlockCharFormat(blockCharFormat);

    struct Run {
      int start;
      int end;
      QTextCharFormat format;
    };
    // Changing a format ends the walk over fragments, so they are listed first.
    std::vector<Run> runs;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      runs.push_back(
          {fragment.position(), fragment.position() + fragment.length(), fragment.charFormat()});
    }
    for (Run& run : runs) {
      AdaptCharacters(run.format);
      cursor.setPosition(run.start);
      cursor.setPosition(run.end, QTextCursor::KeepAnchor);
      cursor.setCharFormat(run.format);
    }
  }

  void AdaptCharacters(QTextCharFormat& format) const {
    // Links have the palette's colour already.
    if (format.isAnchor() && format.foreground().color() == look_.palette.color(QPalette::Link)) {
      Recolour(format, {QTextFormat::BackgroundBrush});
    } else {
      Recolour(format, {QTextFormat::ForegroundBrush, QTextFormat::BackgroundBrush});
    }
    if (format.hasProperty(QTextFormat::FontPointSize)) {
      format.setFontPointSize(format.fontPointSize() * look_.zoom);
    }
    if (format.hasProperty(QTextFormat::FontPixelSize)) {
      format.setProperty(QTextFormat::FontPixelSize,
                         qRound(format.intProperty(QTextFormat::FontPixelSize) * look_.zoom));
    }
    if (format.isImageFormat()) EnlargeImage(format);
  }

  void EnlargeImage(QTextCharFormat& format) const {
    QTextImageFormat image = format.toImageFormat();
    if (image.width() <= 0 && image.height() <= 0) {
      const QVariant picture = document_.resource(QTextDocument::ImageResource, image.name());
      image.setWidth(picture.value<QImage>().width() * look_.zoom);
    } else {
      if (image.width() > 0) image.setWidth(image.width() * look_.zoom);
      if (image.height() > 0) image.setHeight(image.height() * look_.zoom);
    }
    format = image;
  }

  void Recolour(QTextFormat& format,
                std::initializer_list<QTextFormat::Property> properties) const {
    if (!dark_) return;
    for (const QTextFormat::Property property : properties) {
      if (!format.hasProperty(property)) continue;
      const QBrush brush = format.brushProperty(property);
      if (brush.style() != Qt::SolidPattern) continue;
      format.setProperty(property, QBrush(TurnedOver(brush.color())));
    }
  }

  QTextDocument& document_;
  const HelpLook& look_;
  bool dark_;
};

}  // namespace

HelpDocument::HelpDocument(QObject* parent) : QTextDocument(parent) {
  setUndoRedoEnabled(false);
  setDocumentMargin(kPageMargin);
}

void HelpDocument::Prepare(const QUrl& url, const QFont& font, const HelpLook& look) {
  setBaseUrl(url);
  QFont scaled = font;
  // A desktop may give its font in pixels, which has no size in points of its own.
  scaled.setPointSizeF(QFontInfo(font).pointSizeF() * look.zoom);
  setDefaultFont(scaled);
  setDefaultStyleSheet(QString("a { color: %1; text-decoration: underline; }"
                               "p, li, dd { line-height: 120%; }"
                               "td, th { padding: 4px; }"
                               "th { text-align: left; }")
                           .arg(look.palette.color(QPalette::Link).name()));
}

void HelpDocument::Adapt(const HelpLook& look) { Adapting(*this, look).Run(); }

QVariant HelpDocument::loadResource(int type, const QUrl& name) {
  // Never an invalid answer: the toolkit then looks for the resource on the disk.
  if (pages_ == nullptr) return QByteArray("");
  // The copy that is made for printing knows no address to start from.
  const QUrl url = baseUrl().resolved(name);
  switch (type) {
    case ImageResource: return pages_->Image(url);
    case StyleSheetResource: return pages_->StyleSheet(url);
    default: return QByteArray("");
  }
}

}  // namespace halvane
