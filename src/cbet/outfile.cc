// Output files: names, opening and closing, the column logic, the head of a
// generated file, and the lines that users embed in it.

#include "cbet/outfile.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include <algorithm>
#include <cstdarg>
#include <cstring>

OutFile fArr[outFileCount];

int fiEnc;
int fiDec;
int fiEncE;
int fiDecE;
int fiDef;

// No fragment is begun that would end behind this column.
constexpr int lastColumn = 78;

// Shorter pieces stay on their line: a brace or a ";" never begins one.
constexpr int shortestMoved = 3;

// An info text is printed in pieces of so many characters.
constexpr size_t infoPiece = 60;

// The file of an index; null for index 0.
static OutFile *fileOf(int file)
{
  return file > 0 && file < outFileCount ? &fArr[file] : nullptr;
}

static OutFile *openFileOf(int file)
{
  OutFile *f = fileOf(file);
  return f && f->fp ? f : nullptr;
}

void clearOutFiles()
{
  for (OutFile &f : fArr)
    f = OutFile{};
}

// --- names and opening ------------------------------------------------------

void initF(int file, const char *dir, const char *name)
{
  OutFile *f = fileOf(file);
  if (!f || !name)
    return;
  f->dir = orEmpty(dir);
  f->suffix = name;
  f->named = true;
}

// Opens the file under the prefix.
static void openOutFile(OutFile &f, const char *prefix)
{
  f.prefix = prefix;
  f.fp = fopenTextFile(f.dir.c_str(), (prefix + f.suffix).c_str(), "w");
  f.lines = 0;
  f.column = 0;
  f.indent = 0;
}

void openF(int file, const AsnModule *module)
{
  OutFile *f = fileOf(file);
  if (f && module && f->named && !f->fp)
    openOutFile(*f, orEmpty(module->rec->filePrefix));
}

void openNamedF(int file, const char *dir, const char *name)
{
  OutFile *f = fileOf(file);
  if (!f || !name || f->fp)
    return;
  initF(file, dir, name);
  openOutFile(*f, "");
}

void closeF(int file)
{
  OutFile *f = openFileOf(file);
  if (!f)
    return;
  FILE *stream = f->fp;
  f->fp = nullptr;
  if (fclose(stream) != 0) {
    std::string name;
    nameOfF(name, nullptr, file, nullptr);
    fatalError(FATAL_CLOSE_FILE, name.c_str());
  }
}

void forEachOpenFile(FileCallBack *callBack)
{
  if (!callBack)
    fatalError(FATAL_NO_CALL_BACK);
  for (int file = 1; file < outFileCount; ++file)
    if (fArr[file].fp)
      callBack(file);
}

// The file of an index if it has a name, with a prefix if that is needed.
static const OutFile *namedFile(int file, bool withPrefix)
{
  const OutFile *f = fileOf(file);
  return f && f->named && (f->prefix || !withPrefix) ? f : nullptr;
}

std::string *nameOfF(std::string &text, const char *prefix, int file,
                     const char *suffix)
{
  const OutFile *f = namedFile(file, true);
  return f ? &between(text, prefix, f->dir + f->prefix + f->suffix, suffix)
           : nullptr;
}

std::string *nameOfFnoDir(std::string &text, const char *prefix, int file,
                          const char *suffix)
{
  const OutFile *f = namedFile(file, true);
  return f ? &between(text, prefix, f->prefix + f->suffix, suffix) : nullptr;
}

std::string *dirOfF(std::string &text, const char *prefix, int file,
                    const char *suffix)
{
  const OutFile *f = namedFile(file, false);
  return f ? &between(text, prefix, f->dir, suffix) : nullptr;
}

static std::string guardOf(std::string name)
{
  std::replace(name.begin(), name.end(), '.', '_');
  return convertHyphens(strUpper(name));
}

std::string *defineGuardOfF(std::string &text, const char *prefix, int file,
                            const char *suffix)
{
  const OutFile *f = namedFile(file, true);
  return f ? &between(text, prefix, guardOf(f->prefix + f->suffix), suffix)
           : nullptr;
}

std::string &defineGuardForModule(std::string &text, const char *prefix,
                                  const AsnModule &module,
                                  const char *fileSuffix, const char *suffix)
{
  std::string name;
  getModulePrefix(name, nullptr, module, fileSuffix);
  return between(text, prefix, guardOf(name), suffix);
}

std::string &defineGuardForFile(std::string &text, const char *prefix,
                                const char *name, const char *suffix)
{
  return between(text, prefix, guardOf(name), suffix);
}

// --- writing ----------------------------------------------------------------

static void putBlock(OutFile &f, const char *block, size_t length)
{
  if (length > 0 && fwrite(block, 1, length, f.fp) != length)
    fatalError(FATAL_WRITE_FILE);
}

static void putBlanks(OutFile &f, int count)
{
  for (int i = 0; i < count; ++i)
    putBlock(f, " ", 1);
}

// Writes one piece of `length` characters, which is followed by a line end
// if `endsLine`.
static void writePiece(OutFile &f, const char *piece, size_t length,
                       bool endsLine, bool noBreak)
{
  int n = static_cast<int>(length);
  int pad = f.column == 0 ? 2 * f.indent : 0;
  if (f.column > 2 * f.indent + 2 && n >= shortestMoved && !noBreak &&
      f.column + n > lastColumn) {
    putBlock(f, "\n", 1);
    ++f.lines;
    f.column = 0;
    for (; n > 0 && *piece == ' '; --n)
      ++piece;
    pad = 2 * f.indent + 2;
  }
  if (endsLine) {
    ++f.lines;
    f.column = 0;
  } else {
    f.column += n + pad;
  }
  putBlanks(f, pad);
  // The line end, if there is one, stands behind the piece in the text.
  putBlock(f, piece, static_cast<size_t>(n) + endsLine);
}

