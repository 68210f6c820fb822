// Operations on flat sets of numbers: hand-made cases, and a comparison with
// a second model of the same steps on random input.

#include "base/diag.h"
#include "model/valueset.h"
#include "support/segs.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <random>

using testing::ElementsAre;
using testing::IsEmpty;

// A set that is freed with the scope; no other one has its segments.
struct TestSet {
  IntegerValueSet set;
  explicit TestSet(const Segs &segs)
  {
    for (const Seg &seg : segs)
      insertSeg(set, nullptr, newSeg(big(seg.first), big(seg.second)));
  }
  ~TestSet() { freeIntegerValueSet(set); }
  TestSet(const TestSet &) = delete;

  // The segments, read both ways.
  Segs segs() const
  {
    Segs result = segsOf(set);
    Segs backward;
    for (auto *seg = set.last; seg; seg = seg->prev)
      backward.emplace(backward.begin(), native(seg->lower),
                       native(seg->upper));
    EXPECT_EQ(result, backward);
    return result;
  }
};

struct ValueSet : testing::Test {
  int level = verboseEx;
  ValueSet() { verboseEx = 1; }
  ~ValueSet() override { verboseEx = level; }

  static Segs merged(const Segs &a, const Segs &b)
  {
    TestSet target(a);
    TestSet source(b);
    mergeValueSets(target.set, source.set);
    EXPECT_THAT(source.segs(), IsEmpty());
    return target.segs();
  }
  static Segs common(const Segs &a, const Segs &b)
  {
    TestSet target(a);
    TestSet source(b);
    intersectValueSets(target.set, source.set);
    EXPECT_THAT(source.segs(), IsEmpty());
    return target.segs();
  }
  static Segs without(const Segs &a, const Segs &b)
  {
    TestSet target(a);
    TestSet source(b);
    excludeValueSets(target.set, source.set);
    return target.segs();
  }
};

// --- segments ---------------------------------------------------------------

TEST_F(ValueSet, NewSegStandsAlone)
{
  IntegerValueSetSeg *seg = newSeg(big(-3), big(highest));
  EXPECT_EQ(native(seg->lower), -3);
  EXPECT_EQ(native(seg->upper), highest);
  EXPECT_EQ(seg->prev, nullptr);
  EXPECT_EQ(seg->next, nullptr);
  IntegerValueSet set;
  insertSeg(set, nullptr, seg);
  freeIntegerValueSet(set);
}

TEST_F(ValueSet, InsertGoesAheadOfTheGivenOne)
{
  TestSet set({{1, 1}, {9, 9}});
  insertSeg(set.set, set.set.last, newSeg(big(5), big(5)));
  EXPECT_THAT(set.segs(), ElementsAre(Seg(1, 1), Seg(5, 5), Seg(9, 9)));
  insertSeg(set.set, set.set.first, newSeg(big(0), big(0)));
  EXPECT_THAT(set.segs(),
              ElementsAre(Seg(0, 0), Seg(1, 1), Seg(5, 5), Seg(9, 9)));
}

TEST_F(ValueSet, RemoveAtBothEndsAndBetween)
{
  TestSet set({{1, 1}, {2, 2}, {3, 3}, {4, 4}});
  removeSeg(set.set, set.set.first->next);
  EXPECT_THAT(set.segs(), ElementsAre(Seg(1, 1), Seg(3, 3), Seg(4, 4)));
  removeFirstSeg(set.set);
  EXPECT_THAT(set.segs(), ElementsAre(Seg(3, 3), Seg(4, 4)));
  removeLastSeg(set.set);
  EXPECT_THAT(set.segs(), ElementsAre(Seg(3, 3)));
  removeLastSeg(set.set);
  EXPECT_THAT(set.segs(), IsEmpty());
  removeFirstSeg(set.set);
  removeLastSeg(set.set);
  EXPECT_THAT(set.segs(), IsEmpty());
}

