// What the pages with ribbons do with the room that a window gives them.
#include <QGroupBox>
#include <QLabel>
#include <QTest>
#include <algorithm>

#include "tests/forms/every_window.h"
#include "widgets/heading_label.h"
#include "widgets/scroll_page.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

class PageRoom : public EveryWindow {
 protected:
  static std::unique_ptr<ToolForm> Shown(Tool tool, QSize size) {
    if (Module1.TaskCount.AsDouble() == 0) AddTaskRecord();
    auto form = MakeToolForm(tool, nullptr);
    form->load();
    ShowActive(*form);
    form->resize(size);
    QCoreApplication::processEvents();
    return form;
  }

  /// The ribbons with pictures that are on screen.
  static std::vector<RibbonButton*> PictureRibbons(const QWidget& form) {
    std::vector<RibbonButton*> shown;
    for (auto* ribbon : form.findChildren<RibbonButton*>()) {
      if (ribbon->isVisible() && !ribbon->Picture().isEmpty()) shown.push_back(ribbon);
    }
    return shown;
  }

  /// The size that all pictures on screen have.
  static int PictureOn(const QWidget& form) {
    const auto ribbons = PictureRibbons(form);
    if (ribbons.empty()) throw std::runtime_error("no pictures");
    const int size = ribbons.front()->iconSize().width();
    for (const RibbonButton* ribbon : ribbons) {
      EXPECT_EQ(ribbon->iconSize(), QSize(size, size)) << ribbon->objectName().toStdString();
    }
    return size;
  }
};

struct PictureRow {
  Tool tool;
  int tab;
  int small;     ///< picture at 960 x 620
  int standard;  ///< at 1120 x 700
  int large;     ///< at 1900 x 1040
};

TEST_F(PageRoom, PicturesGrowWithTheForm) {
  const std::vector<PictureRow> rows{
      {Tool::Ctd, 0, 56, 64, 112},
      {Tool::Ctd, 1, 80, 96, 112},
      {Tool::Rula, 0, 56, 72, 112},
      {Tool::Reba, 0, 56, 64, 112},
  };
  for (const PictureRow& row : rows) {
    const std::vector<std::pair<QSize, int>> sizes{{QSize(960, 620), row.small},
                                                   {QSize(1120, 700), row.standard},
                                                   {QSize(1900, 1040), row.large}};
    for (const auto& [size, least] : sizes) {
      const auto form = Shown(row.tool, size);
      ASSERT_EQ(form->size(), size);
      OnEveryTab(*form, [&form = *form, &row, least = least, size = size] {
        QCoreApplication::processEvents();
        if (Find<QTabWidget>(form, "SSTab1").currentIndex() != row.tab) return;
        EXPECT_GE(PictureOn(form), least) << size.width();
      });
    }
  }
}

TEST_F(PageRoom, RibbonsOfARowStandLevel) {
  const std::vector<std::tuple<Tool, const char*, const char*>> rows{
      {Tool::Ctd, "SSRibbon1(0)", "SSRibbon2(0)"},  {Tool::Ctd, "SSRibbon4(0)", "SSRibbon5(0)"},
      {Tool::Rula, "SSRibbon1(0)", "SSRibbon4(0)"}, {Tool::Rula, "SSRibbon2(0)", "SSRibbon5(0)"},
      {Tool::Reba, "SSRibbon1(0)", "SSRibbon4(0)"}, {Tool::Reba, "SSRibbon2(0)", "SSRibbon5(0)"},
      {Tool::Reba, "SSRibbon3(0)", "SSRibbon6(0)"},
  };
  for (const auto& [tool, left, right] : rows) {
    for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
      const auto form = Shown(tool, size);
      const QRect one = PlaceOf(Find<RibbonButton>(*form, left));
      const QRect other = PlaceOf(Find<RibbonButton>(*form, right));
      EXPECT_EQ(one.top(), other.top()) << left << " " << size.width();
      EXPECT_EQ(one.height(), other.height()) << left << " " << size.width();
      EXPECT_LT(one.right(), other.left()) << left << " " << size.width();
    }
  }
}

