// The passes over options when trees are in memory. None of them ends the run
// on a bad option: they warn at most.

#include "options/passes.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include "base/upcalls.h"
#include "options/catalogue.h"
#include "options/optionfile.h"
#include "options/params.h"
#include "options/validators.h"
#include "store/treestore.h"
#include <algorithm>
#include <cstring>

// Calls `f` with the index of each line of a range.
template <class F>
static void forEachTed(ModRec &module, TedRange range, F f)
{
  for (int32_t i = std::max(range.first, 1); i <= range.last; ++i) {
    readRec(&module, REC_TED, i);
    f(i);
  }
}

// --- passes 2 and 3 ---------------------------------------------------------

// The text of the current line without its first character.
static const char *textOfLine(ModRec &module)
{
  const char *line = getStri(&module, tedRec.text);
  return *line ? line + 1 : line;
}

void checkGlobalOptions(ModRec &module, int, TedRange range)
{
  // The whole prefix table comes first: names of modules are looked up in
  // what follows.
  forEachTed(module, range, [&](int32_t i) {
    if (tedRec.tedKind != TED_DROPPED)
      pass2GlobalOptionOK(module, i, tedRec.tedKind, textOfLine(module));
  });
  pass3Scope = 1;
  forEachTed(module, range, [&](int32_t i) {
    if (tedRec.tedKind != TED_DROPPED)
      pass3GlobalOptionOK(module, i, tedRec.tedKind, textOfLine(module));
  });
}

// --- the back-end's lines ---------------------------------------------------

const char *parseBEOption(const char *text, const char *prefix, size_t length)
{
  static const char block[] = "-BEO=";
  if (startsWith(text, block)) {
    const char *rest = text + strlen(block);
    return strncmp(rest, prefix, length) == 0 ? rest + length : nullptr;
  }
  return *text == '-' ? text + 1 : nullptr;
}

// Applies one line; `bad` is the mark of the line before.
static bool isBadLine(ModRec &module, const std::string &line, bool bad)
{
  static const char *const ofOtherPasses[] = {"-PREFIXLEN=", "-PREFIX=", "-V="};
  const char *text = line.c_str();
  if (startsWith(text, "-S="))
    return !directoryOptionOK(stxDir, text + 3);
  for (const char *name : ofOtherPasses)
    if (startsWith(text, name))
      return bad;
  return !globalBEOptionOK(*module.beMeta, text);
}

void checkGlobalBEOptions(ModRec &module, TedRange range)
{
  // Not reset from line to line: behind a bad line, lines of other passes
  // are dropped with it.
  bool bad = false;
  forEachTed(module, range, [&](int32_t i) {
    if (tedRec.tedKind != TED_BACK_END)
      return;
    // A copy is raised: the stored string is shared by all modules.
    std::string line = getStri(&module, tedRec.text);
    bad = isBadLine(module, optionToUpper(line), bad);
    if (!bad)
      return;
    // Applying the option may have moved the cursor.
    readRec(&module, REC_TED, i);
    tedRec.tedKind = TED_DROPPED;
    writeRec(&module, REC_TED, i);
    if (verboseEx > 1)
      fprintf(stderr, "\nWARNING : Option ignored: %.50s\n", line.c_str());
  });
}

// --- the option pass --------------------------------------------------------

void addTedRec(TedRange &range, int kind, const char *text)
{
  int32_t index = cMP->nextFree[REC_TED]++;
  tedRec = TedRec{};
  tedRec.tedKind = static_cast<uint8_t>(kind);
  tedRec.text = putStri(cMP, text);
  writeRec(cMP, REC_TED, index);
  if (range.first == 0)
    range.first = index;
  range.last = index;
}

void parseOneCmdLineOption(const char *text, int, int, char **, unsigned &flags,
                           TedRange &range)
{
  int kind = *text == '-' ? TED_BACK_END : TED_DROPPED;
  if (strlen(text) > maxOptionLine)
    kind = TED_DROPPED;
  std::string line = text;
  size_t printable = findNonPrint(text, *text == '-');
  if (printable < line.size()) {
    line.resize(printable);
    kind = TED_DROPPED;
  }
  addTedRec(range, kind, line.c_str());
  flags |= 1u << kind;
}

static void scopeWarning(const char *text, const char *optionFile)
{
  if (verboseEx >= 2) {
    fprintf(stderr, "\nWARNING : %s: option file %s\n", text, optionFile);
    ++cMP->nrWarnings;
  }
}

// Follows the scope lines of one option file, for the warnings alone.
static void noteScope(const std::string &line, bool &inScope,
                      const char *optionFile)
{
  if (beginsWithMark(line, "-BEGIN-SCOPE")) {
    if (inScope)
      scopeWarning("Unexpected -BEGIN-SCOPE", optionFile);
    inScope = true;
  } else if (beginsWithMark(line, "-END-SCOPE")) {
    if (!inScope)
      scopeWarning("Unexpected -END-SCOPE", optionFile);
    inScope = false;
  }
}

// True for lines that the option pass has no use for.
static bool isPassedOver(const std::string &line)
{
  return line.empty() || isCommentLine(line) || isLetterOrDigitChar(line[0]) ||
         line[0] == '_';
}

void handleOptionFile(const char *name, unsigned &flags, TedRange &range)
{
  OpenedFile file(openOptionFile(name));
  bool inScope = false;
  for (std::string line; readOptionFileLine(file.get(), line);) {
    if (beginsWithMark(line, "-END-OF-OPTIONS"))
      break;
    noteScope(line, inScope, name);
    if (isPassedOver(line))
      continue;
    if (line[0] == '-')
      optionToUpper(line);
    parseOneCmdLineOption(line.c_str(), 0, 0, nullptr, flags, range);
  }
  if (ferror(file.get()))
    fatalError(FATAL_READ_FILE, name);
  file.reset();
  if (inScope)
    scopeWarning("-END-SCOPE expected", name);
}

void parseCmdLineOptions(int count, char **vector, unsigned &flags,
                         TedRange &range)
{
  for (int i = 1; i < count; ++i) {
    const char *argument = vector[i];
    if (*argument == '+') {
      handleOptionFile(argument + 1, flags, range);
    } else if (*argument == '-') {
      std::string option(argument, strnlen(argument, maxOptionLine));
      optionToUpper(option);
      parseOneCmdLineOption(option.c_str(), i, count, vector, flags, range);
    }
  }
}