TEST_F(ValueSet, FreeLeavesItEmpty)
{
  TestSet set({{1, 1}, {3, 4}});
  freeIntegerValueSet(set.set);
  EXPECT_EQ(set.set.first, nullptr);
  EXPECT_EQ(set.set.last, nullptr);
  freeIntegerValueSet(set.set);
  EXPECT_EQ(set.set.first, nullptr);
}

TEST_F(ValueSet, UnnecessaryAreThoseThatEndNoHigher)
{
  TestSet set({{0, 0}, {1, 9}, {3, 4}, {8, 9}, {9, 12}, {20, 21}});
  removeUnnecessarySegs(set.set, set.set.first->next);
  EXPECT_THAT(set.segs(),
              ElementsAre(Seg(0, 0), Seg(1, 9), Seg(9, 12), Seg(20, 21)));
}

TEST_F(ValueSet, HeadIsTakenFromTheOneThatBeginsLower)
{
  TestSet a({{0, 1}, {2, 3}, {4, 8}, {9, 9}});
  TestSet b({{5, 6}});
  removeHead(a.set, b.set);
  EXPECT_THAT(a.segs(), ElementsAre(Seg(4, 8), Seg(9, 9)));
  EXPECT_THAT(b.segs(), ElementsAre(Seg(5, 6)));
  TestSet c({{0, 1}, {3, 3}});
  removeHead(b.set, c.set);
  EXPECT_THAT(b.segs(), ElementsAre(Seg(5, 6)));
  EXPECT_THAT(c.segs(), IsEmpty());
}

TEST_F(ValueSet, TailIsTakenFromTheOneThatEndsHigher)
{
  TestSet a({{0, 1}, {4, 8}, {9, 9}, {11, highest}});
  TestSet b({{5, 6}});
  removeTail(a.set, b.set);
  EXPECT_THAT(a.segs(), ElementsAre(Seg(0, 1), Seg(4, 8)));
  TestSet c({{4, 5}, {7, 7}});
  removeTail(b.set, c.set);
  EXPECT_THAT(b.segs(), ElementsAre(Seg(5, 6)));
  EXPECT_THAT(c.segs(), ElementsAre(Seg(4, 5)));
}

TEST_F(ValueSet, HeadsAndTailsThatAgreeStay)
{
  TestSet a({{1, 2}, {4, 5}});
  TestSet b({{1, 1}, {5, 5}});
  removeHead(a.set, b.set);
  removeTail(a.set, b.set);
  EXPECT_THAT(a.segs(), ElementsAre(Seg(1, 2), Seg(4, 5)));
  EXPECT_THAT(b.segs(), ElementsAre(Seg(1, 1), Seg(5, 5)));
  TestSet none({});
  removeHead(a.set, none.set);
  removeTail(none.set, a.set);
  EXPECT_THAT(a.segs(), ElementsAre(Seg(1, 2), Seg(4, 5)));
}

// --- union ------------------------------------------------------------------

TEST_F(ValueSet, MergeIntoNothingTakesTheList)
{
  EXPECT_EQ(merged({}, {{1, 5}, {7, 9}}), (Segs{{1, 5}, {7, 9}}));
  EXPECT_THAT(merged({}, {}), IsEmpty());
  EXPECT_EQ(merged({{1, 5}}, {}), (Segs{{1, 5}}));
}

TEST_F(ValueSet, MergeOfSegmentsApart)
{
  EXPECT_EQ(merged({{1, 5}}, {{7, 9}}), (Segs{{1, 5}, {7, 9}}));
  EXPECT_EQ(merged({{7, 9}}, {{1, 5}}), (Segs{{1, 5}, {7, 9}}));
  EXPECT_EQ(merged({{1, 2}, {8, 9}}, {{4, 5}}), (Segs{{1, 2}, {4, 5}, {8, 9}}));
}

TEST_F(ValueSet, MergeJoinsOnTheUpperSideOnly)
{
  EXPECT_EQ(merged({{1, 5}}, {{6, 9}}), (Segs{{1, 9}}));
  EXPECT_EQ(merged({{6, 9}}, {{1, 5}}), (Segs{{1, 5}, {6, 9}}));
}

