#pragma once

#include <string>
#include <vector>

namespace veln {

/// The program and arguments that open `document` with the user's text editor. If the whole of `editor`
/// without outer blanks names an existing file, that is the program; otherwise it is split at blanks, where
/// double quotes hold blanks together. The document is always one argument, whatever its name holds. No shell
/// is involved. Throws Refusal if `editor` is blank.
std::vector<std::string> EditorCommand(const std::string& editor, const std::string& document);

/// Starts a program without waiting for it and without tying its life to ours: first the program (searched
/// along the path), then its arguments. Throws Refusal with the system's text if it cannot be started.
void StartProgram(const std::vector<std::string>& command);

}  // namespace veln
