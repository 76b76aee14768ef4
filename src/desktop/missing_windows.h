#pragma once

#include "workspace/workflow.h"

#include <array>

namespace veln {

/// Entries of the main menu whose windows are not there yet; they stay disabled whatever the workflow says.
inline constexpr std::array<MenuEntry, 2> EntriesOfMissingWindows = {MenuEntry::mnuSG, MenuEntry::mnuSHowMap};

}  // namespace veln
