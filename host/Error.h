// What has gone wrong, to be told to the person at the dialog or the terminal.
#pragma once

#include <stdexcept>

namespace kwopde::host {

/// One plain sentence: what happened, to which file or option, and why.
class Error : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The same about a job: the printer or its server is in the way, not what was asked for.
class JobError : public Error {
public:
  using Error::Error;
};

}  // namespace kwopde::host
