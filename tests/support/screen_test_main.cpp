// Runs the tests of the desktop program without a screen, in a home folder and with a look that do
// not depend on who runs them.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "shell/halvane_application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir home;
  for (const char* name : {"QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "QT_ENABLE_HIGHDPI_SCALING"}) {
    qunsetenv(name);
  }
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                           "XDG_RUNTIME_DIR", "XDG_STATE_HOME"}) {
    qputenv(name, home.path().toLocal8Bit());
  }
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  halvane::HalvaneApplication application(argc, argv);
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
