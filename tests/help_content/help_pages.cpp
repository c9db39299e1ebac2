#include "help_pages.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace halvane {
namespace {

std::string Text(const QString& text) { return text.simplified().toStdString(); }

class PageReader {
 public:
  explicit PageReader(HelpPage& page)
      : page_(page), reader_(QByteArray::fromStdString(page.bytes)) {}

  void Read() {
    while (!reader_.atEnd()) {
      switch (reader_.readNext()) {
        case QXmlStreamReader::StartElement: Start(); break;
        case QXmlStreamReader::EndElement: End(); break;
        case QXmlStreamReader::Characters: Append(reader_.text().toString()); break;
        default: break;
      }
    }
    if (reader_.hasError()) {
      page_.faults.push_back(reader_.errorString().toStdString() + " in line " +
                             std::to_string(reader_.lineNumber()));
    }
  }

 private:
  struct Element {
    QString name;
    std::string id;
    QString text;
  };

  std::string Attribute(const char* name) const {
    return reader_.attributes().value(QLatin1String(name)).toString().toStdString();
  }

  void Start() {
    const QString name = reader_.name().toString();
    open_.push_back({name, Attribute("id"), {}});
    if (name == "table") {
      table_ = Attribute("id");
      if (table_.empty()) page_.faults.push_back("a table has no id");
      if (!page_.tables.try_emplace(table_).second)
        page_.faults.push_back("second table " + table_);
    }
    if (name == "tr") page_.tables[table_].emplace_back();
    if (name == "a" && !Attribute("href").empty()) page_.links.push_back(Attribute("href"));
    if (name == "a" && !Attribute("name").empty()) page_.anchors.push_back(Attribute("name"));
    if (name == "img") page_.files.push_back(Attribute("src"));
    if (name == "link") page_.files.push_back(Attribute("href"));
  }

  void Append(const QString& text) {
    for (Element& element : open_) element.text += text;
  }

  void End() {
    const Element element = open_.back();
    open_.pop_back();
    const std::string text = Text(element.text);
    if (element.name == "title") page_.title = text;
    if (element.name == "h1") page_.headings.push_back(text);
    if (element.name == "b") page_.captions.push_back(text);
    if (element.name == "i") page_.quotations.push_back(text);
    if (element.name == "span" && !page_.marked.try_emplace(element.id, text).second) {
      page_.faults.push_back("second span " + element.id);
    }
    if (element.name == "td" || element.name == "th") page_.tables[table_].back().push_back(text);
  }

  HelpPage& page_;
  QXmlStreamReader reader_;
  std::vector<Element> open_;
  std::string table_;
};

std::vector<HelpPage> ReadPages() {
  std::vector<HelpPage> pages;
  for (const auto& entry : std::filesystem::directory_iterator(HelpFolder())) {
    if (entry.path().extension() != ".htm") continue;
    HelpPage& page = pages.emplace_back();
    page.file = entry.path().filename().string();
    page.bytes = BytesOfFile(entry.path().string());
    PageReader(page).Read();
  }
  std::ranges::sort(pages, {}, &HelpPage::file);
  return pages;
}

}  // namespace

std::string HelpFolder() { return std::string(HALVANE_SOURCE_DIR) + "/help/content"; }

std::string BytesOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

const std::vector<HelpPage>& HelpPages() {
  static const std::vector<HelpPage> pages = ReadPages();
  return pages;
}

const HelpPage& HelpPageOf(const std::string& file) {
  const auto found = std::ranges::find(HelpPages(), file, &HelpPage::file);
  if (found != HelpPages().end()) return *found;
  ADD_FAILURE() << "there is no page " << file;
  static const HelpPage none;
  return none;
}

const TableRows& HelpTable(const std::string& file, const std::string& id) {
  const HelpPage& page = HelpPageOf(file);
  const auto found = page.tables.find(id);
  if (found != page.tables.end()) return found->second;
  ADD_FAILURE() << file << " has no table " << id;
  static const TableRows none;
  return none;
}

}  // namespace halvane
