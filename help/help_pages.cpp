#include "help/help_pages.h"

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <array>

#include "help/help_file.h"
#include "help/help_markup.h"

namespace halvane {
namespace {

constexpr auto kScheme = "help";
constexpr auto kContentsPath = "/";

// The toolkit lays out a page whole, a table twice for each table around it. Beyond these bounds it
// would take minutes, or more stack than there is.
constexpr std::size_t kMostPageBytes = std::size_t{2} << 20U;
constexpr int kDeepestTables = 6;
constexpr int kDeepestOthers = 50;
constexpr qint64 kMostPixels = 40'000'000;

struct ImageKind {
  std::string_view mark;
  const char* format;
};
constexpr std::array kImageKinds{
    ImageKind{"\x89PNG", "png"},
    ImageKind{"GIF8", "gif"},
    ImageKind{"\xFF\xD8", "jpeg"},
    ImageKind{"BM", "bmp"},
};

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Ends no page, however it begins, in a box of its own.
QString AsPage(const QString& html) { return "<!-- -->" + html; }

QString ProblemPage(const QString& heading, const QString& text, bool offersContents) {
  QString page = QString("<h2>%1</h2><p>%2</p>").arg(heading.toHtmlEscaped(), text.toHtmlEscaped());
  if (offersContents) {
    page += QString("<p><a href=\"%1\">Show the contents</a></p>")
                .arg(HelpPages::ContentsPage().toString(QUrl::FullyEncoded));
  }
  return AsPage(page);
}

bool IsNested(std::string_view name) {
  return name == "ul" || name == "ol" || name == "div" || name == "blockquote" || name == "dl";
}

/// How deep elements of one kind stand in each other, as far as a page is read.
class Nesting {
 public:
  explicit Nesting(int deepest) : deepest_(deepest) {}
  /// False where it gets too deep.
  bool Enter() { return ++depth_ <= deepest_; }
  void Leave() {
    if (depth_ > 0) --depth_;
  }

 private:
  int deepest_;
  int depth_ = 0;
};

bool IsTooDeep(std::string_view html) {
  Nesting tables(kDeepestTables);
  Nesting others(kDeepestOthers);
  HelpTag tag;
  while (NextTag(html, tag)) {
    const bool ends = tag.name.starts_with('/');
    const std::string_view name = std::string_view(tag.name).substr(ends ? 1 : 0);
    if (name != "table" && !IsNested(name)) continue;
    Nesting& nesting = name == "table" ? tables : others;
    if (ends) {
      nesting.Leave();
    } else if (!nesting.Enter()) {
      return true;
    }
  }
  return false;
}

/// The character set that a page says it is written in, in lower case; empty where it says none.
QString NamedCharacterSet(const QByteArray& bytes) {
  constexpr qsizetype kHead = 1024;
  static const QRegularExpression charset("charset\\s*=\\s*[\"']?([\\w-]+)",
                                          QRegularExpression::CaseInsensitiveOption);
  return charset.match(QString::fromLatin1(bytes.left(kHead))).captured(1).toLower();
}

QString Decoded(const std::string& bytes) {
  const auto raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  if (const auto marked = QStringConverter::encodingForData(raw)) {
    return QStringDecoder(*marked).decode(raw);
  }
  const QString name = NamedCharacterSet(raw);
  const bool known = name.isEmpty() || name == "utf-8" || name == "windows-1252" ||
                     name == "iso-8859-1" || name == "us-ascii";
  if (!known) {
    QStringDecoder decoder(name.toLatin1().constData());
    if (decoder.isValid()) return decoder.decode(raw);
  }
  return Text(DecodeHelpText(bytes));
}

QImage NoPicture() {
  constexpr int kSide = 24;
  QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::gray, 2));
  painter.drawRect(2, 2, kSide - 4, kSide - 4);
  painter.drawLine(7, 7, kSide - 7, kSide - 7);
  painter.drawLine(kSide - 7, 7, 7, kSide - 7);
  return image;
}

