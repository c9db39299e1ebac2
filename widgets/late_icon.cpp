#include "widgets/late_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace halvane {
namespace {

class LateIconEngine : public QIconEngine {
 public:
  explicit LateIconEngine(QString file) : file_(std::move(file)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    Icon().paint(painter, place, Qt::AlignCenter, mode, state);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    // In device pixels.
    return Icon().pixmap(size, 1.0, mode, state);
  }

  [[nodiscard]] QIconEngine* clone() const override { return new LateIconEngine(*this); }

 private:
  const QIcon& Icon() {
    if (icon_.isNull()) icon_ = QIcon(file_);
    return icon_;
  }

  QString file_;
  QIcon icon_;
};

}  // namespace

QIcon LateIcon(const QString& file) { return QIcon(new LateIconEngine(file)); }

}  // namespace halvane
