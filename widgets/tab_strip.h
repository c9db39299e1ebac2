#pragma once

#include <QTabWidget>

namespace halvane {

/// The tabs of a form. Tells of every click on a tab, also on the one that is showing, so that a
/// report can be written again where it stands. Ctrl+Tab and Ctrl+Shift+Tab go to the next and the
/// previous tab that is enabled, round the ends, from wherever in its window the focus is. The
/// mouse wheel does not change tabs. A page is spoken by the name of its tab. What changes its size
/// on a page is drawn, and not the whole page with it.
class TabStrip : public QTabWidget {
  Q_OBJECT
 public:
  TabStrip(const QString& name, QWidget* parent);

 signals:
  /// The user chose a tab, or the program did.
  void tabClicked(int tab);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void tabInserted(int tab) override;

 private:
  /// Shows the nearest enabled tab so many steps on.
  void Go(int step);

  /// What the tabs asked for when they were laid out.
  QSize barHint_;
};

}  // namespace halvane
