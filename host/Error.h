// What has gone wrong, to be told to the person at the dialog or the terminal.
#pragma once

#include <stdexcept>

namespace kwopde::host {

/// One plain sentence: what happened, to which file or option, and why.
class Error : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A job failed because of the printer or the server, not because of what the user asked for;
/// retrying can help.
class JobError : public Error {
public:
  using Error::Error;
};

/// A job was sent whole, but its server did not say that it took it. Retrying can print it twice.
class UnsureJobError : public JobError {
public:
  using JobError::JobError;
};

}  // namespace kwopde::host
