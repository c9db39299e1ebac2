#include "help/help_window.h"

#include <QAction>
#include <QSplitter>
#include <QStatusBar>
#include <QTextDocumentFragment>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/silently.h"
#include "help/help_browser.h"
#include "help/help_find_bar.h"
#include "help/help_icons.h"
#include "help/help_pages.h"
#include "help/help_search.h"
#include "help/help_tree.h"
#include "platform/platform.h"
#include "widgets/window_place.h"

namespace halvane {
namespace {

constexpr auto kTitle = "Halvane Tools Help";
constexpr QSize kDefaultSize{1120, 700};
constexpr int kTreeWidth = 280;
/// A narrower page is hard to read; the contents give way to it.
constexpr int kLeastColumns = 40;
constexpr int kPlainZoom = 100;

/// The file's own title, told apart from those of the program's other windows.
QString TitleFor(const HelpPages& pages) {
  const QString title = pages.title();
  if (title.isEmpty()) return kTitle;
  return title.contains("help", Qt::CaseInsensitive) ? title : title + " - Help";
}

}  // namespace

HelpWindow::HelpWindow(LastPlace& lastPlace) : pages_(nullptr) {
  setObjectName("HelpWindow");
  setWindowTitle(kTitle);
  setAttribute(Qt::WA_DeleteOnClose);
  new WindowPlace(
      *this, kDefaultSize, [this] { return minimumSizeHint(); }, lastPlace);

  auto* splitter = new QSplitter(this);
  tree_ = new HelpTree(splitter);
  search_ = new HelpSearch(tree_, splitter);
  auto* right = new QWidget(splitter);
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  page_ = new HelpBrowser(right);
  findBar_ = new HelpFindBar(*page_, right);
  column->addWidget(page_, 1);
  column->addWidget(findBar_);
  splitter->addWidget(search_);
  splitter->addWidget(right);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kTreeWidth, kDefaultSize.width() - kTreeWidth});
  setCentralWidget(splitter);
  MakeCommands();
  statusBar()->setSizeGripEnabled(true);

  connect(tree_, &HelpTree::topicChosen, page_, &HelpBrowser::ShowPage);
  connect(search_, &HelpSearch::wordsChanged, page_, &HelpBrowser::MarkWords);
  connect(search_, &HelpSearch::pageChosen, this, [this](const QUrl& page) {
    page_->ShowPage(page);
    page_->ShowFirstMark();
  });
  connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::PageShown);
  connect(page_, &QTextBrowser::highlighted, this, &HelpWindow::ShowLink);
  connect(page_, &HelpBrowser::notFollowed, this, &HelpWindow::TellNotFollowed);
  connect(page_, &HelpBrowser::zoomChanged, this, &HelpWindow::ShowZoom);
}

HelpWindow::~HelpWindow() {
  // The panes go after the pages that they show.
  page_->SetPages(nullptr);
  search_->SetPages(nullptr);
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  const int columns = kLeastColumns * page_->fontMetrics().averageCharWidth();
  page_->setMinimumWidth(std::min(columns, (width() + 1) / 2));
}

template <typename Handler>
QAction* HelpWindow::AddCommand(const char* name, const QString& caption, const QKeySequence& keys,
                                Handler handler) {
  auto* command = new QAction(caption, this);
  command->setObjectName(name);
  command->setShortcut(keys);
  command->setToolTip(caption + " (" + keys.toString(QKeySequence::NativeText) + ")");
  connect(command, &QAction::triggered, this, handler);
  addAction(command);
  return command;
}

void HelpWindow::AddToBar(QToolBar& bar, QAction* command, HelpIcon icon) {
  command->setIcon(MakeHelpIcon(icon));
  bar.addAction(command);
  auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(command));
  button->setObjectName(command->objectName() + "Button");
  button->setAccessibleName(command->text());
  button->setFocusPolicy(Qt::TabFocus);
}

