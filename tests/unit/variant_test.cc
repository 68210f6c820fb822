// The encoding variant of the module being generated.

#include "per/variant.h"
#include <gtest/gtest.h>

struct EncodingVariant : testing::Test {
  int saved = perGetEncodingVariant();
  ~EncodingVariant() override { perSetEncodingVariant(saved); }
};

TEST_F(EncodingVariant, SetAndGet)
{
  // 2 is what a module with an unknown variant asks for.
  for (int variant : {1, 0, 2}) {
    perSetEncodingVariant(variant);
    EXPECT_EQ(perGetEncodingVariant(), variant);
    EXPECT_EQ(glbEncodingVariant, variant);
  }
}

TEST_F(EncodingVariant, ArgumentOfTheRunTime)
{
  perSetEncodingVariant(VARIANT_ALIGNED);
  EXPECT_STREQ(perEncodingVariantTail(), "ASN_PER_BASIC_ALIGNED);\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_STREQ(perEncodingVariantTail(), "ASN_PER_BASIC_UNALIGNED);\n");
  // The blank is in generated code.
  perSetEncodingVariant(2);
  EXPECT_STREQ(perEncodingVariantTail(), " ASN_PER_UNKNOWN_VARIANT);\n");
  for (int variant : {3, -1}) {
    perSetEncodingVariant(variant);
    EXPECT_STREQ(perEncodingVariantTail(), "");
  }
}
