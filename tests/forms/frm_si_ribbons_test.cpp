#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include "tests/support/form_support.h"
#include "tools/strain_index/frm_si.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

class StrainIndexRibbons : public ShellTest {};
class StrainIndexCaptions : public ShellTest {};

/// A column of ribbons as it reads on the form, from rating 1 to rating 5.
struct ColumnRow {
  const char* array;
  int firstIndex;
  const char* heading;
  QStringList captions;
};

std::vector<ColumnRow> Columns() {
  return {
      {"SSRibbon1",
       0,
       "% Maximal Strength",
       {"< 10%", "10% - 29%", "30% - 49%", "50% - 79%", "> 80%"}},
      {"SSRibbon1", 5, "Borg CR-10 Scale", {"< 2", "3", "4 - 5", "6 - 7", "> 7"}},
      {"SSRibbon1",
       10,
       "Perceived Effort",
       {"Barely noticeable/relaxed effort", "Noticeable/definite effort",
        "Obvious effort; unchange facial expression",
        "Substantial effort; changes facial expression",
        "Uses shoulder or trunk to generate force"}},
      {"SSRibbon2", 0, "Extension", {"0 - 10", "11 - 25", "26 - 40", "41 - 55", "> 60"}},
      {"SSRibbon2", 5, "Flexion", {"0 - 5", "6 - 15", "16 - 30", "31 - 50", "> 50"}},
      {"SSRibbon2", 10, "Ulnar Deviation", {"0 - 10", "11 - 15", "16 - 20", "21 - 25", "> 25"}},
      {"SSRibbon2",
       15,
       "Perceived Posture",
       {"Perfect neutral", "Near neutral", "Non-neutral", "Marked Deviation", "Near extreme"}},
      {"SSRibbon3", 0, "MTM -1", {"< 80%", "81-90%", "91-100%", "101-115%", "> 115%"}},
      {"SSRibbon3",
       5,
       "Perceived Posture",
       {"Extremely relaxed pace", "Taking one's own time", "Normal speed of motion",
        "Rush,but able to keep up", "Rush,unable to keep up"}},
  };
}

/// The ribbons of one frame and the field of its pick and rating.
struct ArrayRow {
  const char* array;
  const char* caption;
  int columns;
  std::function<int()> pick;
  std::function<int()> rating;
};

std::vector<ArrayRow> Arrays() {
  return {
      {"SSRibbon1", "Intensity of Exertion", 3,
       [] { return static_cast<int>(Module1.SiIntensityPick.AsDouble()); },
       [] { return Module1.SiIntensityRating; }},
      {"SSRibbon2", "Hand/Wrist Posture (degrees)", 4,
       [] { return static_cast<int>(Module1.SiPosturePick.AsDouble()); },
       [] { return Module1.SiPostureRating; }},
      {"SSRibbon3", "Speed of Work", 2, [] { return Module1.SiSpeedPick; },
       [] { return Module1.SiSpeedRating; }},
  };
}

RibbonButton& Ribbon(const QWidget& form, const QString& array, int index) {
  return Find<RibbonButton>(form, QString("%1(%2)").arg(array).arg(index));
}

void Click(const QWidget& form, const QString& array, int index) {
  QTest::mouseClick(&Ribbon(form, array, index), Qt::LeftButton);
}

/// The indexes of the ribbons that are down, a blank between them.
std::string DownOf(const QWidget& form, const ArrayRow& array) {
  std::string down;
  for (int index = 0; index < 5 * array.columns; ++index) {
    if (!Ribbon(form, array.array, index).isChecked()) continue;
    down += (down.empty() ? "" : " ") + std::to_string(index);
  }
  return down;
}

/// The row of a rating in an array, as `DownOf` gives it.
std::string RowOfRating(const ArrayRow& array, int rating) {
  std::string row;
  for (int column = 0; column < array.columns; ++column) {
    row += (row.empty() ? "" : " ") + std::to_string(5 * column + rating - 1);
  }
  return row;
}

TEST_F(StrainIndexRibbons, FreshJobHasTheFirstRowsDownAndPicks10And15And5) {
  const auto form = LoadedStrainIndex();
  const std::vector<int> picks{10, 15, 5};
  std::size_t at = 0;
  for (const ArrayRow& array : Arrays()) {
    EXPECT_EQ(DownOf(*form, array), RowOfRating(array, 1)) << array.array;
    EXPECT_EQ(array.pick(), picks.at(at++)) << array.array;
    EXPECT_EQ(array.rating(), 1) << array.array;
  }
}

