#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace halvane {

class HelpPages;

/// A page that has every word of a search.
struct HelpHit {
  QUrl page;
  QString title;
  /// How often the words stand there, all together.
  qsizetype places = 0;
};

/// The text of all pages of a help file, read when it is made. `pages` are not needed afterwards.
class HelpIndex {
 public:
  explicit HelpIndex(const HelpPages& pages);

  /// The pages that have all of the words, in the order of the contents; parts of words count, and
  /// capitals are small letters. None for no words.
  [[nodiscard]] std::vector<HelpHit> Find(const QStringList& words) const;

  /// What is looked for when this is typed.
  [[nodiscard]] static QStringList WordsOf(const QString& typed);

 private:
  struct Page {
    QUrl url;
    QString title;
    QString text;
  };
  std::vector<Page> pages_;
};

}  // namespace halvane
