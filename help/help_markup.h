#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// A tag of a page: its name in lower case, "/ul" for an end tag, and its attributes with their
/// names in lower case and the entities of their values replaced.
struct HelpTag {
  std::string name;
  struct Attribute {
    std::string name;
    std::string value;
  };
  std::vector<Attribute> attributes;

  /// The value of an attribute, empty where the tag has none of that name.
  [[nodiscard]] std::string_view operator[](std::string_view attribute) const;
};

/// Takes the next tag from the front of `text`, which is UTF-8; text, comments and what is no tag
/// are passed over. False at the end.
bool NextTag(std::string_view& text, HelpTag& tag);

/// `text` with its entities replaced: the numbered ones and those of markup and of the letters of
/// Western Europe. Any other stays as it is written.
std::string WithoutEntities(std::string_view text);

}  // namespace halvane
