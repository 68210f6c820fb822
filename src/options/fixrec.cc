// Fix records: parsing of the naming and entry options, and the identifiers
// that they give.
//
// Priority, from low to high: the head of the sort (all names of a module),
// a record behind it (a named definition), a line on the node itself.

#include "options/fixrec.h"
#include "base/diag.h"
#include "base/strings.h"
#include "store/codes.h"
#include "store/treestore.h"
#include <algorithm>
#include <cstring>
#include <iterator>

const NameOption nameOptPref[] = {
    {"VS", FIX_VALUE_SET},
    {"OS", FIX_OBJECT_SET},
    {"CL", FIX_CLASS},
    {"T", FIX_TYPE},
    {"V", FIX_VALUE},
    {"O", FIX_OBJECT},
    {"C", FIX_COMP},
    {"F", FIX_FIELD},
    // No option gets here, the first "V" takes them all; look-ups by kind do.
    {"V", FIX_COMP_VALUE},
};

// What follows the prefix in an option's name.
static const char *const fixWords[] = {"CONV=", "PREF=", "NAME=", "SUFF="};

static bool startsWithFixWord(const char *text)
{
  return std::any_of(std::begin(fixWords), std::end(fixWords),
                     [=](const char *word) { return startsWith(text, word); });
}

bool isNamingOption(const char *text, const NameOption **row)
{
  for (const NameOption &option : nameOptPref) {
    if (startsWith(text, option.prefix) &&
        startsWithFixWord(text + strlen(option.prefix))) {
      if (row)
        *row = &option;
      return true;
    }
  }
  return false;
}

static bool isNameChar(char c)
{
  return isLetterOrDigitChar(c) || c == '-';
}

static bool isIdentifierChar(char c)
{
  return isNameChar(c) || c == '_';
}

static size_t spanOf(const char *text, bool (*isOfClass)(char))
{
  size_t length = 0;
  while (text[length] && isOfClass(text[length]))
    ++length;
  return length;
}

// The name of a definition of that sort may begin with this character.
static bool mayBeginName(int kind, char c)
{
  switch (kind) {
  case FIX_TYPE:
  case FIX_CLASS:
  case FIX_VALUE_SET:
  case FIX_OBJECT_SET:
    return isCapitalChar(c);
  case FIX_FIELD:
    return true;
  default:
    return isSmallChar(c);
  }
}

static bool isConversion(const char *text)
{
  if (upperChar(*text) == 'H')
    ++text;
  if (upperChar(*text) == 'L' || upperChar(*text) == 'U')
    ++text;
  return *text == 0;
}

bool parseNamingOption(const char *text, const char *&letter)
{
  const NameOption *row = nullptr;
  if (!isNamingOption(text, &row))
    return false;
  letter = text + strlen(row->prefix);
  const char *value = strchr(letter, '=') + 1;
  if (strchr(value, ':')) {
    size_t length = spanOf(value, isNameChar);
    if (!mayBeginName(row->kind, *value) || value[length] != ':')
      return false;
    value += length + 1;
  }
  if (*letter == 'C')
    return isConversion(value);
  return value[spanOf(value, isIdentifierChar)] == 0;
}

bool parseEntryOption(const char *text, const char *&category,
                      const char *&name)
{
  category = text;
  if (isDigitChar(*text))
    text += strspn(text, "01234567");
  else if (strnCaseComp(text, "SDU", 3) == 0 ||
           strnCaseComp(text, "PDU", 3) == 0)
    text += 3;
  name = text;
  if (*text != ':')
    return *text == 0;
  ++name;
  return name[spanOf(name, isIdentifierChar)] == 0;
}

void splitFixOptionIntoParts(const FixRec *record, const char *value,
                             const char *&typeName, int32_t &length,
                             const char *&rest)
{
  typeName = nullptr;
  length = 0;
  rest = value;
  if (!record || !strchr(value, ':'))
    return;
  typeName = value;
  size_t span = spanOf(value, isNameChar);
  length = static_cast<int32_t>(span);
  rest = value + span;
  if (*rest == ':')
    ++rest;
}

// The key of a name in an index: spelled with "_".
static std::string indexKey(const char *name, size_t length)
{
  std::string key(name, length);
  return convertHyphens(key);
}

FixRec *findFixRecByEntryTypeName(FixRec &head, const char *typeName,
                                  int32_t length)
{
  if (!head.index)
    head.index = new FixIndex;
  // Names in options have no "_", so that the key is the name.
  std::string key = indexKey(typeName, static_cast<size_t>(length));
  FixRec *&record = head.index->byName[key];
  if (!record) {
    record = new FixRec;
    FixRec *last = head.index->last;
    (last ? last : &head)->next = record;
    head.index->last = record;
  }
  return record;
}

