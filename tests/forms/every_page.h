#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace halvane {

/// What is done with each page of each window: the window, and which page and size of it is on
/// view.
using Look = std::function<void(QWidget& window, const QString& page)>;

/// Opens every window of the program one after the other on a job file: main window, menus, about
/// box, messages, help and tools, with all their tabs and what a tab shows in turn, as they open,
/// as small and as large as they may be. `helpFile` is what the help shows.
void OnEveryPage(const QString& jobFile, const QString& helpFile, const Look& look);

}  // namespace halvane
