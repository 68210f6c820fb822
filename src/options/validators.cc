// Validators of option values, shared by all options of the tool.

#include "options/validators.h"
#include "base/strings.h"
#include "store/module.h"
#include <algorithm>
#include <cstring>

const NamedByte yesNoVal[] = {{"NO", 0}, {"YES", 1}, {nullptr, 0}};

const NamedByte ignoreWarningErrorVal[] = {
    {"IGNORE", 0}, {"WARNING", 1}, {"ERROR", 2}, {nullptr, 0}};

const NamedByte glbDefLenVal[] = {{"indefinite", 0},
                                  {"no", 0},
                                  {"definite", 1},
                                  {"yes", 1},
                                  {"definite-indefinitecomps", 2},
                                  {"definite-definitecomps", 3},
                                  {nullptr, 0}};

const NamedByte extensionsVal[] = {{"SKIP", 0}, {"SAVE", 1}, {nullptr, 0}};

const NamedByte generateVal[] = {{"none", 0},
                                 {"entries", 1},
                                 {"visibles", 2},
                                 {"entries-and-visibles", 3},
                                 {nullptr, 0}};

const NamedByte setnVal[] = {{"none", 0},
                             {"named-numbers", 1},
                             {"named-numbers-and-bits", 2},
                             {nullptr, 0}};

// REAL stands twice; its second row is never reached.
const NamedByte optVals[] = {{"OLD", 0},
                             {"REAL", 1},
                             {"REAL-N", -1},
                             {"COMMONTIME", 2},
                             {"DATETIMEZ", -2},
                             {"EXTERNAL", 3},
                             {"EXTERNAL-N", -3},
                             {"REAL", 1},
                             {"SIGNED-CONTROL-MEMBER", 4},
                             {"UNSIGNED-CONTROL-MEMBER", -4},
                             {"ANY-FUNCTIONS", 5},
                             {"NO-ANY-FUNCTIONS", -5},
                             {nullptr, 0}};

const CategoryName defCatVal[5] = {{"STAND-ALONE", 0},
                                   {"VARNO-SERVICE", 1},
                                   {"VARNO-PROTOCOL", 2},
                                   {"VARNO-IOS", 3},
                                   {"OTHER", 255}};

// --- numbers ----------------------------------------------------------------

static bool allOf(const char *text, bool (*isOfClass)(char))
{
  return std::all_of(text, text + strlen(text), isOfClass);
}

// A leading "0" is allowed only as the whole text.
static bool isPlainNumber(const char *text)
{
  return allOf(text, isDigitChar) && !(text[0] == '0' && text[1] != 0);
}

static const NamedByte *findNamedByte(const NamedByte *table, const char *text)
{
  while (table && table->name && strCaseComp(table->name, text) != 0)
    ++table;
  return table && table->name ? table : nullptr;
}

bool byteOptionOK(uint8_t &destination, const char *text, int minimum,
                  int maximum, const NamedByte *table)
{
  if (isDigitChar(text[0])) {
    if (strlen(text) > 3 || !isPlainNumber(text))
      return false;
    int value = 0;
    for (; *text; ++text)
      value = value * 10 + (*text - '0');
    if (value < minimum || value > maximum)
      return false;
    destination = static_cast<uint8_t>(value);
    return true;
  }
  const NamedByte *row = findNamedByte(table, text);
  if (row)
    destination = static_cast<uint8_t>(row->value);
  return row;
}

bool int32OptionOK(int32_t &destination, const char *text, int32_t minimum,
                   int32_t maximum)
{
  if (!isPlainNumber(text))
    return false;
  int64_t value = 0;
  for (; *text; ++text) {
    value = value * 10 + (*text - '0');
    if (value > INT32_MAX)
      return false;
  }
  if (value < minimum || value > maximum)
    return false;
  destination = static_cast<int32_t>(value);
  return true;
}

static const NamedByte booleVal[] = {{"1", 1},    {"YES", 1}, {"TRUE", 1},
                                     {"0", 0},    {"NO", 0},  {"FALSE", 0},
                                     {nullptr, 0}};

bool booleOptionOK(uint8_t &destination, const char *text)
{
  const NamedByte *row = findNamedByte(booleVal, text);
  if (row)
    destination = static_cast<uint8_t>(row->value);
  return row;
}

bool bitVector8OptionOK(uint8_t &destination, const char *text)
{
  int bits = 0;
  for (; *text; ++text) {
    if (*text < '0' || *text > '7')
      return false;
    bits |= 1 << (*text - '0');
  }
  destination = static_cast<uint8_t>(bits);
  return true;
}

