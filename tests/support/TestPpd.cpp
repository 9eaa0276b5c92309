#include "tests/support/TestPpd.h"

#include <cstdio>
#include <stdexcept>

namespace kwopde::test {

std::string option(const std::string &key, const std::string &text,
                   const std::string &defaultChoice,
                   std::initializer_list<std::pair<std::string, std::string>> choices) {
  std::string lines =
      "*OpenUI *" + key + "/" + text + ": PickOne\n*Default" + key + ": " + defaultChoice + "\n";
  for (const auto &[choice, choiceText] : choices)
    lines += "*" + key + " " + choice + "/" + choiceText + ": \"\"\n";
  return lines + "*CloseUI: *" + key + "\n";
}

std::string ppdText(const std::string &options) {
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
         "*LanguageEncoding: UTF-8\n*PCFileName: \"TEST.PPD\"\n*Manufacturer: \"KWO\"\n"
         "*Product: \"(Test)\"\n*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n"
         "*NickName: \"Test\"\n" +
         option("PageSize", "Size", "A4", {{"A4", "A4"}}) +
         "*DefaultImageableArea: A4\n*ImageableArea A4: \"0 0 595 842\"\n"
         "*DefaultPaperDimension: A4\n*PaperDimension A4: \"595 842\"\n" +
         options;
}

TestPpd::TestPpd(const std::string &options) {
  const std::string text = ppdText(options);
  std::FILE *file = std::tmpfile();
  std::fwrite(text.data(), 1, text.size(), file);
  std::fseek(file, 0, SEEK_SET);
  ppd_.reset(ppdOpen(file));
  std::fclose(file);
  if (!ppd_) throw std::runtime_error("the test's PPD is broken: " + text);
  ppdMarkDefaults(get());
}

void TestPpd::unmark(const char *key) const {
  ppd_choice_t *choice = ppdFindMarkedChoice(get(), key);
  choice->marked = 0;
  cupsArrayRemove(get()->marked, choice);
}

std::string TestPpd::marked(const char *key) const {
  const ppd_choice_t *choice = ppdFindMarkedChoice(get(), key);
  return choice ? choice->choice : "";
}

std::string samplePath(const std::string &name) {
  return std::string(KWOPDE_SOURCE_FOLDER "/resources/ppd/") + name;
}

const std::string kMediaOptions =
    option("printQuality", "Print Quality", "Normal", {{"Draft", "Quick"}, {"Normal", "Plain"}}) +
    option("printFinish", "Print Finish", "Glossy", {{"Glossy", "Glossy"}, {"Matte", "Matte"}}) +
    option("rotateImage", "Rotate", "None", {{"None", "No"}, {"Rotate90", "90"}}) +
    option("mirrorImage", "Mirror", "None", {{"None", "No"}, {"Horizontal", "Yes"}}) +
    option("pageScale", "Page Scale", "100", {{"85", "85"}, {"100", "100"}, {"120", "120 %"}});

}  // namespace kwopde::test
