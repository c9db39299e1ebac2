#include <QTest>

#include "help/help_viewer.h"
#include "tests/help/help_support.h"

namespace halvane {
namespace {

class HelpProblems : public HelpWindowTest {};

TEST_F(HelpProblems, ATopicThatIsNotInTheFileOffersTheContents) {
  Show("none.htm");
  EXPECT_EQ(page().toPlainText(), "This page is not in the help file\nnone.htm\nShow the contents");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_TRUE(page().toPlainText().startsWith("A little help\nHome & more\nChapter"));
  // The list leads on to the pages.
  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(Topic(), "home.htm");
}

TEST_F(HelpProblems, AFileThatCannotBeReadIsShownAsSuch) {
  struct Row {
    const char* label;
    std::string bytes;
    const char* problem;
  };
  const std::string whole = BytesOf(little.toStdString());
  std::string foreign = whole;
  foreign[0x28] = 0x12;
  for (const Row& row : {Row{"foreign", foreign, "This is no compiled HTML help file."},
                         Row{"empty", "", "This is no compiled HTML help file."},
                         Row{"cut off", whole.substr(0, 4000), "The help file is damaged."}}) {
    little = File(row.label);
    WriteBytes(little.toStdString(), row.bytes);
    Show("home.htm");
    EXPECT_EQ(page().toPlainText(),
              QString("The help cannot be shown\n%1 Please install the help files again: %2")
                  .arg(row.problem, little));
    EXPECT_EQ(window().windowTitle(), "Halvane Tools Help");
    EXPECT_FALSE(tree().isVisible());
  }
  little = File("none");
  Show("home.htm");
  EXPECT_TRUE(page().toPlainText().startsWith("The help cannot be shown\n"));
}

class HelpOddPages : public HelpWindowTest {
 protected:
  HelpOddPages() { little = HALVANE_HELP_DATA "/odd.chm"; }
};

TEST_F(HelpOddPages, OtherCharacterSetsAreRead) {
  for (const char* topic : {"central.htm", "wide.htm"}) {
    Show(topic);
    EXPECT_EQ(page().toPlainText().trimmed(), "Łódź") << topic;
  }
}

TEST_F(HelpOddPages, APageNestedTooDeepIsNotLaidOut) {
  for (const char* topic : {"tables_7.htm", "lists_51.htm"}) {
    Show(topic);
    EXPECT_EQ(page().toPlainText(),
              QString("This page is too large to be shown\n%1\nShow the contents").arg(topic));
  }
  Show("tables_6.htm");
  EXPECT_TRUE(page().toPlainText().contains("Six"));
  Show("lists_50.htm");
  EXPECT_TRUE(page().toPlainText().contains("Fifty"));
}

TEST_F(HelpOddPages, NoPageOpensABoxOfItsOwn) {
  Show("dot.png");
  Show("detail.htm");
  EXPECT_EQ(page().toPlainText().trimmed(), "In a box of its own?");
}

TEST_F(HelpOddPages, APictureIsAPageToo) {
  Show("dot.png");
  EXPECT_EQ(page().toPlainText(), QString(QChar::ObjectReplacementCharacter));
}

TEST_F(HelpOddPages, WithoutADefaultTopicAndContentsSaySo) {
  ShowContents();
  EXPECT_EQ(page().toPlainText(), "Contents\nThe help file has no table of contents.");
  EXPECT_EQ(window().windowTitle(), "Halvane Tools Help");
}

}  // namespace
}  // namespace halvane
