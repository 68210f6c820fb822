// Writers of values.

#include "cbet/valueprint.h"
#include "cbet/outfile.h"
#include "model/valuetext.h"

void printBooleanValueToF(int file, const char *prefix, const AsnValue &value,
                          const char *suffix)
{
  std::string text;
  wToF(file, booleanValueStri(text, prefix, value, suffix).c_str());
}

void printIntegerValueToF(int file, const char *prefix, const AsnValue &value,
                          const char *suffix)
{
  std::string text;
  wToF(file, integerValueStri(text, prefix, value, suffix).c_str());
}

void printRealValueToF(int file, const char *prefix, const AsnValue &value,
                       const char *suffix)
{
  std::string text;
  wToF(file, realValueStri(text, prefix, value, suffix).c_str());
}

void printDoubleRealValueToF(int file, const char *prefix,
                             const AsnValue &value, const char *suffix)
{
  std::string text;
  wToF(file, doubleRealValueStri(text, prefix, value, suffix).c_str());
}

void printObjectIdentifierValueToF(int file, const char *prefix,
                                   const AsnValue &value, const char *separator,
                                   const char *nameOpen, const char *nameClose,
                                   const char *suffix)
{
  std::string text;
  wToF(file, objectIdentifierValueStri(text, prefix, value, separator, nameOpen,
                                       nameClose, suffix)
                 .c_str());
}

void printCharacterStringValueToF(int file, const char *prefix,
                                  const AsnValue &value, const char *suffix)
{
  std::string text;
  wToF(file, characterStringValueStri(text, prefix, value, suffix).c_str());
}

void putCharacterStringValueToF(int file, const char *prefix,
                                const AsnValue &value, const char *suffix)
{
  std::string text;
  putToF(file, characterStringValueStri(text, prefix, value, suffix).c_str());
}
