// What the forms of RULA and REBA have in common.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTest>

#include "tests/forms/posture_form_support.h"
#include "widgets/layout.h"
#include "widgets/posture_picture.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class PostureForms : public PostureFormTest, public testing::WithParamInterface<Tool> {
 protected:
  PostureForms() : PostureFormTest(GetParam()) {}

  /// The scores in the report are those of the job as it is.
  void ExpectReportOfTheJob() const {
    RichText report;
    ASSERT_TRUE(tool.WriteReport(report));
    ASSERT_GT(report.text().size(), 400U);
    EXPECT_EQ(Report(), QString::fromStdString(report.text()).replace("\r\n", "\n"));
  }
};

INSTANTIATE_TEST_SUITE_P(BothTools, PostureForms, testing::Values(Tool::Rula, Tool::Reba),
                         [](const testing::TestParamInfo<Tool>& which) {
                           return std::string(which.param == Tool::Rula ? "Rula" : "Reba");
                         });

TEST_P(PostureForms, SecondTabHoldsTheReportPaneAlone) {
  Show();
  const auto& tabs = The<QTabWidget>("SSTab1");
  ASSERT_EQ(tabs.count(), 2);
  EXPECT_EQ(tabs.tabText(0), " Task Information");
  EXPECT_EQ(tabs.widget(1), &The<RichTextBox>("RichTextBox1"));
}

TEST_P(PostureForms, BoxesHaveTheirLabelsAndShowTheJob) {
  Module1.JobAnalyst = Integer{7};
  Module1.JobName = "Packing";
  Module1.JobWorkstationId = "W\xC3\xB6rk 7";
  Show();
  QStringList lines;
  for (const auto* label : form->findChildren<QLabel*>()) {
    if (auto* box = qobject_cast<QLineEdit*>(label->buddy())) {
      lines.append(label->text() + "|" + box->objectName() + "|" + box->text());
    }
  }
  EXPECT_EQ(lines, (QStringList{"Analyst|Text1(0)|7", "Job Name|Text1(1)|Packing",
                                QString::fromUtf8("Workstation ID|Text1(2)|W\xC3\xB6rk 7")}));
  EXPECT_EQ(form->findChildren<QLineEdit*>(QRegularExpression("^Text1")).size(), 3);
}

TEST_P(PostureForms, KeyReleasedInAnyBoxStoresAllThree) {
  for (int pressed = 0; pressed < 3; ++pressed) {
    SCOPED_TRACE(pressed);
    Module1 = JobState{};
    Module1.JobAnalyst = Integer{7};
    Show();
    // Pasted with the mouse, which no box notices.
    for (int index = 0; index < 3; ++index) Box(index).setText(QString(" text %1 ").arg(index));
    Module1.JobDirty = kFalse;
    EXPECT_EQ(Module1.JobAnalyst, TaggedField(Integer{7}));
    QTest::keyPress(&Box(pressed), Qt::Key_Shift);
    EXPECT_EQ(Module1.JobDirty, kFalse);
    QTest::keyRelease(&Box(pressed), Qt::Key_Shift);
    EXPECT_EQ(Module1.JobAnalyst, TaggedField(" text 0 "));
    EXPECT_EQ(Module1.JobName, TaggedField(" text 1 "));
    EXPECT_EQ(Module1.JobWorkstationId, " text 2 ");
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_P(PostureForms, FocusSelectsAllOfABox) {
  Module1.JobName = "Packing";
  Show();
  Box(0).setFocus();
  Box(1).deselect();
  QTest::keyClick(&Box(0), Qt::Key_Tab);
  ASSERT_TRUE(Box(1).hasFocus());
  EXPECT_EQ(Box(1).selectedText(), "Packing");
}

TEST_P(PostureForms, HandIsStoredWhenItIsChosen) {
  Show();
  EXPECT_TRUE(On().contains("SSOption5(0)"));
  for (const int hand : {1, 0}) {
    Module1.JobDirty = kFalse;
    const QString option = QString("SSOption5(%1)").arg(hand);
    Click(option);
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_EQ(On().filter("SSOption5"), QStringList{option});
  }
  Module1.JobDirty = kFalse;
  Click("SSOption5(0)");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_P(PostureForms, RibbonsShowThePicturesOfTheirNames) {
  Show();
  const QString ofTool = ScreenText(tool.key) + "/";
  std::vector<QImage> pictures;
  for (const auto* ribbon : form->findChildren<RibbonButton*>()) {
    const QString name = ribbon->objectName();
    QString asset = name.toLower();
    asset.replace('(', '_').remove(')');
    EXPECT_EQ(ribbon->Picture(), ofTool + asset) << name.toStdString();
    const QImage picture = PosturePicture(ribbon->Picture(), Qt::white, 56).toImage();
    ASSERT_FALSE(picture.isNull()) << name.toStdString();
    EXPECT_EQ(std::find(pictures.begin(), pictures.end(), picture), pictures.end())
        << name.toStdString() << " has the picture of another ribbon";
    pictures.push_back(picture);
  }
  EXPECT_EQ(pictures.size(), tool.tool == Tool::Rula ? 22U : 25U);
}

TEST_P(PostureForms, RibbonsHaveOneHeightAndRoomForTheirPictureAndCaption) {
  Show();
  for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1600, 1000)}) {
    form->resize(size);
    QCoreApplication::processEvents();
    const auto& first = The<RibbonButton>("SSRibbon1(0)");
    const int picture = first.iconSize().width();
    for (const auto* ribbon : form->findChildren<RibbonButton*>()) {
      const std::string name = ribbon->objectName().toStdString();
      EXPECT_EQ(ribbon->height(), first.height()) << name;
      EXPECT_EQ(ribbon->iconSize(), QSize(picture, picture)) << name;
      const int caption = ribbon->fontMetrics().horizontalAdvance(ribbon->text().trimmed());
      EXPECT_GE(ribbon->width(), std::max(picture, caption)) << name;
      EXPECT_LE(ribbon->width(), std::max(picture + 18, caption + 16)) << name;
    }
  }
}

