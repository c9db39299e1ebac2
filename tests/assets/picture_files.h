#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace halvane {

/// A path of the source tree.
QString SourceFile(const QString& path);

/// The whole content of a file; a failure of the test when it cannot be read.
QByteArray ContentOf(const QString& path);

/// The files below `folder` whose names end on `suffix`, as "ctd/back_0.svg", sorted.
QStringList FilesBelow(const QString& folder, const QString& suffix);

/// The asset names, without suffix, of the pictures on ribbons.
QStringList PosturePictures();

/// Those, and signs that stand on buttons as they do.
QStringList CompiledPictures();

/// The content of the document's title element.
QString TitleOf(const QString& asset);

}  // namespace halvane