TEST_F(ValueSet, MergeOfOverlaps)
{
  struct Row {
    Seg s;
    Segs expected;
  };
  for (const Row &row : {
           Row{{12, 14}, {{10, 20}}},           // inside
           Row{{10, 20}, {{10, 20}}},           // the same
           Row{{15, 25}, {{10, 25}}},           // beyond the upper end
           Row{{20, 25}, {{10, 25}}},           // from the upper end on
           Row{{5, 15}, {{5, 20}}},             // from ahead into it
           Row{{5, 20}, {{5, 20}}},             // from ahead to its end
           Row{{5, 10}, {{5, 20}}},             // from ahead to its first
           Row{{5, 25}, {{5, 25}}},             // around it
           Row{{5, 9}, {{5, 9}, {10, 20}}},     // a neighbour ahead
           Row{{21, 25}, {{10, 25}}},           // a neighbour behind
           Row{{22, 25}, {{10, 20}, {22, 25}}}  // behind a gap
       }) {
    SCOPED_TRACE(testing::PrintToString(row.s));
    EXPECT_EQ(merged({{10, 20}}, {row.s}), row.expected);
  }
}

TEST_F(ValueSet, MergeSwallowsWhatItCovers)
{
  EXPECT_EQ(merged({{1, 2}, {4, 5}, {7, 8}}, {{2, 10}}), (Segs{{1, 10}}));
  // The last one is covered in part and stays.
  EXPECT_EQ(merged({{1, 2}, {4, 5}, {7, 9}}, {{2, 8}}), (Segs{{1, 8}, {7, 9}}));
}

TEST_F(ValueSet, MergeAtTheLimits)
{
  // Nothing comes behind the largest number.
  EXPECT_EQ(merged({{0, highest}}, {{highest, highest}}), (Segs{{0, highest}}));
  EXPECT_EQ(merged({{0, highest - 1}}, {{highest, highest}}),
            (Segs{{0, highest}}));
  EXPECT_EQ(merged({{lowest, highest}}, {{1, 2}}), (Segs{{lowest, highest}}));
  EXPECT_EQ(merged({{1, 2}}, {{lowest, highest}}), (Segs{{lowest, highest}}));
}

// --- intersection -----------------------------------------------------------

TEST_F(ValueSet, IntersectOverlaps)
{
  struct Row {
    Segs a;
    Segs b;
    Segs expected;
  };
  for (const Row &row : {
           Row{{{1, 10}}, {{1, 10}}, {{1, 10}}},
           Row{{{1, 10}}, {{3, 5}}, {{3, 5}}},
           Row{{{3, 5}}, {{1, 10}}, {{3, 5}}},
           Row{{{1, 10}}, {{5, 15}}, {{5, 10}}},
           Row{{{5, 15}}, {{1, 10}}, {{5, 10}}},
           Row{{{1, 10}}, {{3, 10}}, {{3, 10}}},
           Row{{{1, 10}}, {{1, 3}}, {{1, 3}}},
           Row{{{1, 10}}, {{2, 3}, {5, 6}}, {{2, 3}, {5, 6}}},
           Row{{{lowest, highest}}, {{0, 255}}, {{0, 255}}},
           // With a second segment: over it all the same, as its end wraps.
           Row{{{0, 10}, {20, highest}}, {{5, 30}}, {{5, 10}, {20, 30}}},
       }) {
    SCOPED_TRACE(testing::PrintToString(row.a));
    EXPECT_EQ(common(row.a, row.b), row.expected);
  }
}

// The source goes on behind the end of the segment that is stepped to.
TEST_F(ValueSet, IntersectMissesTheSegmentBehindAStep)
{
  EXPECT_EQ(common({{0, 5}, {7, 8}}, {{3, 20}}), (Segs{{3, 5}}));
  // With (7, 8) missed, the third one is reached again.
  EXPECT_EQ(common({{0, 5}, {7, 8}, {10, 30}}, {{3, 20}}),
            (Segs{{3, 5}, {10, 20}}));
}