void writeToF(int file, const char *text, bool noBreak)
{
  OutFile *f = openFileOf(file);
  if (!f || !text)
    return;
  f->indent = std::max(f->indent, 0);
  f->column = std::max(f->column, 0);
  while (*text) {
    const char *end = strchr(text, '\n');
    size_t length = end ? static_cast<size_t>(end - text) : strlen(text);
    writePiece(*f, text, length, end, noBreak);
    text += length + (end ? 1 : 0);
  }
}

void wToF(int file, const char *text)
{
  writeToF(file, text, false);
}

void putToF(int file, const char *text)
{
  writeToF(file, text, true);
}

void printfToF(int file, const char *format, ...)
{
  va_list arguments;
  va_start(arguments, format);
  wToF(file, formatTextV(format, arguments).c_str());
  va_end(arguments);
}

void endlToF(int file)
{
  putToF(file, "\n");
}

void int32ToF(int file, const char *prefix, int32_t value, const char *suffix)
{
  printfToF(file, "%s%ld%s", orEmpty(prefix), static_cast<long>(value),
            orEmpty(suffix));
}

void int64ToF(int file, const char *prefix, sint64 value, const char *suffix)
{
  printfToF(file, "%s%s%s", orEmpty(prefix), i64text(value).c_str(),
            orEmpty(suffix));
}

static std::string sint64Expression(sint64 value)
{
  if (i64ismax(value))
    return "i64max ()";
  if (i64ismin(value))
    return "i64min ()";
  // The smallest 32-bit number has no literal of its own in C.
  if (i64cmpl(value, INT32_MIN) > 0 && i64cmpl(value, INT32_MAX) <= 0)
    return "i64ltosint64 (" + i64text(value) + "L)";
  return formatText("i64make (%ldL, %luUL)", static_cast<long>(i64hi(value)),
                    static_cast<unsigned long>(i64lo(value)));
}

void int64AsSint64ToF(int file, const char *prefix, sint64 value,
                      const char *suffix)
{
  printfToF(file, "%s%s%s", orEmpty(prefix), sint64Expression(value).c_str(),
            orEmpty(suffix));
}

int32_t linesInF(int file)
{
  const OutFile *f = openFileOf(file);
  return f ? f->lines : 0;
}

int columnsInF(int file)
{
  const OutFile *f = openFileOf(file);
  return f ? f->column : 0;
}

// --- the head of a file -----------------------------------------------------

struct HeaderLines {
  int file;
  const char *prefix;
  const char *suffix;

  void line(const char *text) const
  {
    wToF(file, prefix);
    wToF(file, text);
    wToF(file, suffix);
    endlToF(file);
  }
};

static void printInfo(const HeaderLines &header, const std::string &info)
{
  const char *label = "INFO = ";
  for (size_t i = 0; i < info.size(); i += infoPiece) {
    header.line((label + info.substr(i, infoPiece)).c_str());
    label = "       ";
  }
}

void printFileHeader(int file, const char *opening, const char *closing,
                     const char *linePrefix, const char *lineSuffix,
                     const AsnModule &module)
{
  const OutFile *f = openFileOf(file);
  if (!f)
    return;
  HeaderLines header = {file, orEmpty(linePrefix), orEmpty(lineSuffix)};
  std::string version, made, text;

  wToF(file, orEmpty(opening));
  endlToF(file);
  if (!backendName.empty()) {
    printVersionStri(version, nullptr, backendVersion, backendPatchLevel,
                     nullptr);
    printTimeStamp(made, " ", timeStamp, nullptr);
    text = formatText("Processed by %s ", backendName.c_str());
    header.line((text + version + made).c_str());
  }
  const StampRec &tree = module.rec->stamp;
  printVersionStri(version, nullptr, tree.toolVersion, 0, nullptr);
  printTimeStamp(made, " ", tree, nullptr);
  header.line(("Syntax file processed by ZELK " + version + made).c_str());
  header.line(getModuleRef(text, "ASN.1 module = ", module, nullptr).c_str());
  text = formatText("FILE = %s%s", orEmpty(module.rec->filePrefix),
                    f->suffix.c_str());
  header.line(text.c_str());
  printInfo(header, module.rec->options.info);
  wToF(file, orEmpty(closing));
  endlToF(file);
}

// --- embedding lines --------------------------------------------------------

const TedPlace tedArr[5] = {
    {'T', 0, 5}, {'E', 1, 6}, {'D', 2, 7}, {'A', 3, 8}, {'P', 4, 9}};

// Writes the text of one embedding line.
static void printEmbedded(OutFile &f, int file, const char *text)
{
  int indent = f.indent;
  // A preprocessor line begins in column one.
  if (*text == '#')
    f.indent = 0;
  wToF(file, (std::string(text) + "\n").c_str());
  f.indent = indent;
}

void printTEDs(int file, ModRec *module, int32_t first, int32_t last,
               int selector)
{
  OutFile *f = openFileOf(file);
  if (!f)
    return;
  const TedPlace *place = std::find_if(
      std::begin(tedArr), std::end(tedArr), [=](const TedPlace &row) {
        return row.first == selector || row.second == selector;
      });
  if (place == std::end(tedArr))
    return;
  char number = place->first == selector ? '1' : '2';
  for (int32_t i = std::max(first, 1); i <= last; ++i) {
    readRec(module, REC_TED, i);
    if (tedRec.tedKind != TED_EMBEDDING)
      continue;
    const char *line = getStri(module, tedRec.text);
    // Mark, letter, number, blank, text.
    if (strlen(line) >= 4 && line[1] == place->letter && line[2] == number)
      printEmbedded(*f, file, line + 4);
  }
}
