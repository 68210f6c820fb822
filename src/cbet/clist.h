#pragma once
#include "model/asntype.h"
#include <string>

// Lists in generated code: initialisation, sizes, loops, bounds. Linked lists
// are walked by an "a" variable, arrays by an "n" variable; the code inside a
// loop has the variable in scope.

// Makes a list empty.
void cInitList(int file, AsnType &type);

// The size of a string or list as an expression. What has no member for it
// has its size limit with `useConstant`, otherwise the "n" variable. For
// formats without a size the builder gives the empty text, while the writer
// still writes prefix and suffix.
std::string &cGetSize(std::string &text, const char *prefix, AsnType &type,
                      bool useConstant, const char *suffix);
void cSizeToF(int file, const char *prefix, AsnType &type, bool useConstant,
              const char *suffix);

// Counts an element; nothing for other types.
void cIncListSize(int file, AsnType &type);

// A walk of a list that is there, in the braces of its body; last element
// first if `reverse` is not 0, where only 1 lowers the counter.
void cBeginForLoop(int file, AsnType &list, AsnType &comp, int reverse);
void cEndForLoop(int file, AsnType &list);

// A loop that builds a list, and its end, which counts. `context` is not
// read.
void cBeginWhileLoop(int file, AsnType &type, AsnType *context,
                     const char *condition);
void cEndWhileLoop(int file, AsnType &type, AsnType *context);

// Tests ahead of an element whether its list is full: with an error, or with
// the end of the loop, ahead of which `action` is written.
void cCheckListUpperBound(int file, AsnType &comp);
void cCheckListUpperBoundWithBreak(int file, AsnType &comp);
void cCheckListUpperBoundWithActionAndBreak(int file, AsnType &comp,
                                            const char *action);

// Begins the test whether a number lies in a gap of the type's value set; the
// caller writes the block. False, with nothing written, if the set is one
// range. What lies outside the outermost bounds is not found.
bool cCheckIntegerValueSet(int file, AsnType &type);
