// The catalogue of global options, as tables: what the front-end saved in a
// tree is applied to the module's options when the tree is loaded.
//
// An option matches by its name with the "=", the first row that fits wins.

#include "options/catalogue.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "options/combine.h"
#include "options/fixrec.h"
#include "options/validators.h"
#include "store/module.h"
#include <algorithm>
#include <cstring>

int pass3Scope = 1;

// --- prefixes of modules ----------------------------------------------------

// Longest module name in a "PREFIX=" option.
constexpr size_t maxModuleName = 128;

// Warns of a part that is longer than prefixes may be.
static void checkPrefixOptionPart(ModRec &module, const char *what,
                                  const std::string &part)
{
  int limit = module.options.prefixLen;
  if (part.size() <= static_cast<size_t>(limit))
    return;
  if (verboseEx >= 2)
    fprintf(stderr,
            "\nWARNING : A %s '%s' is longer than %d characters.\n"
            "          Truncating it to %d characters.\n"
            "          Check value of the PREFIXLEN option.\n",
            what, part.c_str(), limit, limit);
  ++module.nrWarnings;
}

static bool isModuleNameChar(char c)
{
  return isLetterOrDigitChar(c) || c == '-';
}

static bool isPrefixChar(char c)
{
  return isModuleNameChar(c) || c == '_';
}

// The parts of a text between its ":".
static std::vector<std::string> partsOf(const char *text)
{
  std::vector<std::string> parts(1);
  for (; *text; ++text) {
    if (*text == ':')
      parts.emplace_back();
    else
      parts.back() += *text;
  }
  return parts;
}

static bool consistsOf(const std::string &part, bool (*isOfClass)(char))
{
  return std::all_of(part.begin(), part.end(), isOfClass);
}

// The string of the tree being loaded that equals the text; fatal error 9 if
// the tree lacks it.
static const char *storedStri(ModRec &module, const std::string &text)
{
  return getStri(&module, putStri(&module, text.c_str()));
}

bool prefixOptOK(ModRec &module, const char *value)
{
  std::vector<std::string> parts = partsOf(value);
  if (parts.size() > 3)
    return false;
  parts.resize(3);
  std::string name = parts[0];
  std::string filePrefix = parts[1];
  std::string generationPrefix = parts[2];
  if (name.empty() || !isCapitalChar(name[0]) ||
      !consistsOf(name, isModuleNameChar) ||
      !consistsOf(filePrefix, isPrefixChar) ||
      !consistsOf(generationPrefix, isPrefixChar))
    return false;
  if (filePrefix.empty())
    filePrefix = name;
  checkPrefixOptionPart(module, "file prefix", filePrefix);
  if (generationPrefix.empty())
    generationPrefix = filePrefix;
  else
    checkPrefixOptionPart(module, "generation prefix", generationPrefix);

  size_t limit = module.options.prefixLen;
  name.resize(std::min(name.size(), maxModuleName));
  filePrefix.resize(std::min(filePrefix.size(), limit));
  generationPrefix.resize(std::min(generationPrefix.size(), limit));
  convertHyphens(name);
  const char *storedName = storedStri(module, name);
  const char *storedFile = storedStri(module, filePrefix);
  const char *storedGeneration = storedStri(module, generationPrefix);

  ModRec *&table = module.options.prefixes;
  if (!table)
    table = new ModRec;
  auto found = table->importsByName.find(storedName);
  PicRec *entry = found != table->importsByName.end()
                      ? found->second
                      : createPicRec(*table, storedName);
  entry->module = findOrCreateModRec(storedFile, storedGeneration, storedName);
  return true;
}

bool pass2GlobalOptionOK(ModRec &module, int32_t, int, const char *text)
{
  static const char name[] = "PREFIX=";
  if (startsWith(text, name))
    return prefixOptOK(module, text + sizeof name - 1);
  return true;
}

// --- the catalogue ----------------------------------------------------------

