#include "platform/system_viewer.h"

#include <array>

namespace halvane {
namespace {

/// Desktop that the viewer belongs to, or none; program; the page to open or the option for it.
struct ViewerRow {
  const char* desktop;
  const char* program;
  const char* page;
};

// The settings program of a desktop works on that desktop only; what works on every one is listed
// once more without it.
constexpr std::array kViewers{
    ViewerRow{"KDE", "kinfocenter", ""},
    ViewerRow{"GNOME", "gnome-control-center", "info-overview"},
    ViewerRow{"X-Cinnamon", "cinnamon-settings", "info"},
    ViewerRow{"MATE", "mate-system-monitor", "--show-system-tab"},
    ViewerRow{"", "hardinfo2", ""},
    ViewerRow{"", "hardinfo", ""},
    ViewerRow{"", "kinfocenter", ""},
    ViewerRow{"", "mate-system-monitor", "--show-system-tab"},
};

}  // namespace

ProgramCall FindSystemViewer(const QStringList& desktops,
                             const std::function<bool(const QString&)>& installed) {
  for (const ViewerRow& row : kViewers) {
    const QString desktop = row.desktop;
    if (!desktop.isEmpty() && !desktops.contains(desktop)) continue;
    if (!installed(row.program)) continue;
    const QString page = row.page;
    return {row.program, page.isEmpty() ? QStringList() : QStringList(page)};
  }
  return {};
}

}  // namespace halvane
