#pragma once

class QFontMetrics;
class QString;

namespace halvane {

/// The height that so many lines of text need, which is not always a multiple of what one does.
int HeightOfLines(int lines, const QFontMetrics& font);

/// The least width in which a text wraps to no more than `lines` lines.
int WidthForLines(const QString& text, int lines, const QFontMetrics& font);

}  // namespace halvane
