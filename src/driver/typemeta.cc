// Meta records of types.

#include "driver/typemeta.h"
#include "ade/summary.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "options/passes.h"
#include <cstring>

static CacheBlock *cache__BETypMetaRec;

// Records that were given back. They keep the room of their texts: a record is
// made for every node that is visited.
static BETypMetaRec *freeRecords;

static BETypMetaRec *takeRecord()
{
  BETypMetaRec *record = freeRecords;
  if (!record)
    return cacheNew<BETypMetaRec>(cache__BETypMetaRec);
  freeRecords = record->nextFree;
  record->compId.clear();
  record->funcId.clear();
  record->funcOption.clear();
  if (record->extensionInfoValid)
    record->extensionInfo = {};
  record->extensionInfoValid = 0;
  return record;
}

const char *homeTypeId(const AsnType &type)
{
  if (cIsPredefinedType(type))
    return nullptr;
  switch (getTypeMainType(type)) {
  case TYP_BITSTR:
    return "BITSTRING";
  case TYP_OCTSTR:
    return "OCTET";
  case TYP_NUMSTR:
    return "NUMERICCHAR";
  case TYP_PRISTR:
    return "PRINTABLECHAR";
  case TYP_TELSTR:
    return "T61CHAR";
  case TYP_VIDSTR:
    return "VIDEOTEXCHAR";
  case TYP_VISSTR:
    return "VISIBLECHAR";
  case TYP_IA5STR:
    return "IA5CHAR";
  case TYP_GRASTR:
    return "GRAPHICCHAR";
  case TYP_GENSTR:
    return "GENERALCHAR";
  case TYP_BMPSTR:
    return "ASN_BMPCHAR";
  default:
    return nullptr;
  }
}

BETypMetaRec *newBETypMetaRec(const AsnType &type)
{
  if (isPartialTypeInfo(type))
    return nullptr;
  BETypMetaRec *record = takeRecord();
  cTypeId(record->typeId, nullptr, type, nullptr);
  cBaseTypeId(record->baseTypeId, nullptr, type, nullptr);
  record->homeTypeId = orEmpty(homeTypeId(type));
  if (isTypeExtensionmarker(type))
    record->compId = "extensionmarker";
  else if (isComponentType(type))
    getTypeCompId(record->compId, nullptr, type, "_fld");
  return record;
}

void deleteBETypMetaRec(AsnType &, BETypMetaRec *record)
{
  if (!record)
    return;
  record->nextFree = freeRecords;
  freeRecords = record;
}

static const char *textOrNull(const AsnType &type,
                              std::string BETypMetaRec::*member)
{
  const BETypMetaRec *record = getBETypMetaRec(type);
  return record && !(record->*member).empty() ? (record->*member).c_str()
                                              : nullptr;
}

const char *getMetaTypeId(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::typeId);
}

const char *getMetaBaseTypeId(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::baseTypeId);
}

const char *getMetaHomeTypeId(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::homeTypeId);
}

const char *getMetaCompId(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::compId);
}

const char *getMetaFuncId(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::funcId);
}

const char *getMetaFuncOption(const AsnType &type)
{
  return textOrNull(type, &BETypMetaRec::funcOption);
}

// FUNC:identifier:text, for an INTEGER.
static bool funcOptionOK(const AsnType &type, BETypMetaRec &record,
                         const char *option)
{
  static const char name[] = "FUNC:";
  if (!startsWith(option, name) || getTypeMainType(type) != TYP_INTEGER)
    return false;
  const char *id = option + strlen(name);
  const char *end = id;
  while (isLetterOrDigitChar(*end) || *end == '_')
    ++end;
  if (!isLetterChar(*id) || *end != ':')
    return false;
  record.funcId.assign(id, end);
  record.funcOption = end + 1;
  return true;
}

static void reportUnknown(const AsnType &type, const char *option)
{
  typeWarning(type, "Unrecognized type specific option:");
  warning(option);
  if (!adeIsActive())
    return;
  const GlobalOptions &options = type.homeMod->rec->options;
  adeSummaryWarning(options.sourceDirectory, orEmpty(options.sourceFileName),
                    getTypeDefinitionLine(type), "Warning", option);
}

void typeBEOptionOK(AsnType &type, BETypMetaRec *record, const char *option)
{
  static const char block[] = "QUORVEN=";
  const char *text = parseBEOption(option, block, sizeof block - 1);
  if (!text || !record || isPartialTypeInfo(type))
    return;
  if (!funcOptionOK(type, *record, text))
    reportUnknown(type, option);
}
