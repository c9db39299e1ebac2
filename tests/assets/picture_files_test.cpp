// The files of assets/: made by the generator, all there, none left over.
#include "tests/assets/picture_files.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace halvane {
namespace {

TEST(PictureFiles, AreWhatTheGeneratorDraws) {
  const QTemporaryDir fresh;
  QProcess generator;
  generator.start(HALVANE_PYTHON, {SourceFile("scripts/make_pictures.py"), fresh.path()});
  ASSERT_TRUE(generator.waitForFinished(-1));
  ASSERT_EQ(generator.exitCode(), 0) << generator.readAllStandardError().toStdString();
  const QStringList names = FilesBelow(fresh.path(), ".svg");
  ASSERT_GT(names.size(), 100);
  EXPECT_EQ(names, FilesBelow(SourceFile("assets"), ".svg"));
  for (const QString& name : names) {
    EXPECT_EQ(ContentOf(fresh.filePath(name)), ContentOf(SourceFile("assets/" + name)))
        << name.toStdString();
  }
}

TEST(PictureFiles, EveryPictureThatTheProgramNamesIsThere) {
  const QStringList pictures = FilesBelow(SourceFile("assets"), ".svg");
  const QRegularExpression name("\"((?:ocra|ctd|strain_index|rula|reba)/[a-z0-9_]+)\"");
  QSet<QString> named;
  for (const QString& source : FilesBelow(SourceFile("tools"), ".cpp")) {
    auto hits = name.globalMatch(ContentOf(SourceFile("tools/" + source)));
    while (hits.hasNext()) named << hits.next().captured(1) + ".svg";
  }
  EXPECT_GT(named.size(), 50);
  EXPECT_EQ(named - QSet<QString>(pictures.begin(), pictures.end()), QSet<QString>{});
  EXPECT_TRUE(pictures.contains("ctd/task.svg")) << "the icon of the task tree";
}

TEST(PictureFiles, DesktopProgramHasEachOnce) {
  QSet<QString> wanted;
  for (const QString& name : FilesBelow(SourceFile("assets"), ".svg")) wanted << name;
  for (const QString suffix : {".jpg", ".png"}) {
    for (const QString& name : FilesBelow(SourceFile("assets"), suffix)) {
      // The desktop program shows what was rendered; its drawing is the source of that.
      wanted << name;
      wanted.remove(QString(name).replace(suffix, ".svg"));
    }
  }
  // Some are compiled.
  for (const QString& name : CompiledPictures()) wanted.remove(name + ".svg");
  // Of the icon it has the sizes that title bars and task switchers ask for.
  wanted.removeIf([](const QString& name) { return name.startsWith("icon/"); });
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    wanted << QString("icon/hicolor/%1x%1/apps/halvane-tools.png").arg(side);
  }
  QStringList listed;
  QXmlStreamReader reader(ContentOf(SourceFile("assets/assets.qrc")));
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"file") {
      listed << reader.readElementText();
    }
  }
  EXPECT_FALSE(reader.hasError());
  EXPECT_EQ(QSet<QString>(listed.begin(), listed.end()), wanted);
  EXPECT_EQ(listed.size(), wanted.size());
}

TEST(PictureFiles, UseOnlyWhatTheProgramRenders) {
  const QSet<QString> known{"svg",  "title", "desc", "g",   "path",           "rect", "circle",
                            "line", "text",  "defs", "use", "linearGradient", "stop"};
  const QRegularExpression arcs("[Aa]");
  for (const QString& name : FilesBelow(SourceFile("assets"), ".svg")) {
    QXmlStreamReader reader(ContentOf(SourceFile("assets/" + name)));
    while (!reader.atEnd()) {
      if (reader.readNext() != QXmlStreamReader::StartElement) continue;
      EXPECT_TRUE(known.contains(reader.name().toString()))
          << name.toStdString() << ": " << reader.name().toString().toStdString();
      for (const auto* attribute : {"class", "style", "filter", "mask", "clip-path"}) {
        EXPECT_FALSE(reader.attributes().hasAttribute(attribute)) << name.toStdString();
      }
      EXPECT_FALSE(reader.attributes().value("d").toString().contains(arcs)) << name.toStdString();
    }
    EXPECT_FALSE(reader.hasError()) << name.toStdString();
  }
}

struct JpegRow {
  const char* name;
  QSize logical;
};
const JpegRow kJpegs[] = {{"ocra/zones", {494, 296}}, {"ocra/multipliers", {494, 296}}};

TEST(JpegPictures, AreWholeJpegsOfThreeTimesTheirLogicalSize) {
  ASSERT_EQ(FilesBelow(SourceFile("assets"), ".jpg").size(), std::size(kJpegs));
  for (const JpegRow& row : kJpegs) {
    const QString path = SourceFile("assets/" + QString(row.name));
    const QByteArray bytes = ContentOf(path + ".jpg");
    EXPECT_TRUE(bytes.startsWith("\xFF\xD8\xFF")) << row.name;
    EXPECT_TRUE(bytes.endsWith("\xFF\xD9")) << row.name;
    const QImage image = QImage::fromData(bytes, "JPEG");
    EXPECT_EQ(image.size(), row.logical * 3) << row.name;
    EXPECT_NEAR(image.dotsPerMeterX(), 288 / 0.0254, 20) << row.name;
    EXPECT_NEAR(image.dotsPerMeterY(), 288 / 0.0254, 20) << row.name;
    EXPECT_EQ(QSvgRenderer(path + ".svg").defaultSize(), row.logical) << row.name;
  }
}

TEST(JpegPictures, WereMadeFromTheirDrawingAsItIs) {
  // Pixels differ from one machine's renderer to the next; the checksum that scripts/make_jpegs
  // leaves in the file does not.
  for (const JpegRow& row : kJpegs) {
    const QString path = SourceFile("assets/" + QString(row.name));
    const QByteArray checksum =
        QCryptographicHash::hash(ContentOf(path + ".svg"), QCryptographicHash::Sha256).toHex();
    EXPECT_TRUE(ContentOf(path + ".jpg").contains("sha256 of the SVG: " + checksum))
        << row.name << ".svg has changed: run scripts/make_jpegs";
  }
}

}  // namespace
}  // namespace halvane
