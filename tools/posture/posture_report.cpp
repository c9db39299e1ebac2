#include "tools/posture/posture_report.h"

#include "core/number_text.h"

namespace halvane {

void WritePosture(RichText& RichTextBox1, std::string_view region, const PostureControl& control,
                  std::string_view behind) {
  const PostureChoice& choice = ChoiceAt(control, control.IndexOf(control.state.Value()));
  RichTextBox1.Append(kNewLine, region, kTab, choice.caption, behind, kTab,
                      Format(control.factor.Value(), Pattern::Whole));
}

void WriteIfSet(RichText& RichTextBox1, std::string_view region, const PostureControl& control,
                std::initializer_list<std::string_view> wordings) {
  const int index = control.IndexOf(control.state.Value());
  if (!control.Has(index)) return;
  const Integer value = control.kind == PostureKind::CountedBox ? ChoiceAt(control, index).score
                                                                : control.factor.Value();
  const std::size_t wording = CheckedSubscript(index - control.first, wordings.size());
  RichTextBox1.Append(kNewLine, region, kTab, wordings.begin()[wording], kTab,
                      Format(value, Pattern::Whole));
}

}  // namespace halvane
