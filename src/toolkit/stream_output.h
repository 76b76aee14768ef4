#pragma once

#include <filesystem>
#include <string>

namespace veln {

/// Opens a device or FIFO that exists and writes to it; waits for a FIFO's reader. Throws Refusal with the
/// name and the system's reason, also when a signal is to end the program.
void WriteStream(const std::filesystem::path& path, const std::string& content);

}  // namespace veln
