#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.h"

namespace halvane {

/// Ends a paragraph of a report.
inline constexpr std::string_view kNewLine = "\r\n";
/// Moves to the next tab stop of a paragraph.
inline constexpr std::string_view kTab = "\t";
/// The one character of the text that a picture is: U+FFFC.
inline constexpr std::string_view kPictureCharacter = "\xEF\xBF\xBC";

enum class Alignment { Left, Center, Right };

/// How characters look. A cleared pane writes plain, in size 10.
struct CharacterFormat {
  int size = 10;  ///< points
  bool bold = false;
  bool underline = false;

  bool operator==(const CharacterFormat&) const = default;
};

/// How a paragraph stands.
struct ParagraphFormat {
  Alignment alignment = Alignment::Left;
  std::vector<int> tabStops;  ///< positions in twips (1/1440 inch) from the left edge

  bool operator==(const ParagraphFormat&) const = default;
};

/// Characters of one look, or one picture.
struct Run {
  std::string text;  ///< UTF-8 without line ends; a picture's is U+FFFC
  CharacterFormat format;
  std::string picture;     ///< asset name of a picture, "strain_index/risk_chart"; else empty
  std::string sense = {};  ///< what a picture shows, for who does not see it

  bool operator==(const Run&) const = default;
};

struct Paragraph {
  ParagraphFormat format;
  std::vector<Run> runs;
  std::string lineEnd;  ///< as written, CR LF mostly; empty for the last paragraph

  bool operator==(const Paragraph&) const = default;
};

/// The report pane without a screen. A report routine sets the format in force and appends; what it
/// has written is then shown, printed or turned into another form of text.
///
/// A paragraph takes the alignment and tab stops in force when a line end makes it, and again
/// whenever other text is appended to it. So stops that are set after a header line was written
/// leave that line alone, and stops set between the columns of a line all count for it.
class RichText {
 public:
  /// What becomes of what is appended. A pane that drops it is for who runs a report to see whether
  /// it fails.
  enum class Appended { Kept, Dropped };

  explicit RichText(Appended appended = Appended::Kept);

  /// Empties the pane and puts the format in force back to plain, left, size 10, no tab stops.
  void Clear();

  /// Closes the pane to typing, or opens it.
  void SetLocked(bool locked) { locked_ = locked; }
  [[nodiscard]] bool locked() const { return locked_; }

  void SetFont(CharacterFormat format) { font_ = format; }
  void SetAlignment(Alignment alignment) { inForce_.alignment = alignment; }
  /// Sets how many tab stops are in force. Positions already set stay; a new one is 0.
  void SetTabCount(int count) { inForce_.tabStops.resize(static_cast<std::size_t>(count)); }
  /// Sets the position of a tab stop, counted from 0, in twips. Throws `SubscriptOutOfRange` for a
  /// stop beyond the count.
  void SetTab(int stop, int twips);

  /// Appends text at the end; CR LF, CR and LF each end a paragraph.
  void Append(std::string_view text);
  /// Appends each piece in turn.
  template <typename... Text>
  void Append(std::string_view first, const Text&... more) {
    Append(first);
    (Append(std::string_view(more)), ...);
  }
  /// Appends a number in a fixed-point pattern. A pane that drops it saves the work of that, which
  /// cannot fail.
  void AppendNumber(double number, Pattern pattern) {
    if (!drops_) Append(Format(number, pattern));
  }
  /// Appends a picture as one character; `sense` is what it shows in words.
  void AppendPicture(std::string_view assetName, std::string_view sense = {});

  /// How many characters the text has: each of CR and LF is one, a picture is one.
  [[nodiscard]] std::size_t length() const;
  /// Formats what stands in `length` characters from `start` on, counted as `length()` counts them:
  /// the look of each character, and the alignment of each paragraph of which one is covered, line
  /// end included. What lies beyond the end of the text is left out. The format in force stays.
  void FormatSelection(std::size_t start, std::size_t length, CharacterFormat format,
                       Alignment alignment);

  [[nodiscard]] const std::vector<Paragraph>& paragraphs() const { return paragraphs_; }
  /// The exact text, line ends and tabs as written.
  [[nodiscard]] std::string text() const;
  /// Asset names in the order in which the pictures stand.
  [[nodiscard]] std::vector<std::string> pictures() const;

 private:
  static void AppendText(std::vector<Run>& runs, std::string_view text, CharacterFormat format);
  void AppendToLine(std::string_view text);
  void EndParagraph(std::string_view lineEnd);

  std::vector<Paragraph> paragraphs_;
  CharacterFormat font_;
  ParagraphFormat inForce_;
  bool locked_ = false;
  bool drops_;
};

}  // namespace halvane
