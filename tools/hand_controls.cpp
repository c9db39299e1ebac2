#include "tools/hand_controls.h"

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {

void HandControls::ChooseHand(int index) {
  CheckedSubscript(index, kHandOptions);
  if (hand_ == index) return;
  hand_ = index;
  Module1.JobDirty = kTrue;
  Module1.Hand = static_cast<Integer>(index);
}

}  // namespace halvane
