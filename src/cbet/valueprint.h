#pragma once
#include "model/asnvalue.h"

// Writers of values into output files: the texts of model/valuetext.h, each
// as one text with its prefix and suffix, of which null counts as empty.

void printBooleanValueToF(int file, const char *prefix, const AsnValue &value,
                          const char *suffix);
void printIntegerValueToF(int file, const char *prefix, const AsnValue &value,
                          const char *suffix);
void printRealValueToF(int file, const char *prefix, const AsnValue &value,
                       const char *suffix);
void printDoubleRealValueToF(int file, const char *prefix,
                             const AsnValue &value, const char *suffix);
void printObjectIdentifierValueToF(int file, const char *prefix,
                                   const AsnValue &value, const char *separator,
                                   const char *nameOpen, const char *nameClose,
                                   const char *suffix);
void printCharacterStringValueToF(int file, const char *prefix,
                                  const AsnValue &value, const char *suffix);
// The same without a line break ahead of it.
void putCharacterStringValueToF(int file, const char *prefix,
                                const AsnValue &value, const char *suffix);