bool updateEntryOption(FixRec &record, const char *category, const char *name)
{
  record.conv = category;
  record.pref = *name ? name : nullptr;
  return true;
}

bool updateNamingOption(FixRec &record, char letter, const char *value)
{
  switch (letter) {
  case 'C':
    record.conv = value;
    return true;
  case 'N':
    record.name = value;
    return true;
  case 'P':
    record.pref = value;
    return true;
  case 'S':
    record.suff = value;
    return true;
  default:
    return false;
  }
}

bool getFixOpt(FixRec *record, const char *option, const char *value)
{
  const char *typeName, *rest;
  int32_t length;
  splitFixOptionIntoParts(record, value, typeName, length, rest);
  const char *category = nullptr, *symbol = nullptr, *letter = nullptr;
  bool isEntry = startsWith(option, "ENTRY");
  if (!(isEntry ? parseEntryOption(rest, category, symbol)
                : parseNamingOption(option, letter)))
    return false;
  if (!record)
    return true;
  if (typeName && *typeName != ':') {
    record = findFixRecByEntryTypeName(*record, typeName, length);
    record->id = typeName;
    record->idLen = length;
  }
  return isEntry ? updateEntryOption(*record, category, symbol)
                 : updateNamingOption(*record, *letter, rest);
}

FixRec &fixRecForKind(GlobalOptions &options, int kind)
{
  switch (kind) {
  case FIX_TYPE:
    return options.fixRecs[0];
  case FIX_CLASS:
    return options.fixRecs[1];
  case FIX_VALUE:
  case FIX_COMP_VALUE:
    return options.fixRecs[2];
  case FIX_VALUE_SET:
    return options.fixRecs[3];
  case FIX_OBJECT:
    return options.fixRecs[4];
  case FIX_OBJECT_SET:
    return options.fixRecs[5];
  case FIX_COMP:
    return options.fixRecs[6];
  case FIX_FIELD:
    return options.fixRecs[7];
  default:
    fatalError(FATAL_INTERNAL);
  }
}

static bool isValueKind(int kind)
{
  return kind == FIX_VALUE || kind == FIX_OBJECT || kind == FIX_COMP_VALUE;
}

void getTedRecAndCompIdByKind(int kind, TedRange &range, int32_t &identifier)
{
  range = {};
  if (isValueKind(kind)) {
    identifier = vNode.identifier;
    if (vNode.valueFlags & VFL_NAMING)
      range = {vNode.firstTed, vNode.lastTed};
  } else {
    identifier = tNode.identifier;
    if (tNode.nodeOptions >> optNaming & 1)
      range = {tNode.firstTed, tNode.lastTed};
  }
}

// The fields of `from` that are present override those of the destination.
static void overrideFields(FixRec &destination, const FixRec &from)
{
  if (from.conv)
    destination.conv = from.conv;
  if (from.pref)
    destination.pref = from.pref;
  if (from.name)
    destination.name = from.name;
  if (from.suff)
    destination.suff = from.suff;
}

static const char *optionPrefixOf(int kind)
{
  for (const NameOption &row : nameOptPref)
    if (row.kind == kind)
      return row.prefix;
  fatalError(FATAL_INTERNAL);
}

// The lines on the node itself, the last one winning.
static void overrideByLines(FixRec &destination, ModRec *module, TedRange range,
                            int kind)
{
  const char *prefix = optionPrefixOf(kind);
  SavedNode saved(REC_TED);
  for (int32_t i = std::max(range.first, 1); i <= range.last; ++i) {
    readRec(module, REC_TED, i);
    const char *line = getStri(module, tedRec.text);
    if (tedRec.tedKind != TED_FRONT_END || *line == 0)
      continue;
    const char *option = line + 1;
    const char *word = option + strlen(prefix);
    if (startsWith(option, prefix) && startsWithFixWord(word))
      updateNamingOption(destination, *word, strchr(word, '=') + 1);
  }
}