TEST_P(PostureForms, CaptionsStandInTheMiddleWithoutTheirBlanks) {
  Show();
  // The caption of this ribbon ends with many blanks.
  auto& ribbon = The<RibbonButton>("SSRibbon1(4)");
  const QImage picture = ribbon.grab().toImage();
  const QRgb background = picture.pixel(4, picture.height() - 4);
  int left = picture.width();
  int right = 0;
  for (int y = ribbon.iconSize().height() + 10; y < picture.height() - 4; ++y) {
    for (int x = 4; x < picture.width() - 4; ++x) {
      if (picture.pixel(x, y) == background) continue;
      left = std::min(left, x);
      right = std::max(right, x);
    }
  }
  ASSERT_LT(left, right);
  EXPECT_NEAR(left, picture.width() - 1 - right, 3);
}

TEST_P(PostureForms, RibbonIsCalledByItsFrameAndItsCaption) {
  Show();
  const auto nameOf = [this](const char* ribbon) {
    return QAccessible::queryAccessibleInterface(&The(ribbon))->text(QAccessible::Name);
  };
  EXPECT_EQ(nameOf("SSRibbon1(4)"), "Upper Arms, >+90");
  EXPECT_EQ(nameOf("SSRibbon5(0)"), "Trunk, Neutral");
}

TEST_P(PostureForms, CaptionOfABoxIsClickedAsTheBox) {
  Show();
  const QString box = "SSCheck1(0)";
  for (const bool checked : {true, false}) {
    for (auto* label : The(box).parentWidget()->findChildren<QLabel*>()) {
      if (label->text() == "Shoulder is raised") QTest::mouseClick(label, Qt::LeftButton);
    }
    EXPECT_EQ(On().contains(box), checked);
  }
}

TEST_P(PostureForms, LoadStartsOnTheFirstTabWithAnEmptyReportAndAClosedEditMenu) {
  Show();
  ClickTab(1);
  ASSERT_NE(Report(), "");
  Reload(JobState{});
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_EQ(Report(), "");
  EXPECT_FALSE(The<QMenu>("mnuEdit").isEnabled());
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_P(PostureForms, ReportTabComputesAndWritesAndEnablesEdit) {
  Module1.JobAnalyst = "Ann";
  Show();
  const auto& edit = The<QMenu>("mnuEdit");
  EXPECT_FALSE(edit.isEnabled());
  ClickTab(1);
  EXPECT_TRUE(edit.isEnabled());
  ExpectReportOfTheJob();
  EXPECT_TRUE(Report().contains("\nAnalyst: Ann\n"));
  ClickTab(0);
  EXPECT_FALSE(edit.isEnabled());
}

TEST_P(PostureForms, ReportStaysAsItIsUntilItsTabIsOpenedAgain) {
  Show();
  ClickTab(1);
  const QString first = Report();
  ClickTab(0);
  ClickTab(1);
  EXPECT_EQ(Report(), first);
  ClickTab(0);
  Click("SSRibbon1(4)");
  EXPECT_EQ(Report(), first);
  ClickTab(1);
  EXPECT_NE(Report(), first);
  ExpectReportOfTheJob();
}

TEST_P(PostureForms, ComputationThatFailsEndsTheProgram) {
  Show();
  Module1.JobFileName = folder.File("job.qjt");
  (tool.tool == Tool::Rula ? Module1.RulaUpperArmFactors : Module1.RebaUpperArmFactors).at(3) = -2;
  platform.WillAnswer(Answer::Ok);
  ClickTab(1);
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith("Subscript out of range."));
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
  // The menu is enabled before the computation.
  EXPECT_TRUE(The<QMenu>("mnuEdit").isEnabled());
}

TEST_P(PostureForms, PrintComputesAnewFromTheFirstTab) {
  Show();
  ClickTab(1);
  ClickTab(0);
  const QString stale = Report();
  Click("SSRibbon1(4)");
  platform.WillChoosePrinter(true);
  Choose(*form, "mnuPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_NE(Report(), stale);
  ExpectReportOfTheJob();
  EXPECT_EQ(platform.printed()[0], The<RichTextBox>("RichTextBox1").toPlainText());
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
}

TEST_P(PostureForms, EditCommandsSelectAndCopyTheReport) {
  Show();
  ClickTab(1);
  Choose(*form, "mnuEditSelect");
  Choose(*form, "mnuEditCopy");
  EXPECT_EQ(platform.clipboard(),
            (QStringList{"clear", "text: " + The<RichTextBox>("RichTextBox1").toPlainText()}));
}

}  // namespace
}  // namespace halvane
