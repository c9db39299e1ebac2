#include "help/help_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>

namespace halvane {
namespace {

// Strokes on a ground of 24 by 24, in the order of HelpIcon.
constexpr std::array kStrokes{
    "<path d='M20 12H5M11 5l-7 7 7 7'/>",
    "<path d='M4 12h15M13 5l7 7-7 7'/>",
    "<path d='M3 12l9-8 9 8M6 10v10h12V10'/>",
    "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.5 15.5L21 21'/>",
    "<path d='M8 8h12v13H8zM16 8V3H4v13h4'/>",
    "<path d='M7 9V3h10v6M7 17H3V9h18v8h-4M7 14h10v7H7z'/>",
    "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.5 15.5L21 21M7.5 10.5h6M10.5 7.5v6'/>",
    "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.5 15.5L21 21M7.5 10.5h6'/>",
    "<path d='M4 5h2M10 5h10M8 12h2M14 12h6M8 19h2M14 19h6'/>",
};

constexpr auto kDrawing =
    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><g fill='none' stroke='%1' "
    "stroke-width='2' stroke-linecap='round' stroke-linejoin='round'>%2</g></svg>";

class Engine : public QIconEngine {
 public:
  explicit Engine(HelpIcon which) : which_(which) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const QColor colour = palette.color(
        mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
    const QString drawing =
        QString(kDrawing).arg(colour.name(), kStrokes.at(static_cast<std::size_t>(which_)));
    QSvgRenderer(drawing.toUtf8()).render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new Engine(which_); }

 private:
  HelpIcon which_;
};

}  // namespace

QIcon MakeHelpIcon(HelpIcon which) { return QIcon(new Engine(which)); }

}  // namespace halvane
