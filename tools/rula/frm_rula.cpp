#include "tools/rula/frm_rula.h"

#include <array>

#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_report.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

// Left arm and wrist, right neck, trunk and legs, as the score has its two halves.
constexpr auto kPlaces = std::to_array<FramePlace>({
    {PageColumn::Left, 0},
    {PageColumn::Left, 1},
    {PageColumn::Left, 2, 2},
    {PageColumn::Right, 0},
    {PageColumn::Right, 1},
    {PageColumn::Right, 2},
    {PageColumn::Right, 3},
    {PageColumn::Right, 3},
});
static_assert(kPlaces.size() == kRulaRegions.size(), "each frame has its place");

}  // namespace

FrmRULA::FrmRULA(QWidget* parent)
    : PostureForm({Tool::Rula, "frmRULA", "RULA Score", kRulaRegions, kPlaces, 2},
                  std::make_unique<RulaControls>(), parent) {}

void FrmRULA::writeReport(RichText& RichTextBox1) { RulaComputeAndReport(RichTextBox1); }

}  // namespace halvane
