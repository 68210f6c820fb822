// The end of a run, in a file of its own: programs that go on after a run
// put another one in its place.

#include "base/diag.h"
#include <cstdlib>

void endRun(int status)
{
  // Through the library's exit, so that what was printed is flushed.
  exit(status);
}
