#include "reporter/job_list.h"

#include "core/file_calls.h"
#include "reporter/piped_job.h"

namespace halvane {

JobList::JobList(std::vector<std::string> names, std::optional<InputLines> list)
    : names_(std::move(names)), list_(std::move(list)) {}

JobList JobList::OfFolder(std::string name) {
  JobList list({});
  list.Enter(std::move(name));
  return list;
}

void JobList::Enter(std::string folder) {
  folder_.emplace(folder);
  folderName_ = std::move(folder);
  folderHasFiles_ = false;
}

std::optional<std::string> JobList::Next(std::vector<std::string>& complaints) {
  while (true) {
    if (auto path = NextInFolder(complaints)) return path;
    auto name = NextName(complaints);
    if (!name || isStandardInput_ || IsJobFileName(*name) || !files::IsFolder(*name)) return name;
    Enter(*std::move(name));
  }
}

std::optional<std::string> JobList::NextInFolder(std::vector<std::string>& complaints) {
  if (!folder_) return std::nullopt;
  const std::size_t before = complaints.size();
  auto path = folder_->Next(complaints);
  if (path) {
    folderHasFiles_ = true;
    return path;
  }
  // Who named a folder expects something of it.
  if (!folderHasFiles_ && complaints.size() == before) {
    complaints.push_back(folderName_ + ": there is no job file (.qjt) in this folder");
  }
  folder_.reset();
  return std::nullopt;
}

std::optional<std::string> JobList::NextName(std::vector<std::string>& complaints) {
  isStandardInput_ = nextName_ < names_.size() && names_[nextName_] == kStandardInput;
  if (nextName_ < names_.size()) return names_[nextName_++];
  return list_ ? list_->Next(complaints) : std::nullopt;
}

bool JobList::isNextAtHand() const {
  return folder_ || nextName_ < names_.size() || !list_ || list_->IsAtHand();
}

std::optional<std::size_t> JobList::CountLeft() const {
  if (list_) return std::nullopt;
  std::vector<std::string> ignored;
  JobList rest(*this);
  std::size_t count = 0;
  while (rest.Next(ignored)) ++count;
  return count;
}

}  // namespace halvane
