// The real platform, where it reaches other programs, files and the registry.
#include <QTest>
#include <filesystem>

#include "platform/platform_qt.h"
#include "platform/registry.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

/// Gives an environment variable another value and puts the old one back.
class Variable {
 public:
  Variable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
    qputenv(name, value);
  }
  ~Variable() {
    if (before_.isNull()) {
      qunsetenv(name_);
    } else {
      qputenv(name_, before_);
    }
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  QByteArray before_;
};

class RealPrograms : public testing::Test {
 protected:
  [[nodiscard]] QString File(const char* name) const {
    return QString::fromStdString(folder.File(name));
  }
  void MakeProgram(const char* name) const {
    WriteBytes(folder.File(name), "#!/bin/sh\n");
    std::filesystem::permissions(folder.File(name), std::filesystem::perms::owner_all);
  }

  TemporaryFolder folder;
  QtPlatform platform;
};

TEST_F(RealPrograms, ProgramIsStartedWithItsArguments) {
  const QString file = File("a file with blanks");
  EXPECT_TRUE(platform.StartProgram({"touch", {file}}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Exists(file.toStdString()); }));
}

TEST_F(RealPrograms, ProgramThatIsNotThereIsNotStarted) {
  EXPECT_FALSE(platform.StartProgram({File("missing"), {}}));
  EXPECT_FALSE(platform.StartProgram({"", {}}));
}

TEST_F(RealPrograms, FilesAreFound) {
  EXPECT_FALSE(platform.FileExists(File("a")));
  WriteBytes(folder.File("a"), "");
  EXPECT_TRUE(platform.FileExists(File("a")));
}

#ifdef Q_OS_UNIX
TEST_F(RealPrograms, SystemWithoutARegistryHasNoKey) {
  QString text = "before";
  EXPECT_FALSE(
      GetKeyValue(platform.TheRegistry(), RegistryRoot::LocalMachine, "SOFTWARE", "PATH", text));
  EXPECT_EQ(text, "");
}

TEST_F(RealPrograms, ViewerOfTheSystemIsLookedForInThePath) {
  const Variable path("PATH", QByteArray::fromStdString(folder.path()));
  const Variable desktop("XDG_CURRENT_DESKTOP", "other:GNOME");
  EXPECT_EQ(platform.SystemViewer(), ProgramCall());
  MakeProgram("hardinfo");
  EXPECT_EQ(platform.SystemViewer(), (ProgramCall{"hardinfo", {}}));
  MakeProgram("gnome-control-center");
  EXPECT_EQ(platform.SystemViewer(), (ProgramCall{"gnome-control-center", {"info-overview"}}));
}
#endif

}  // namespace
}  // namespace halvane
