#include "help/help_contents.h"

#include <utility>

#include "core/ascii.h"
#include "help/help_markup.h"

namespace halvane {
namespace {

using Entries = std::vector<HelpContentsEntry>;

/// The tree while it is read. The way to the list in hand leads over the last entry of each list,
/// since entries are only ever added at the end.
class Reading {
 public:
  void Take(const HelpTag& tag) {
    if (tag.name == "ul") {
      ++depth_;
    } else if (tag.name == "/ul") {
      if (depth_ > 0) --depth_;
    } else if (tag.name == "object") {
      inEntry_ = LowerCase(tag["type"]) == "text/sitemap";
      entry_ = HelpContentsEntry();
    } else if (tag.name == "param" && inEntry_) {
      TakeParam(LowerCase(tag["name"]), tag["value"]);
    } else if (tag.name == "/object" && std::exchange(inEntry_, false)) {
      Add();
    }
  }

  [[nodiscard]] bool isFull() const { return count_ >= help_limits::kContentsEntries; }
  Entries Result() { return std::move(top_); }

 private:
  void TakeParam(std::string_view name, std::string_view value) {
    // Of several titles and pages the first is the one to show.
    if (name == "name" && entry_.title.empty()) entry_.title = value;
    if (name == "local" && entry_.topic.empty()) entry_.topic = value;
  }

  void Add() {
    if (entry_.title.empty()) entry_.title = entry_.topic;
    if (entry_.title.empty()) return;
    Entries* list = &top_;
    // The outermost list is that of the page itself.
    for (std::size_t level = 1; level < depth_ && level < help_limits::kContentsDepth; ++level) {
      if (list->empty()) break;
      list = &list->back().children;
    }
    list->push_back(std::move(entry_));
    ++count_;
  }

  Entries top_;
  std::size_t depth_ = 0;
  std::size_t count_ = 0;
  bool inEntry_ = false;
  HelpContentsEntry entry_;
};

}  // namespace

std::vector<HelpContentsEntry> ReadHelpContents(std::string_view text) {
  Reading reading;
  HelpTag tag;
  while (!reading.isFull() && NextTag(text, tag)) reading.Take(tag);
  return reading.Result();
}

}  // namespace halvane
