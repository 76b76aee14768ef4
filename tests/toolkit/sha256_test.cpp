#include "toolkit/sha256.h"

#include "support/testing.h"

namespace veln {
namespace {

// The one-block and two-block messages of FIPS 180-4's examples, the empty one, and a million letters.
TEST(Sha256, PublishedMessagesHaveThePublishedDigests)
{
  const std::vector<std::pair<std::string, std::string>> published = {
      {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
      {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
      {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
       "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
      {std::string(1'000'000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}};
  for (const auto& [message, digest] : published) {
    EXPECT_EQ(Sha256Hex(message), digest) << message.size() << " bytes";
  }
}

TEST(Sha256, PiecesOfAnyLengthMakeTheDigestOfTheWhole)
{
  std::string bytes;
  for (int i = 0; i < 300; ++i) {
    bytes += static_cast<char>(i * 7);
  }
  for (std::size_t piece = 1; piece <= 130; ++piece) {
    Sha256 digest;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      digest.Add(std::string_view(bytes).substr(at, piece));
    }
    ASSERT_EQ(digest.Hex(), Sha256Hex(bytes)) << piece;
  }
}

}  // namespace
}  // namespace veln
