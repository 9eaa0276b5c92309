#include <cups/cups.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <random>
#include <set>

#include "host/Error.h"
#include "host/JobOptions.h"
#include "host/PpdSession.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPpd.h"

namespace kwopde::test {
namespace {

using host::Error;
using host::PpdFile;
using host::PpdSession;
using testing::ElementsAre;
using testing::HasSubstr;

std::string written(const std::string &name, const std::string &text) {
  static const TemporaryFolder folder;
  return folder.write(name, text);
}

std::string whyNot(const std::string &path) {
  try {
    PpdFile::open(path);
  } catch (const Error &error) {
    return error.what();
  }
  return "opened";
}

/// What a job carries of the session, "KEY=CHOICE".
std::vector<std::string> carried(const PpdSession &session) {
  host::JobOptions job;
  job.carry(session);
  std::vector<std::string> list;
  for (const auto &[key, choice] : job.all()) list.push_back(key + '=' + choice);
  return list;
}

TEST(PpdFile, SaysWhichFileAndLineCannotBeRead) {
  EXPECT_EQ(whyNot("/nonexistent.ppd"), "/nonexistent.ppd: No such file or directory");
  EXPECT_EQ(whyNot("/etc"), "/etc: Is a directory");
  EXPECT_THAT(whyNot(written("empty.ppd", "")), HasSubstr("empty.ppd:"));
  EXPECT_THAT(whyNot(written("bad.ppd", ppdText("*" + std::string(60, 'x') + ": 1\n"))),
              testing::MatchesRegex(".*bad.ppd:[0-9]+: .+"));
}

// What would take minutes, or a gigabyte, is not begun.
TEST(PpdFile, IsRefusedWhenReadingItWouldCostTooMuch) {
  const std::string packed = written("packed.ppd", "");
  cups_file_t *file = cupsFileOpen(packed.c_str(), "w9");
  cupsFilePuts(file, ppdText(kMediaOptions).c_str());
  std::string comments;
  for (int i = 0; i < 5000; ++i) comments.append("*%").append(198, '%').append("\n");
  const auto grow = [&](int megabytes) {
    for (int i = 0; i < megabytes; ++i) cupsFileWrite(file, comments.data(), comments.size());
  };
  grow(1);
  cupsFileClose(file);
  EXPECT_EQ(whyNot(packed), "opened");
  file = cupsFileOpen(packed.c_str(), "w9");
  cupsFilePuts(file, ppdText(kMediaOptions).c_str());
  grow(40);
  cupsFileClose(file);
  EXPECT_EQ(whyNot(packed), packed + ": has more than 32 MB");

  std::string options;
  std::string choices;
  for (int i = 0; i < 40000; ++i) {
    const std::string key = "key" + std::to_string(i);
    options += option(key, key, "A", {{"A", "A"}});
    choices += "*many " + key + ": \"\"\n";
  }
  EXPECT_THAT(whyNot(written("options.ppd", ppdText(options))), HasSubstr("too many options"));
  // The library ends a line at either byte, wherever it stands.
  for (const char end : {'\n', '\r'}) {
    std::replace(choices.begin(), choices.end(), '\n', end);
    EXPECT_THAT(whyNot(written("choices.ppd", ppdText("*OpenUI *many: PickOne\n" + choices +
                                                      "*CloseUI: *many\n"))),
                HasSubstr("too many options"));
  }
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
  EXPECT_TRUE(carried(session).empty());
  EXPECT_TRUE(session.willChangePPDOptionKeyValue(&key, &listed));
  session.refuseAll(true);
  EXPECT_FALSE(session.willChangePPDOptionKeyValue(&key, &listed));
  EXPECT_THAT(carried(session), ElementsAre("pageScale=85"));
  EXPECT_TRUE(session.mark("mirrorImage", "Horizontal"));
  EXPECT_FALSE(session.mark("mirrorImage", "Diagonal"));
  EXPECT_EQ(session.markedChoice("nothing"), std::nullopt);
}

class Announced final : public host::SessionObserver {
public:
  void requestWasAnswered(const std::string *, const std::string *,
                          const host::Answer &answer) override {
    last = answer.reason;
  }
  void willAnnounce(const host::OptionChoice &change) override {
    all.push_back(change.key + "=" + change.choice);
  }
  host::Answer::Reason last{};
  std::vector<std::string> all;
};

struct SessionOn {
  explicit SessionOn(const std::string &options)
      : session(PpdFile::open(written("session.ppd", ppdText(options)))) {
    session.addObserver(&announced);
  }
  bool request(const std::string &key, const std::string &choice) {
    announced.all.clear();
    return session.willChangePPDOptionKeyValue(&key, &choice);
  }
  std::string marked(const std::string &key) { return session.markedChoice(key).value_or("nil"); }

