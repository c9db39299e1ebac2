#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/job_fields.h"
#include "core/job_state.h"
#include "reporter/failure.h"
#include "tools/tool_table.h"

namespace halvane {

/// A field of a job and what it holds.
struct FieldValue {
  FieldName name;
  TaggedField value;
};

/// Which field of a job makes a tool fail: the first one, in the order of the file, with which it
/// fails while all fields behind it are those of an empty job. So the fields before it have their
/// part in it too, as two numbers have whose product is too large. `fails` runs the tool on
/// `Module1`, which is another job afterwards; nothing where no field can be told.
std::optional<FieldValue> FieldThatFails(const JobState& job, const std::function<bool()>& fails);

/// Gives the failure of a tool on `opened`, the job of `file` as it was read, its place. `run` does
/// on `Module1` what failed. `Module1` is as it was afterwards.
void ExplainFailure(ReportFailure& failure, const ToolRow& tool, const JobState& opened,
                    const std::string& file, const std::function<void()>& run);

/// Why a tool fails on a field, in words; `kind` is the name of the failure.
std::string ReasonOfFailure(std::string_view kind, const FieldValue& field);

/// The working value that stopped the tool which has just failed, where it was one in a gap between
/// two bands; without its line.
std::optional<ReportFailure::Place> GapMet(const ToolRow& tool);

}  // namespace halvane
