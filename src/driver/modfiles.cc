// The generated files of a module. A module that defines neither entry nor
// visible types gets none, only its line in the log.

#include "driver/modfiles.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include "base/upcalls.h"
#include "cbet/outfile.h"

FILE *fiLog;

// Where the includes of `includeReferencedDeclarations` go, and the category
// of the prototype files that it includes.
static int glbFileInd;
static int glbFileCategory;

// Once a run: the log begins anew.
static bool logCreated;

// Name of the open log.
static std::string logName;

// The entry of a generation array.
enum Split : uint8_t { SPLIT_NONE = 0, SPLIT_COMBINED = 1, SPLIT_SEPARATE = 2 };

constexpr int encFunctions = 5;
constexpr int encPrototypes = 6;
constexpr int toDecoder = 6;     // from an encoder's category to the decoder's
constexpr int toPrototypes = 1;  // from functions to prototypes

// --- names ------------------------------------------------------------------

static const char *const fileSuff[] = {".typ", ".c", ".ext"};

// What the word of a file name tells: the words of encoder and decoder.
struct CategoryWords {
  const char *encoder;  // categories 5, 6, 7
  const char *decoder;  // categories 11, 12, 13
};

static const CategoryWords category1_PER = {"per", "per"};
static const CategoryWords category2_PER = {"pec", "pdc"};
static const CategoryWords category1_BER = {"cod", "cod"};
static const CategoryWords category2_BER = {"enc", "dec"};

static const char *categoryWord(const AsnModule &module, int index)
{
  bool separate = getMetaGenArr(module)[index] == SPLIT_SEPARATE;
  bool ber = getMetaBERFuncPref(module) != 0;
  const CategoryWords &words = ber ? (separate ? category2_BER : category1_BER)
                                   : (separate ? category2_PER : category1_PER);
  if (index >= 5 && index <= 7)
    return words.encoder;
  return index >= 11 && index <= 13 ? words.decoder : "";
}

std::string &constructFileName(std::string &text, const char *before,
                               const AsnModule &module, int index, int type,
                               const char *after)
{
  text.clear();
  bool isKnown = index >= 0 && index < outFileCount && type >= FILE_TYPES &&
                 type <= FILE_PROTOTYPES;
  if (!isKnown ||
      (getMetaGenArr(module)[index] == SPLIT_NONE && type != FILE_TYPES))
    return text;
  getModulePrefix(text, before, module, nullptr);
  text += categoryWord(module, index);
  text += fileSuff[type];
  return text += orEmpty(after);
}

// --- opening ----------------------------------------------------------------

static void writeGuard(int slot)
{
  std::string guard;
  defineGuardOfF(guard, nullptr, slot, nullptr);
  endlToF(slot);
  printfToF(slot, "#ifndef %s\n", guard.c_str());
  printfToF(slot, "#define %s\n", guard.c_str());
}

void openFile(int slot, const AsnModule &module, int type, int category)
{
  if (type == FILE_NOTHING)
    return;
  if (type != FILE_FUNCTIONS && type != FILE_PROTOTYPES)
    fatalError(FATAL_INTERNAL, "Unknown file type.");
  const GlobalOptions &options = getGlobalOptions(module);
  const std::string &dir =
      type == FILE_FUNCTIONS ? options.cDirectory : options.hDirectory;
  std::string name = categoryWord(module, category);
  name += fileSuff[type];
  initF(slot, dir.c_str(), name.c_str());
  openF(slot, &module);
  fArr[slot].indent = 0;
  printFileHeader(
      slot, "/****************************************************************",
      " ****************************************************************/",
      " * ", "", module);
  if (type == FILE_PROTOTYPES)
    writeGuard(slot);
}

void includeRtsFile(int slot, const char *name)
{
  if (*name == 0)
    return;
  std::string guard;
  defineGuardForFile(guard, nullptr, name, nullptr);
  endlToF(slot);
  printfToF(slot, "#ifndef %s\n", guard.c_str());
  printfToF(slot, "#include \"%s\"\n", name);
  wToF(slot, "#endif\n");
}

void includeGeneratedFile(int slot, const AsnModule &module, int index,
                          int type)
{
  std::string name;
  constructFileName(name, nullptr, module, index, type, nullptr);
  includeRtsFile(slot, name.c_str());
}

static bool isGenerated(const AsnModule &module)
{
  return getNrOfEntryTypes(module) != 0 || getNrOfVisibleTypes(module) != 0;
}

void includeReferencedDeclarations(AsnModule &module)
{
  if (!isGenerated(module))
    return;
  forEachExportingModule(module, includeReferencedDeclarations);
  includeGeneratedFile(glbFileInd, module, 1, FILE_TYPES);
  includeGeneratedFile(glbFileInd, module, glbFileCategory, FILE_PROTOTYPES);
}