bool intSizeOptionOK(uint8_t &destination, const char *text,
                     bool unsignedAllowed)
{
  if (strcmp(text, "0") == 0 || strCaseComp(text, "OPTIMIZE") == 0) {
    destination = 0;
    return true;
  }
  int base = 6;
  if (unsignedAllowed && upperChar(*text) == 'U') {
    base = 2;
    ++text;
  }
  static const char *const sizes[] = {"8", "16", "32", "64"};
  for (size_t i = 0; i < std::size(sizes); ++i) {
    if (strcmp(text, sizes[i]) == 0) {
      destination = static_cast<uint8_t>(base + static_cast<int>(i));
      return true;
    }
  }
  return false;
}

static const NamedByte realSizeVal[] = {
    {"0", 0}, {"32", 10}, {"64", 11}, {"128", 12}, {nullptr, 0}};

bool realSizeOptionOK(uint8_t &destination, const char *text)
{
  const NamedByte *row = findNamedByte(realSizeVal, text);
  if (row)
    destination = static_cast<uint8_t>(row->value);
  return row;
}

// A number at the start of `text` that goes up to `end`, in the range; moves
// `text` behind that character.
static bool numberUpTo(int32_t &value, const char *&text, char end,
                       int32_t maximum)
{
  const char *stop = strchr(text, end);
  if (!stop || stop == text)
    return false;
  std::string digits(text, stop);
  text = stop + 1;
  return int32OptionOK(value, digits.c_str(), 0, maximum);
}

bool realLimOptionOK(RealVal &destination, const char *text)
{
  int32_t mantissa = 0, exponent = 0;
  if (*text++ != '{' || !numberUpTo(mantissa, text, ',', INT32_MAX))
    return false;
  if (!startsWith(text, "10,"))
    return false;
  text += 3;
  if (!numberUpTo(exponent, text, '}', INT16_MAX) || *text)
    return false;
  i64ltosint64(destination.mantissa, mantissa);
  destination.base = 10;
  destination.exponent = static_cast<int16_t>(exponent);
  return true;
}

static const NamedByte splitVal[] = {
    {"none", 0}, {"combined", 1}, {"separate", 2}, {nullptr, 0}};

bool genArrOptionOK(uint8_t *array, const char *text, int index)
{
  constexpr int maxEntries = 3;
  constexpr int mirror = 6;
  int staged[maxEntries];  // -1: the place stays as it is
  int count = 0;
  for (bool more = true; more; ++count) {
    if (count == maxEntries)
      return false;
    const char *end = strchr(text, ':');
    more = end;
    std::string entry = end ? std::string(text, end) : std::string(text);
    const NamedByte *row = findNamedByte(splitVal, entry.c_str());
    if (entry.empty())
      staged[count] = -1;
    else if (entry.size() == 1 && entry[0] >= '0' && entry[0] <= '2')
      staged[count] = entry[0] - '0';
    else if (row)
      staged[count] = row->value;
    else
      return false;
    text += entry.size() + 1;
  }
  for (int i = 0; i < count; ++i)
    if (staged[i] >= 0)
      array[index + i] = array[index + i + mirror] =
          static_cast<uint8_t>(staged[i]);
  return true;
}

bool altCodOption(uint8_t *array, const char *text, int limit)
{
  int32_t index = 0;
  if (!numberUpTo(index, text, ':', INT32_MAX) || index >= limit)
    return false;
  return bitVector8OptionOK(array[index], text);
}

// --- texts ------------------------------------------------------------------

size_t findNonPrint(const char *text, bool isOption)
{
  size_t i = 0;
  while (text[i] && isPrintableChar(text[i]) && (isOption || text[i] != ' '))
    ++i;
  return i;
}

bool copyDirOption(std::string &destination, const char *text)
{
  destination = text;
  if (destination.empty() || destination.back() != '/')
    destination += '/';
  return true;
}

bool directoryOptionOK(std::string &destination, const char *text)
{
  if (*text == 0 || text[findNonPrint(text, true)] != 0)
    return false;
  return copyDirOption(destination, text);
}

bool directorySearchPathOptionOK(SearchPath &destination, const char *text)
{
  std::string directory;
  if (!directoryOptionOK(directory, text))
    return false;
  addDirToSearchPath(destination, directory.c_str());
  return true;
}

