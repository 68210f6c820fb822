// The encoding variant of the module being generated.

#include "per/variant.h"

int glbEncodingVariant;

void perSetEncodingVariant(int variant)
{
  glbEncodingVariant = variant;
}

int perGetEncodingVariant()
{
  return glbEncodingVariant;
}

const char *perEncodingVariantTail()
{
  switch (glbEncodingVariant) {
  case 0:
    return "ASN_PER_BASIC_ALIGNED);\n";
  case 1:
    return "ASN_PER_BASIC_UNALIGNED);\n";
  case 2:
    return " ASN_PER_UNKNOWN_VARIANT);\n";
  default:
    return "";
  }
}