void openPrototypeF(AsnModule &module, int slot, int category)
{
  openFile(slot, module, FILE_PROTOTYPES, category);
  includeRtsFile(slot, "asntyp.typ");
  if (category == encPrototypes || category == encPrototypes + toDecoder)
    includeRtsFile(slot, "asnper.ext");
  glbFileInd = slot;
  glbFileCategory = category;
  forEachExportingModule(module, includeReferencedDeclarations);
  includeGeneratedFile(slot, module, 1, FILE_TYPES);
}

void openFunctionF(AsnModule &module, const uint8_t *array, int slot,
                   int category)
{
  openFile(slot, module, FILE_FUNCTIONS, category);
  int prototypes = category + toPrototypes;
  bool both =
      array[category] == SPLIT_COMBINED && array[prototypes] == SPLIT_SEPARATE;
  bool one = array[category] == SPLIT_SEPARATE ||
             (array[category] == SPLIT_COMBINED &&
              array[prototypes] == SPLIT_COMBINED);
  if (both || one)
    includeGeneratedFile(slot, module, prototypes, FILE_PROTOTYPES);
  if (both)
    includeGeneratedFile(slot, module, prototypes + toDecoder, FILE_PROTOTYPES);
}

// Opens no file, one for both sides or one for each, by `open`.
template <class F>
static void openSplit(const uint8_t *array, int index, int &first, int &second,
                      F open)
{
  first = second = 0;
  if (array[index] == SPLIT_NONE || array[index] > SPLIT_SEPARATE)
    return;
  first = second = index;
  open(first);
  if (array[index] == SPLIT_SEPARATE) {
    second = index + toDecoder;
    open(second);
  }
}

void openPrototypeFiles(AsnModule &module, const uint8_t *array, int index,
                        int &first, int &second)
{
  openSplit(array, index, first, second,
            [&](int slot) { openPrototypeF(module, slot, slot); });
}

void openFunctionFiles(AsnModule &module, const uint8_t *array, int index,
                       int &first, int &second)
{
  openSplit(array, index, first, second,
            [&](int slot) { openFunctionF(module, array, slot, slot); });
}

void openModuleFiles(AsnModule &module)
{
  fiDef = 0;
  if (isGenerated(module)) {
    const uint8_t *array = getMetaGenArr(module);
    openPrototypeFiles(module, array, encPrototypes, fiEncE, fiDecE);
    openFunctionFiles(module, array, encFunctions, fiEnc, fiDec);
  } else {
    fiEnc = fiDec = fiEncE = fiDecE = 0;
  }
  openLogFile(module);
}

// --- the log ----------------------------------------------------------------

void openLogFile(const AsnModule &module)
{
  const char *name = getMetaLogFile(module);
  if (!name)
    return;
  fiLog = fopenTextFile(nullptr, name, logCreated ? "a" : "w");
  logCreated = true;
  logName = name;
  // `fopenTextFile` has ended the run by now; kept for an opener that does
  // not.
  if (!fiLog && verboseEx >= 2)
    printf("*** Warning: could not open log file %s ***\n", name);
}

void logFileName(int slot)
{
  std::string name;
  if (nameOfF(name, " ", slot, nullptr))
    fputs(name.c_str(), fiLog);
}

void generateLogFile(const AsnModule &module)
{
  if (!fiLog)
    return;
  std::string line;
  fputs(getModulePrefix(line, nullptr, module, ".stx:").c_str(), fiLog);
  forEachOpenFile(logFileName);
  fputs("\n", fiLog);
  if (ferror(fiLog))
    fatalError(FATAL_WRITE_FILE, logName.c_str());
}

static void closeLogFile()
{
  FILE *stream = fiLog;
  fiLog = nullptr;
  if (stream && fclose(stream) != 0)
    fatalError(FATAL_CLOSE_FILE, logName.c_str());
}

// --- closing ----------------------------------------------------------------

void closeFile(int &slot, int type)
{
  if (slot == 0)
    return;
  if (type != FILE_FUNCTIONS) {
    std::string guard;
    defineGuardOfF(guard, "#endif /*", slot, "*/\n");
    endlToF(slot);
    wToF(slot, guard.c_str());
  }
  closeF(slot);
  slot = 0;
}

// Closes both files of a kind, or the combined one once; its second variable
// keeps the index then.
static void closePair(int &first, int &second, int type)
{
  bool combined = first == second;
  closeFile(first, type);
  if (!combined)
    closeFile(second, type);
}

void closeModuleFiles()
{
  closePair(fiEnc, fiDec, FILE_FUNCTIONS);
  closePair(fiEncE, fiDecE, FILE_PROTOTYPES);
  closeLogFile();
}
