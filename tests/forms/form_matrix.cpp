// Looks at every page of every window for what is cut, hidden, covered or too faint, on one screen:
// form_matrix --screen 1280x720 --scale 150 [--font POINTS]... [--palette NAME]... [--help FILE],
// with all fonts and palettes where none is named. A finding is a line; the status is 1 with any.
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QTemporaryDir>
#include <iostream>
#include <set>

#include "shell/halvane_application.h"
#include "tests/forms/every_page.h"
#include "tests/forms/outline_checks.h"
#include "tests/forms/place_checks.h"
#include "tests/forms/text_checks.h"
#include "tests/support/palettes.h"
#include "widgets/readable_style.h"

namespace {

using halvane::Append;
using halvane::Finding;
using halvane::Findings;

constexpr std::array kFonts{8, 10, 12, 14, 20};

struct Options {
  QString screen = "1280x720";
  QString scale = "100";
  QStringList fonts;
  QStringList palettes;
  QString help = HALVANE_SOURCE_DIR "/tests/help/data/little.chm";
};

[[noreturn]] void Refuse() {
  std::cerr << "usage: form_matrix [--screen WIDTHxHEIGHT] [--scale PERCENT] [--font POINTS]...\n"
               "                   [--palette light|dark|white|black]... [--help FILE.chm]\n";
  std::exit(2);
}

/// Read before there is an application, which takes screen and scale from its start on.
Options ReadOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; i += 2) {
    const QString name = argv[i];
    if (i + 1 == argc) Refuse();
    const QString value = QString::fromLocal8Bit(argv[i + 1]);
    if (name == "--screen") {
      options.screen = value;
    } else if (name == "--scale") {
      options.scale = value;
    } else if (name == "--font") {
      options.fonts.append(value);
    } else if (name == "--palette") {
      options.palettes.append(value);
    } else if (name == "--help") {
      options.help = value;
    } else {
      Refuse();
    }
  }
  return options;
}

/// A screen of that many pixels, the user's folders and a look that do not depend on who runs this.
void SetUpSurroundings(const Options& options, const QDir& home) {
  const QStringList size = options.screen.split('x');
  const int percent = options.scale.toInt();
  if (size.size() != 2 || size[0].toInt() <= 0 || size[1].toInt() <= 0 || percent <= 0) Refuse();
  for (const char* name :
       {"QT_FONT_DPI", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QT_ENABLE_HIGHDPI_SCALING"}) {
    qunsetenv(name);
  }
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                           "XDG_RUNTIME_DIR", "XDG_STATE_HOME"}) {
    qputenv(name, home.path().toLocal8Bit());
  }
  QFile screens(home.filePath("screens.json"));
  const QString text =
      QString(R"({"windowFrameMargins": false, "screens": [{"name": "screen", "x": 0, "y": 0,)"
              R"( "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
          .arg(size[0], size[1]);
  if (!screens.open(QFile::WriteOnly) || screens.write(text.toUtf8()) < 0) Refuse();
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0));
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + screens.fileName()).toLocal8Bit());
}

/// The lines that were printed already: a place that is wrong in all sizes of a window is told
/// once.
class Report {
 public:
  void SetCombination(const QString& combination) {
    combination_ = combination;
    told_.clear();
  }

  void Add(const QWidget& window, const QString& page, const Findings& findings) {
    for (const Finding& finding : findings) {
      const QString what = window.objectName() + "; " + finding.control + "; " + finding.what;
      if (!told_.insert(what).second) continue;
      ++count_;
      std::cout << QString("%1; %2; %3; %4; %5\n")
                       .arg(combination_, halvane::NameOfControl(window), page, finding.control,
                            finding.what)
                       .toStdString();
    }
  }

  [[nodiscard]] int count() const { return count_; }

 private:
  QString combination_;
  std::set<QString> told_;
  int count_ = 0;
};

/// What a window is looked at for beside its places and texts.
struct Extent {
  bool pictures;
  bool outlines;
};

Findings FindingsOn(QWidget& window, Extent extent) {
  Findings findings =
      halvane::CheckWindow(window, QGuiApplication::primaryScreen()->availableGeometry());
  Append(findings, halvane::CheckPlaces(window));
  Append(findings, halvane::CheckTexts(window));
  if (extent.pictures) Append(findings, halvane::CheckPictures(window));
  if (extent.outlines) Append(findings, halvane::CheckOutlines(window));
  return findings;
}

void SetFontSize(int points) {
  QFont font = QApplication::font();
  font.setPointSize(points);
  QApplication::setFont(font);
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ReadOptions(argc, argv);
  const QTemporaryDir home;
  SetUpSurroundings(options, QDir(home.path()));
  int count = 1;
  const halvane::HalvaneApplication application(count, argv);
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);

  Report report;
  int combinations = 0;
  int pages = 0;
  for (const halvane::NamedPalette& palette : halvane::kPalettes) {
    if (!options.palettes.isEmpty() && !options.palettes.contains(palette.name)) continue;
    const QPalette colors = palette.make();
    halvane::UsePalette(colors);
    const bool strong = halvane::HasHighContrast(colors);
    bool first = true;
    for (const int font : kFonts) {
      if (!options.fonts.isEmpty() && !options.fonts.contains(QString::number(font))) continue;
      SetFontSize(font);
      report.SetCombination(QString("%1 at %2 %, %3 pt, %4")
                                .arg(options.screen, options.scale)
                                .arg(font)
                                .arg(palette.name));
      // A font changes nothing in a picture.
      const Extent extent{.pictures = first, .outlines = strong};
      first = false;
      halvane::OnEveryPage(HALVANE_SOURCE_DIR "/docs/samples/packing-line.qjt", options.help,
                           [&](QWidget& window, const QString& page) {
                             ++pages;
                             report.Add(window, page, FindingsOn(window, extent));
                           });
      ++combinations;
    }
  }
  std::cerr << combinations << " combinations, " << pages << " pages, " << report.count()
            << " findings\n";
  if (combinations == 0) Refuse();
  return report.count() == 0 ? 0 : 1;
}
