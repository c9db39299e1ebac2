#pragma once

#include <QPalette>
#include <QTextDocument>
#include <QUrl>

namespace halvane {

class HelpPages;

/// How a page is to look.
struct HelpLook {
  QPalette palette;
  /// Size of everything, 1 as written.
  double zoom = 1;
};

/// A page of the help. Whatever it includes comes from the help file and from nowhere else.
class HelpDocument : public QTextDocument {
  Q_OBJECT
 public:
  explicit HelpDocument(QObject* parent = nullptr);

  /// Where pages come from; null for none.
  void SetPages(const HelpPages* pages) { pages_ = pages; }
  [[nodiscard]] const HelpPages* pages() const { return pages_; }

  /// Sets what has to be known before a page is read: its address, the colours of links and tables,
  /// the size of text.
  void Prepare(const QUrl& url, const QFont& font, const HelpLook& look);
  /// Brings the page's own colours and sizes into the look: on a dark ground light becomes dark and
  /// dark light, so that text stays as readable as it was written.
  void Adapt(const HelpLook& look);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  const HelpPages* pages_ = nullptr;
};

}  // namespace halvane
