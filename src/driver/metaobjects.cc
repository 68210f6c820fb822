// Meta records without content, and their options: this back-end has none, so
// a line of a node is looked at for whom it is and passed over.

#include "driver/metaobjects.h"
#include "base/upcalls.h"
#include "options/passes.h"

CacheBlock *cache__BEValMetaRec;
CacheBlock *cache__BEClassMetaRec;
CacheBlock *cache__BEObjMetaRec;
CacheBlock *cache__BEObjSetMetaRec;

static void passOver(const char *option)
{
  static const char block[] = "QUORVEN=";
  parseBEOption(option, block, sizeof block - 1);
}

BEValMetaRec *newBEValMetaRec()
{
  return cacheNew<BEValMetaRec>(cache__BEValMetaRec);
}

void deleteBEValMetaRec(BEValMetaRec *record)
{
  cacheDelete(record, cache__BEValMetaRec);
}

void valueBEOptionOK(AsnValue &, BEValMetaRec &, const char *option)
{
  passOver(option);
}

BEClassMetaRec *newBEClassMetaRec()
{
  return cacheNew<BEClassMetaRec>(cache__BEClassMetaRec);
}

void deleteBEClassMetaRec(BEClassMetaRec *record)
{
  cacheDelete(record, cache__BEClassMetaRec);
}

void classBEOptionOK(AsnObjClass &, BEClassMetaRec &, const char *option)
{
  passOver(option);
}

BEObjMetaRec *newBEObjMetaRec()
{
  return cacheNew<BEObjMetaRec>(cache__BEObjMetaRec);
}

void deleteBEObjMetaRec(BEObjMetaRec *record)
{
  cacheDelete(record, cache__BEObjMetaRec);
}

void objectBEOptionOK(AsnObject &, BEObjMetaRec &, const char *option)
{
  passOver(option);
}

BEObjSetMetaRec *newBEObjSetMetaRec()
{
  return cacheNew<BEObjSetMetaRec>(cache__BEObjSetMetaRec);
}

void deleteBEObjSetMetaRec(BEObjSetMetaRec *record)
{
  cacheDelete(record, cache__BEObjSetMetaRec);
}

void objectSetBEOptionOK(AsnObjectSet &, BEObjSetMetaRec &, const char *option)
{
  passOver(option);
}
