// The sheets of docs/pictures show the pictures as they are.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "tests/assets/picture_files.h"

namespace halvane {
namespace {

/// What the script's check says of the sheets in a folder; nothing when all is well.
QString Complaints(const QString& folder) {
  QProcess script;
  script.start(HALVANE_PYTHON, {SourceFile("scripts/contact_sheets"), "--check", folder});
  EXPECT_TRUE(script.waitForFinished(-1));
  const QString said = QString::fromUtf8(script.readAllStandardError()).trimmed();
  EXPECT_EQ(script.exitCode(), said.isEmpty() ? 0 : 1) << said.toStdString();
  return said;
}

TEST(ContactSheets, ShowEveryPictureAsItIs) {
  EXPECT_EQ(Complaints(SourceFile("docs/pictures")).toStdString(), "");
}

TEST(ContactSheets, OneOfOlderPicturesIsFound) {
  const QTemporaryDir copy;
  const QDir sheets(SourceFile("docs/pictures"));
  for (const QString& name : sheets.entryList({"sheet-*.png"})) {
    ASSERT_TRUE(QFile::copy(sheets.filePath(name), copy.filePath(name)));
  }
  QFile sheet(copy.filePath("sheet-reba-200.png"));
  ASSERT_TRUE(sheet.open(QIODevice::ReadWrite));
  QByteArray bytes = sheet.readAll();
  const qsizetype at = bytes.indexOf("sha256 of the pictures: ") + 24;
  ASSERT_GT(at, 24);
  bytes[at] = bytes[at] == '0' ? '1' : '0';
  sheet.seek(0);
  sheet.write(bytes);
  sheet.close();
  EXPECT_EQ(Complaints(copy.path()).toStdString(),
            "sheet-reba-200.png is not of today's pictures: run scripts/contact_sheets");
}

}  // namespace
}  // namespace halvane
