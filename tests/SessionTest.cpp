#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "host/Error.h"
#include "host/PpdSession.h"
#include "host/Script.h"
#include "tests/support/TestPpd.h"

namespace kwopde::test {
namespace {

using host::Error;
using host::PpdFile;
using host::PpdSession;
using testing::ElementsAre;
using testing::HasSubstr;

std::string written(const std::string &name, const std::string &text) {
  const std::string path = testing::TempDir() + name;
  std::ofstream(path) << text;
  return path;
}

std::string whyNot(const std::string &path) {
  try {
    PpdFile::open(path);
  } catch (const Error &error) {
    return error.what();
  }
  return "opened";
}

TEST(PpdFile, SaysWhichFileAndLineCannotBeRead) {
  EXPECT_EQ(whyNot("/nonexistent.ppd"), "/nonexistent.ppd: No such file or directory");
  EXPECT_EQ(whyNot("/etc"), "/etc: Is a directory");
  EXPECT_THAT(whyNot(written("empty.ppd", "")), HasSubstr("empty.ppd:"));
  EXPECT_THAT(whyNot(written("bad.ppd", ppdText("*" + std::string(60, 'x') + ": 1\n"))),
              testing::MatchesRegex(".*bad.ppd:[0-9]+: .+"));
}

TEST(PpdSession, MarksWhatIsListedAndRefusesTheRest) {
  PpdSession session(PpdFile::open(written("media.ppd", ppdText(kMediaOptions))));
  const std::string key = "pageScale";
  const std::string listed = "85";
  const std::string unlisted = "86";
  const std::string unknown = "nothing";
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(&key, &unlisted));
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(&unknown, &listed));
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(nullptr, &listed));
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(&key, nullptr));
  EXPECT_EQ(session.markedChoice(key), "100");
  EXPECT_TRUE(session.changedChoices().empty());
  EXPECT_TRUE(session.willChangePPDOptionKeyValue(&key, &listed));
  session.refuseAll(true);
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(&key, &listed));
  ASSERT_EQ(session.changedChoices().size(), 1u);
  EXPECT_EQ(session.changedChoices()[0].key, "pageScale");
  EXPECT_EQ(session.changedChoices()[0].choice, "85");
  EXPECT_TRUE(session.mark("mirrorImage", "Horizontal"));
  EXPECT_FALSE(session.mark("mirrorImage", "Diagonal"));
  EXPECT_EQ(session.markedChoice("nothing"), std::nullopt);
}

TEST(Script, SplitsLinesIntoWords) {
  using host::splitWords;
  using host::Word;
  EXPECT_THAT(splitWords("a  b\t\"c d\" # e"), ElementsAre(Word("a"), Word("b"), Word("c d")));
  EXPECT_THAT(splitWords("\"\\\"\\\\\\n\" nil \"nil\" \"\" a#b"),
              ElementsAre(Word("\"\\\\n"), Word(), Word("nil"), Word(""), Word("a#b")));
  for (const char *blank : {"", "  ", "# only", "\t#"}) EXPECT_TRUE(splitWords(blank).empty());
  for (const char *open : {"\"", "a \"b", "\"\\\""}) EXPECT_THROW(splitWords(open), Error);
}

}  // namespace
}  // namespace kwopde::test
