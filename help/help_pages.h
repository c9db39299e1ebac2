#pragma once

#include <QImage>
#include <QString>
#include <QUrl>
#include <memory>
#include <vector>

#include "help/help_contents.h"

namespace halvane {

class HelpFile;

/// A page and what it is called.
struct HelpTopic {
  QUrl url;
  QString title;
};

/// The pages of a help file as the viewer shows them, by addresses of a scheme of their own. What
/// is missing, damaged or foreign is shown as a page that says so. Nothing but the help file is
/// ever read.
class HelpPages {
 public:
  /// Reads the file; `path` is also its name in messages.
  explicit HelpPages(const QString& path);
  ~HelpPages();
  HelpPages(const HelpPages&) = delete;
  HelpPages& operator=(const HelpPages&) = delete;

  /// The file's own title, empty where it has none.
  [[nodiscard]] QString title() const;
  [[nodiscard]] const std::vector<HelpContentsEntry>& contents() const;
  /// Whether the file could be read.
  [[nodiscard]] bool isReadable() const { return file_ != nullptr; }
  /// Whether the file on the disk is still the one that was read.
  [[nodiscard]] bool IsCurrent(const QString& path) const;

  /// Every page once: those of the contents in their order, then the others by name.
  [[nodiscard]] std::vector<HelpTopic> Topics() const;
  /// The page to start with: the file's default topic, else its contents.
  [[nodiscard]] QUrl Home() const;
  /// A page that lists the contents.
  [[nodiscard]] static QUrl ContentsPage();
  /// The address of a topic as contents, commands and links name it: perhaps with an anchor, with
  /// backslashes, or with the help file in front.
  [[nodiscard]] QUrl UrlOf(const QString& topic) const;
  /// The address inside this help file that a link leads to; empty for one that leads outside.
  [[nodiscard]] QUrl Inside(const QUrl& link) const;

  /// The page as HTML. Never empty.
  [[nodiscard]] QString Page(const QUrl& url) const;
  /// Never null: what cannot be shown has a picture that says so, since the toolkit would look for
  /// it among the files of the disk.
  [[nodiscard]] QImage Image(const QUrl& url) const;
  [[nodiscard]] QString StyleSheet(const QUrl& url) const;

 private:
  [[nodiscard]] std::string Bytes(const QUrl& url) const;
  [[nodiscard]] QString ContentsAsPage() const;

  QString path_;
  qint64 size_ = -1;
  qint64 changed_ = -1;
  std::unique_ptr<HelpFile> file_;
  QString problem_;
};

}  // namespace halvane
