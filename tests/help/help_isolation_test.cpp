#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTest>
#include <QTextBlock>

#include "help/help_document.h"
#include "help/help_pages.h"
#include "tests/help/help_support.h"

namespace halvane {
namespace {

constexpr QRgb kSecret = qRgb(0, 200, 100);
constexpr QSize kDrawn{400, 300};

/// Pages that ask for files of the disk. A picture in a colour of its own lies there.
class HelpIsolation : public HelpWindowTest {
 protected:
  HelpIsolation() : pages(little) {
    QDir().mkpath(File("images"));
    QImage secret(32, 32, QImage::Format_RGB32);
    secret.fill(kSecret);
    for (const char* name : {"secret.png", "images/none.png"}) {
      EXPECT_TRUE(secret.save(File(name)));
    }
    document.SetPages(&pages);
    before = QDir::currentPath();
    EXPECT_TRUE(QDir::setCurrent(QString::fromStdString(folder.path())));
  }
  ~HelpIsolation() override { QDir::setCurrent(before); }

  void SetHtml(const QString& html) {
    document.Prepare(QUrl("help:/home.htm"), QFont(), {QPalette(Qt::lightGray), 1});
    document.setHtml(html);
  }
  [[nodiscard]] bool ShowsTheSecret() { return ShowsTheSecret(document); }
  static bool ShowsTheSecret(QTextDocument& drawn) {
    QImage image(kDrawn, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawn.drawContents(&painter);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == kSecret) return true;
      }
    }
    return false;
  }

  HelpPages pages;
  HelpDocument document;
  QString before;
};

QStringList WaysTo(const QString& path) {
  return {path,
          "file://" + path,
          "file:" + path,
          "secret.png",
          "images/none.png",
          "./secret.png",
          "../../../../../../.." + path,
          "help:" + path,
          "qrc:" + path,
          QFileInfo(path).path() + "/none/../secret.png"};
}

TEST_F(HelpIsolation, APlainDocumentOfTheToolkitWouldShowTheSecret) {
  QTextDocument plain;
  plain.setHtml(QString("<img src=\"%1\">").arg(File("secret.png")));
  EXPECT_TRUE(ShowsTheSecret(plain));
}

TEST_F(HelpIsolation, NoPictureOfTheDiskIsShown) {
  for (const QString& way : WaysTo(File("secret.png"))) {
    SetHtml(QString("<p>A picture: <img src=\"%1\"></p>").arg(way));
    EXPECT_FALSE(ShowsTheSecret()) << way.toStdString();
    SetHtml(QString("<table background=\"%1\"><tr><td style=\"background-image: url(%1)\">x</td>"
                    "</tr></table>")
                .arg(way));
    EXPECT_FALSE(ShowsTheSecret()) << way.toStdString();
  }
}

TEST_F(HelpIsolation, APictureOfTheFileIsShownAlsoFromItsRoot) {
  for (const char* way : {"images/dot.png", "/images/dot.png", "IMAGES/DOT.PNG"}) {
    SetHtml(QString("<img src=\"%1\">").arg(way));
    const auto picture = document.resource(QTextDocument::ImageResource, QUrl(way)).value<QImage>();
    ASSERT_EQ(picture.size(), QSize(16, 16)) << way;
    EXPECT_EQ(picture.pixel(8, 8), qRgb(200, 30, 30)) << way;
  }
}

TEST_F(HelpIsolation, NoStyleSheetOfTheDiskIsUsed) {
  WriteBytes(File("secret.css").toStdString(), "p { color: #00c864; }");
  for (const QString& way : WaysTo(File("secret.css"))) {
    const QString link = QString(way).replace(".png", ".css");
    SetHtml(QString("<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"%1\"></head>"
                    "<body><p>Text</p></body></html>")
                .arg(link));
    const QTextCharFormat format = document.begin().begin().fragment().charFormat();
    EXPECT_NE(format.foreground().color().rgb(), kSecret) << link.toStdString();
  }
}

TEST_F(HelpIsolation, NoPageOfTheDiskIsShown) {
  WriteBytes(File("secret.htm").toStdString(), "<p>secret</p>");
  for (const QString& way : WaysTo(File("secret.htm"))) {
    Show(QString(way).replace(".png", ".htm"));
    EXPECT_TRUE(page().toPlainText().startsWith("This page is not in the help file"))
        << way.toStdString();
  }
  EXPECT_TRUE(pages.Page(QUrl::fromLocalFile(File("secret.htm"))).contains("not in the help file"));
}

