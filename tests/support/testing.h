#pragma once

// What nearly every test needs.
#include "support/files.h"
#include "support/refusals.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veln {

using testing::AllOf, testing::Contains, testing::DoubleNear, testing::Each, testing::ElementsAre,
    testing::ElementsAreArray, testing::EndsWith, testing::HasSubstr, testing::IsEmpty, testing::Not,
    testing::Pair, testing::StartsWith;

}  // namespace veln
