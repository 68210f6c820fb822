#pragma once
#include "model/asntype.h"
#include <string>

// Lists whose values can be fragmented: their elements are handled by static
// functions that the run-time calls with a count and a place. They stand in
// the file ahead of the functions that name them.

// Forgets all element functions; at the start of a generator's run.
void perResetElemFuncs();

// Name of a list's element function: `prefix` ("ef", "df" or "if", ahead of
// which a blank may stand) and the element's C name. Lists of one type would
// share it: the first one keeps it, later ones have "_" and their own name
// behind it.
std::string &perElemFuncName(std::string &text, const char *prefix,
                             const AsnType &list, const AsnType &elem,
                             const char *suffix);

// Writes the head of the function with its brace and counts the "a"
// variable. False, with nothing done, if the file has that function.
bool perBeginElemFunc(int file, const char *prefix, const AsnType &list,
                      const AsnType &elem);

// The element has a function of its own or is a leaf. No others can be
// handled, as their code would have to stand in line.
bool perIsElemSupported(const AsnType &elem);

// The list is laid out as an array, static or dynamic.
bool perIsArray(const AsnType &list);

// Visits the element of each fragmentable list whose code stands inline in
// the type's, itself included, in the order of the code.
typedef void PerElemVisit(AsnType &list, AsnType &elem);
void perForEachInlineFragmentedList(AsnType &type, PerElemVisit *visit);
