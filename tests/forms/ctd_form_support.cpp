#include "tests/forms/ctd_form_support.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>

#include "tools/task_list/task_tree.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"

namespace halvane {

CtdFormTest::CtdFormTest() = default;
CtdFormTest::~CtdFormTest() = default;

void CtdFormTest::Load() {
  if (!own_) own_ = std::make_unique<FrmCTD>(nullptr);
  form_ = own_.get();
  own_->load();
  ShowActive(*own_);
}

void CtdFormTest::Click(const QString& name) const {
  // What came on screen with the last event has no place before its layout.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  auto& button = Control<QAbstractButton>(name);
  ASSERT_TRUE(button.isVisible() && button.isEnabled()) << name.toStdString();
  // An option takes a click on its circle and words only.
  const bool isOption = qobject_cast<QRadioButton*>(&button) != nullptr;
  const QPoint place = isOption ? QPoint(8, button.height() / 2) : button.rect().center();
  QTest::mouseClick(&button, Qt::LeftButton, {}, place);
}

void CtdFormTest::OpenTab(int tab) const {
  QTabBar& bar = *Control<QTabWidget>("SSTab1").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
}

void CtdFormTest::Type(const QString& box, const QString& text) const {
  auto& line = Control<QLineEdit>(box);
  ASSERT_TRUE(line.isVisible() && line.isEnabled()) << box.toStdString();
  QTest::mouseClick(&line, Qt::LeftButton);
  QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) QTest::keyClick(&line, Qt::Key_Delete);
  QTest::keyClicks(&line, text);
}

void CtdFormTest::TouchKey(const QString& box) const {
  auto& line = Control<QLineEdit>(box);
  ASSERT_TRUE(line.isVisible() && line.isEnabled()) << box.toStdString();
  QTest::keyClick(&line, Qt::Key_Shift);
}

QString CtdFormTest::TextOf(const QString& box) const { return Control<QLineEdit>(box).text(); }

std::string CtdFormTest::Down(const QString& array) const {
  std::string down;
  for (const auto* ribbon : form().findChildren<RibbonButton*>()) {
    const QString name = ribbon->objectName();
    if (!name.startsWith(array + "(") || !ribbon->isChecked()) continue;
    down += (down.empty() ? "" : " ") + name.section('(', 1).chopped(1).toStdString();
  }
  return down;
}

void CtdFormTest::SelectNode(int place) const {
  const auto& tree = Control<TaskTree>("TreeView1");
  ASSERT_LT(place, tree.topLevelItemCount());
  const QRect node = tree.visualItemRect(tree.topLevelItem(place));
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, node.center());
}

QStringList CtdFormTest::Nodes() const {
  const auto& tree = Control<TaskTree>("TreeView1");
  QStringList names;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) names.append(tree.topLevelItem(i)->text(0));
  return names;
}

QString CtdFormTest::SelectedNode() const {
  const QList<QTreeWidgetItem*> selected = Control<TaskTree>("TreeView1").selectedItems();
  return selected.size() == 1 ? selected.front()->text(0) : QString::number(selected.size());
}

std::string CtdFormTest::Pane() const {
  QString text = Control<RichTextBox>("RichTextBox1").document()->toRawText();
  text.replace(QChar(QChar::ParagraphSeparator), '\n').replace('\t', '|');
  return text.replace(QChar(QChar::ObjectReplacementCharacter), '^').toStdString();
}

std::string CtdFormTest::EndedOn(const QString& sentence, const std::function<void()>& action) {
  const auto name = "end" + std::to_string(platform.ends().size());
  Module1.JobFileName = folder.File(name + ".qjt");
  Module1.JobDirty = kTrue;
  const std::string copy = folder.File(name + ".rescue.qjt");
  std::vector<int> ends = platform.ends();
  ends.push_back(1);
  platform.WillAnswer(Answer::Ok);
  action();
  EXPECT_EQ(platform.ends(), ends);
  const ShownMessage message{"Halvane Tools",
                             sentence +
                                 ".\n\nHalvane Tools has to end.\n\n"
                                 "A copy of the job was saved as\n" +
                                 QString::fromStdString(copy),
                             {Answer::Ok}};
  EXPECT_EQ(platform.messages().empty() ? ShownMessage() : platform.messages().back(), message);
  return BytesOf(copy);
}

std::vector<CtdArrayRow> CtdHandArrays() {
  return {
      {"SSRibbon1",
       "Grip Type",
       {{0, "Power Grip"}, {2, "Lateral Pinch"}, {3, "Chuck Pinch"}, {4, "2-Point Pinch"}}},
      {"SSRibbon2",
       "Wrist Position",
       {{0, "Mid-Position (Neutral)"}, {1, "Pronation"}, {3, "Supination"}}},
      {"SSRibbon4",
       "Radial/Ulnar Deviation Angle:",
       {{0, "Neutral"},
        {1, "Radial Deviation >15 deg."},
        {2, "Radial Deviation 5-15 deg."},
        {3, "Ulnar Deviation >15 deg."},
        {4, "Ulnar Deviation 5-15 deg."}}},
      {"SSRibbon5",
       "Flexion/Extension Angle:",
       {{0, "Neutral"},
        {5, "Flexion >35 deg."},
        {6, "Flexion 5-15 deg."},
        {7, "Extension >35 deg."},
        {8, "Extension 5-15 deg."}}},
  };
}

std::vector<CtdArrayRow> CtdPostureArrays() {
  using Ribbons = std::vector<std::pair<int, QString>>;
  const Ribbons flexion{{0, "Neutral Posture"},
                        {1, "Greater Than 20"},
                        {2, "Greater Than 45"},
                        {3, "Greater Than 90"}};
  const Ribbons abduction{{0, "Neutral Posture"},
                          {1, "Greater Than 30"},
                          {2, "Greater Than 60"},
                          {3, "Greater Than 90"}};
  const Ribbons elbow{{0, "Neutral Posture"}, {1, "> 10 deg. Flexion"}, {2, ">30 deg Extension"}};
  return {
      {"SSctdLtShoulFlexT", "Left Shoulder Flexion/Extension", flexion},
      {"SSctdRtShoulFlexT", "Right Shoulder Flextion/Extension", flexion},
      {"SSctdLtShoulABD", "Left Shoulder Abduction", abduction},
      {"SSctdRtShoulABD", "Right Shoulder Abduction", abduction},
      {"SSctdLtElbowFlexT", "Left Elbow Flextion/Extension", elbow},
      {"SSctdRtElbowFlexT", "Right Elbow Flexion/Extension", elbow},
      {"SSctdBack",
       "Back Flexion",
       {{0, "Neutral Posture"},
        {1, "Greater Than 10"},
        {2, "Greater Than 20"},
        {3, "Greater Than 45"}}},
      {"SSctdNeck",
       "Neck Flexion",
       {{0, "Neutral Posture"},
        {1, "Greater Than 30"},
        {2, "Greater Than 45"},
        {3, "Greater Than 60"}}},
  };
}

}  // namespace halvane
