// A filter at the end of the chain: it prints nothing, and notes in the server's temporary folder
// what it finds marked for the job. Arguments: JOB USER TITLE COPIES OPTIONS [FILE].
#include <cups/ppd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>

int main(int argc, char **argv) {
  if (argc < 6) return 1;
  ppd_file_t *const ppd = ppdOpenFile(std::getenv("PPD"));
  if (!ppd) return 1;
  ppdMarkDefaults(ppd);
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(argv[5], 0, &options);
  cupsMarkOptions(ppd, count, options);
  cupsFreeOptions(count, options);
  std::string marked;
  for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
    if (const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option->keyword))
      marked += std::string(option->keyword) + '=' + choice->choice + '\n';
  ppdClose(ppd);
  std::cin.ignore(std::numeric_limits<std::streamsize>::max());
  const std::string path = std::string(std::getenv("TMPDIR")) + "/marked-" + argv[1];
  std::ofstream(path + ".part") << marked;
  return std::rename((path + ".part").c_str(), path.c_str());
}
