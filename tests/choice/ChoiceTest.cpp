#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "choice/Utility.h"
#include "qt/QtControls.h"
#include "tests/support/RecordingHost.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A text that the CUPS library cuts to 80 bytes, in the middle of the last character.
const std::string kCut = std::string(79, 'x') + "\u00e9\u00e9";

class Choice : public testing::Test {
protected:
  Choice()
      : ppd_(option("quality", "Qualit\u00e4t", "Fine",
                    {{"Draft", "Entwurf \u00fc"}, {"Fine", "Fine %d"}, {"Long", kCut}}) +
             option("empty", kCut, "None", {})),
        choices_(ArrayFromPPDOption(ppd_.option("quality"))) {
    trace_.take();
  }

  TestPpd ppd_;
  TraceRecorder trace_;
  std::unique_ptr<ChoiceList> choices_;
};

TEST_F(Choice, HasTitlesAndPosition) {
  PDEChoice &fine = *choices_->at(1);
  EXPECT_EQ(*choices_->at(0)->userTitle(), "Entwurf \u00fc");
  EXPECT_TRUE(fine.isDefaultChoice());
  EXPECT_FALSE(choices_->at(0)->isDefaultChoice());
  TraceRecorder recorder;
  recorder.writeLine(fine.description());
  EXPECT_THAT(recorder.take(), ElementsAre("<PDEChoice 0x1 userTitle:\"Fine %d\" ppdTitle:\"Fine\" "
                                           "marked:YES choice:2 of 3>"));
  ppd_choice_t foreign = *fine.choice();
  EXPECT_EQ(PDEChoice(&foreign).position(), 0);
  const ppd_option_t *option = ppd_.option("quality");
  EXPECT_EQ(positionInOption(option->choices + 2, option), 3);
  EXPECT_EQ(positionInOption(option->choices + 3, option), 0) << "past the last";
}

TEST_F(Choice, TitlesAreMadeOnce) {
  PDEChoice &fine = *choices_->at(1);
  fine.userTitle();
  fine.ppdTitle();
  std::strcpy(fine.choice()->text, "Later");
  std::strcpy(fine.choice()->choice, "Later");
  EXPECT_EQ(*fine.userTitle(), "Fine %d");
  EXPECT_EQ(*fine.ppdTitle(), "Fine");
}

// A keyword fills its field when it has 41 bytes; there is then no zero behind it.
TEST_F(Choice, IsDefaultByAllOfTheField) {
  ppd_option_t option{};
  ppd_choice_t record{};
  record.option = &option;
  const std::string keyword(PPD_MAX_NAME, 'k');
  keyword.copy(option.defchoice, PPD_MAX_NAME);
  keyword.copy(record.choice, PPD_MAX_NAME);
  std::strcpy(record.text, "differs from what is behind the default");
  const PDEChoice choice(&record);
  EXPECT_TRUE(choice.isDefaultChoice());
  record.choice[PPD_MAX_NAME - 1] = 'l';
  EXPECT_FALSE(choice.isDefaultChoice());
}

// In a process of its own, where no choice has been made yet.
TEST(ChoiceDeathTest, FirstUsePreparesTheClass) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto first = [] {
    TraceRecorder trace;
    ppd_choice_t record{};
    const PDEChoice choice(&record);
    const PDEChoice second(&record);
    const bool isRead = choice.userTitle() != nullptr;
    return isRead && trace.take() == std::vector<std::string>{"LOG Encoding set as 4"} ? 0 : 1;
  };
  EXPECT_EXIT(std::_Exit(first()), testing::ExitedWithCode(0), "");
}

TEST_F(Choice, TitleThatCannotBeMadeIsNilAndTracedOnce) {
  PDEChoice &cut = *choices_->at(2);
  for (int call = 0; call < 2; ++call) {
    EXPECT_EQ(cut.userTitle(), nullptr);
    EXPECT_THAT(trace_.take(),
                ElementsAre("LOG self(<PDEChoice 0x1 userTitle:\"(null)\" ppdTitle:\"Long\" "
                            "marked:NO choice:3 of 3>) could not create userTitle!"));
  }
}

