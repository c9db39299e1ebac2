#include <windows.h>

#include <algorithm>

#include "core/file_calls.h"
#include "core/file_calls_windows.h"
#include "core/job_text_encoding.h"
#include "core/wide_text_windows.h"
#include "reporter/output.h"

namespace halvane {
namespace {

/// The most bytes of one call: consoles refuse long texts.
constexpr std::size_t kMostAtOnce = 8192;

/// Whether a console shows what is written; `mode` is how.
bool IsConsole(HANDLE output, DWORD& mode) { return GetConsoleMode(output, &mode) != 0; }

/// Consoles take text in their own code page or in the system's characters, so it is turned into
/// these. `size` is how many bytes of `text` went out.
bool WriteToConsole(HANDLE output, std::string_view text, DWORD& size) {
  const std::size_t whole = WholeCharacters(text);
  const std::string_view piece = text.substr(0, whole == 0 ? text.size() : whole);
  const std::wstring wide = WideText(piece);
  DWORD written = 0;
  size = static_cast<DWORD>(piece.size());
  return WriteConsoleW(output, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr) !=
         0;
}

/// The error of the system when not all of `text` can be written.
std::error_code Write(HANDLE output, std::string_view text) {
  DWORD mode = 0;
  const bool isConsole = IsConsole(output, mode);
  while (!text.empty()) {
    const std::string_view piece = text.substr(0, kMostAtOnce);
    DWORD count = 0;
    const bool written =
        isConsole ? WriteToConsole(output, piece, count)
                  : WriteFile(output, text.data(),
                              static_cast<DWORD>(std::min<std::size_t>(text.size(), MAXLONG)),
                              &count, nullptr) != 0;
    if (!written) return files::LastError();
    text.remove_prefix(count);
  }
  return {};
}

}  // namespace

StandardOutput::StandardOutput() = default;

std::string_view StandardOutput::NextPiece(std::string_view rest) const {
  return rest.substr(0, mostAtOnce_);
}

void StandardOutput::Flush() {
  const std::error_code error = Write(GetStdHandle(STD_OUTPUT_HANDLE), NextPiece(pending_));
  pending_.clear();
  if (error) throw OutputFailure(files::ReasonOf(error));
}

bool OutputIsTerminal() {
  DWORD mode = 0;
  return IsConsole(GetStdHandle(STD_OUTPUT_HANDLE), mode);
}

bool ErrorIsTerminal() {
  auto* const error = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  // One that knows no control sequences is none to move about on.
  return IsConsole(error, mode) &&
         SetConsoleMode(error, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

void WriteErrorText(std::string_view text) { Write(GetStdHandle(STD_ERROR_HANDLE), text); }

}  // namespace halvane
