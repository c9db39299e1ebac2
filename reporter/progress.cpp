#include "reporter/progress.h"

#include <algorithm>

#include "core/number_text.h"

namespace halvane {
namespace {

/// Work that is done sooner needs no bar.
constexpr double kPatience = 1;  // seconds
constexpr double kUpdateEvery = 0.1;
constexpr std::size_t kBarWidth = 30;
/// Back to the start of the line, and clear from there.
constexpr std::string_view kEraseLine = "\r\x1B[K";

std::string CountText(std::size_t count) {
  return PlainText(static_cast<double>(count)) + (count == 1 ? " job" : " jobs");
}

}  // namespace

Progress::Progress(Surroundings surroundings)
    : surroundings_(std::move(surroundings)), nextUpdate_(surroundings_.seconds() + kPatience) {}

void Progress::Advance() {
  ++done_;
  const double now = surroundings_.seconds();
  if (now < nextUpdate_) return;
  nextUpdate_ = now + kUpdateEvery;
  if (!isCounted_) {
    isCounted_ = true;
    const auto left = surroundings_.jobsLeft();
    if (left) total_ = done_ + *left;
  }
  surroundings_.write(std::string(kEraseLine) + Text());
  isShown_ = true;
}

void Progress::Clear() {
  if (!isShown_) return;
  isShown_ = false;
  surroundings_.write(kEraseLine);
}

std::string Progress::Text() const {
  if (!total_) return CountText(done_) + " done";
  // Files can come in while the work goes on.
  const std::size_t total = std::max(*total_, done_);
  const std::size_t filled = kBarWidth * done_ / total;
  std::string text("[");
  text.append(filled, '#').append(kBarWidth - filled, '.').append("] ");
  const std::size_t percent = 100 * done_ / total;
  text += PlainText(static_cast<double>(percent));
  return text + " % of " + CountText(total);
}

}  // namespace halvane
