#pragma once

#include <cstdlib>
#include <vector>

namespace veln {

/// Which of so many operations get a fault: with VELN_FAULTS=all every one, else a few spread over them.
inline std::vector<long> FaultSteps(long operations, long first)
{
  constexpr long Sample = 5;
  const bool all = std::getenv("VELN_FAULTS") != nullptr;
  std::vector<long> steps;
  for (long at = all ? 1 : first; at <= operations; at += all ? 1 : operations / Sample + 1) {
    steps.push_back(at);
  }
  return steps;
}

}  // namespace veln
