// The process.

#include "driver/quorven.h"
#include <algorithm>
#include <sys/resource.h>

// Types may refer to each other `maxNesting` levels deep, and each level is
// several walks: more than the usual limit of the stack, which grows on
// demand. A limit that cannot be raised is left as it is.
static void raiseStackLimit()
{
  constexpr rlim_t wanted = rlim_t{120} << 20;  // bytes
  rlimit limit;
  if (getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY ||
      limit.rlim_cur >= wanted)
    return;
  limit.rlim_cur = limit.rlim_max == RLIM_INFINITY
                       ? wanted
                       : std::min(wanted, limit.rlim_max);
  setrlimit(RLIMIT_STACK, &limit);
}

int main(int count, char **vector)
{
  raiseStackLimit();
  return quorven_main(count, vector);
}
