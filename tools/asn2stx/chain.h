#pragma once
#include <cstddef>

// Tells when a walk along references runs in a circle: the place at hand is
// compared with one that was passed before, which is taken anew after 1, 2,
// 4, 8... steps (Brent's algorithm). A chain may be as long as it likes.
template <class Place>
struct CircleGuard {
  Place kept{};
  size_t steps = 0;
  size_t span = 0;  // 0: no place has been seen

  // True if the place was passed before, which is found within three rounds.
  bool repeats(const Place &at)
  {
    if (span > 0 && at == kept)
      return true;
    if (steps++ == span) {
      kept = at;
      span = span == 0 ? 1 : span * 2;
      steps = 0;
    }
    return false;
  }
};