bool isRCSKeyWord(const char *text)
{
  static const char *const words[] = {"AUTHOR", "DATE", "HEADER",  "ID",
                                      "LOCKER", "LOG",  "RCSFILE", "REVISION",
                                      "SOURCE", "STATE"};
  if (*text == 0)
    return true;
  return std::any_of(std::begin(words), std::end(words), [=](const char *word) {
    const char *rest = text + strlen(word);
    return startsWith(text, word) && (*rest == 0 || *rest == ':');
  });
}

bool genOptOK(GlobalOptions &options, const char *text, int index)
{
  return genArrOptionOK(options.genArr, text, index);
}

// What an option is applied to.
struct OptionTarget {
  ModRec &module;
  GlobalOptions &options;
  int32_t tedIndex;
};

typedef bool ApplyOption(OptionTarget &target, const char *value);

struct CatalogueRow {
  const char *name;
  ApplyOption *apply;
};

template <uint8_t GlobalOptions::*field>
static bool applyBits(OptionTarget &target, const char *value)
{
  return bitVector8OptionOK(target.options.*field, value);
}

template <uint8_t (GlobalOptions::*field)[8]>
static bool applyAltBits(OptionTarget &target, const char *value)
{
  return altCodOption(target.options.*field, value, target.options.altMax);
}

template <uint8_t GlobalOptions::*field>
static bool applyBoole(OptionTarget &target, const char *value)
{
  return booleOptionOK(target.options.*field, value);
}

template <uint8_t GlobalOptions::*field, int minimum, int maximum,
          const NamedByte *table = nullptr>
static bool applyByte(OptionTarget &target, const char *value)
{
  return byteOptionOK(target.options.*field, value, minimum, maximum, table);
}

template <uint8_t GlobalOptions::*field, bool unsignedAllowed>
static bool applyIntSize(OptionTarget &target, const char *value)
{
  return intSizeOptionOK(target.options.*field, value, unsignedAllowed);
}

template <int32_t GlobalOptions::*field>
static bool applyLimit(OptionTarget &target, const char *value)
{
  return int32OptionOK(target.options.*field, value, 0, INT32_MAX);
}

template <std::string GlobalOptions::*field>
static bool applyText(OptionTarget &target, const char *value)
{
  target.options.*field = value;
  return true;
}

template <std::string GlobalOptions::*field>
static bool applyDirectory(OptionTarget &target, const char *value)
{
  return copyDirOption(target.options.*field, value);
}

template <int index>
static bool applyYesNoEntry(OptionTarget &target, const char *value)
{
  return byteOptionOK(target.options.genArr[index], value, 0, 1, yesNoVal);
}

template <int index>
static bool applySplit(OptionTarget &target, const char *value)
{
  return genOptOK(target.options, value, index);
}

// The functions for tables are wanted at most as the tables are.
static bool applyTabF(OptionTarget &target, const char *value)
{
  uint8_t *array = target.options.genArr;
  return byteOptionOK(array[4], value, 0, array[3], yesNoVal);
}

template <bool (*validator)(GlobalOptions &, const char *)>
static bool applyWhole(OptionTarget &target, const char *value)
{
  return validator(target.options, value);
}

static bool applyAllow(OptionTarget &target, const char *)
{
  target.options.allow = 1;
  return true;
}

static bool applyComment(OptionTarget &target, const char *)
{
  TedRange &range = target.options.commentTed;
  if (range.first == 0)
    range.first = target.tedIndex;
  range.last = target.tedIndex;
  return true;
}

// The value of an option is what stands behind its row's name; the entry
// option is parsed from its name on.
static bool applyEntry(OptionTarget &target, const char *value)
{
  return getFixOpt(&target.options.entryFixRec, "ENTRY=", value);
}

typedef GlobalOptions G;

