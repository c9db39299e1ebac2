#include "tools/reba/frm_reba.h"

#include <array>

#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_report.h"
#include "tools/reba/reba_score.h"

namespace halvane {
namespace {

// Left arm and wrist, right neck, trunk and legs, as the score has its two halves.
constexpr auto kPlaces = std::to_array<FramePlace>({
    {PageColumn::Left, 0},
    {PageColumn::Left, 1},
    {PageColumn::Left, 2},
    {.column = PageColumn::Left, .row = 3, .optionsInARow = true},
    {PageColumn::Right, 0},
    {PageColumn::Right, 1},
    {PageColumn::Right, 2},
    {PageColumn::Right, 3},
    {PageColumn::Right, 3},
});
static_assert(kPlaces.size() == kRebaRegions.size(), "each frame has its place");

}  // namespace

FrmREBA::FrmREBA(QWidget* parent)
    : PostureForm({Tool::Reba, "frmREBA", "REBA Score", kRebaRegions, kPlaces, 3},
                  std::make_unique<RebaControls>(), parent) {}

void FrmREBA::writeReport(RichText& RichTextBox1) { RebaComputeAndReport(RichTextBox1); }

}  // namespace halvane
