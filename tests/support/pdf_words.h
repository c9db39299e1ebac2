#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

namespace halvane {

/// A word of a page, its place in points from the upper left corner of the sheet.
struct PdfWord {
  QRectF place;
  QString text;
};

struct PdfPage {
  QSizeF size;  ///< points
  std::vector<PdfWord> words;

  /// The words from top to bottom and from left to right, a string a line.
  [[nodiscard]] QStringList Lines() const;
};

/// Whether the machine has the readers of PDF files.
bool CanReadPdf();

/// The pages of a file; throws when it can't be read.
std::vector<PdfPage> ReadPdf(const QString& path);

/// A page as it looks, `dotsPerInch` fine; throws when it can't be drawn.
QImage DrawPdf(const QString& path, int page, int dotsPerInch);

/// The part of a picture that is not white.
QRect InkOf(const QImage& picture);

}  // namespace halvane