// For lines of kind 2 and 3, behind the naming options. The value may be
// empty.
static const CatalogueRow firstGroup[] = {
    {"ENCF=", applyBits<&G::encF>},
    {"DECF=", applyBits<&G::decF>},
    {"ASKF=", applyBits<&G::askF>},
    {"PRIF=", applyBits<&G::priF>},
    {"ALTENCF=", applyAltBits<&G::altEncF>},
    {"ALTDECF=", applyAltBits<&G::altDecF>},
    {"ENTRY=", applyEntry},
    {"ALLOW", applyAllow},
    {"//", applyComment},
    {"BEO=//", applyComment},
};

// For lines of kind 3 with a value.
static const CatalogueRow secondGroup[] = {
    {"INFO=", applyText<&G::info>},
    {"C=", applyDirectory<&G::cDirectory>},
    {"H=", applyDirectory<&G::hDirectory>},
    {"COD=", applySplit<5>},
    {"TST=", applySplit<8>},
    {"INT=", applyIntSize<&G::intSize, true>},
    {"N=", applyIntSize<&G::nSize, false>},
    {"COMPMASK=", applyIntSize<&G::compMaskSize, false>},
    {"CHOICE=", applyIntSize<&G::choiceSize, false>},
    {"REAL=",
     [](OptionTarget &target, const char *value) {
       return realSizeOptionOK(target.options.realSize, value);
     }},
    {"PUSHPATH=", applyBoole<&G::pushPath>},
    {"XREF=", applyBoole<&G::xref>},
    {"LIST=", applyBoole<&G::list>},
    {"ANSI-C=", applyBoole<&G::ansiC>},
    {"REENTRANT=", applyBoole<&G::reentrant>},
    {"PLMBOOLE=", applyBoole<&G::plmBoole>},
    {"NEAR=", applyBoole<&G::near>},
    {"ALTTAB=", applyBoole<&G::altTab>},
    {"ASNHC=", applyBoole<&G::asnHc>},
    {"OPTVARS=", applyBoole<&G::optVars>},
    {"OMIT-SKIPPED-FIELDS=", applyBoole<&G::omitSkippedFields>},
    {"STANDARD-VERSION=",
     [](OptionTarget &target, const char *value) {
       return standardVersionOptionOK(target.options.standardVersion, value);
     }},
    {"DEFINITION-CATEGORY=",
     [](OptionTarget &target, const char *value) {
       return defCatOption(target.options, target.module, value);
     }},
    {"VARNO=", applyWhole<varnoOption>},
    {"TYP=", applyYesNoEntry<1>},
    {"DEF=", applyYesNoEntry<2>},
    {"TAB=", applyYesNoEntry<3>},
    {"TABF=", applyTabF},
    {"DECIMALS=", applyByte<&G::decimals, 0, 127>},
    {"DIAGLEVEL=", [](OptionTarget &, const char *) { return true; }},
    {"COMPTAG=", applyByte<&G::compTag, 0, 2>},
    {"EXPLICIT=", applyByte<&G::explicitTag, 0, 2>},
    {"NAMELEN=", applyByte<&G::nameLen, 8, 128>},
    {"RECURSION=", applyByte<&G::recursion, 0, 2, ignoreWarningErrorVal>},
    {"TAGUSAGE=", applyByte<&G::tagUsage, 0, 2, ignoreWarningErrorVal>},
    {"GENERATE=", applyByte<&G::generate, 0, 3, generateVal>},
    {"MEMORY=", applyWhole<memoryOptionOK>},
    {"DEFINITELEN=", applyByte<&G::definiteLen, 0, 3, glbDefLenVal>},
    {"EXTENSIONS=", applyByte<&G::extensions, 0, 1, extensionsVal>},
    {"ZEROHOME=", applyWhole<zeroHomeOptionOK>},
    {"TDEFS=", applyByte<&G::tDefs, 0, 1, yesNoVal>},
    {"CDEFS=", applyByte<&G::cDefs, 0, 1, yesNoVal>},
    {"TABO=", applyByte<&G::tabO, 0, 1, yesNoVal>},
    {"SETN=", applyByte<&G::setN, 0, 2, setnVal>},
    {"ALTMAX=", applyByte<&G::altMax, 0, 8>},
    {"C-GENERATION=", applyWhole<cGenerationOptionOK>},
    {"SEGLISTLIM=", applyLimit<&G::segListLim>},
    {"DYNLISTLIM=", applyLimit<&G::dynListLim>},
    {"DYNARRLIM=", applyLimit<&G::dynArrLim>},
    {"SEGSTRLIM=", applyLimit<&G::segStrLim>},
    {"DYNSTRLIM=", applyLimit<&G::dynStrLim>},
    {"SPLIT=", applyLimit<&G::split>},
    {"REALLIM=",
     [](OptionTarget &target, const char *value) {
       return realLimOptionOK(target.options.realLim, value);
     }},
    {"COMBINE=",
     [](OptionTarget &target, const char *value) {
       return combineOptionOK(target.options.combine, value);
     }},
    {"TABREF=", applyText<&G::tabRef>},
};

