// Meta records without content.

#include "base/upcalls.h"
#include "driver/metaobjects.h"
#include "model/asnvalue.h"
#include "model/objectset.h"
#include <gtest/gtest.h>

// A record comes from its own cache and goes back to it.
template <class R>
static void checkCache(CacheBlock *&cache, R *(*make)(), void (*take)(R *))
{
  R *first = make();
  R *second = make();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  CacheBlock *free = cache;
  EXPECT_NE(free, nullptr);
  take(second);
  EXPECT_NE(cache, free);
  EXPECT_EQ(make(), second);
  EXPECT_EQ(cache, free);
  take(second);
  take(first);
  EXPECT_EQ(make(), first);
  take(first);
  take(nullptr);
}

TEST(MetaObjects, RecordsOfValues)
{
  checkCache(cache__BEValMetaRec, newBEValMetaRec, deleteBEValMetaRec);
}

TEST(MetaObjects, RecordsOfClasses)
{
  checkCache(cache__BEClassMetaRec, newBEClassMetaRec, deleteBEClassMetaRec);
}

TEST(MetaObjects, RecordsOfObjects)
{
  checkCache(cache__BEObjMetaRec, newBEObjMetaRec, deleteBEObjMetaRec);
}

TEST(MetaObjects, RecordsOfObjectSets)
{
  checkCache(cache__BEObjSetMetaRec, newBEObjSetMetaRec, deleteBEObjSetMetaRec);
}

TEST(MetaObjects, CachesAreApart)
{
  deleteBEValMetaRec(newBEValMetaRec());
  CacheBlock *free = cache__BEObjMetaRec;
  BEValMetaRec *record = newBEValMetaRec();
  EXPECT_EQ(cache__BEObjMetaRec, free);
  deleteBEValMetaRec(record);
}

// Hands each line to `apply`, which must say nothing and go on.
template <class Apply>
static void checkSilence(Apply apply)
{
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  for (const char *line : {"-BEO=QUORVEN=FUNC:f:x", "-BEO=QUORVEN=VERSION",
                           "-FUNC:f:x", "-nothing", "-BEO=OTHER=X", "-", ""})
    apply(line);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(MetaObjects, OptionsOfValuesArePassedOver)
{
  AsnValue value;
  BEValMetaRec record;
  checkSilence([&](const char *line) { valueBEOptionOK(value, record, line); });
}

TEST(MetaObjects, OptionsOfClassesArePassedOver)
{
  AsnObjClass objClass;
  BEClassMetaRec record;
  checkSilence(
      [&](const char *line) { classBEOptionOK(objClass, record, line); });
}

TEST(MetaObjects, OptionsOfObjectsArePassedOver)
{
  AsnObject object;
  BEObjMetaRec record;
  checkSilence(
      [&](const char *line) { objectBEOptionOK(object, record, line); });
}

TEST(MetaObjects, OptionsOfObjectSetsArePassedOver)
{
  AsnObjectSet set;
  BEObjSetMetaRec record;
  checkSilence(
      [&](const char *line) { objectSetBEOptionOK(set, record, line); });
}
