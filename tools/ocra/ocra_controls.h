#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/integer.h"

namespace halvane {

/// The job field that the scores of a list go into.
enum class OcraScoreField { Grip, ElbowRotation, ElbowFlexion, WristDeviation, WristFlexion };

/// The three frames of exposure lists, in the order of the screen.
enum class OcraRegion { Elbow, Wrist, Grip };

inline constexpr int kOcraListCount = 14;
/// The answer that scores nothing.
inline constexpr int kOcraNotApplicable = 3;
inline constexpr int kOcraNoPair = -1;

/// The four answers of every list; an answer's number is its place here.
inline constexpr std::array<std::string_view, 4> kOcraAnswers{
    "1/3 of cycle/task time", "2/3 of cycle/task time", "3/3 of cycle/task time", "Not Applicable"};

/// One exposure list. At most one of a pair is answered.
struct OcraList {
  OcraRegion region;
  std::string_view caption;
  std::array<Integer, 4> scores;  ///< by answer
  int pair;                       ///< index of the other list of the pair
  OcraScoreField field;
};
/// A list stands at its index, which is that of `Combo1` and of `OcraComboChoice`.
extern const std::array<OcraList, kOcraListCount> kOcraLists;

/// One tick box; its field is 4 when ticked and 0 when not.
struct OcraTick {
  OcraRegion region;
  std::string_view caption;
};
inline constexpr Integer kOcraTicked = 4;
inline constexpr int kOcraTickCount = 5;
/// A box stands at its index of `SSCheck1`.
extern const std::array<OcraTick, kOcraTickCount> kOcraTicks;

/// A frame of exposure lists.
struct OcraFrame {
  std::string_view objectName;
  std::string_view caption;
  std::span<const int> lists;  ///< indexes of `Combo1`, in the order of the screen
  std::span<const int> ticks;  ///< indexes of `SSCheck1`
};
/// In the order of the screen, which is that of `OcraRegion`.
extern const std::array<OcraFrame, 3> kOcraFrames;

/// A mark of the force scale.
struct OcraForceMark {
  std::string_view tick;  ///< the number under the mark
  std::string_view word;  ///< the word under the number; empty where there is none
};
/// From 0 to 10, the value of the slider; the rating is half of it.
extern const std::array<OcraForceMark, 11> kOcraForceMarks;

/// The controls of the OCRA form without a screen: which two-state controls are set, and what their
/// events do to the job. A new object is the form as designed: right side, no box ticked.
class OcraControls {
 public:
  /// Puts every control back to its design state; runs no handler.
  void Reset() { *this = OcraControls(); }

  /// What the form's load does to the job, task list included. Throws `SubscriptOutOfRange` for a
  /// hand or an answer that names no control.
  void Load();

  /// The user, or the load, chooses a hand. The chosen one stays as it is.
  void ChooseHand(int index);
  /// The user, or the load, sets a box. One that is so already stays as it is.
  void SetTick(int index, bool ticked);
  /// The user picks an answer of a list. Its partner becomes "Not Applicable" when it is 0, 1 or 2.
  void PickAnswer(int list, int answer);

  [[nodiscard]] int hand() const { return hand_; }
  [[nodiscard]] bool IsTicked(int index) const;

 private:
  int hand_ = 0;
  std::array<bool, kOcraTickCount> ticked_{};
};

/// The force rating that a slider position from 0 to 10 stands for.
double OcraRatingAt(int sliderValue);
/// Where the force slider stands for a rating; the nearest end for one beyond the scale.
int OcraSliderAt(double rating);
/// Where the recovery slider stands; the nearest end for hours beyond 0 to 10.
int OcraRecoverySliderAt(double hours);

}  // namespace halvane
