// Draws the help window into PNG files, for looking at it: help_pictures FOLDER FILE.chm
// [TOPIC]..., with QT_SCALE_FACTOR=2 for twice the size and HALVANE_DARK=1 for the dark palette.
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <iostream>

#include "help/help_find_bar.h"
#include "help/help_window.h"
#include "shell/halvane_application.h"
#include "tests/support/dark_palette.h"
#include "tests/support/picture_screen.h"
#include "widgets/window_place.h"

int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  if (argc < 3) {
    std::cerr << "usage: help_pictures FOLDER FILE.chm [TOPIC]...\n";
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  const QString file = QString::fromLocal8Bit(argv[2]);
  QDir().mkpath(folder);
  halvane::TakeDarkPaletteIfAsked();
  const halvane::PictureScreen screen;
  halvane::LastPlace place;
  halvane::HelpWindow window(place);
  window.setAttribute(Qt::WA_DeleteOnClose, false);
  int drawn = 0;
  const auto draw = [&] {
    QTest::qWait(50);
    if (window.grab().save(QString("%1/help-%2.png").arg(folder).arg(drawn++))) return true;
    std::cerr << "cannot write to " << folder.toStdString() << "\n";
    return false;
  };
  window.ShowContents(file);
  if (!draw()) return 1;
  for (int i = 3; i < argc; ++i) {
    window.ShowTopic(file, QString::fromLocal8Bit(argv[i]));
    if (!draw()) return 1;
  }
  window.findChild<halvane::HelpFindBar*>()->Open();
  QTest::keyClicks(QApplication::focusWidget(), "a");
  if (!draw()) return 1;
  auto* search = window.findChild<QLineEdit*>("HelpSearchText");
  search->setText("shoulder duration");
  search->setFocus();
  QTest::keyClick(search, Qt::Key_Down);
  return draw() ? 0 : 1;
}
