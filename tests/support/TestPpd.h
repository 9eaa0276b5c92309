// Real PPDs, read by the CUPS library, from a few lines of test.
#pragma once

#include <cups/ppd.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

namespace kwopde::test {

/// The lines of one PPD option. A choice is a keyword and its text.
std::string option(const std::string &key, const std::string &text,
                   const std::string &defaultChoice,
                   std::initializer_list<std::pair<std::string, std::string>> choices);

/// The lines of a whole PPD with these options or attributes.
std::string ppdText(const std::string &options);

/// A PPD with its defaults marked.
class TestPpd {
public:
  explicit TestPpd(const std::string &options);

  ppd_file_t *get() const { return ppd_.get(); }
  ppd_option_t *option(const char *key) const { return ppdFindOption(get(), key); }
  void mark(const char *key, const char *choice) const { ppdMarkOption(get(), key, choice); }
  void unmark(const char *key) const;
  std::string marked(const char *key) const;

private:
  struct Close {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
  };
  std::unique_ptr<ppd_file_t, Close> ppd_;
};

/// A sample PPD of the project, "kwo-7032.ppd".
std::string samplePath(const std::string &name);

/// Two choices for each of the media panel's pop-ups, and a page scale.
extern const std::string kMediaOptions;

}  // namespace kwopde::test
