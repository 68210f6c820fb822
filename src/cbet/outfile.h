#pragma once
#include "base/int64.h"
#include "store/module.h"
#include <cstdint>
#include <cstdio>
#include <string>

// Output files: a table of 17, addressed by index. Index 0 is no file, and
// everything done to it does nothing. Columns, lines and the indent of the
// generated C are counted here and nowhere else.

struct OutFile {
  FILE *fp = nullptr;  // null when closed
  std::string dir;
  const char *prefix = nullptr;  // the module's file prefix; null: not opened
  std::string suffix;            // the rest of the name
  bool named = false;            // `dir` and `suffix` are set
  int32_t lines = 0;
  int column = 0;
  int indent = 0;  // levels of two blanks
};

constexpr int outFileCount = 17;
extern OutFile fArr[outFileCount];

// The files of the module that is being generated; written by the module
// file set, 0 when there is none. Combined files share an index.
extern int fiEnc;   // encoder functions
extern int fiDec;   // decoder functions
extern int fiEncE;  // their prototypes
extern int fiDecE;
extern int fiDef;  // definitions, never open

// Closes nothing and forgets all.
void clearOutFiles();

// --- Names and opening.

// Sets directory (null for none) and name; nothing if the name is null.
void initF(int file, const char *dir, const char *name);

// Opens directory + the module's file prefix + name for writing; nothing if
// the file is open or has no name yet.
void openF(int file, const AsnModule *module);

// Opens directory + name; nothing if the file is open or the name is null.
void openNamedF(int file, const char *dir, const char *name);

// Closes an open file; a failure is fatal error 8 with the full name.
void closeF(int file);

typedef void FileCallBack(int file);
void forEachOpenFile(FileCallBack *callBack);

// The full name, the name without directory, and the directory, between
// `prefix` and `suffix`; null, with the text untouched, for a file without
// name (or not yet opened, for those that need its prefix).
std::string *nameOfF(std::string &text, const char *prefix, int file,
                     const char *suffix);
std::string *nameOfFnoDir(std::string &text, const char *prefix, int file,
                          const char *suffix);
std::string *dirOfF(std::string &text, const char *prefix, int file,
                    const char *suffix);

// The guard macro of a name: capitals, with "-" and "." turned to "_".
std::string *defineGuardOfF(std::string &text, const char *prefix, int file,
                            const char *suffix);
std::string &defineGuardForModule(std::string &text, const char *prefix,
                                  const AsnModule &module,
                                  const char *fileSuffix, const char *suffix);
std::string &defineGuardForFile(std::string &text, const char *prefix,
                                const char *name, const char *suffix);

// --- Writing. Lines break only ahead of a text, at column 78: the cut into
// calls is part of the format. A failure is fatal error 7.

// A null text writes nothing; with `noBreak` no break falls ahead of it.
void writeToF(int file, const char *text, bool noBreak);
void wToF(int file, const char *text);
void putToF(int file, const char *text);
// Formats and writes as one text.
[[gnu::format(printf, 2, 3)]] void printfToF(int file, const char *format, ...);
void endlToF(int file);
void int32ToF(int file, const char *prefix, int32_t value, const char *suffix);
void int64ToF(int file, const char *prefix, sint64 value, const char *suffix);
// The number as an expression of the run-time's 64-bit type.
void int64AsSint64ToF(int file, const char *prefix, sint64 value,
                      const char *suffix);

// The counters; 0 for a closed file.
int32_t linesInF(int file);
int columnsInF(int file);

// --- The head of a file.

// Each line of it is `linePrefix`, the text, `lineSuffix` and a line end.
void printFileHeader(int file, const char *opening, const char *closing,
                     const char *linePrefix, const char *lineSuffix,
                     const AsnModule &module);

// --- Embedding lines.

// Places in the generated code: ahead of (0 to 4) and behind (5 to 9) the
// code of a letter of the lines.
struct TedPlace {
  char letter;
  int first;
  int second;
};
extern const TedPlace tedArr[5];

// Copies the embedding lines of a range that belong to the place; a selector
// of no place (-1) writes nothing. Lines that begin with "#" are not
// indented.
void printTEDs(int file, ModRec *module, int32_t first, int32_t last,
               int selector);
