// Names of the run-time's functions for leaf types, tags as C text, and the
// utility context.

#include "cbet/cbuiltin.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include <iterator>

// --- stems ------------------------------------------------------------------

// Stems that the main type alone decides; null for the others.
static const char *const builtinStemArr[] = {
    "Boolean",           // BOOLEAN
    nullptr,             // INTEGER
    nullptr,             // ENUMERATED
    nullptr,             // REAL
    "BitString",         // BIT STRING
    "OctetString",       // OCTET STRING
    "NullType",          // NULL
    nullptr,             // SEQUENCE
    nullptr,             // SEQUENCE OF
    nullptr,             // SET
    nullptr,             // SET OF
    nullptr,             // CHOICE
    "Any",               // ANY
    nullptr,             // EMBEDDED PDV
    "ObjectIdentifier",  // OBJECT IDENTIFIER
    "NumericString",     // NumericString
    "PrintableString",   // PrintableString
    "T61String",         // TeletexString
    "VideotexString",    // VideotexString
    "VisibleString",     // VisibleString
    "IA5String",         // IA5String
    "GraphicString",     // GraphicString
    "GeneralString",     // GeneralString
    "BMPString",         // BMPString
    nullptr,             // UniversalString
    nullptr,             // CHARACTER STRING
    nullptr,             // GeneralizedTime
    nullptr,             // UTCTime
    nullptr,             // EXTERNAL
    "External1994",      // EXTERNAL of 1994
    "GraphicString"      // ObjectDescriptor
};

static const char *integerStem(const AsnType &type)
{
  int format = getVF(type);
  if (format < VF_UI8 || format > VF_I64)
    fatalError(FATAL_INTERNAL, "CBET: Unable to construct a function name");
  return targetLangType(format);
}

static const char *realStem(const AsnType &type)
{
  if (testCGenerationOption(*getModuleOfType(type), CGEN_REAL))
    return "Real";
  switch (getVF(type)) {
  case VF_REAL32:
    return "Real32";
  case VF_REAL64:
    return "Real64";
  case VF_REAL128:
    return "Real128";
  default:
    return "";
  }
}

// One of two stems, by an option.
static const char *stemByOption(const AsnType &type, CGenerationBit bit,
                                const char *with, const char *without)
{
  return testCGenerationOption(*getModuleOfType(type), bit) ? with : without;
}

static const char *builtinStem(const AsnType &type)
{
  int mainType = getTypeMainType(type);
  switch (mainType) {
  case TYP_INTEGER:
    return integerStem(type);
  case TYP_ENUM:
    return isExtensibleEnumeratedList(type) ? "XEnum" : integerStem(type);
  case TYP_REAL:
    return realStem(type);
  case TYP_GENTIME:
    return stemByOption(type, CGEN_COMMONTIME, "GeneralizedTimeCT",
                        "GeneralizedTimeDT");
  case TYP_UTCTIME:
    return stemByOption(type, CGEN_COMMONTIME, "UTCTimeCT", "UTCTimeDT");
  case TYP_EXTERNAL:
    return stemByOption(type, CGEN_EXTERNAL, "External", "External1990");
  default:
    return mainType < static_cast<int>(std::size(builtinStemArr))
               ? orEmpty(builtinStemArr[mainType])
               : "";
  }
}

// The stem where the C type can be that of a value that is not represented.
static const char *layoutStem(const AsnType &type, const char *stem)
{
  if (getVF(type) == VF_FRM)
    return "Frame";
  if (testTypeOption(type, optSkip))
    return "NullType";
  return stem ? stem : builtinStem(type);
}

std::string &cBuiltinCFunc(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  text += builtinStem(type);
  return text += orEmpty(suffix);
}

// --- variants ---------------------------------------------------------------

// The mark for the size of a string's count.
static const char *countSuff(const AsnType &type)
{
  switch (getVFSize(type)) {
  case 0:
    return "0";
  case 2:
  case 6:
    return "8";
  case 3:
  case 7:
    return "16";
  default:
    return "";
  }
}

std::string &cBuiltinStringCFunc(std::string &text, const char *prefix,
                                 const AsnType &type, const char *suffix)
{
  bool isList = getVF(type) == VF_LIST;
  text = orEmpty(prefix);
  if (isList)
    text += "Seg";
  else if (cIsDynamicString(type))
    text += "Dyn";
  text += layoutStem(type, nullptr);
  if (!isList)
    text += countSuff(type);
  return text += orEmpty(suffix);
}

std::string &cBuiltinStringTstCFunc(std::string &text, const char *prefix,
                                    const AsnType &type, const char *suffix)
{
  bool isList = getVF(type) == VF_LIST;
  text = orEmpty(prefix);
  if (isList)
    text += "Seg";
  text += layoutStem(type, nullptr);
  if (!isList && getVFSize(type) == 0)
    text += "0";
  return text += orEmpty(suffix);
}

std::string &cBuiltinStringCodCFunc(std::string &text, const char *prefix,
                                    AsnType &type, const char *suffix)
{
  cBuiltinStringTstCFunc(text, prefix, type, cTagFuncSuff(type));
  return text += orEmpty(suffix);
}

std::string &cBuiltinCodCFunc(std::string &text, const char *prefix,
                              AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  text += layoutStem(type, nullptr);
  text += cTagFuncSuff(type);
  return text += orEmpty(suffix);
}

