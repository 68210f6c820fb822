#pragma once
#include "model/asntype.h"
#include <string>

// The index of the chosen alternative, X.691 (2002) clause 22, and the frame
// around an extension addition, 10.2.

// 1 if an index is sent for the root alternatives, with its upper bound and
// its bits. 0 if none is: for one alternative, with both 0, and for more than
// 255, with both left alone.
int perGetChoiceRootIndexField(AsnType &type, int32_t &upper, int &bits);

// The function for a result of `perGetChoiceRootIndexField`; null if there is
// none.
const char *choiceIndexFuncName(int field);

// Writes the call for a root alternative: with the value that is to be sent,
// or with null. Nothing if there is no function. What belongs to one name must
// stand in the prefix, since a line may break ahead of it.
void perChoiceRootIndexFunctionNameToF(int file, const char *prefix, int field,
                                       const char *value, int32_t upper,
                                       int bits, const char *suffix);

// Writes the call for an extension alternative; `argument` may be null.
void perChoiceAddIndexFunctionNameToF(int file, const char *prefix,
                                      const char *argument, const char *suffix);

// The function for a part of an open type, by `prefix`: "pe_Begin", "pe_End",
// "pe_Frame" and the like. Fatal error 13 for an unknown variant.
std::string &perOpenTypeFunctionName(std::string &text, const char *prefix,
                                     const char *suffix);
