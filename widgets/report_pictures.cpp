#include "widgets/report_pictures.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImageReader>
#include <QPaintDevice>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextCursor>
#include <QTextDocument>

namespace halvane {
namespace {

constexpr double kMetersPerInch = 0.0254;
/// Of the pixels that the sizes of pictures are given in.
constexpr double kLogicalDotsPerInch = 96;
/// Of a page's height, for a picture: its line also has what letters reach below theirs.
constexpr double kShareOfPage = 0.95;

}  // namespace

ReportPictures::ReportPictures(QObject* parent) : QObject(parent) {}
ReportPictures::~ReportPictures() = default;

void ReportPictures::Insert(QTextCursor& cursor, const QString& assetName) {
  QTextCharFormat format;
  format.setObjectType(kObjectType);
  format.setProperty(kNameProperty, assetName);
  cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

QSizeF ReportPictures::intrinsicSize(QTextDocument* document, int /*position*/,
                                     const QTextFormat& format) {
  const QPaintDevice* device = document->documentLayout()->paintDevice();
  const double scale = device == nullptr ? 1 : device->logicalDpiY() / kLogicalDotsPerInch;
  const QSizeF size = PictureOf(format).size * scale;
  // Paper can be too small for a picture; a pane without pages is as high as what stands in it.
  QSizeF room = document->pageSize();
  room.rheight() *= kShareOfPage;
  const bool fits = room.height() <= 0 || size.boundedTo(room) == size;
  return fits ? size : size.scaled(room, Qt::KeepAspectRatio);
}

void ReportPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument* /*document*/,
                                int /*position*/, const QTextFormat& format) {
  Picture& picture = PictureOf(format);
  if (picture.drawing) {
    picture.drawing->render(painter, place);
    return;
  }
  if (picture.image.isNull()) picture.image = QImage(picture.file);
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->drawImage(place, picture.image);
}

ReportPictures::Picture& ReportPictures::PictureOf(const QTextFormat& format) {
  const QString name = format.property(kNameProperty).toString();
  auto found = pictures_.find(name);
  if (found == pictures_.end()) found = pictures_.emplace(name, Load(name)).first;
  return found->second;
}

ReportPictures::Picture ReportPictures::Load(const QString& assetName) {
  const QString base = ":/assets/" + assetName;
  Picture picture;
  if (QFile::exists(base + ".jpg")) {
    picture.file = base + ".jpg";
    QImageReader reader(picture.file);
    const QSizeF pixels = reader.size();
    // Its own dots per inch say how large it is meant to be; a corner tells them as well as the
    // whole, which takes longer to read than a report to lay out.
    reader.setClipRect({0, 0, 1, 1});
    const double dotsPerPixel =
        reader.read().dotsPerMeterX() * kMetersPerInch / kLogicalDotsPerInch;
    picture.size = (pixels / dotsPerPixel).toSize();
  } else {
    picture.drawing = std::make_unique<QSvgRenderer>(base + ".svg");
    picture.size = picture.drawing->defaultSize();
  }
  return picture;
}

}  // namespace halvane