TEST_F(StrainIndexRibbons, AnyRibbonOfARowBringsTheWholeRowDown) {
  for (const ArrayRow& array : Arrays()) {
    for (int index = 0; index < 5 * array.columns; ++index) {
      SCOPED_TRACE(std::string(array.array) + " " + std::to_string(index));
      Module1 = JobState{};
      const auto form = LoadedStrainIndex();
      // A fresh job has row 1 down, so its ribbons are clicked from row 5.
      if (index % 5 == 0) Click(*form, array.array, 4);
      Module1.JobDirty = kFalse;
      Click(*form, array.array, index);
      EXPECT_EQ(DownOf(*form, array), RowOfRating(array, index % 5 + 1));
      EXPECT_EQ(array.rating(), index % 5 + 1);
      EXPECT_EQ(Module1.JobDirty, kTrue);
    }
  }
}

struct PickRow {
  const char* label;
  const char* array;
  int clicked;
  int pick;
};

TEST_F(StrainIndexRibbons, PickIsTheRibbonThatWasHandledLast) {
  const std::vector<PickRow> rows{
      {"intensity, first column: the last column follows", "SSRibbon1", 3, 13},
      {"intensity, last column: the second column follows", "SSRibbon1", 14, 9},
      {"intensity, middle column: the last column follows", "SSRibbon1", 8, 13},
      {"posture, first column", "SSRibbon2", 2, 17},
      {"posture, last column: the third column follows", "SSRibbon2", 18, 13},
      {"speed, first column", "SSRibbon3", 4, 9},
      {"speed, last column: the first column follows", "SSRibbon3", 9, 4},
  };
  for (const PickRow& row : rows) {
    Module1 = JobState{};
    const auto form = LoadedStrainIndex();
    Click(*form, row.array, row.clicked);
    for (const ArrayRow& array : Arrays()) {
      if (QString(array.array) != row.array) continue;
      EXPECT_EQ(array.pick(), row.pick) << row.label;
    }
  }
}

TEST_F(StrainIndexRibbons, RibbonThatIsDownStaysDownAndTellsNobody) {
  const auto form = LoadedStrainIndex();
  Module1.JobDirty = kFalse;
  Click(*form, "SSRibbon1", 5);
  EXPECT_TRUE(Ribbon(*form, "SSRibbon1", 5).isChecked());
  EXPECT_EQ(Module1.SiIntensityPick.AsText(), "10");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(StrainIndexRibbons, ArrowKeysMoveWithinTheColumn) {
  const auto form = LoadedStrainIndex();
  const ArrayRow posture = Arrays().at(1);
  Ribbon(*form, "SSRibbon2", 5).setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(DownOf(*form, posture), RowOfRating(posture, 2));
  EXPECT_EQ(Module1.SiPostureRating, 2);
  EXPECT_EQ(QApplication::focusWidget(), &Ribbon(*form, "SSRibbon2", 6));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_EQ(DownOf(*form, posture), RowOfRating(posture, 1));
}

TEST_F(StrainIndexRibbons, SavedFileHasThePicksThatTheClicksLeft) {
  const auto form = LoadedStrainIndex();
  Click(*form, "SSRibbon1", 3);
  Click(*form, "SSRibbon2", 18);
  Click(*form, "SSRibbon3", 9);
  platform.WillSave(File("job.qjt"));
  Choose(*form, "mnuSave");
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), EmptyJobWith(49, "0,0,0,0,13,13,4"));
}

TEST_F(StrainIndexRibbons, LoadBringsTheRowOfTheSavedPickDown) {
  Module1.SiIntensityPick = Integer{9};
  Module1.SiPosturePick = "2";
  Module1.SiSpeedPick = 8;
  const auto form = LoadedStrainIndex();
  const std::vector<int> ratings{5, 3, 4};
  std::size_t at = 0;
  for (const ArrayRow& array : Arrays()) {
    EXPECT_EQ(DownOf(*form, array), RowOfRating(array, ratings.at(at))) << array.array;
    EXPECT_EQ(array.rating(), ratings.at(at++)) << array.array;
  }
}

TEST_F(StrainIndexRibbons, LoadAgainLeavesNoRibbonOfTheLastJobDown) {
  const auto form = LoadedStrainIndex();
  Click(*form, "SSRibbon1", 4);
  JobReset();
  form->load();
  EXPECT_EQ(DownOf(*form, Arrays().front()), "0 5 10");
}