void HelpWindow::MakeCommands() {
  QToolBar& bar = *addToolBar(tr("Help"));
  bar.setObjectName("HelpToolBar");
  bar.setMovable(false);
  bar.setContextMenuPolicy(Qt::PreventContextMenu);
  bar.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);

  QAction* back =
      AddCommand("HelpBack", tr("Back"), Qt::ALT | Qt::Key_Left, [this] { page_->backward(); });
  QAction* forward = AddCommand("HelpForward", tr("Forward"), Qt::ALT | Qt::Key_Right,
                                [this] { page_->forward(); });
  for (QAction* command : {back, forward}) command->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  AddToBar(bar, back, HelpIcon::Back);
  AddToBar(bar, forward, HelpIcon::Forward);
  AddToBar(bar, AddCommand("HelpHome", tr("Home"), Qt::ALT | Qt::Key_Home, [this] { ShowHome(); }),
           HelpIcon::Home);
  bar.addSeparator();
  AddToBar(bar,
           AddCommand("HelpFind", tr("Find"), Qt::CTRL | Qt::Key_F, [this] { findBar_->Open(); }),
           HelpIcon::Find);
  QAction* copy =
      AddCommand("HelpCopy", tr("Copy"), Qt::CTRL | Qt::Key_C, [this] { CopySelection(); });
  copy->setEnabled(false);
  connect(page_, &QTextEdit::copyAvailable, copy, &QAction::setEnabled);
  AddToBar(bar, copy, HelpIcon::Copy);
  AddToBar(bar, AddCommand("HelpPrint", tr("Print"), Qt::CTRL | Qt::Key_P, [this] { PrintPage(); }),
           HelpIcon::Print);
  bar.addSeparator();
  QAction* larger =
      AddCommand("HelpLarger", tr("Larger"), Qt::CTRL | Qt::Key_Plus, [this] { page_->ZoomBy(1); });
  // The plus key needs no Shift on every keyboard.
  larger->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
  AddToBar(bar, larger, HelpIcon::ZoomIn);
  AddToBar(bar,
           AddCommand("HelpSmaller", tr("Smaller"), Qt::CTRL | Qt::Key_Minus,
                      [this] { page_->ZoomBy(-1); }),
           HelpIcon::ZoomOut);

  AddCommand("HelpPlainSize", tr("Plain size"), Qt::CTRL | Qt::Key_0,
             [this] { page_->SetZoom(kPlainZoom); });
  AddCommand("HelpFindNext", tr("Find next"), Qt::Key_F3, [this] { findBar_->FindNext(); });
  AddCommand("HelpFindPrevious", tr("Find previous"), Qt::SHIFT | Qt::Key_F3,
             [this] { findBar_->FindPrevious(); });
  AddCommand("HelpSearchPages", tr("Search all pages"), Qt::CTRL | Qt::SHIFT | Qt::Key_F,
             [this] { search_->Open(); });
  AddCommand("HelpSwitchPane", tr("Contents or page"), Qt::Key_F6, [this] { SwitchPane(); });
  AddCommand("HelpClose", tr("Close"), Qt::CTRL | Qt::Key_W, [this] { close(); });
}

bool HelpWindow::Open(const QString& file) {
  if (pages_ && pages_->IsCurrent(file)) return false;
  auto pages = std::make_unique<HelpPages>(file);
  page_->SetPages(pages.get());
  pages_ = std::move(pages);
  tree_->SetPages(*pages_);
  search_->SetPages(pages_.get());
  search_->setVisible(!pages_->contents().empty());
  setWindowTitle(TitleFor(*pages_));
  return true;
}

void HelpWindow::Raise() {
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::ShowTopic(const QString& file, const QString& topic) {
  Open(file);
  page_->ShowPage(pages_->UrlOf(topic));
  Raise();
  page_->setFocus();
}

void HelpWindow::ShowContents(const QString& file) {
  if (Open(file)) page_->ShowPage(pages_->Home());
  search_->ShowContents();
  Raise();
  (search_->isVisible() ? &search_->List() : page_)->setFocus();
}

void HelpWindow::ShowHome() {
  if (pages_) page_->ShowPage(pages_->Home());
}

void HelpWindow::CopySelection() {
  const QString selected = page_->textCursor().selection().toPlainText();
  if (selected.isEmpty()) return;
  ThePlatform().ClearClipboard();
  ThePlatform().SetClipboardText(selected);
}

void HelpWindow::PrintPage() {
  Silently([this] {
    if (!ThePlatform().ChoosePrinter(this)) return;
    ThePlatform().Print(*page_->PageToPrint());
  });
}

void HelpWindow::SwitchPane() {
  (page_->hasFocus() && search_->isVisible() ? &search_->List() : page_)->setFocus();
}

void HelpWindow::PageShown(const QUrl& url) {
  statusBar()->clearMessage();
  tree_->Follow(url);
}

void HelpWindow::ShowLink(const QUrl& link) {
  if (link.isEmpty()) {
    statusBar()->clearMessage();
  } else if (const QUrl inside = pages_->Inside(link); !inside.isEmpty()) {
    statusBar()->showMessage(inside.toString(QUrl::RemoveScheme | QUrl::FullyDecoded).mid(1));
  } else {
    statusBar()->showMessage(tr("Leads outside the help: %1").arg(link.toDisplayString()));
  }
}

void HelpWindow::TellNotFollowed(const QString& link) {
  statusBar()->showMessage(tr("Not followed, since it leads outside the help: %1").arg(link));
}

void HelpWindow::ShowZoom() {
  constexpr int kMilliseconds = 3000;
  statusBar()->showMessage(tr("Size: %1 %").arg(page_->zoom()), kMilliseconds);
}

}  // namespace halvane
