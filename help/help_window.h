#pragma once

#include <QMainWindow>
#include <QUrl>
#include <memory>

class QAction;
class QToolBar;

namespace halvane {

class HelpBrowser;
class HelpFindBar;
class HelpPages;
class HelpSearch;
class HelpTree;
struct LastPlace;
enum class HelpIcon;

/// The window that shows a help file: contents at the left, the page at the right. A window of its
/// own beside those of the program.
class HelpWindow : public QMainWindow {
  Q_OBJECT
 public:
  /// `lastPlace` is where the help stood when it was closed; it has to outlive the window.
  explicit HelpWindow(LastPlace& lastPlace);
  ~HelpWindow() override;

  /// Shows a topic of a help file, in place of what was shown.
  void ShowTopic(const QString& file, const QString& topic);
  /// Shows the contents of a help file, and its first page where none of it is on view.
  void ShowContents(const QString& file);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeCommands();
  template <typename Handler>
  QAction* AddCommand(const char* name, const QString& caption, const QKeySequence& keys,
                      Handler handler);
  void AddToBar(QToolBar& bar, QAction* command, HelpIcon icon);
  /// True when the file was read anew.
  bool Open(const QString& file);
  void Raise();

  void ShowHome();
  void CopySelection();
  void PrintPage();
  void SwitchPane();
  void PageShown(const QUrl& url);
  void ShowLink(const QUrl& link);
  void TellNotFollowed(const QString& link);
  void ShowZoom();

  std::unique_ptr<HelpPages> pages_;
  HelpTree* tree_;
  HelpSearch* search_;
  HelpBrowser* page_;
  HelpFindBar* findBar_;
};

}  // namespace halvane
