// Whole runs of the encoder generator where golden cases do not come: encoding
// variants that no option sets, tables that are full, two runs of a process.

#include "base/upcalls.h"
#include "driver/meta.h"
#include "per/enc.h"
#include "per/encoder.h"
#include "per/perelem.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

// Runs write the functions into one file and the prototypes into another.
struct Encoder : LoadedAsn {
  int savedVariant = perGetEncodingVariant();
  int passed = 0;      // types, in the last run
  std::string stdOut;  // of the last run

  Encoder()
  {
    clearOutFiles();
    resetStamps();
  }
  ~Encoder() override
  {
    forEachOpenFile(closeF);
    clearOutFiles();
    fiEnc = fiEncE = 0;
    perSetEncodingVariant(savedVariant);
  }
  std::string generate(int variant = VARIANT_ALIGNED)
  {
    getBEModMetaRec(module)->encodingVariant = static_cast<uint8_t>(variant);
    perSetEncodingVariant(variant);
    fiEnc = 1;
    fiEncE = 2;
    openNamedF(fiEnc, run.dir.path.c_str(), "out.c");
    openNamedF(fiEncE, run.dir.path.c_str(), "out.ext");
    testing::internal::CaptureStdout();
    passed = generatePEREncodingFunctions(module);
    stdOut = testing::internal::GetCapturedStdout();
    forEachOpenFile(closeF);
    return run.file("out.c");
  }
};

std::string entryOf(const std::string &normal, const std::string &entry)
{
  return "\nvoid " + entry +
         "S (ASNG_F(ASNPERG *asnperg) S *home)\n{\n"
         "  pe_setEncodingVariant ( ASN_PER_UNKNOWN_VARIANT);\n"
         "  " +
         normal + "S (ASNG_F(asnperg) home);\n  pe_end ();\n}\n";
}

std::string normalOf(const std::string &normal)
{
  return "\nvoid " + normal +
         "S (ASNG_F(ASNPERG *asnperg) S *home)\n{\n"
         "  pe_Boolean (home->a_fld);\n}\n";
}

TEST_F(Encoder, UnknownVariant)
{
  load("S ::= SEQUENCE { a BOOLEAN } --$ entrybits=68\n");
  const std::string normal = "pe_<unsupported>";
  for (int marked : {0, 1}) {
    getBEModMetaRec(module)->variantFuncPref = static_cast<uint8_t>(marked);
    getBEModMetaRec(module)->berFuncPref = 0;
    EXPECT_EQ(generate(2),
              normalOf(normal) + entryOf(normal, "pec_<unsupported>"));
    getBEModMetaRec(module)->berFuncPref = 1;
    EXPECT_EQ(generate(2),
              normalOf(normal) + entryOf(normal, "enc_<unsupported>"));
  }
}

// The end of a NULL is written for the aligned variant alone.
TEST_F(Encoder, EndOfNull)
{
  load("N ::= NULL --$ entrybits=68\n");
  const std::string end = "pe_end ();\n}\n";
  EXPECT_TRUE(generate(VARIANT_ALIGNED).ends_with("  " + end));
  for (int variant : {1, 2})
    EXPECT_TRUE(generate(variant).ends_with("pe_NullType ();\n}\n"));
  load("B ::= BOOLEAN --$ entrybits=68\n");
  for (int variant : {0, 1, 2})
    EXPECT_TRUE(generate(variant).ends_with("  " + end));
}

// A number that is no variant leaves the call as it is.
TEST_F(Encoder, UnfinishedCall)
{
  load("B ::= BOOLEAN --$ entrybits=68\n");
  EXPECT_NE(generate(7).find("{\n  pe_setEncodingVariant (pe_Boolean (*home"),
            std::string::npos);
}

TEST_F(Encoder, TheTableLivesForOneRun)
{
  load("S ::= SEQUENCE { a NULL }  L ::= SEQUENCE OF S");
  EXPECT_EQ(glbEncTypeFuncInfo, nullptr);
  generate();
  EXPECT_EQ(passed, 2);
  EXPECT_EQ(glbEncTypeFuncInfo, nullptr);
}

// A second run writes its element functions anew, under their own names.
TEST_F(Encoder, ElementFunctionsOfEachRun)
{
  load("L ::= SEQUENCE OF NULL");
  const std::string first = generate();
  EXPECT_TRUE(first.starts_with("\nstatic void ef1_L (")) << first;
  EXPECT_EQ(generate(), first);
}

// --- full tables

std::string groupOf(int members)
{
  std::string text = "T ::= SEQUENCE { a NULL, ..., [[ ";
  for (int i = 0; i < members; ++i)
    text += (i > 0 ? ", b" : "b") + std::to_string(i) + " NULL OPTIONAL";
  return text + " ]] }";
}

bool has(const std::string &text, const std::string &part)
{
  return text.find(part) != std::string::npos;
}

// The preamble of a group is that of a structure. The group is what the
// warning names, and it has no name.
TEST_F(Encoder, LargeGroups)
{
  const std::string warning =
      "element \nWarning     QUORVEN "
      "More than 512 optional components. not yet supported, sorry.\n";
  load(groupOf(512));
  std::string text = generate();
  EXPECT_EQ(stdOut, "");
  EXPECT_TRUE(has(text, "  sint32 optfield_1[16] = {0, 0,"));
  EXPECT_TRUE(has(text, "optfield_1[15] |= BITL(31);\n"));
  EXPECT_TRUE(has(text, "      pe_optField (optfield_1[15], 32);\n"
                        "      pe_optField (optfield_1[14], 32);\n"));
  load(groupOf(513));
  text = generate();
  EXPECT_TRUE(stdOut.ends_with(warning)) << stdOut;
  EXPECT_TRUE(has(text, "  sint32 optfield_1[17] = {0, 0,"));
  EXPECT_TRUE(has(text, "optfield_1[16] |= BITL(0);\n"));
  EXPECT_TRUE(has(text, "      pe_optField (optfield_1[16], 1);\n"
                        "      pe_optField (optfield_1[15], 32);\n"));
}

// Behind 255 root alternatives the blocks of root and additions remain, the
// first one empty; no warning tells of it.
TEST_F(Encoder, ManyAlternatives)
{
  std::string body = "C ::= CHOICE { ";
  for (int i = 0; i < 256; ++i)
    body += "a" + std::to_string(i) + " NULL, ";
  load(body + "..., b NULL }");
  std::string text = generate();
  EXPECT_TRUE(has(text, "  if (!extensionBit_0){\n"
                        "  }\n"
                        "  else {\n"
                        "    pe_ChoiceIndex_al_ns (home->choice - 257);\n"
                        "  }\n"));
  EXPECT_FALSE(has(text, "le255"));
  EXPECT_EQ(stdOut, "");
}

}  // namespace