QImage DecodedImage(const std::string& bytes) {
  for (const ImageKind& kind : kImageKinds) {
    if (!bytes.starts_with(kind.mark)) continue;
    QBuffer buffer;
    buffer.setData(bytes.data(), static_cast<int>(bytes.size()));
    buffer.open(QBuffer::ReadOnly);
    QImageReader reader(&buffer, kind.format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > kMostPixels) return {};
    return reader.read();
  }
  return {};
}

void AppendContents(const HelpPages& pages, const std::vector<HelpContentsEntry>& list,
                    QString& html) {
  if (list.empty()) return;
  html += "<ul>";
  for (const HelpContentsEntry& entry : list) {
    const QString title = Text(entry.title).toHtmlEscaped();
    const QString address =
        pages.UrlOf(Text(entry.topic)).toString(QUrl::FullyEncoded).toHtmlEscaped();
    html += entry.topic.empty() ? "<li>" + title
                                : QString("<li><a href=\"%1\">%2</a>").arg(address, title);
    AppendContents(pages, entry.children, html);
    html += "</li>";
  }
  html += "</ul>";
}

void CollectTopics(const HelpPages& pages, const std::vector<HelpContentsEntry>& list,
                   std::vector<HelpTopic>& topics) {
  for (const HelpContentsEntry& entry : list) {
    if (!entry.topic.empty()) {
      topics.push_back(
          {pages.UrlOf(Text(entry.topic)).adjusted(QUrl::RemoveFragment), Text(entry.title)});
    }
    CollectTopics(pages, entry.children, topics);
  }
}

/// Whether the name of an entry is that of a page.
bool IsPage(const QString& name) {
  return name.endsWith(".htm", Qt::CaseInsensitive) || name.endsWith(".html", Qt::CaseInsensitive);
}

}  // namespace

HelpPages::HelpPages(const QString& path) : path_(path) {
  const QFileInfo info(path);
  size_ = info.size();
  changed_ = info.lastModified().toMSecsSinceEpoch();
  QFile disk(path);
  if (!disk.open(QFile::ReadOnly)) {
    problem_ = disk.errorString() + ".";
    return;
  }
  if (disk.size() > static_cast<qint64>(help_limits::kFileBytes)) {
    problem_ = "The file is larger than this program can show.";
    return;
  }
  try {
    file_ = std::make_unique<HelpFile>(disk.readAll().toStdString());
  } catch (const HelpFileFailure& failure) {
    problem_ = failure.what();
  }
}

HelpPages::~HelpPages() = default;

bool HelpPages::IsCurrent(const QString& path) const {
  const QFileInfo info(path);
  return path == path_ && info.size() == size_ &&
         info.lastModified().toMSecsSinceEpoch() == changed_;
}

QString HelpPages::title() const { return file_ ? Text(file_->description().title) : QString(); }

const std::vector<HelpContentsEntry>& HelpPages::contents() const {
  static const std::vector<HelpContentsEntry> none;
  return file_ ? file_->contents() : none;
}

std::vector<HelpTopic> HelpPages::Topics() const {
  std::vector<HelpTopic> found;
  CollectTopics(*this, contents(), found);
  for (const std::string& entry : file_ ? file_->Names() : std::vector<std::string>()) {
    const QString name = Text(entry);
    if (IsPage(name)) found.push_back({UrlOf(name), name});
  }
  std::vector<HelpTopic> topics;
  QSet<QString> known;
  for (const HelpTopic& topic : found) {
    const QString path = topic.url.path(QUrl::FullyDecoded);
    // Names do not tell capitals from small letters.
    const bool isNew = file_->Has(path.mid(1).toStdString()) && !known.contains(path.toLower());
    if (!isNew) continue;
    known.insert(path.toLower());
    topics.push_back(topic);
  }
  return topics;
}

QUrl HelpPages::ContentsPage() {
  QUrl url;
  url.setScheme(kScheme);
  url.setPath(kContentsPath);
  return url;
}

QUrl HelpPages::Home() const {
  if (!file_ || !file_->Has(file_->description().defaultTopic)) return ContentsPage();
  return UrlOf(Text(file_->description().defaultTopic));
}

