#pragma once

#include <QImage>
#include <QObject>
#include <QTextObjectInterface>
#include <map>
#include <memory>

class QSvgRenderer;
class QTextCursor;

namespace halvane {

/// Draws the pictures of a report pane: drawings as such, sharp at every size, on screen and in
/// print. A picture is read once and drawn only where it is seen, since drawing one takes longer
/// than all the text of a report.
class ReportPictures : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)
 public:
  /// Kind of the character that stands for a picture, and the property with its asset name.
  static constexpr int kObjectType = QTextFormat::UserObject + 1;
  static constexpr int kNameProperty = QTextFormat::UserProperty + 1;

  explicit ReportPictures(QObject* parent);
  ~ReportPictures() override;

  /// Inserts a picture of assets/ by its name, "ocra/zones", as one character.
  static void Insert(QTextCursor& cursor, const QString& assetName);

  /// The size on paper or screen of `document`. A JPEG is as large as its dots per inch say,
  /// and no picture is larger than a page of paper.
  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  /// Either a drawing or, without one, the file of an image, which is read when it is drawn; `size`
  /// in pixels of 96 to an inch.
  struct Picture {
    std::unique_ptr<QSvgRenderer> drawing;
    QString file;
    QImage image;
    QSizeF size;
  };
  Picture& PictureOf(const QTextFormat& format);
  static Picture Load(const QString& assetName);

  std::map<QString, Picture> pictures_;
};

}  // namespace halvane