void getFixRec(FixRec &destination, int kind)
{
  TedRange range;
  int32_t identifier;
  getTedRecAndCompIdByKind(kind, range, identifier);
  destination = FixRec{};
  if (identifier == 0)
    return;
  ModRec *module = currTPtr[isValueKind(kind) ? REC_VNODE : REC_TNODE];
  const char *id = getStri(module, identifier);
  const FixRec &head = fixRecForKind(module->options, kind);
  destination.conv = destination.pref = "";
  destination.name = destination.suff = "";
  overrideFields(destination, head);
  if (const FixRec *named = findGlbFixRecByName(head, id))
    overrideFields(destination, *named);
  int32_t nameLen = module->options.nameLen;
  size_t length = strlen(id);
  destination.id = id;
  destination.idLen =
      static_cast<int32_t>(std::min(length, static_cast<size_t>(nameLen)));
  if (range.last != 0)
    overrideByLines(destination, module, range, kind);
  if (!*destination.conv && !*destination.pref && !*destination.name &&
      !*destination.suff)
    return;
  if (*destination.name)
    destination.idLen = nameLen;
  else
    destination.name = id;
}

static char plainHyphen(char c)
{
  return c == '-' ? '_' : c;
}

size_t compareNames(const char *a, const char *b)
{
  size_t length = 0;
  while (a[length] && plainHyphen(a[length]) == plainHyphen(b[length]))
    ++length;
  return length;
}

FixRec *findGlbFixRecByName(const FixRec &head, const char *name)
{
  if (!head.index)
    return nullptr;
  const auto &byName = head.index->byName;
  auto found = byName.find(indexKey(name, strlen(name)));
  return found == byName.end() ? nullptr : found->second;
}

void initFixRec(FixRec &destination, const char *id, const char *pref,
                const char *name, const char *suff, const char *conv,
                int32_t maximum)
{
  bool replaced = name;
  size_t length = std::min(strlen(orEmpty(id)), static_cast<size_t>(maximum));
  destination = FixRec{};
  destination.pref = pref;
  destination.name = replaced ? name : id;
  destination.suff = suff;
  destination.conv = conv;
  destination.id = id;
  destination.idLen = replaced ? maximum : static_cast<int32_t>(length);
}

void copyFixRec(FixRec &destination, const FixRec &source, const char *id,
                int32_t maximum)
{
  initFixRec(destination, id, source.pref, source.name, source.suff,
             source.conv, maximum);
}

// The conversion rule of a record while its parts go through it.
struct Conversion {
  bool hyphenate = false;
  char letterCase = 0;  // 'L', 'U' or 0
  char previous = 0;    // as it stood in its part

  void append(std::string &text, const char *part, size_t length)
  {
    for (size_t i = 0; i < length && part[i]; ++i) {
      char c = part[i];
      if (isCapitalChar(c)) {
        if (hyphenate && (isSmallChar(previous) || isDigitChar(previous)))
          text += '_';
        text += letterCase == 'L' ? lowerChar(c) : c;
      } else if (isSmallChar(c)) {
        text += letterCase == 'U' ? upperChar(c) : c;
      } else {
        text += plainHyphen(c);
      }
      previous = c;
    }
  }
};

std::string &pFixRec(std::string &text, const FixRec &record)
{
  Conversion conversion;
  const char *rule = orEmpty(record.conv);
  if (upperChar(*rule) == 'H') {
    conversion.hyphenate = true;
    ++rule;
  }
  if (upperChar(*rule) == 'L' || upperChar(*rule) == 'U')
    conversion.letterCase = upperChar(*rule);
  std::string converted;
  conversion.append(converted, orEmpty(record.pref), SIZE_MAX);
  conversion.append(converted, orEmpty(record.name),
                    static_cast<size_t>(std::max(record.idLen, 0)));
  conversion.append(converted, orEmpty(record.suff), SIZE_MAX);
  return text = converted;
}

// What the record gives: the converted name, or the plain one.
static std::string identifierOf(const FixRec &record)
{
  std::string text;
  if (*orEmpty(record.name))
    return pFixRec(text, record);
  const char *id = orEmpty(record.id);
  return text.assign(
      id, strnlen(id, static_cast<size_t>(std::max(record.idLen, 0))));
}

std::string &printFixRec(std::string &text, const char *before,
                         const FixRec &record, const char *after)
{
  return text = orEmpty(before) + identifierOf(record) + orEmpty(after);
}

size_t countFixRec(const FixRec &record)
{
  return identifierOf(record).size();
}

int compareFixRec(const FixRec &a, const FixRec &b)
{
  if (!*orEmpty(a.name) && !*orEmpty(b.name))
    return a.idLen != b.idLen || identifierOf(a) != identifierOf(b);
  std::string left, right;
  return pFixRec(left, a) != pFixRec(right, b);
}

std::string &asnTypeName(std::string &text, const char *before, int mainType,
                         bool blanksToo, const char *after)
{
  std::string name = orEmpty(typeRow(mainType).asnName);
  convertHyphens(name);
  if (blanksToo)
    std::replace(name.begin(), name.end(), ' ', '_');
  return text = orEmpty(before) + name + orEmpty(after);
}