TEST_F(PageRoom, BodyPartsFillTheirPageAndKeepTheirPictures) {
  const auto form = Shown(Tool::Ctd, {1120, 700});
  auto& tabs = Find<QTabWidget>(*form, "SSTab1");
  tabs.setCurrentIndex(1);
  QCoreApplication::processEvents();
  const int picture = PictureOn(*form);
  for (int part = 0; part < 4; ++part) {
    Find<RibbonButton>(*form, ElementName("SSRibbon3", part)).click();
    QCoreApplication::processEvents();
    EXPECT_EQ(PictureOn(*form), picture) << part;
    std::vector<QRect> frames;
    for (int slot = 0; slot < 8; ++slot) {
      const auto& frame = Find<QGroupBox>(*form, ElementName("SSFrame3", slot));
      if (frame.isVisible()) frames.push_back(PlaceOf(frame));
    }
    ASSERT_EQ(frames.size(), 2U) << part;
    if (frames[0].top() > frames[1].top()) std::swap(frames[0], frames[1]);
    const QRect page = PlaceOf(*tabs.currentWidget());
    EXPECT_NEAR(frames[0].top(), page.top(), 2 * kMargin) << part;
    EXPECT_NEAR(frames[1].bottom(), page.bottom(), 2 * kMargin) << part;
    EXPECT_NEAR(frames[0].height(), frames[1].height(), 1) << part;
    // Apart from each other by less than a quarter of one.
    EXPECT_LT(frames[1].top() - frames[0].bottom(), frames[0].height() / 4) << part;
  }
}

TEST_F(PageRoom, RowsOfTheStrainIndexStandLevelAndGrowToALimit) {
  for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
    const auto form = Shown(Tool::StrainIndex, size);
    for (int row = 0; row < 5; ++row) {
      const QRect first = PlaceOf(Find<RibbonButton>(*form, ElementName("SSRibbon1", row)));
      for (const auto& [array, columns] :
           {std::pair{"SSRibbon1", 3}, {"SSRibbon2", 4}, {"SSRibbon3", 2}}) {
        for (int column = 0; column < columns; ++column) {
          const QString name = ElementName(array, column * 5 + row);
          const QRect place = PlaceOf(Find<RibbonButton>(*form, name));
          EXPECT_EQ(place.top(), first.top()) << name.toStdString() << " " << size.width();
          EXPECT_EQ(place.height(), first.height()) << name.toStdString();
        }
      }
      EXPECT_LE(first.height(), 112);
      if (size.height() > 1000) {
        EXPECT_EQ(first.height(), 112);
      }
    }
  }
}

TEST_F(PageRoom, HeadingsHaveTwoLinesAtMost) {
  const QFont usual = QApplication::font();
  for (const int points : {8, 9, 12, 14, 20}) {
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    const auto form = Shown(Tool::StrainIndex, QSize(960, 620));
    form->resize(form->minimumSize());
    QCoreApplication::processEvents();
    int headings = 0;
    for (const auto* heading : form->findChildren<HeadingLabel*>()) {
      const QRect inside = heading->contentsRect();
      const QRect needed = heading->fontMetrics().boundingRect(
          0, 0, inside.width(), QWIDGETSIZE_MAX, Qt::TextWordWrap, heading->text());
      EXPECT_LE(needed.height(), inside.height()) << heading->text().toStdString() << points;
      EXPECT_LE(needed.width(), inside.width()) << heading->text().toStdString() << points;
      ++headings;
    }
    EXPECT_EQ(headings, 9);
  }
  QApplication::setFont(usual);
}

TEST_F(PageRoom, BoxesStandBesideTheirLabelsOnOneLine) {
  for (const Tool tool : {Tool::Ctd, Tool::StrainIndex}) {
    const auto form = Shown(tool, {1900, 1040});
    int pairs = 0;
    for (const auto* label : form->findChildren<QLabel*>()) {
      const auto* box = qobject_cast<TextBox*>(label->buddy());
      const bool isNumber = box != nullptr && qobject_cast<QGroupBox*>(box->parentWidget());
      if (!isNumber || !label->isVisible()) continue;
      const QRect text(PlaceOf(*label).topLeft(), label->sizeHint());
      const QRect place = PlaceOf(*box);
      EXPECT_NEAR(PlaceOf(*label).center().y(), place.center().y(), 1)
          << label->text().toStdString();
      // As near as the longest label of its frame allows.
      EXPECT_LE(place.left() - text.right(), 80) << label->text().toStdString();
      ++pairs;
    }
    EXPECT_EQ(pairs, tool == Tool::Ctd ? 7 : 5);
  }
}

}  // namespace
}  // namespace halvane
