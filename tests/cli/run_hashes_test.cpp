#include "cli/run_hashes.h"

#include <gtest/gtest.h>

namespace veln {
namespace {

// The list comes from the release build (update_run_hashes.sh). It does not say that the files are right,
// which the other tests do: it pins the builds to each other, so that the debug and sanitizer builds are
// shown to give the bytes of the program that users run. A change of what is written makes it anew.
// Logarithm, exponential, sine and cosine are the C library's.
TEST(Builds, GiveTheSameBytes)
{
  EXPECT_EQ(HashRuns(), ReadText(VELN_TEST_DATA "/expected_hashes.txt"));
}

// Known values of the hash, from its authors' test vectors.
TEST(Fnv1aHash, HasItsKnownValues)
{
  EXPECT_EQ(Fnv1a(""), "cbf29ce484222325");
  EXPECT_EQ(Fnv1a("a"), "af63dc4c8601ec8c");
  EXPECT_EQ(Fnv1a("foobar"), "85944171f73967e8");
}

}  // namespace
}  // namespace veln