  Announced announced;
  PpdSession session;
};

const std::string kConstrained =
    option("quality", "Quality", "Fine", {{"Fine", "Fine"}, {"Draft", "Quick"}}) +
    option("finish", "Finish", "Glossy", {{"Glossy", "Glossy"}, {"Matte", "Matte"}}) +
    option("duplex", "Duplex", "Off", {{"Off", "Off"}, {"On", "On"}});

TEST(Constraints, OtherOptionsGiveWayAndAreAnnounced) {
  for (const std::string rule : {"*UIConstraints: *quality Draft *finish Matte\n*UIConstraints: "
                                 "*finish Matte *quality Draft\n",
                                 "*cupsUIConstraints rule: \"*quality Draft *finish Matte\"\n"
                                 "*cupsUIResolver rule: \"*finish Glossy\"\n"}) {
    SessionOn on(kConstrained + rule);
    EXPECT_TRUE(on.request("finish", "Matte"));
    EXPECT_TRUE(on.announced.all.empty());
    EXPECT_TRUE(on.request("quality", "Draft"));
    EXPECT_THAT(on.announced.all, ElementsAre("finish=Glossy"));
    EXPECT_EQ(on.marked("finish"), "Glossy");
    EXPECT_THAT(carried(on.session), ElementsAre("quality=Draft"));
  }
}

TEST(Constraints, UnresolvableRequestsAreRefusedAndChangeNothing) {
  // The installed hardware decides, and it cannot be changed from here.
  SessionOn on(kConstrained + "*OpenGroup: InstallableOptions/Installed\n" +
               option("unit", "Duplexer", "False", {{"False", "No"}, {"True", "Yes"}}) +
               "*CloseGroup: InstallableOptions\n*UIConstraints: *duplex On *unit False\n"
               "*UIConstraints: *unit False *duplex On\n");
  EXPECT_FALSE(on.request("duplex", "On"));
  EXPECT_EQ(on.announced.last, host::Answer::Reason::conflict);
  EXPECT_EQ(on.marked("duplex"), "Off");
  EXPECT_TRUE(on.request("quality", "Draft"));
}

// Few choices are asked about, and the answer is that of asking about every one.
TEST(Constraints, AreThoseOfAskingAboutEveryChoice) {
  std::mt19937 random(1);
  const auto pick = [&](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  int found = 0;
  for (int round = 0; round < 60; ++round) {
    const std::vector<std::string> words{"None", "Off", "a", "b", "c", "d"};
    const std::vector<std::string> keys{"PageSize", "PageRegion", "x", "Y", "z", "alone"};
    std::string text;
    for (const auto &key : keys)
      text += option(key, key, "a",
                     {{"None", ""}, {"Off", ""}, {"a", ""}, {"b", ""}, {"c", ""}, {"d", ""}});
    for (int rule = 0; rule < 6; ++rule) {
      const auto member = [&] {
        return "*" + keys[static_cast<std::size_t>(pick(5))] +
               (pick(3) ? " " + words[static_cast<std::size_t>(pick(6))] : "");
      };
      text += round % 2 ? "*cupsUIConstraints: \"" + member() + " " + member() +
                              (pick(2) ? " " + member() : "") + "\"\n"
                        : "*UIConstraints: " + member() + " " + member() + "\n";
    }
    const PpdFile ppd = PpdFile::open(written("constraints.ppd", ppdText(text)));
    const host::Constraints constraints(ppd.get());
    for (const auto &key : keys)
      ppdMarkOption(ppd.get(), key.c_str(), words[static_cast<std::size_t>(pick(6))].c_str());
    const auto asked = [&](const std::string &key, const std::string &choice) {
      cups_option_t *list = nullptr;
      std::set<std::string> conflicts;
      const int count = cupsGetConflicts(ppd.get(), key.c_str(), choice.c_str(), &list);
      for (int i = 0; i < count; ++i) conflicts.insert(list[i].name);
      cupsFreeOptions(count, list);
      conflicts.erase(key);
      return conflicts;
    };
    for (const auto &key : keys)
      for (const auto &choice : words) {
        std::set<std::string> own;
        for (const auto &conflict : asked(key, choice))
          for (const auto &other : words)
            if (!asked(key, other).contains(conflict)) own.insert(conflict);
        std::set<std::string> told;
        for (const auto &conflict : constraints.of(*ppdFindOption(ppd.get(), key.c_str()), choice))
          told.insert(conflict.key);
        EXPECT_EQ(told, own) << key << ' ' << choice << '\n' << text;
        found += static_cast<int>(own.size());
      }
  }
  EXPECT_GT(found, 100);
}

TEST(Constraints, ConflictsOfOthersAreNotTheRequests) {
  SessionOn on(kConstrained +
               "*UIConstraints: *duplex Off *finish Glossy\n"
               "*UIConstraints: *finish Glossy *duplex Off\n");
  EXPECT_TRUE(on.request("quality", "Draft"));
  EXPECT_EQ(on.marked("finish"), "Glossy");
  EXPECT_TRUE(on.announced.all.empty());
}

TEST(CustomValues, NumbersAreListedInAnySpellingOrInsideTheLimits) {
  SessionOn on(option("scale", "Scale", "100", {{"85", "85"}, {"100", "100"}, {"2.2", "2.2"}}) +
               "*Customscale True: \"pop\"\n*ParamCustomscale Scale/Percent: 1 int 10 400\n" +
               option("gamma", "Gamma", "1", {{"1", "1"}}) +
               "*Customgamma True: \"pop\"\n*ParamCustomgamma Gamma/Gamma: 1 real 0.1 3.0\n" +
               option("width", "Width", "1", {{"1", "1"}}) +
               "*Customwidth True: \"pop\"\n*ParamCustomwidth Width/Width: 1 points 1 72\n"
               "*VariablePaperSize: True\n*CustomPageSize True: \"pop\"\n"
               "*ParamCustomPageSize Width: 1 points 100 1000\n"
               "*ParamCustomPageSize Height: 2 points 100 1000\n" +
               option("curve", "Curve", "1", {{"1", "1"}}) +
               "*Customcurve True: \"pop\"\n*ParamCustomcurve Curve/Curve: 1 curve 0.1 5\n" +
               option("word", "Word", "None", {{"None", "None"}}) +
               "*Customword True: \"pop\"\n*ParamCustomword Word/Word: 1 password 3 8\n" +
               option("code", "Code", "None", {{"None", "None"}}) +
               "*Customcode True: \"pop\"\n*ParamCustomcode Code/Code: 1 passcode 4 4\n" +
               option("mark", "Mark", "None", {{"None", "None"}}) +
               "*Custommark True: \"pop\"\n*ParamCustommark Text/Text: 1 string 1 20\n"
               "*ParamCustommark Angle/Angle: 2 int 0 359\n");
  const struct {
    const char *key;
    const char *request;
    const char *marked;  // null: refused
  } rows[] = {{"scale", "+85", "85"},
              {"scale", "2.200000", "2.2"},
              {"scale", "123", "Custom.123"},
              {"scale", "9", nullptr},
              {"scale", "401", nullptr},
              {"scale", "12.5", nullptr},
              {"scale", "12x", nullptr},
              {"gamma", "0.1", "Custom.0.1"},
              {"gamma", "3.000000", "Custom.3.000000"},
              {"gamma", "3.01", nullptr},
              {"width", "72", "Custom.72"},
              {"width", "nan", nullptr},
              {"gamma", "Custom.2.5", "Custom.2.5"},
              {"gamma", "Custom", nullptr},
              {"width", "Custom.1cm", "Custom.1cm"},
              {"width", "Custom.3cm", nullptr},
              {"PageSize", "Custom.300x500", "Custom.300x500"},
              {"PageSize", "Custom.10x15cm", "Custom.10x15cm"},
              {"PageSize", "Custom.3000x500", nullptr},
              {"PageSize", "Custom.300", nullptr},
              {"curve", "Custom.2.2", "Custom.2.2"},
              {"word", "Custom.secret", "Custom.secret"},
              {"word", "Custom.no", nullptr},
              {"code", "Custom.1234", "Custom.1234"},
              {"code", "Custom.12a4", nullptr},
              {"mark", "{Text=draft Angle=45}", "{Text=draft Angle=45}"},
              {"mark", "{Text=draft Angle=400}", nullptr},
              {"mark", "{Text=draft Colour=red}", nullptr}};
  for (const auto &row : rows) {
    const std::string before = on.marked(row.key);
    EXPECT_EQ(on.request(row.key, row.request), row.marked != nullptr) << row.request;
    EXPECT_EQ(on.marked(row.key), row.marked ? row.marked : before) << row.request;
  }
  // A panel reads the number back from the text of the marked choice.
  EXPECT_TRUE(on.request("scale", "123"));
  EXPECT_THAT(carried(on.session), testing::Contains("scale=Custom.123"));
  EXPECT_STREQ(ppdFindMarkedChoice(on.session.ppdFile(), "scale")->text, "123");
  EXPECT_TRUE(on.session.mark("scale", "50"));
  EXPECT_THAT(on.announced.all, ElementsAre("scale=50"));
  EXPECT_TRUE(on.request("scale", "85"));
  EXPECT_STREQ(ppdFindChoice(ppdFindOption(on.session.ppdFile(), "scale"), "Custom")->text,
               "Custom");
  EXPECT_FALSE(on.request("scale", "900"));
  EXPECT_EQ(on.announced.last, host::Answer::Reason::outsideLimits);
}

TEST(PpdFile, TranslatesTextsButNoNumbersInGerman) {
  ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
  SessionOn on("*cupsLanguages: \"de\"\n" +
               option("imageGamma", "Gamma", "1.500000", {{"1.500000", "1.50"}}) +
               option("finish", "Finish", "Matte", {{"Matte", "Matte"}}) +
               "*de.Translation imageGamma/Gammawert: \"\"\n*de.imageGamma 1.500000/1,50: \"\"\n"
               "*de.Translation finish/Papier: \"\"\n*de.finish Matte/Matt: \"\"\n");
  EXPECT_EQ(on.session.ppd().textOf("imageGamma"), "Gammawert");
  EXPECT_EQ(on.session.ppd().textOf("imageGamma", "1.500000"), "1.50");
  EXPECT_EQ(on.session.ppd().textOf("finish", "Matte"), "Matt");
  (void)std::setlocale(LC_ALL, "C");
}

TEST(PpdFile, TrimsTextsThatWereCutInTheMiddleOfACharacter) {
  const std::string cut = std::string(79, 'x') + "\u00e9\u00e9";
  SessionOn on(option("a", cut, "A", {{"A", cut}}));
  EXPECT_EQ(on.session.ppd().textOf("a"), std::string(79, 'x'));
  EXPECT_EQ(on.session.ppd().textOf("a", "A"), std::string(79, 'x'));
}

}  // namespace
}  // namespace kwopde::test
