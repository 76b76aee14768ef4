#pragma once

namespace veln {

/// The version, as title, About window and command line tell it.
inline constexpr const char* ProgramVersion = "2.35R";

}  // namespace veln
