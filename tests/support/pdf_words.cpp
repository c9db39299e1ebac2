#include "tests/support/pdf_words.h"

#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <algorithm>
#include <stdexcept>

namespace halvane {
namespace {

const QString kTextReader = "pdftotext";
const QString kPainter = "pdftoppm";

QByteArray OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    throw std::runtime_error(program.toStdString() +
                             " fails: " + process.readAllStandardError().toStdString());
  }
  return process.readAllStandardOutput();
}

double Number(const QXmlStreamReader& xml, const char* attribute) {
  return xml.attributes().value(attribute).toDouble();
}

}  // namespace

QStringList PdfPage::Lines() const {
  std::vector<PdfWord> sorted = words;
  std::ranges::stable_sort(sorted, {}, [](const PdfWord& word) { return word.place.bottom(); });
  QStringList lines;
  for (auto first = sorted.begin(); first != sorted.end();) {
    const auto end = std::find_if(first, sorted.end(), [first](const PdfWord& word) {
      return word.place.top() > first->place.center().y();
    });
    std::sort(first, end,
              [](const PdfWord& a, const PdfWord& b) { return a.place.left() < b.place.left(); });
    QStringList line;
    for (; first != end; ++first) line.append(first->text);
    lines.append(line.join(' '));
  }
  return lines;
}

bool CanReadPdf() {
  return !QStandardPaths::findExecutable(kTextReader).isEmpty() &&
         !QStandardPaths::findExecutable(kPainter).isEmpty();
}

std::vector<PdfPage> ReadPdf(const QString& path) {
  QXmlStreamReader xml(OutputOf(kTextReader, {"-bbox", path, "-"}));
  std::vector<PdfPage> pages;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("page")) {
      pages.push_back({{Number(xml, "width"), Number(xml, "height")}, {}});
    } else if (xml.name() == QLatin1String("word")) {
      const QPointF start(Number(xml, "xMin"), Number(xml, "yMin"));
      const QPointF end(Number(xml, "xMax"), Number(xml, "yMax"));
      pages.back().words.push_back({{start, end}, xml.readElementText()});
    }
  }
  if (xml.hasError()) throw std::runtime_error(xml.errorString().toStdString());
  return pages;
}

QImage DrawPdf(const QString& path, int page, int dotsPerInch) {
  const QString number = QString::number(page);
  const QImage picture = QImage::fromData(OutputOf(
      kPainter, {"-r", QString::number(dotsPerInch), "-f", number, "-l", number, "-png", path}));
  if (picture.isNull()) throw std::runtime_error("no picture of page " + number.toStdString());
  return picture.convertToFormat(QImage::Format_RGB32);
}

QRect InkOf(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      // Nearly white is the edge of what is drawn softly.
      if (qGray(picture.pixel(x, y)) < 240) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

}  // namespace halvane
