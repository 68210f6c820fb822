#pragma once
#include "store/module.h"
#include <string>

// The generated files of a module: how many there are, what they are called
// and include, and the log. A file's index in `fArr` is its category, the
// index into the generation array: 5 and 11 are the function files of
// encoder and decoder, 6 and 12 their prototype files.

enum FileType : int {
  FILE_TYPES = 0,       // ".typ", written by another tool
  FILE_FUNCTIONS = 1,   // ".c"
  FILE_PROTOTYPES = 2,  // ".ext"
  FILE_NOTHING = 3
};

// The log, null when it is not open.
extern FILE *fiLog;

// `before`, the module's generation prefix, the word of the category, the
// suffix of the type, `after`; empty if the module has no such file.
std::string &constructFileName(std::string &text, const char *before,
                               const AsnModule &module, int index, int type,
                               const char *after);

// Opens a generated file and writes its head; an unknown type is fatal error
// 13.
void openFile(int slot, const AsnModule &module, int type, int category);

// Writes a guarded include of a file, resp. of a generated file of a module;
// nothing for an empty name.
void includeRtsFile(int slot, const char *name);
void includeGeneratedFile(int slot, const AsnModule &module, int index,
                          int type);

// Includes what a module declares, behind what it imports itself, in the
// prototype file being opened.
void includeReferencedDeclarations(AsnModule &module);

void openPrototypeF(AsnModule &module, int slot, int category);
void openPrototypeFiles(AsnModule &module, const uint8_t *array, int index,
                        int &first, int &second);
void openFunctionF(AsnModule &module, const uint8_t *array, int slot,
                   int category);
void openFunctionFiles(AsnModule &module, const uint8_t *array, int index,
                       int &first, int &second);

// Opens the log of "LOGFILE=", which is created the first time in a run.
void openLogFile(const AsnModule &module);

// Writes the module's line of the log: the names of the open files.
void generateLogFile(const AsnModule &module);
// One name of it.
void logFileName(int slot);

// All files of a module, and the log.
void openModuleFiles(AsnModule &module);

// Closes a file, with the end of its guard if it has one, and sets the
// variable to 0.
void closeFile(int &slot, int type);
void closeModuleFiles();
