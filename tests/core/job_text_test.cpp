#include "core/job_text.h"

#include <gtest/gtest.h>

#include <string>

#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// Jobs that are read as long ones, in blocks so small that everything crosses from one to the
/// next.
class LongJob : public testing::TestWithParam<std::size_t> {
 protected:
  void Read(std::string_view bytes) {
    WriteBytes(path_, bytes);
    Module1 = JobState{};
    InputFile file(path_);
    JobText text(file, {bytes.size(), GetParam()});
    ASSERT_EQ(SizeForJobText(text), OpenOutcome::Opened);
    ReadJobText(text);
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("job.qjt");
};

TEST_P(LongJob, HasEveryFieldOfTheShortOne) {
  Read(FilledJobText());
  EXPECT_EQ(JobFileBytes(Module1), FilledJobText());
}

TEST_P(LongJob, LettersThatCrossFromBlockToBlockAreWhole) {
  const std::string name = "Łódź 日本 \U0001F600\U0001F600\U0001F600 €";
  Read(EmptyJobWith(4, "\"" + name + "\",\"\",\"\",0,8"));
  EXPECT_EQ(Module1.JobAnalyst, TaggedField(name));
}

TEST_P(LongJob, OneByteThatIsNoUtf8MakesAllOfItTheCodePage) {
  Read(EmptyJobWith(4, "\"\xC3\xA9\",\"\xE9\x80\",\"\",0,8"));
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Ã©"));
  EXPECT_EQ(Module1.JobName, TaggedField("é€"));
  // A letter that its last byte is missing of.
  Read(EmptyJobWith(4, "\"\",\"\xE2\x82\",\"\",0,8"));
  EXPECT_EQ(Module1.JobName, TaggedField("â‚"));
}

TEST_P(LongJob, TextBehindItsEndIsThereToBeLookedAt) {
  const std::string job = EmptyJobText();
  WriteBytes(path_, job + "more \xE9");
  InputFile file(path_);
  JobText text(file, {job.size() + 1, GetParam()});
  text.FindFields();
  EXPECT_EQ(text.From(job.size()), "more é");
}

INSTANTIATE_TEST_SUITE_P(Blocks, LongJob, testing::Values(4, 5, 6, 7, 64, 65536));

}  // namespace
}  // namespace halvane
