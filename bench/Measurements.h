// What the benchmarks measure besides time.
#pragma once

namespace kwopde::bench {

/// Bytes, which are the same at every run.
struct Memory {
  long perChoice;     // with both titles
  long perDialog;     // while it is open
  long leftByDialog;  // on average of 1,000
};

/// Measures it. To be called first: later, the list of what is kept has room to spare.
Memory measureMemory();

}  // namespace kwopde::bench
