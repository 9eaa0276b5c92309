#include "platform/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace kwopde::test {
namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

TEST(Numbers, LeadingInteger) {
  const struct {
    const char *text;
    int number;
  } rows[] = {{"120 %", 120},
              {" \t+35x", 35},
              {"-5", -5},
              {"abc", 0},
              {"", 0},
              {"-", 0},
              {"+-5", 0},
              {"7032abc", 7032},
              {"2147483648", kMax},
              {"-9999999999999999999999", kMin},
              {"1.9", 1}};
  for (const auto &row : rows) EXPECT_EQ(leadingInteger(row.text), row.number) << row.text;
}

TEST(Numbers, LeadingDouble) {
  const struct {
    const char *text;
    double number;
  } rows[] = {{"1.50", 1.5},
              {" -0.555x", -0.555},
              {".5", 0.5},
              {"2e1", 20},
              {"", 0},
              {".", 0},
              {"1,5", 1},
              {"nan", 0},
              {"inf", 0},
              {"1e-999", 0},
              {"1e999", std::numeric_limits<double>::max()}};
  for (const auto &row : rows) EXPECT_EQ(leadingDouble(row.text), row.number) << row.text;
}

TEST(Numbers, AtofInTheCLocale) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    const char *text;
    double number;
  } rows[] = {{" 1.50x", 1.5}, {"-2e1", -20},       {"0x1.8p1", 3},      {"1,5", 1},
              {"word", 0},     {"-inf", -infinity}, {"1e999", infinity}, {"1e-999", 0}};
  for (const auto &row : rows) EXPECT_EQ(atofInCLocale(row.text), row.number) << row.text;
  EXPECT_TRUE(std::isnan(atofInCLocale("nan")));
}

TEST(Numbers, HundredthsAreCutInDoubleArithmetic) {
  const double rows[][2] = {{1.789, 1.78},
                            {1.15, 1.14},
                            {0.29, 0.28},
                            {1.14, 1.13},
                            {-0.555, -0.55},
                            {1e300, 21474836.47},
                            {std::numeric_limits<double>::quiet_NaN(), 0}};
  for (const auto &row : rows) EXPECT_EQ(cutToHundredths(row[0]), row[1]) << row[0];
}

TEST(Numbers, ShortestTextReadsBackAsTheSame) {
  EXPECT_EQ(shortestText(1.14), "1.14");
  EXPECT_EQ(shortestText(35), "35");
  for (const double number : {0.1, 2.345, 1.0 / 3, 1e300, -5e-324})
    EXPECT_EQ(leadingDouble(shortestText(number)), number);
}

TEST(Numbers, AreTheSameInGerman) {
  ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8")) << "there is no German locale here";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(leadingDouble("1.5"), 1.5);
  EXPECT_EQ(atofInCLocale("1.5"), 1.5);
  EXPECT_EQ(shortestText(1.5), "1.5");
  (void)std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace kwopde::test
