#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <syslog.h>
#include <unistd.h>

#include <functional>
#include <limits>

#include "dialog/ModuleLoader.h"
#include "plugin/PDELogging.h"
#include "tests/support/RecordingHost.h"

namespace kwopde::test {
namespace {

using testing::ElementsAre;

class Named final : public Object {
public:
  explicit Named(std::string text) : text_(std::move(text)) {}
  std::string_view className() const override { return "Named"; }
  void appendDescription(std::string &out) const override { out += text_; }

private:
  std::string text_;
};

/// What one free line reads for these arguments.
std::string expanded(std::string_view format, std::initializer_list<PrintfArgument> arguments,
                     const Object *self = nullptr) {
  TraceRecorder trace;
  PDELog(self, format, arguments);
  const std::string line = trace.take().at(0);
  return line.substr(line.find(' ') + 1);
}

TEST(Trace, WithoutObjectNeitherIndentsNorCounts) {
  const Named d("D");
  TraceRecorder trace;
  PDEProlog(&d, "in");
  PDEProlog(nullptr, "a");
  PDEEpilog(nullptr, "b");
  PDEEpilog(&d, "out");
  EXPECT_THAT(trace.take(), ElementsAre("BEGIN self(D) in", "BEGIN a", "END b", "END self(D) out"));
}

TEST(Trace, BelowZeroIndentsByTheMagnitude) {
  const Named d("D");
  TraceRecorder trace;
  PDEEpilog(&d, "a");
  PDEEpilog(&d, "b");
  PDEProlog(&d, "c");
  PDEProlog(&d, "d");
  EXPECT_THAT(trace.take(), ElementsAre("    END self(D) a", "        END self(D) b",
                                        "        BEGIN self(D) c", "    BEGIN self(D) d"));
}

TEST(Trace, FillsInArguments) {
  const Named object("<N>");
  const std::string text = "text";
  const std::string *noText = nullptr;
  const Object *noObject = nullptr;
  EXPECT_EQ(expanded("[%@][%@][%s]", {&object, text, "c"}), "[<N>][text][c]");
  EXPECT_EQ(expanded("[%@][%@][%s][%p]", {noObject, noText, noText, noObject}),
            "[(null)][(null)][(null)][0x0]");
  EXPECT_EQ(expanded("%d %i %lf %.2lf %%", {-5, 4, 1.5, 2.345}), "-5 4 1.500000 2.35 %");
  EXPECT_EQ(expanded("%5d|%-5d|%05d|%+d|%x", {7, 7, 7, 7, 255}), "    7|7    |00007|+7|ff");
  EXPECT_EQ(expanded("%*.*s|%-4s|%.1s", {3, 1, "ab", "cd", "ef"}), "  a|cd  |e");
  EXPECT_EQ(expanded("%d", {std::numeric_limits<int>::min()}), "-2147483648");
}

TEST(Trace, KeepsForeignTextsOnOneLine) {
  EXPECT_EQ(expanded("%s", {"a\nEND\r\x1B[2J\x7F\xC2\x9B|\tb\xC3\xA9\xC2\xA0"}),
            "a\\x0AEND\\x0D\\x1B[2J\\x7F\\x9B|\tb\xC3\xA9\xC2\xA0");
}

/// What `act` writes to the system log, which shows on standard error here.
std::string systemLogOf(const std::function<void()> &act) {
  openlog("log", LOG_PERROR, LOG_USER);
  testing::internal::CaptureStderr();
  act();
  openlog(nullptr, 0, LOG_USER);
  return testing::internal::GetCapturedStderr();
}

TEST(Trace, GoesToTheSystemLogWithTheProcess) {
  const std::string process = "log: [" + std::to_string(getpid()) + "] ";
  EXPECT_EQ(systemLogOf([] { PDELog(nullptr, "line"); }), process + "LOG line\n");
  PlugInModule &module = dialog::loadModule({});
  EXPECT_THAT(systemLogOf([&] { module.makePlugIn()->initWithBundle(nullptr); }),
              testing::StartsWith(process + "BEGIN self(<KWOPDEPlugIn: 0x"));
}

TEST(Trace, ShowsTheAddressThatAnObjectStandsFor) {
  class StandIn final : public Object {
  public:
    std::string_view className() const override { return "StandIn"; }
    const void *address() const override { return reinterpret_cast<const void *>(0xabc); }
  };
  class Last final : public LogSink {
  public:
    void writeLine(std::string_view line) override { text = line; }
    std::string text;
  };
  const StandIn object;
  Last last;
  setTraceSink(&last);
  PDELog(&object, "%@ %p", {&object, &object});
  setTraceSink(nullptr);
  EXPECT_EQ(last.text, "LOG self(<StandIn: 0xabc>) <StandIn: 0xabc> 0xabc");
}

// A description becomes part of the format, so what it holds acts as a conversion.
TEST(Trace, DescriptionsConsumeArguments) {
  const Named d("50 %d");
  EXPECT_EQ(expanded("then %d", {1, 2}, &d), "self(50 1) then 2");
  EXPECT_EQ(expanded("then %d", {1}, &d), "self(50 1) then %d");
}

TEST(Trace, WrongConversionsAreHarmless) {
  const Named object("<N>");
  EXPECT_EQ(expanded("a%nb %d", {1, 2}), "ab 2");
  EXPECT_EQ(expanded("%k %y % %", {1}), "%k %y %");
  EXPECT_EQ(expanded("100%", {}), "100%");
  EXPECT_EQ(expanded("%s %d %@", {}), "%s %d %@");
  EXPECT_EQ(expanded("%d %f %s %@", {"text", &object, 5, 1.5}), "text <N> 5 1.5");
  EXPECT_EQ(expanded("%d %f", {2.9, 3}), "2 3.000000");
  EXPECT_EQ(expanded("%*d", {"wide", 3}), "3");
  EXPECT_EQ(expanded("%d", {std::numeric_limits<double>::quiet_NaN()}), "0");
  EXPECT_EQ(expanded("%p", {7}), "7");
  EXPECT_LT(expanded("%999999999999d", {1}).size(), 2000u);
  for (const char *flags : {"%-0+ #5.3d", "%#-5x", "%+s", "%05@", "%#c", "%hhd", "%a", "%'d"})
    EXPECT_FALSE(expanded(flags, {65}).empty()) << flags;
}

}  // namespace
}  // namespace kwopde::test
