#include "tests/support/test_platform.h"

#include <gtest/gtest.h>

#include <QTextDocument>
#include <algorithm>
#include <array>
#include <ostream>
#include <utility>

namespace halvane {
namespace {

const char* NameOf(Answer answer) {
  constexpr std::array names{"Yes", "No", "Cancel", "Ok"};
  return names.at(static_cast<std::size_t>(answer));
}

/// The next of a queue; a test failure and `harmless` when there is none.
template <typename T>
T Next(std::deque<T>& queue, const T& harmless, const std::string& asked) {
  if (queue.empty()) {
    ADD_FAILURE() << "nothing is queued for " << asked;
    return harmless;
  }
  T next = queue.front();
  queue.pop_front();
  return next;
}

}  // namespace

TestPlatform::TestPlatform() { SetPlatform(this); }

TestPlatform::~TestPlatform() {
  SetPlatform(nullptr);
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " queued answers were not asked for";
  EXPECT_TRUE(filesToOpen_.empty()) << filesToOpen_.front().toStdString() << " was not opened";
  EXPECT_TRUE(filesToSave_.empty()) << filesToSave_.front().toStdString() << " was not saved";
  EXPECT_TRUE(copies_.empty()) << "no file was copied";
  EXPECT_TRUE(starts_.empty()) << "no program was started";
  EXPECT_TRUE(printerChoices_.empty()) << "no printer was asked for";
}

Answer TestPlatform::ShowMessage(QWidget* /*parent*/, const QString& title, const QString& text,
                                 const std::vector<Answer>& buttons) {
  messages_.push_back({title, text, buttons});
  if (const auto step = std::exchange(duringMessage_, nullptr)) step();
  const Answer answer = Next(answers_, buttons.back(), "the message: " + text.toStdString());
  if (std::find(buttons.begin(), buttons.end(), answer) == buttons.end()) {
    ADD_FAILURE() << NameOf(answer) << " is not on offer in the message: " << text.toStdString();
    return buttons.back();
  }
  return answer;
}

QString TestPlatform::ChooseFileToOpen(QWidget* /*parent*/, const QString& filter) {
  filters_.append(filter);
  return Next(filesToOpen_, QString(), "the file to open");
}

QString TestPlatform::ChooseFileToSave(QWidget* /*parent*/, const QString& filter) {
  filters_.append(filter);
  return Next(filesToSave_, QString(), "the file to save");
}

bool TestPlatform::ChoosePrinter(QWidget* /*parent*/) {
  return Next(printerChoices_, false, "the printer");
}

void TestPlatform::SetUpPrinter(QWidget* /*parent*/) {
  ++printerSetups_;
  if (whenSetUp_) whenSetUp_();
}

void TestPlatform::Print(const QTextDocument& document) {
  if (whenPrinted_) whenPrinted_();
  printed_.append(document.toPlainText());
  printedTitles_.append(document.metaInformation(QTextDocument::DocumentTitle));
}

void TestPlatform::ClearClipboard() { clipboard_.append("clear"); }

void TestPlatform::SetClipboardText(const QString& text) { clipboard_.append("text: " + text); }

QString TestPlatform::ProgramFolder() { return programFolder_; }

QString TestPlatform::DataFolder() { return dataFolder_; }

bool TestPlatform::CopyFile(const QString& source, const QString& target) {
  copied_.append(source + " -> " + target);
  return Next(copies_, false, "a file to copy");
}

std::vector<std::string> TestPlatform::RescueFolders() { return rescueFolders_; }

std::string TestPlatform::StateFolder() { return stateFolder_; }

bool TestPlatform::FileExists(const QString& path) { return files_.contains(path); }

bool TestPlatform::StartProgram(const ProgramCall& call) {
  started_.push_back(call);
  return Next(starts_, false, "the start of " + call.program.toStdString());
}

void TestPlatform::StartWindowMove(QWidget& /*window*/, Qt::MouseButton button) {
  moves_.push_back(button);
}

void TestPlatform::EndProgram(int exitStatus) { ends_.push_back(exitStatus); }

void PrintTo(const ShownMessage& message, std::ostream* stream) {
  *stream << '"' << message.title.toStdString() << "\": \"" << message.text.toStdString() << '"';
  for (const Answer button : message.buttons) *stream << ' ' << NameOf(button);
}

}  // namespace halvane
