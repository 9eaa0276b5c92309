#include "script/Script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/Error.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;

TEST(Script, SplitsLinesIntoWords) {
  using host::Error;
  using script::splitWords;
  using script::Word;
  EXPECT_THAT(splitWords("a  b\t\"c d\" # e"), ElementsAre(Word("a"), Word("b"), Word("c d")));
  EXPECT_THAT(splitWords("\"\\\"\\\\\\n\" nil \"nil\" \"\" a#b"),
              ElementsAre(Word("\"\\\\n"), Word(), Word("nil"), Word(""), Word("a#b")));
  for (const char *blank : {"", "  ", "# only", "\t#"}) EXPECT_TRUE(splitWords(blank).empty());
  for (const char *open : {"\"", "a \"b", "\"\\\""}) EXPECT_THROW(splitWords(open), Error);
}

}  // namespace
}  // namespace kwopde::test
