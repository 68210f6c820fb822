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
