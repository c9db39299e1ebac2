#include "widgets/wrapping_label.h"

#include <gtest/gtest.h>

#include "widgets/heading_label.h"

namespace halvane {
namespace {

constexpr auto kWords = "Rapid, steady motion, difficulty keeping up or continuous exertion";
constexpr auto kMoreWords =
    "Rapid, steady motion, difficulty keeping up or continuous exertion, and some words more";

QFont Larger(QFont font) {
  font.setPointSize(2 * font.pointSize());
  return font;
}

/// How high the toolkit's own label is.
int PlainHeight(const QString& text, const QFont& font, int width) {
  QLabel label(text);
  label.setFont(font);
  label.setWordWrap(true);
  return label.heightForWidth(width);
}

TEST(WrappingLabel, IsAsHighAsTheToolkitsAtEachWidth) {
  const WrappingLabel label(kWords, nullptr);
  for (int turn = 0; turn < 2; ++turn) {
    for (int width = 60; width < 400; width += 3) {
      EXPECT_EQ(label.heightForWidth(width), PlainHeight(kWords, label.font(), width)) << width;
    }
  }
}

TEST(WrappingLabel, FollowsItsTextAndItsFont) {
  constexpr int kWidth = 100;
  WrappingLabel label(kWords, nullptr);
  const int before = label.heightForWidth(kWidth);
  label.setText(kMoreWords);
  EXPECT_EQ(label.heightForWidth(kWidth), PlainHeight(kMoreWords, label.font(), kWidth));
  EXPECT_GT(label.heightForWidth(kWidth), before);
  label.setText(kWords);
  EXPECT_EQ(label.heightForWidth(kWidth), before);
  label.setFont(Larger(label.font()));
  EXPECT_EQ(label.heightForWidth(kWidth), PlainHeight(kWords, label.font(), kWidth));
  EXPECT_GT(label.heightForWidth(kWidth), before);
}

TEST(HeadingLabel, FollowsItsTextAndItsFont) {
  constexpr int kLines = 2;
  HeadingLabel label("Duration", kLines, nullptr);
  const QSize before = label.minimumSizeHint();
  label.setText(kWords);
  EXPECT_GT(label.minimumSizeHint().width(), before.width());
  EXPECT_EQ(label.minimumSizeHint(), HeadingLabel(kWords, kLines, nullptr).minimumSizeHint());
  label.setText("Duration");
  EXPECT_EQ(label.minimumSizeHint(), before);
  label.setFont(Larger(label.font()));
  EXPECT_GT(label.minimumSizeHint().height(), before.height());
}

}  // namespace
}  // namespace halvane
