#include "help/help_index.h"

#include <algorithm>

#include "help/help_document.h"
#include "help/help_pages.h"

namespace halvane {

HelpIndex::HelpIndex(const HelpPages& pages) {
  for (const HelpTopic& topic : pages.Topics()) {
    HelpDocument document;
    document.SetPages(&pages);
    document.setHtml(pages.Page(topic.url));
    pages_.push_back({topic.url, topic.title, document.toPlainText()});
  }
}

std::vector<HelpHit> HelpIndex::Find(const QStringList& words) const {
  std::vector<HelpHit> hits;
  if (words.isEmpty()) return hits;
  for (const Page& page : pages_) {
    HelpHit hit{page.url, page.title, 0};
    const bool hasAll = std::ranges::all_of(words, [&](const QString& word) {
      const qsizetype places = page.text.count(word, Qt::CaseInsensitive);
      hit.places += places;
      return places > 0;
    });
    if (hasAll) hits.push_back(hit);
  }
  return hits;
}

QStringList HelpIndex::WordsOf(const QString& typed) {
  QStringList words = typed.simplified().split(' ', Qt::SkipEmptyParts);
  words.removeDuplicates();
  return words;
}

}  // namespace halvane
