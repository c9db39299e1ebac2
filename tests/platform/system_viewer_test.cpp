#include "platform/system_viewer.h"

#include <gtest/gtest.h>

#include "tests/support/form_support.h"

namespace halvane {
namespace {

struct ViewerRow {
  const char* label;
  QStringList desktops;
  QStringList installed;
  ProgramCall viewer;
};

TEST(SystemViewer, IsTheDesktopsOwnElseOneOfNoDesktop) {
  const QStringList all{"hardinfo",          "hardinfo2",   "gnome-control-center",
                        "cinnamon-settings", "kinfocenter", "mate-system-monitor"};
  const std::vector<ViewerRow> rows{
      {"KDE", {"KDE"}, all, {"kinfocenter", {}}},
      {"GNOME", {"GNOME"}, all, {"gnome-control-center", {"info-overview"}}},
      {"a desktop on the base of GNOME",
       {"other", "GNOME"},
       all,
       {"gnome-control-center", {"info-overview"}}},
      {"Cinnamon", {"X-Cinnamon"}, all, {"cinnamon-settings", {"info"}}},
      {"MATE", {"MATE"}, all, {"mate-system-monitor", {"--show-system-tab"}}},
      {"a desktop without its own", {"XFCE"}, all, {"hardinfo2", {}}},
      {"no desktop", {""}, all, {"hardinfo2", {}}},
      {"older program", {"XFCE"}, {"kinfocenter", "hardinfo"}, {"hardinfo", {}}},
      {"another desktop's that works everywhere", {"XFCE"}, {"kinfocenter"}, {"kinfocenter", {}}},
      {"another desktop's that does not", {"XFCE"}, {"gnome-control-center"}, {}},
      {"own not installed", {"GNOME"}, {"hardinfo"}, {"hardinfo", {}}},
      {"nothing installed", {"KDE"}, {}, {}},
  };
  for (const ViewerRow& row : rows) {
    const auto installed = [&](const QString& program) { return row.installed.contains(program); };
    const ProgramCall found = FindSystemViewer(row.desktops, installed);
    EXPECT_EQ(found.program, row.viewer.program) << row.label;
    EXPECT_EQ(found.arguments, row.viewer.arguments) << row.label;
  }
}

}  // namespace
}  // namespace halvane