// Takes the text if `isOfClass` accepts all of it and its length fits.
template <class F>
static bool striOptionOK(std::string &destination, const char *text,
                         size_t shortest, size_t longest, F isOfClass)
{
  size_t length = strlen(text);
  if (length < shortest || length > longest)
    return false;
  if (!std::all_of(text, text + length, isOfClass))
    return false;
  destination = text;
  return true;
}

bool alphaStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest, isLetterChar);
}

bool digitStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest, isDigitChar);
}

bool xdigitStriOptionOK(std::string &destination, const char *text,
                        size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest, [](char c) {
    return isDigitChar(c) || (upperChar(c) >= 'A' && upperChar(c) <= 'F');
  });
}

bool bdigitStriOptionOK(std::string &destination, const char *text,
                        size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest,
                      [](char c) { return c == '0' || c == '1'; });
}

bool alnumStriOptionOK(std::string &destination, const char *text,
                       size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest,
                      isLetterOrDigitChar);
}

bool alnumSpecialStriOptionOK(std::string &destination, const char *text,
                              const char *set, size_t shortest, size_t longest)
{
  return striOptionOK(destination, text, shortest, longest, [set](char c) {
    return isLetterOrDigitChar(c) || strchr(set, c);
  });
}

bool specialStriOptionOK(std::string &destination, const char *text,
                         const char *set, size_t shortest, size_t longest)
{
  if (*text == 0 || !strchr(set, *text))
    return false;
  return striOptionOK(destination, text, shortest, longest,
                      [](char) { return true; });
}

// --- options with effects of their own --------------------------------------

bool standardVersionOptionOK(int32_t &destination, const char *text)
{
  int32_t year = 0;
  if (!int32OptionOK(year, text, 1990, 1994) || (year != 1990 && year != 1994))
    return false;
  destination = year;
  return true;
}

static void setCategory(GlobalOptions &options, uint8_t category)
{
  options.definitionCategory = category;
  initGenArr(options.genArr, category);
  options.memory = 1;
  options.zeroHome = 1;
  options.reentrant = 0;
}

bool defCatOption(GlobalOptions &options, const ModRec &module,
                  const char *text)
{
  const char *name = text;
  bool ours = true;
  if (const char *colon = strchr(text, ':')) {
    ours = std::string(text, colon) == orEmpty(module.filePrefix);
    name = colon + 1;
  }
  for (const CategoryName &row : defCatVal) {
    if (strCaseComp(row.name, name) == 0) {
      if (ours)
        setCategory(options, row.value);
      return true;
    }
  }
  return !ours;
}

bool varnoOption(GlobalOptions &options, const char *text)
{
  uint8_t category = 0;
  if (!byteOptionOK(category, text, 0, 2, nullptr))
    return false;
  setCategory(options, category);
  return true;
}

// The range starts at 1 in the categories whose services need the option; it
// holds for names, too.
static bool categoryYesNo(uint8_t &destination, const GlobalOptions &options,
                          const char *text)
{
  uint8_t value = 0;
  bool needed =
      options.definitionCategory >= 1 && options.definitionCategory <= 3;
  if (!byteOptionOK(value, text, 0, 1, yesNoVal) || (needed && value == 0))
    return false;
  destination = value;
  return true;
}

bool memoryOptionOK(GlobalOptions &options, const char *text)
{
  return categoryYesNo(options.memory, options, text);
}

bool zeroHomeOptionOK(GlobalOptions &options, const char *text)
{
  return categoryYesNo(options.zeroHome, options, text);
}

// What C-GENERATION's OLD stands for besides its own bit.
static uint32_t allPositiveBits()
{
  uint32_t bits = 1;
  for (const NamedByte *row = optVals; row->name; ++row)
    if (row->value > 0)
      bits |= uint32_t{1} << row->value;
  return bits;
}

bool cGenerationOptionOK(GlobalOptions &options, const char *text)
{
  uint32_t bits = 0;
  bool old = false;
  for (bool more = true; more;) {
    const char *end = strchr(text, ':');
    more = end;
    std::string name = end ? std::string(text, end) : std::string(text);
    text += name.size() + 1;
    const NamedByte *row = findNamedByte(optVals, name.c_str());
    if (!row)
      return false;
    if (row->value == 0) {
      old = true;
      bits |= allPositiveBits();
    } else if (row->value > 0) {
      bits |= uint32_t{1} << row->value;
    } else {
      bits &= ~(uint32_t{1} << -row->value);
    }
  }
  options.cGeneration = bits;
  if (old) {
    options.intSize = 7;
    options.nSize = options.compMaskSize = 8;
    options.choiceSize = 7;
  }
  return true;
}
