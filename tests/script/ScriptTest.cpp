#include "script/Script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "headless/Headless.h"
#include "host/Error.h"
#include "host/PpdSession.h"
#include "script/ScriptRunner.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPpd.h"

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

TEST(Script, SetsAChoiceByItsKeywordNotByItsPlace) {
  const TemporaryFolder folder;
  const auto session = std::make_shared<host::PpdSession>(host::PpdFile::open(
      folder.write("numbers.ppd", ppdText(option("printFinish", "Finish", "1",
                                                 {{"2", "Glossy"}, {"1", "0"}, {"0", "Matte"}})))));
  headless::Module module;
  headless::UserInput user;
  std::ostringstream transcript;
  std::ostringstream errors;
  script::ScriptRunner runner(module, session, user, transcript, errors);
  for (const auto &[value, marked] :
       {std::pair("2", "2"), {"0", "0"}, {"1", "1"}, {"Glossy", "2"}}) {
    std::istringstream script(std::string("set printFinish ") + value + '\n');
    EXPECT_TRUE(runner.run(script, "script")) << errors.str();
    EXPECT_EQ(session->markedChoice("printFinish"), marked) << value;
  }
}

}  // namespace
}  // namespace kwopde::test