// Begun ahead of it, the source loses one number only.
TEST_F(ValueSet, IntersectGoesOnFromOneNumberFurther)
{
  EXPECT_EQ(common({{3, 5}, {7, 8}}, {{3, 20}}), (Segs{{3, 5}, {7, 8}}));
}

TEST_F(ValueSet, IntersectCutsWhatIsLeft)
{
  EXPECT_EQ(common({{1, 4}, {6, 9}}, {{2, 3}, {6, 6}}), (Segs{{2, 3}, {6, 6}}));
  EXPECT_EQ(common({{1, 2}, {5, 6}, {8, 9}}, {{1, 2}, {8, 8}}),
            (Segs{{1, 2}, {8, 8}}));
}

static const char emptyWarning[] =
    "** BET Warning: An empty flat integer value set.\n";

static std::string warningOf(const Segs &a, const Segs &b, int level)
{
  verboseEx = level;
  TestSet target(a);
  TestSet source(b);
  testing::internal::CaptureStderr();
  intersectValueSets(target.set, source.set);
  EXPECT_THAT(target.segs(), IsEmpty());
  EXPECT_THAT(source.segs(), IsEmpty());
  return testing::internal::GetCapturedStderr();
}

TEST_F(ValueSet, EmptyIntersectionWarns)
{
  EXPECT_EQ(warningOf({{1, 2}}, {{3, 4}}, 2), emptyWarning);
  EXPECT_EQ(warningOf({{3, 4}}, {{1, 2}}, 2), emptyWarning);
  EXPECT_EQ(warningOf({}, {{1, 2}}, 2), emptyWarning);
  EXPECT_EQ(warningOf({{1, 2}}, {}, 2), emptyWarning);
  // The hulls meet, but once the head is gone nothing is left for the tail.
  EXPECT_EQ(warningOf({{0, 1}, {10, 11}}, {{5, 6}}, 2), emptyWarning);
}

TEST_F(ValueSet, EmptyIntersectionIsSilentOnRequest)
{
  EXPECT_EQ(warningOf({{1, 2}}, {{3, 4}}, 1), "");
}