std::string &cBuiltinAnyCodCFunc(std::string &text, const char *prefix,
                                 AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  text += layoutStem(type, "Any");
  text += getNrOfTags(type) == 0 ? "_0" : cTagFuncSuff(type);
  return text += orEmpty(suffix);
}

// --- tags -------------------------------------------------------------------

// The job of the tag call-backs, which have no other way to it.
static const char *glbSuff;
static const char *glbPref;
static const char *glbPost;
static bool glbIsStruct;
static bool glbMustBeTag32;
static int glbTagFile;

// Numbers from here on take more than the one octet of class and form.
constexpr int32_t firstLongTag = 31;

static void cGetSuff(AsnType &, const AsnTag &tag, int)
{
  glbSuff = getTagNumber(tag) < firstLongTag ? "_8" : "";
}

const char *cTagFuncSuff(AsnType &type)
{
  glbSuff = "";
  forInnermostTag(type, cGetSuff);
  return glbSuff;
}

static const char *className(const AsnTag &tag)
{
  static const char *const names[] = {"TAG_UNI", "TAG_APP", "TAG_CTX",
                                      "TAG_PRV"};
  int32_t tagClass = getTagClass(tag);
  return tagClass >= TAG_UNI && tagClass <= TAG_PRV ? names[tagClass] : "";
}

std::string &tagStri(std::string &text, const char *prefix, const AsnTag &tag,
                     bool structured, bool tag32, const char *suffix)
{
  const char *width = !tag32 && getTagNumber(tag) < firstLongTag ? "8" : "";
  text = orEmpty(prefix);
  text += formatText("TAG%s(%s%s%s%s, %ld)", width, className(tag), width,
                     structured ? ", TAG_STR" : ", TAG_PRI", width,
                     static_cast<long>(getTagNumber(tag)));
  return text += orEmpty(suffix);
}

std::string &cTagStri(std::string &text, const char *prefix, const AsnTag &tag,
                      bool structured, const char *suffix)
{
  return tagStri(text, prefix, tag, structured, false, suffix);
}

std::string &cTag32Stri(std::string &text, const char *prefix,
                        const AsnTag &tag, bool structured, const char *suffix)
{
  return tagStri(text, prefix, tag, structured, true, suffix);
}

void cTagToF(int file, const char *prefix, const AsnTag &tag, bool structured,
             const char *suffix)
{
  static std::string text;
  wToF(file, cTagStri(text, prefix, tag, structured, suffix).c_str());
}

void cTag32ToF(int file, const char *prefix, const AsnTag &tag, bool structured,
               const char *suffix)
{
  static std::string text;
  wToF(file, cTag32Stri(text, prefix, tag, structured, suffix).c_str());
}

static void writeTag(AsnType &, const AsnTag &tag, int)
{
  if (glbMustBeTag32)
    cTag32ToF(glbTagFile, glbPref, tag, glbIsStruct, glbPost);
  else
    cTagToF(glbTagFile, glbPref, tag, glbIsStruct, glbPost);
}

static void setTagJob(int file, const char *prefix, bool structured, bool tag32,
                      const char *suffix)
{
  glbTagFile = file;
  glbPref = prefix;
  glbPost = suffix;
  glbIsStruct = structured;
  glbMustBeTag32 = tag32;
}

void cInnermostTagToF(int file, const char *prefix, AsnType &type,
                      bool structured, const char *suffix)
{
  setTagJob(file, prefix, structured, false, suffix);
  forInnermostTag(type, writeTag);
}

void cInnermostTag32ToF(int file, const char *prefix, AsnType &type,
                        bool structured, const char *suffix)
{
  setTagJob(file, prefix, structured, true, suffix);
  forInnermostTag(type, writeTag);
}

void cOutermostTag32ToF(int file, const char *prefix, AsnType &type,
                        bool structured, const char *suffix)
{
  setTagJob(file, prefix, structured, true, suffix);
  forOutermostTag(type, writeTag);
}

// The tag as the outermost call-back builds it.
static std::string *glbTagText;

static void buildTag(AsnType &, const AsnTag &tag, int)
{
  tagStri(*glbTagText, glbPref, tag, glbIsStruct, glbMustBeTag32, glbPost);
}

std::string &cOutermostTag32Stri(std::string &text, const char *prefix,
                                 AsnType &type, bool structured,
                                 const char *suffix)
{
  setTagJob(0, prefix, structured, true, suffix);
  text.clear();
  glbTagText = &text;
  forOutermostTag(type, buildTag);
  return text;
}

// --- the utility context ----------------------------------------------------

static void appendAsnutig(std::string &text, int gIndex)
{
  switch (gIndex) {
  case 1:
  case 2:
  case 4:
  case 5:
    text += cGetGName(gIndex);
    text += "_asnuti";
    break;
  case 3:
    text += "asnutigPtr";
    break;
  default:
    text += "NULL";
  }
}

std::string &cRawAsnutigPtr(std::string &text, const char *prefix, int gIndex,
                            const char *suffix)
{
  text = orEmpty(prefix);
  appendAsnutig(text, gIndex);
  return text += orEmpty(suffix);
}

std::string &cAsnutigPtr(std::string &text, const char *prefix, int gIndex,
                         bool useLast, const char *suffix)
{
  text = orEmpty(prefix);
  text += useLast ? "ASNG_L(" : "ASNG_F(";
  appendAsnutig(text, gIndex);
  text += ')';
  return text += orEmpty(suffix);
}