TEST_F(StrainIndexCaptions, TitleAndTabs) {
  const auto form = LoadedStrainIndex();
  EXPECT_EQ(form->windowTitle(), "Strain Index");
  const auto& tabs = Find<QTabWidget>(*form, "SSTab1");
  ASSERT_EQ(tabs.count(), 2);
  EXPECT_EQ(tabs.tabText(0), " Task Information");
  EXPECT_EQ(tabs.tabText(1), "Strain Index");
}

TEST_F(StrainIndexCaptions, FramesAndLabels) {
  const auto form = LoadedStrainIndex();
  QStringList frames;
  for (const auto* frame : form->findChildren<QGroupBox*>()) frames.append(frame->title());
  frames.sort();
  EXPECT_EQ(frames, (QStringList{"Duration of Exertion", "Efforts per Minute", "Hand",
                                 "Hand/Wrist Posture (degrees)", "Intensity of Exertion",
                                 "Speed of Work", "Task Duration"}));
  EXPECT_EQ(Find<QAbstractButton>(*form, "SSOption5(0)").text(), "Right Side");
  EXPECT_EQ(Find<QAbstractButton>(*form, "SSOption5(1)").text(), "Left Side");
}

struct LabelRow {
  const char* frame;
  const char* label;
  const char* box;
};

TEST_F(StrainIndexCaptions, EveryBoxHasItsLabelAsBuddyInItsFrame) {
  const auto form = LoadedStrainIndex();
  const std::vector<LabelRow> rows{
      {"", "Analyst", "Text1(6)"},
      {"", "Job Name", "Text1(5)"},
      {"", "Workstation ID", "Text1(4)"},
      {"Task Duration", "Duration per Day (hour):", "Text1(8)"},
      {"Duration of Exertion", "Duration of all exertion (min.):", "Text1(0)"},
      {"Duration of Exertion", "Total Observation time (min.):", "Text1(1)"},
      {"Efforts per Minute", "Number of exertions:", "Text1(2)"},
      {"Efforts per Minute", "Total Observation time (min.):", "Text1(3)"},
  };
  QStringList found;
  for (const auto* label : form->findChildren<QLabel*>()) {
    if (label->buddy() == nullptr) continue;
    const auto* frame = qobject_cast<QGroupBox*>(label->parentWidget());
    found.append((frame == nullptr ? "" : frame->title()) + "|" + label->text() + "|" +
                 label->buddy()->objectName());
  }
  QStringList expected;
  for (const LabelRow& row : rows) {
    expected.append(QString("%1|%2|%3").arg(row.frame, row.label, row.box));
  }
  found.sort();
  expected.sort();
  EXPECT_EQ(found, expected);
}

TEST_F(StrainIndexCaptions, RibbonsStandUnderTheirHeadingFromRating1To5) {
  const auto form = LoadedStrainIndex();
  int ribbons = 0;
  for (const ColumnRow& column : Columns()) {
    SCOPED_TRACE(std::string(column.array) + " " + column.heading);
    const RibbonButton* above = nullptr;
    for (int row = 0; row < 5; ++row, ++ribbons) {
      const auto& ribbon = Ribbon(*form, column.array, column.firstIndex + row);
      EXPECT_EQ(ribbon.text(), column.captions.at(row));
      EXPECT_EQ(ribbon.accessibleName(), QString(column.heading) + ", " + column.captions.at(row));
      if (above != nullptr) {
        EXPECT_EQ(ribbon.x(), above->x());
        EXPECT_GE(ribbon.y(), above->geometry().bottom());
      }
      above = &ribbon;
    }
    // The heading is the label whose middle stands over the column.
    const QRect first = Ribbon(*form, column.array, column.firstIndex).geometry();
    QStringList headings;
    for (const auto* label : above->parentWidget()->findChildren<QLabel*>()) {
      const int middle = label->geometry().center().x();
      if (middle >= first.left() && middle <= first.right()) headings.append(label->text());
      EXPECT_LE(label->geometry().bottom(), first.top());
    }
    EXPECT_EQ(headings, QStringList{column.heading});
  }
  EXPECT_EQ(form->findChildren<RibbonButton*>().size(), ribbons);
}

TEST_F(StrainIndexCaptions, RibbonsOfAFrameStandInIt) {
  const auto form = LoadedStrainIndex();
  for (const ArrayRow& array : Arrays()) {
    for (int index = 0; index < 5 * array.columns; ++index) {
      const auto* frame =
          qobject_cast<QGroupBox*>(Ribbon(*form, array.array, index).parentWidget());
      ASSERT_NE(frame, nullptr) << array.array << index;
      EXPECT_EQ(frame->title(), array.caption) << index;
    }
  }
}

}  // namespace
}  // namespace halvane