TEST_F(ValueSet, OtherIntersectionsDoNotWarn)
{
  verboseEx = 4;
  testing::internal::CaptureStderr();
  EXPECT_EQ(common({{1, 3}}, {{3, 4}}), (Segs{{3, 3}}));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// --- difference -------------------------------------------------------------

TEST_F(ValueSet, Exclude)
{
  struct Row {
    Segs a;
    Segs b;
    Segs expected;
  };
  for (const Row &row : {
           Row{{{0, 10}}, {}, {{0, 10}}},
           Row{{}, {{1, 2}}, {}},
           Row{{{0, 10}}, {{5, 5}}, {{6, 10}, {0, 4}}},
           Row{{{0, 10}}, {{0, 3}}, {{4, 10}}},
           Row{{{0, 10}}, {{7, 10}}, {{0, 6}}},
           Row{{{0, 10}}, {{7, 12}}, {{0, 6}}},
           Row{{{5, 10}}, {{0, 7}}, {{8, 10}}},
           Row{{{5, 10}}, {{0, 10}}, {}},
           Row{{{5, 10}}, {{0, 20}}, {}},
           Row{{{5, 10}}, {{11, 20}}, {{5, 10}}},
           Row{{{5, 10}}, {{0, 4}}, {{5, 10}}},
           Row{{{0, 3}, {5, 8}}, {{2, 6}}, {{0, 1}, {7, 8}}},
           Row{{{lowest, highest}}, {{5, 5}}, {{6, highest}, {lowest, 4}}},
           // The second one lies in the upper half, which is passed already.
           Row{{{0, 10}}, {{2, 2}, {5, 5}}, {{3, 10}, {0, 1}}},
       }) {
    SCOPED_TRACE(testing::PrintToString(row.a) + " without " +
                 testing::PrintToString(row.b));
    EXPECT_EQ(without(row.a, row.b), row.expected);
  }
}

// --- a second model ---------------------------------------------------------

static int64_t plusOne(int64_t value)
{
  return static_cast<int64_t>(static_cast<uint64_t>(value) + 1);
}

static int64_t minusOne(int64_t value)
{
  return static_cast<int64_t>(static_cast<uint64_t>(value) - 1);
}

static auto at(Segs &segs, size_t i)
{
  return segs.begin() + static_cast<ptrdiff_t>(i);
}

static void modelRemoveUnnecessary(Segs &segs, size_t x)
{
  for (size_t i = x + 1; i < segs.size();)
    if (segs[i].second <= segs[x].second)
      segs.erase(at(segs, i));
    else
      ++i;
}

static void modelMerge(Segs &target, Segs &source)
{
  if (target.empty()) {
    target.swap(source);
    return;
  }
  for (const Seg &s : source) {
    Seg &t = target.back();
    if (t.second != highest && t.second + 1 < s.first) {
      target.push_back(s);
      continue;
    }
    size_t x = target.size() - 1;
    if (t.second >= s.first)
      for (x = 0; target[x].second < s.first;)
        ++x;
    if (target[x].second != highest && s.first == target[x].second + 1) {
      target[x].second = s.second;
      modelRemoveUnnecessary(target, x);
    } else if (s.first >= target[x].first) {
      ASSERT_LE(s.first, target[x].second);
      if (s.second > target[x].second) {
        target[x].second = s.second;
        modelRemoveUnnecessary(target, x);
      }
    } else if (s.second >= target[x].first) {
      if (s.second > target[x].second) {
        target[x] = s;
        modelRemoveUnnecessary(target, x);
      } else {
        target[x].first = s.first;
      }
    } else {
      target.insert(at(target, x), s);
    }
  }
  source.clear();
}

static bool modelMeet(Segs &target, Segs &source)
{
  if (!target.empty() && !source.empty() &&
      source.back().second >= target.front().first &&
      target.back().second >= source.front().first)
    return true;
  target.clear();
  source.clear();
  return false;
}

static void modelCutEnds(Segs &target, Segs &source)
{
  Segs &head = target[0].first < source[0].first ? target : source;
  Segs &other = &head == &target ? source : target;
  if (head[0].first < other[0].first) {
    int64_t limit = other[0].first;
    while (!head.empty() && head[0].second < limit)
      head.erase(head.begin());
  }
  if (target.empty() || source.empty())
    return;
  Segs &tail = target.back().second > source.back().second ? target : source;
  Segs &rest = &tail == &target ? source : target;
  if (tail.back().second > rest.back().second) {
    int64_t limit = rest.back().second;
    while (!tail.empty() && tail.back().first > limit)
      tail.pop_back();
  }
}

static void modelIntersect(Segs &target, Segs &source)
{
  if (!modelMeet(target, source))
    return;
  modelCutEnds(target, source);
  if (!modelMeet(target, source))
    return;
  size_t i = 0;
  while (i < target.size() && !source.empty()) {
    Seg &s = source[0];
    Seg &t = target[i];
    if (t.second < s.first) {
      target.erase(at(target, i));
    } else if (s.second < t.first) {
      source.erase(source.begin());
    } else if (s.first > t.first) {
      if (s.second == t.second) {
        t.first = s.first;
        ++i;
        source.erase(source.begin());
      } else if (s.second > t.second) {
        t.first = s.first;
        ++i;
        if (i < target.size())
          s.first = plusOne(target[i].second);
      } else {
        Seg copy = s;
        t.first = plusOne(s.second);
        target.insert(at(target, i++), copy);
        source.erase(source.begin());
      }
    } else if (s.second == t.second) {
      ++i;
      source.erase(source.begin());
    } else if (s.second > t.second) {
      ++i;
      s.first = plusOne(s.first);
    } else {
      Seg piece(t.first, s.second);
      t.first = plusOne(s.second);
      target.insert(at(target, i++), piece);
      source.erase(source.begin());
    }
  }
  source.clear();
  target.resize(std::min(i, target.size()));
}

static void modelExclude(Segs &target, Segs &source)
{
  size_t i = 0;
  while (i < target.size() && !source.empty()) {
    Seg s = source[0];
    Seg &t = target[i];
    if (t.second < s.first) {
      ++i;
    } else if (s.second < t.first) {
      source.erase(source.begin());
    } else if (s.first > t.first) {
      if (t.second <= s.second) {
        t.second = minusOne(s.first);
      } else {
        Seg upperHalf(plusOne(s.second), t.second);
        t.second = minusOne(s.first);
        target.insert(at(target, i++), upperHalf);
        source.erase(source.begin());
      }
    } else if (s.second < t.second) {
      t.first = plusOne(s.second);
      source.erase(source.begin());
    } else {
      bool isEnd = s.second == t.second;
      target.erase(at(target, i));
      if (isEnd)
        source.erase(source.begin());
    }
  }
}

enum InputKind : int {
  INPUT_SORTED,  // ascending, with gaps
  INPUT_TOUCHING,
  INPUT_WILD,  // any order, overlapping and upside down
  INPUT_KINDS
};

struct InputMaker {
  std::mt19937 random{20240309};

  int64_t below(int limit)
  {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  }
  Segs wild()
  {
    Segs segs(static_cast<size_t>(below(5)));
    for (Seg &seg : segs)
      seg = {edge(below(20)), edge(below(20))};
    return segs;
  }
  // The ends of a small stretch of numbers stand for the limits.
  static int64_t edge(int64_t value)
  {
    return value == 0 ? lowest : value == 19 ? highest : value;
  }
  Segs make(int kind)
  {
    if (kind == INPUT_WILD)
      return wild();
    Segs segs;
    int64_t gap = kind == INPUT_SORTED ? 2 : 1;
    for (int64_t next = below(4); next < 19 && segs.size() < 5;) {
      int64_t upper = std::min<int64_t>(next + below(5), 19);
      segs.emplace_back(edge(next), edge(upper));
      next = upper + gap + below(4);
    }
    if (below(12) == 0)
      segs.clear();
    return segs;
  }
};

struct ValueSetModel : ValueSet, testing::WithParamInterface<int> {
  typedef void Operation(IntegerValueSet &, IntegerValueSet &);
  typedef void ModelOperation(Segs &, Segs &);

  static void compare(Operation *operation, ModelOperation *model)
  {
    InputMaker maker;
    for (int i = 0; i < 20000; ++i) {
      Segs a = maker.make(GetParam());
      Segs b = maker.make(i % 2 ? GetParam() : +INPUT_SORTED);
      SCOPED_TRACE(testing::PrintToString(a) + " and " +
                   testing::PrintToString(b));
      TestSet target(a);
      TestSet source(b);
      operation(target.set, source.set);
      model(a, b);
      ASSERT_EQ(target.segs(), a);
      ASSERT_EQ(source.segs(), b);
    }
  }
};

TEST_P(ValueSetModel, Merge)
{
  compare(mergeValueSets, modelMerge);
}

TEST_P(ValueSetModel, Intersect)
{
  compare(intersectValueSets, modelIntersect);
}

TEST_P(ValueSetModel, Exclude)
{
  compare(excludeValueSets, modelExclude);
}

INSTANTIATE_TEST_SUITE_P(Inputs, ValueSetModel,
                         testing::Range(0, +INPUT_KINDS));

// A union holds what either set holds, however it is cut.
TEST_F(ValueSet, MergeHoldsWhatEitherHolds)
{
  auto holds = [](const Segs &segs, int64_t value) {
    for (const Seg &seg : segs)
      if (seg.first <= value && value <= seg.second)
        return true;
    return false;
  };
  InputMaker maker;
  for (int i = 0; i < 2000; ++i) {
    Segs a = maker.make(INPUT_TOUCHING);
    Segs b = maker.make(INPUT_TOUCHING);
    Segs both = merged(a, b);
    for (int64_t value = -1; value <= 20; ++value)
      ASSERT_EQ(holds(both, value), holds(a, value) || holds(b, value))
          << value << " in " << testing::PrintToString(a) << " and "
          << testing::PrintToString(b);
  }
}