TEST_F(HelpIsolation, ScriptsAreNeitherRunNorShown) {
  SetHtml(
      "<html><body onload=\"x()\"><p>Text</p><script>document.write('no');</script></body></html>");
  EXPECT_EQ(document.toPlainText(), "Text");
}

TEST_F(HelpIsolation, ABrokenPictureHasAPictureInItsPlace) {
  for (const char* name : {"images/none.png", "home.htm", "style.css"}) {
    EXPECT_FALSE(pages.Image(pages.UrlOf(name)).isNull()) << name;
    EXPECT_NE(pages.Image(pages.UrlOf(name)).size(), QSize(32, 32)) << name;
  }
}

TEST_F(HelpIsolation, PrintedPagesHaveTheirPictures) {
  Show("home.htm");
  const auto paper = page().PageToPrint();
  // What the toolkit prints is a copy.
  const std::unique_ptr<QTextDocument> copy(paper->clone(paper.get()));
  const QUrl name("images/dot.png");
  EXPECT_EQ(copy->resource(QTextDocument::ImageResource, name).value<QImage>().size(),
            QSize(16, 16));
}

class HelpColours : public HelpIsolation {};

struct ColourRow {
  const char* label;
  const char* html;
};

/// The least contrast of any text of the page.
double LeastContrast(const QTextDocument& document, const QPalette& palette) {
  double least = 21;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    QColor ground = palette.color(QPalette::Base);
    const QTextFrameFormat root = document.rootFrame()->frameFormat();
    if (root.hasProperty(QTextFormat::BackgroundBrush)) ground = root.background().color();
    const QTextBlockFormat blockFormat = block.blockFormat();
    if (blockFormat.hasProperty(QTextFormat::BackgroundBrush)) {
      ground = blockFormat.background().color();
    }
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      const QColor own =
          format.hasProperty(QTextFormat::BackgroundBrush) ? format.background().color() : ground;
      const QColor text = format.hasProperty(QTextFormat::ForegroundBrush)
                              ? format.foreground().color()
                              : palette.color(QPalette::Text);
      least = std::min(least, ContrastOf(text, own));
    }
  }
  return least;
}

TEST_F(HelpColours, OfAPageStayReadableOnADarkGround) {
  const HelpLook dark{DarkPalette(), 1};
  for (const ColourRow& row :
       {ColourRow{"black", "<p style=\"color: black\">Text</p>"},
        ColourRow{"dark blue", "<p style=\"color: #000080\">Text</p>"},
        ColourRow{"a light note", "<p style=\"background-color: #ffffcc\">Text</p>"},
        ColourRow{"both", "<p style=\"background-color: white; color: #202020\">Text</p>"},
        ColourRow{"a page", "<body bgcolor=\"#ffffff\" text=\"#000000\"><p>Text</p></body>"},
        ColourRow{"a link", "<p><a href=\"home.htm\">Text</a></p>"},
        ColourRow{"a word", "<p>Text <font color=\"#800000\">red</font> text</p>"}}) {
    document.Prepare(QUrl("help:/home.htm"), QFont(), dark);
    document.setHtml(row.html);
    document.Adapt(dark);
    EXPECT_GE(LeastContrast(document, dark.palette), 4.5) << row.label;
  }
}

TEST_F(HelpColours, StayAsTheyAreOnALightGround) {
  const HelpLook light{QPalette(Qt::lightGray), 1};
  document.Prepare(QUrl("help:/home.htm"), QFont(), light);
  document.setHtml("<p style=\"color: #000080; background-color: #ffffcc\">Text</p>");
  document.Adapt(light);
  const QTextBlock block = document.begin();
  EXPECT_EQ(block.begin().fragment().charFormat().foreground().color().name(), "#000080");
  EXPECT_EQ(block.blockFormat().background().color().name(), "#ffffcc");
}

TEST_F(HelpColours, OfThePageOnViewFollowThePalette) {
  Show("home.htm");
  page().setPalette(DarkPalette());
  EXPECT_GE(LeastContrast(*page().document(), page().palette()), 4.5);
  EXPECT_EQ(Topic(), "home.htm");
  // Paper stays white.
  const auto paper = page().PageToPrint();
  QPalette light(Qt::lightGray);
  EXPECT_GE(LeastContrast(*paper, light), 4.5);
  EXPECT_EQ(paper->toPlainText(), page().toPlainText());
}

}  // namespace
}  // namespace halvane
