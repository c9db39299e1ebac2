// Turns the SVG files of postures into outlines, which the program draws in a quarter of the time
// that reading and drawing the files takes. Run by the build, as
//
//   compile_postures ASSETS FOLDER NAME...
//
// for the files ASSETS/NAME.svg; it writes FOLDER/NAME.outlines.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exception>
#include <iostream>
#include <span>

#include "widgets/posture_drawing.h"

namespace {

/// The message of a failure; null when the file is written.
QString Compile(const QString& input, const QString& output) {
  QFile drawing(input);
  if (!drawing.open(QIODevice::ReadOnly)) return drawing.errorString();
  try {
    const QByteArray outlines = halvane::BytesOf(halvane::OutlinesOf(drawing.readAll()));
    QFile file(output);
    QDir().mkpath(QFileInfo(output).path());
    if (file.open(QIODevice::WriteOnly) && file.write(outlines) == outlines.size() && file.flush())
      return {};
    return file.errorString();
  } catch (const std::exception& problem) {
    return problem.what();
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  if (argc < 4) {
    std::cerr << "usage: compile_postures ASSETS FOLDER NAME...\n";
    return 2;
  }
  const QString assets = QFile::decodeName(arguments[1]);
  const QString folder = QFile::decodeName(arguments[2]);
  for (const char* name : arguments.subspan(3)) {
    const QString input = assets + "/" + name + ".svg";
    const QString failure = Compile(input, folder + "/" + name + ".outlines");
    if (failure.isNull()) continue;
    std::cerr << "compile_postures: " << input.toStdString() << ": " << failure.toStdString()
              << '\n';
    return 1;
  }
  return 0;
}