QUrl HelpPages::UrlOf(const QString& topic) const {
  QString path = topic;
  const qsizetype file = path.indexOf("::");
  if (file >= 0) path.remove(0, file + 2);
  path.replace('\\', '/');
  const qsizetype anchor = path.indexOf('#');
  const QString fragment = anchor < 0 ? QString() : path.mid(anchor + 1);
  if (anchor >= 0) path.truncate(anchor);
  while (path.startsWith('/')) path.remove(0, 1);
  // Contents name pages as they are, or as addresses have them.
  if (file_ && !file_->Has(path.toStdString())) {
    const QString plain = QUrl::fromPercentEncoding(path.toUtf8());
    if (file_->Has(plain.toStdString())) path = plain;
  }
  QUrl url = ContentsPage();
  url.setPath("/" + path, QUrl::DecodedMode);
  if (!fragment.isEmpty()) url.setFragment(fragment, QUrl::DecodedMode);
  return url;
}

QUrl HelpPages::Inside(const QUrl& link) const {
  if (link.scheme() == kScheme && link.host().isEmpty()) return link;
  // The way that pages name another page by its file: "ms-its:file.chm::/page.htm".
  if (link.scheme() == "ms-its" || link.scheme() == "mk") {
    const QString whole = link.toString(QUrl::FullyDecoded);
    const QString before = whole.section("::", 0, 0).section(QRegularExpression("[:/\\\\]"), -1);
    const bool own = before.compare(QFileInfo(path_).fileName(), Qt::CaseInsensitive) == 0;
    if (own && whole.contains("::")) return UrlOf(whole);
  }
  return {};
}

std::string HelpPages::Bytes(const QUrl& url) const {
  // The toolkit takes a picture's path from the root of the help file for one of the disk; whatever
  // it asks for is looked up in the help file alone.
  const QString path = url.path(QUrl::FullyDecoded);
  const bool inside = url.host().isEmpty() && (url.scheme() == kScheme || url.isLocalFile());
  if (!file_ || !inside || !path.startsWith('/')) return {};
  try {
    return file_->Entry(path.mid(1).toStdString()).value_or(std::string());
  } catch (const HelpFileFailure&) {
    return {};
  }
}

QString HelpPages::Page(const QUrl& url) const {
  if (!file_) {
    return ProblemPage("The help cannot be shown",
                       problem_ + " Please install the help files again: " + path_, false);
  }
  const QString name = url.path(QUrl::FullyDecoded).mid(1);
  if (name.isEmpty()) return ContentsAsPage();
  if (url.scheme() != kScheme || !file_->Has(name.toStdString())) {
    return ProblemPage("This page is not in the help file", name, true);
  }
  try {
    const std::string bytes = file_->Entry(name.toStdString()).value_or(std::string());
    for (const ImageKind& kind : kImageKinds) {
      if (bytes.starts_with(kind.mark)) {
        return AsPage(QString("<p><img src=\"%1\"></p>").arg(url.toString(QUrl::FullyEncoded)));
      }
    }
    if (bytes.size() > kMostPageBytes || IsTooDeep(bytes)) {
      return ProblemPage("This page is too large to be shown", name, true);
    }
    return AsPage(Decoded(bytes));
  } catch (const HelpFileFailure& failure) {
    return ProblemPage("This page cannot be shown", name + ": " + failure.what(), true);
  }
}

QString HelpPages::ContentsAsPage() const {
  QString html =
      QString("<h1>%1</h1>").arg(title().isEmpty() ? "Contents" : title().toHtmlEscaped());
  if (contents().empty()) html += "<p>The help file has no table of contents.</p>";
  AppendContents(*this, contents(), html);
  return AsPage(html);
}

QImage HelpPages::Image(const QUrl& url) const {
  const QImage image = DecodedImage(Bytes(url));
  return image.isNull() ? NoPicture() : image;
}

QString HelpPages::StyleSheet(const QUrl& url) const { return Decoded(Bytes(url)); }

}  // namespace halvane
