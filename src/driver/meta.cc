// Meta records of this back-end: the options of its block, by module, and
// the stamps of its traversals.

#include "driver/meta.h"
#include "ade/summary.h"
#include "base/diag.h"
#include "base/strings.h"
#include "options/passes.h"
#include "options/usage.h"
#include "options/validators.h"
#include "store/module.h"
#include <cstring>
#include <iterator>

CacheBlock *cache__BEModMetaRec;

std::string g_adeTreeFileSuffix;

int stampGHD;
int stampGIP;
int stampGAD;

// First stamps of a module, above that of loading.
constexpr int firstStamp = stampGenerated + 1;

// --- module records ---------------------------------------------------------

BEModMetaRec *newBEModMetaRec()
{
  return cacheNew<BEModMetaRec>(cache__BEModMetaRec);
}

void deleteBEModMetaRec(BEModMetaRec *record)
{
  cacheDelete(record, cache__BEModMetaRec);
}

void initBEModMetaRec() {}

static const BEModMetaRec &metaOf(const AsnModule &module)
{
  return *module.rec->beMeta;
}

int getMetaVerbosity(const AsnModule &module)
{
  return metaOf(module).verbosity;
}

void setMetaVerbosity(const AsnModule &module, int level)
{
  module.rec->beMeta->verbosity = static_cast<uint8_t>(level);
}

const char *getMetaLogFile(const AsnModule &module)
{
  const std::string &name = metaOf(module).logFile;
  return name.empty() ? nullptr : name.c_str();
}

const uint8_t *getMetaGenArr(const AsnModule &module)
{
  return metaOf(module).genArr;
}

int getMetaBERFuncPref(const AsnModule &module)
{
  return metaOf(module).berFuncPref;
}

int getMetaEncodingVariant(const AsnModule &module)
{
  int variant = metaOf(module).encodingVariant;
  return variant == 0 || variant == 1 ? variant : 2;
}

int getMetaVariantFuncPref(const AsnModule &module)
{
  return metaOf(module).variantFuncPref;
}

int getMetaGenerateEmbeddingOptions(const AsnModule &module)
{
  return metaOf(module).generateEmbeddingOptions;
}

int getMetaEncodingCheckDefaultValues(const AsnModule &module)
{
  return metaOf(module).encodingCheckDefaultValues;
}

int getMetaDecodingCatchDefaultErrors(const AsnModule &module)
{
  return metaOf(module).decodingCatchDefaultErrors;
}

int getMetaDecodingFillDefaultValues(const AsnModule &module)
{
  return metaOf(module).decodingFillDefaultValues;
}

int getMetaDefaultValuesWarningDisable(const AsnModule &module)
{
  return metaOf(module).defaultValuesWarningDisable;
}

// --- the options ------------------------------------------------------------

static const NamedByte verbosityOptions[] = {
    {"QUIET", 0}, {"TERSE", 1}, {"VERBOSE", 2}, {nullptr, 0}};

static const NamedByte encodingVariantOptions[] = {
    {"basic-aligned", 0}, {"basic-unaligned", 1}, {nullptr, 0}};

// The encoder's function file: the entries of PERCOD begin there.
constexpr int firstPercodEntry = 5;

typedef bool ApplyMetaOption(BEModMetaRec &record, const char *value);

struct MetaOption {
  const char *name;
  ApplyMetaOption *apply;
};

template <uint8_t BEModMetaRec::*field>
static bool applyBoole(BEModMetaRec &record, const char *value)
{
  return booleOptionOK(record.*field, value);
}

template <uint8_t BEModMetaRec::*field, int maximum, const NamedByte *table>
static bool applyByte(BEModMetaRec &record, const char *value)
{
  return byteOptionOK(record.*field, value, 0, maximum, table);
}

static bool applyLogFile(BEModMetaRec &record, const char *value)
{
  return alnumSpecialStriOptionOK(record.logFile, value, "./\\[]_-", 1, 1025);
}

static bool applyPercod(BEModMetaRec &record, const char *value)
{
  return genArrOptionOK(record.genArr, value, firstPercodEntry);
}

static bool applyTreeFileSuffix(BEModMetaRec &, const char *value)
{
  return alnumSpecialStriOptionOK(g_adeTreeFileSuffix, value, ".", 1, 4);
}

typedef BEModMetaRec M;

static const MetaOption metaOptions[] = {
    {"VERBOSE=", applyByte<&M::verbosity, 2, verbosityOptions>},
    {"LOGFILE=", applyLogFile},
    {"PERCOD=", applyPercod},
    {"BERFUNCPREF=", applyBoole<&M::berFuncPref>},
    {"ENCODING-VARIANT=",
     applyByte<&M::encodingVariant, 1, encodingVariantOptions>},
    {"ENCODING-VARIANT-FUNC-PREF=", applyBoole<&M::variantFuncPref>},
    {"GENERATE-EMBEDDING-OPTIONS=", applyBoole<&M::generateEmbeddingOptions>},
    {"TREE-FILE-SUFFIX=", applyTreeFileSuffix},
    {"ENCODING-CHECK-DEFAULT-VALUES=",
     applyBoole<&M::encodingCheckDefaultValues>},
    {"DECODING-CATCH-DEFAULT-ERRORS=",
     applyBoole<&M::decodingCatchDefaultErrors>},
    {"DECODING-FILL-DEFAULT-VALUES=",
     applyBoole<&M::decodingFillDefaultValues>},
    {"DEFAULT-VALUES-WARNINGS-DISABLE=",
     applyBoole<&M::defaultValuesWarningDisable>},
};

static bool metaOptionOK(BEModMetaRec &record, const char *text)
{
  if (startsWith(text, "VERSION"))
    printVersionAndExit();
  for (const MetaOption &option : metaOptions) {
    if (!startsWith(text, option.name))
      continue;
    const char *value = text + strlen(option.name);
    return *value && option.apply(record, value);
  }
  return adeIsADEOption(text) && adeOptionOK(text);
}

// Tells the IDE, whose summary is opened for that alone.
static void reportIgnored(const char *option)
{
  if (!adeIsActive())
    return;
  adeSummaryOpenFile();
  adeSummaryMessage(
      formatText("(W) Global option ignored: %.50s", option).c_str());
  adeSummaryCloseFile();
}

bool globalBEOptionOK(BEModMetaRec &record, const char *option)
{
  static const char block[] = "QUORVEN=";
  const char *text = parseBEOption(option, block, sizeof block - 1);
  if (!text || metaOptionOK(record, text))
    return true;
  reportIgnored(option);
  return false;
}

// --- stamps -----------------------------------------------------------------

static void setStamps(int first)
{
  stampGHD = first;
  stampGIP = stampGHD + 1;
  stampGAD = stampGIP + 1;
}

void resetStamps()
{
  setStamps(firstStamp);
}

void initStamps()
{
  setStamps(stampGAD + 1);
}

void resetTypeStamps()
{
  resetStamps();
}

void initTypeStamps()
{
  initStamps();
}
