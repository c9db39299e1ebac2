#include "tests/assets/picture_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace halvane {

QString SourceFile(const QString& path) { return QString(HALVANE_SOURCE_DIR) + "/" + path; }

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

QStringList FilesBelow(const QString& folder, const QString& suffix) {
  QStringList names;
  QDirIterator files(folder, {"*" + suffix}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) names << QDir(folder).relativeFilePath(files.next());
  names.sort();
  return names;
}

QStringList PosturePictures() {
  QStringList names = FilesBelow(SourceFile("assets"), ".svg");
  names.replaceInStrings(".svg", "");
  names.removeIf([](const QString& name) {
    return name.startsWith("ocra/") || name.startsWith("strain_index/") ||
           name.startsWith("hal/") || name.startsWith("icon/") || name.startsWith("main_window/") ||
           name == "ctd/report" || name == "ctd/task";
  });
  return names;
}

QStringList CompiledPictures() {
  return PosturePictures() << "main_window/file"
                           << "main_window/help";
}

QString TitleOf(const QString& asset) {
  const QString text = QString::fromUtf8(ContentOf(SourceFile("assets/" + asset + ".svg")));
  return text.section("<title>", 1).section("</title>", 0, 0);
}

}  // namespace halvane