TEST_F(Choice, WithoutRecordIsHarmless) {
  PDEChoice none(nullptr);
  EXPECT_EQ(none.userTitle(), nullptr);
  EXPECT_EQ(none.ppdTitle(), nullptr);
  EXPECT_FALSE(none.isDefaultChoice());
  EXPECT_THAT(none.description(),
              testing::EndsWith("\"(null)\" ppdTitle:\"(null)\" marked:NO choice:0 of 0>"));
}

TEST_F(Choice, KeywordIsAscii) {
  std::string keyword = "K\x80";  // the first byte that is not
  ppd_choice_t record = *choices_->at(0)->choice();
  keyword.copy(record.choice, keyword.size() + 1);
  record.choice[keyword.size()] = 0;
  PDEChoice choice(&record);
  EXPECT_EQ(choice.ppdTitle(), nullptr);
  EXPECT_THAT(trace_.take().at(0), testing::EndsWith("could not create ppdTitle!"));
}

TEST_F(Choice, ListsFollowTheOption) {
  EXPECT_EQ(ArrayFromPPDOption(nullptr), nullptr);
  EXPECT_THAT(*ArrayFromPPDOption(ppd_.option("empty")), IsEmpty());
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(choices_->at(static_cast<std::size_t>(i))->choice(),
              &ppd_.option("quality")->choices[i]);
}

TEST_F(Choice, IsFoundByKeywordOrAsDefault) {
  const std::string draft = "Draft";
  const std::string lower = "draft";
  EXPECT_EQ(FindChoiceForString(&draft, choices_.get()), choices_->at(0).get());
  EXPECT_EQ(FindChoiceForString(&lower, choices_.get()), nullptr);
  EXPECT_EQ(FindChoiceForString(nullptr, choices_.get()), choices_->at(1).get());
  EXPECT_EQ(FindChoiceForString(&draft, nullptr), nullptr);
  choices_->push_back(PDEChoice::choiceWithChoice(choices_->at(0)->choice()));
  EXPECT_EQ(FindChoiceForString(&draft, choices_.get()), choices_->at(0).get());
}

TEST_F(Choice, IndexIsThatOfTheVeryObject) {
  EXPECT_EQ(IndexOfChoiceIdenticalTo(choices_->at(2).get(), choices_.get()), 2);
  const PDEChoice equal(choices_->at(2)->choice());
  EXPECT_EQ(IndexOfChoiceIdenticalTo(&equal, choices_.get()), std::nullopt);
  EXPECT_EQ(IndexOfChoiceIdenticalTo(nullptr, choices_.get()), std::nullopt);
  EXPECT_EQ(IndexOfChoiceIdenticalTo(&equal, nullptr), std::nullopt);
  const auto last = choices_->back();
  choices_->pop_back();
  EXPECT_EQ(IndexOfChoiceIdenticalTo(last.get(), choices_.get()), std::nullopt)
      << "of a shorter list";
  choices_->push_back(last);
  std::swap(choices_->at(0), choices_->at(2));
  EXPECT_EQ(IndexOfChoiceIdenticalTo(choices_->at(2).get(), choices_.get()), 2) << "moved";
  ppd_choice_t withoutOption{};
  choices_->push_back(PDEChoice::choiceWithChoice(&withoutOption));
  EXPECT_EQ(IndexOfChoiceIdenticalTo(choices_->at(3).get(), choices_.get()), 3);
}

TEST_F(Choice, PopUpShowsTheListAndOnlyTheLastOne) {
  QComboBox box;
  qt::QtPopUpButton popUp(&box);
  InitPopUpFromArray(popUp, choices_.get());
  InitPopUpFromArray(popUp, choices_.get());
  ASSERT_EQ(box.count(), 3);
  EXPECT_EQ(box.itemText(0), QString("Entwurf \u00fc"));
  EXPECT_EQ(box.itemText(2), QString());
  EXPECT_EQ(popUp.menu()->itemAtIndex(1)->representedObject, choices_->at(1));
  InitPopUpFromArray(popUp, nullptr);
  EXPECT_EQ(box.count(), 0);
}

TEST_F(Choice, OptionTitleIsUtf8OrNone) {
  EXPECT_EQ(CreateOptionTitle(ppd_.option("quality")), "Qualit\u00e4t");
  EXPECT_EQ(CreateOptionTitle(ppd_.option("empty")), std::nullopt);
  EXPECT_EQ(CreateOptionTitle(nullptr), std::nullopt);
}

}  // namespace
}  // namespace kwopde::test