template <size_t n>
static const CatalogueRow *findRow(const CatalogueRow (&rows)[n],
                                   const char *text)
{
  for (const CatalogueRow &row : rows)
    if (startsWith(text, row.name))
      return &row;
  return nullptr;
}

static bool catalogueOptionOK(OptionTarget &target, int tedKind,
                              const char *text)
{
  // Neither group is for a kind that there isn't.
  if (tedKind != TED_BACK_END && tedKind != TED_FRONT_END)
    return false;
  const NameOption *naming = nullptr;
  if (isNamingOption(text, &naming))
    return getFixOpt(&fixRecForKind(target.options, naming->kind), text,
                     strchr(text, '=') + 1);
  if (const CatalogueRow *row = findRow(firstGroup, text))
    return row->apply(target, text + strlen(row->name));
  const char *equals = strchr(text, '=');
  if (!equals || equals[1] == 0)
    return isRCSKeyWord(text);
  if (tedKind != TED_FRONT_END)
    return false;
  if (const CatalogueRow *row = findRow(secondGroup, text))
    return row->apply(target, text + strlen(row->name));
  return adeIsADEOption(text) ? adeOptionOK(text) : isRCSKeyWord(text);
}

// --- pass 3 -----------------------------------------------------------------

bool moduleIsInScopeList(const ModRec &module, const char *list)
{
  // Names of other modules, and of none, make no difference.
  for (bool more = true; more;) {
    const char *end = strchr(list, ':');
    more = end;
    std::string name = end ? std::string(list, end) : std::string(list);
    if (module.filePrefix && name == module.filePrefix)
      return true;
    list += name.size() + 1;
  }
  return false;
}

// Options that other passes own, or that only the front-end uses.
static const char *const othersOptions[] = {
    "VERBOSE=", "A=", "L=", "STRICTSTANDARD", "V=", "PREFIXLEN=", "PREFIX="};

bool pass3GlobalOptionOK(ModRec &module, int32_t tedIndex, int tedKind,
                         const char *text)
{
  static const char beginScope[] = "BEGIN-SCOPE=";
  static const char endScope[] = "END-SCOPE";
  if (tedKind == TED_DROPPED || tedKind == TED_EMBEDDING)
    return false;
  if (std::any_of(std::begin(othersOptions), std::end(othersOptions),
                  [=](const char *name) { return startsWith(text, name); }))
    return true;
  if (startsWith(text, beginScope)) {
    bool named = moduleIsInScopeList(module, text + sizeof beginScope - 1);
    pass3Scope = named ? 2 : 0;
    return true;
  }
  if (startsWith(text, endScope)) {
    pass3Scope = 1;
    return true;
  }
  if (pass3Scope == 0)
    return true;
  OptionTarget target = {module, module.options, tedIndex};
  return catalogueOptionOK(target, tedKind, text);
}
