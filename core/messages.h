#pragma once

namespace halvane {

// What the program tells and asks in message boxes, to the letter; blanks and spelling are wanted.

/// The program's name as messages, windows and the desktop show it.
inline constexpr auto kProgramTitle = "Halvane Tools";
inline constexpr auto kMaker = "Ostrel";
inline constexpr auto kMadeBy = "Made by Ostrel";

// Job files.
inline constexpr auto kSaveBeforeClosing = "Save data before closing this file?";
inline constexpr auto kWrongFile =
    "This file is not an 'Ostrel - Halvane' File.  Open File will be cancel.";

// The end of the program.
inline constexpr auto kExitQuestion = "Exit Program?";
inline constexpr auto kSaveBeforeExiting = "Save data before exiting this program?";
inline constexpr auto kHasToEnd = " has to end.";
inline constexpr auto kUnexpectedFailure = "Unexpected failure";
inline constexpr auto kNothingUnsaved = "The job has no changes that are not saved.";
inline constexpr auto kCopySavedAs = "A copy of the job was saved as\n";
inline constexpr auto kJobNotSaved = "The job could not be saved.\n";
inline constexpr auto kJournalIs = "What was in it a moment ago is in the journal\n";

// Task lists.
inline constexpr auto kDeleteTaskQuestion =
    "You are about to delete a Task. If you click Yes, you won't be able to undo this Delete "
    "operation.  Are you sure you want to delete this task?";
inline constexpr auto kNoTaskTitle = "Job Information";
inline constexpr auto kNoTaskSelected =
    "You must select a Task to Delete. If the Task list is empty use Add Task to create the first "
    "Task list.";

// The file of the pocket computer.
inline constexpr auto kFileCopied = "File copied!";
inline constexpr auto kFileNotCopied = "Error. File not moved!";

// Help and about.
inline constexpr auto kNoHelpFileName = " is not a valid HTML Help file.";
inline constexpr auto kHelpFileMissing = " does not exist.\nPlease install the help files of ";
inline constexpr auto kHelpFileSoughtToo = "\n\nIt was looked for here too:";
inline constexpr auto kNoSystemInformation = "System Information Is Unavailable At This Time";

}  // namespace halvane
