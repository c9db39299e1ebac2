#include "app/tool_forms.h"

#include "shell/tool_form.h"
#include "tools/ctd/frm_ctd.h"
#include "tools/hal/frm_hal.h"
#include "tools/ocra/frm_ocra.h"
#include "tools/reba/frm_reba.h"
#include "tools/rula/frm_rula.h"
#include "tools/strain_index/frm_si.h"

namespace halvane {

std::unique_ptr<ToolForm> MakeToolForm(Tool tool, QWidget* parent) {
  switch (tool) {
    case Tool::Ocra: return std::make_unique<FrmOCRA>(parent);
    case Tool::Ctd: return std::make_unique<FrmCTD>(parent);
    case Tool::StrainIndex: return std::make_unique<FrmSI>(parent);
    case Tool::Reba: return std::make_unique<FrmREBA>(parent);
    case Tool::Rula: return std::make_unique<FrmRULA>(parent);
    case Tool::Hal: return std::make_unique<FrmHAL>(parent);
  }
  return nullptr;
}

}  // namespace halvane
