// Questions about the value format.

#include "cbet/cgenstate.h"
#include "cbet/cnames.h"
#include "support/typetrees.h"
#include <vector>

typedef std::vector<int> Codes;

struct CFormat : TypeTrees {
  AsnType type;

  CFormat()
  {
    start();
    type.homeMod = &module;
    // What only entry functions of VARNO applications look at.
    type.entryFlags = entryFlagBit;
    module.rec->options.nrEntryTypes = 1;
  }
  ~CFormat() override { glbGeneratingEntryFunction = false; }

  void set(int mainType, int format = VF_NONE, int size = 0)
  {
    type.base.mainType = static_cast<uint8_t>(mainType);
    type.base.valueField = static_cast<uint8_t>(format);
    type.base.valueFieldSize = static_cast<uint8_t>(size);
  }
  void option(int bit) { type.base.nodeOptions |= 1u << bit; }

  // The formats for which a main type has the answer yes.
  Codes formats(bool (*asked)(const AsnType &), int mainType)
  {
    Codes codes;
    for (int format = 0; format < 256; ++format) {
      set(mainType, format);
      if (asked(type))
        codes.push_back(format);
    }
    return codes;
  }
  // The main types for which a format has it.
  Codes mainTypes(bool (*asked)(const AsnType &), int format, int size = 0)
  {
    Codes codes;
    for (int mainType = 0; mainType < TYP_COUNT; ++mainType) {
      set(mainType, format, size);
      if (asked(type))
        codes.push_back(mainType);
    }
    return codes;
  }
  void makeHometab()
  {
    glbGeneratingEntryFunction = true;
    module.rec->options.definitionCategory = 1;
  }
};

static const Codes none;

TEST_F(CFormat, SimpleTypes)
{
  EXPECT_EQ(formats(cIsSimpleType, TYP_INTEGER),
            (Codes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 23}));
}

TEST_F(CFormat, PredefinedTypes)
{
  EXPECT_EQ(
      formats(cIsPredefinedType, TYP_INTEGER),
      (Codes{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 17, 18, 19,
             20, 21, 22, 23, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35}));
}

TEST_F(CFormat, FrameTypes)
{
  // Open values are frames as long as there are no functions for them.
  EXPECT_EQ(formats(cIsFrameType, TYP_ANY), (Codes{22, 25, 31}));
  module.rec->options.cGeneration = 1u << 5;
  EXPECT_EQ(formats(cIsFrameType, TYP_ANY), (Codes{22}));
  for (int category : {1, 2, 3}) {
    module.rec->options.definitionCategory = static_cast<uint8_t>(category);
    EXPECT_EQ(formats(cIsFrameType, TYP_ANY), (Codes{22, 25, 31}));
  }
  module.rec->options.definitionCategory = 255;
  EXPECT_EQ(formats(cIsFrameType, TYP_ANY), (Codes{22}));
  // No other option does it.
  module.rec->options.cGeneration = ~(1u << 5);
  EXPECT_EQ(formats(cIsFrameType, TYP_ANY), (Codes{22, 25, 31}));
}

TEST_F(CFormat, FrameOption)
{
  set(TYP_SEQ, VF_STRU);
  EXPECT_FALSE(cIsFrameType(type));
  EXPECT_EQ(cGetVF(type), 24);
  option(optFrame);
  EXPECT_TRUE(cIsFrameType(type));
  EXPECT_EQ(cGetVF(type), 22);
  EXPECT_STREQ(cGetVFStri(type), "VF_FRM");
}

TEST_F(CFormat, FormatOfOpenValues)
{
  set(TYP_ANY, VF_ANY);
  EXPECT_EQ(cGetVF(type), 22);
  EXPECT_STREQ(cGetVFStri(type), "VF_FRM");
  module.rec->options.cGeneration = 1u << 5;
  EXPECT_EQ(cGetVF(type), 25);
  EXPECT_STREQ(cGetVFStri(type), "VF_ANY");
}

TEST_F(CFormat, NamesOfFormats)
{
  module.rec->options.cGeneration = 1u << 5;
  const char *const names[] = {"VF_NONE",
                               "VF_BOOL",
                               "VF_UI8",
                               "VF_UI16",
                               "VF_UI32",
                               "VF_UI64",
                               "VF_I8",
                               "VF_I16",
                               "VF_I32",
                               "VF_I64",
                               "VF_REAL32",
                               "VF_REAL64",
                               "VF_REAL128",
                               "VF_STAS0",
                               "VF_STAS8",
                               "VF_STAS16",
                               "VF_STAS",
                               "VF_DYNS0",
                               "VF_DYNS8",
                               "VF_DYNS16",
                               "VF_DYNS",
                               "VF_LIST",
                               "VF_FRM",
                               "VF_NULL",
                               "VF_STRU",
                               "VF_ANY",
                               "VF_EMB_PDV",
                               "VF_OBJI",
                               "VF_COMT",
                               "VF_EXTERNAL_1990",
                               "VF_EXTERNAL_1994",
                               "VF_OPEN",
                               "VF_BMPSTR0",
                               "VF_BMPSTR8",
                               "VF_BMPSTR16",
                               "VF_BMPSTR"};
  for (int format = 0; format < 36; ++format) {
    set(TYP_INTEGER, format);
    EXPECT_EQ(cGetVF(type), format);
    EXPECT_STREQ(cGetVFStri(type), names[format]);
  }
  for (int format : {36, 255}) {
    set(TYP_INTEGER, format);
    EXPECT_STREQ(cGetVFStri(type), "?!?");
  }
}

TEST_F(CFormat, NameOfReals)
{
  set(TYP_REAL, VF_REAL64);
  EXPECT_STREQ(cGetVFStri(type), "VF_REAL64");
  module.rec->options.cGeneration = 1u << 1;
  EXPECT_STREQ(cGetVFStri(type), "VF_REAL");
  // By the main type, and not by the format.
  set(TYP_REAL, VF_STRU);
  EXPECT_STREQ(cGetVFStri(type), "VF_REAL");
  set(TYP_INTEGER, VF_REAL64);
  EXPECT_STREQ(cGetVFStri(type), "VF_REAL64");
}

TEST_F(CFormat, Strings)
{
  const Codes strings = {4, 5, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 30};
  EXPECT_EQ(mainTypes(cIsStaticString, VF_STAS8), strings);
  EXPECT_EQ(mainTypes(cIsDynamicString, VF_DYNS8), strings);
  for (int mainType : strings) {
    EXPECT_EQ(formats(cIsStaticString, mainType), (Codes{13, 14, 15, 16}));
    EXPECT_EQ(formats(cIsDynamicString, mainType),
              (Codes{17, 18, 19, 20, 32, 33, 34, 35}));
  }
}

TEST_F(CFormat, Arrays)
{
  EXPECT_EQ(mainTypes(cIsStaticArray, VF_STRU), (Codes{8, 10}));
  EXPECT_EQ(mainTypes(cIsDynamicArray, VF_STRU), none);
  EXPECT_EQ(formats(cIsStaticArray, TYP_SEQOF), (Codes{24}));
  option(optDynamicArray);
  EXPECT_EQ(mainTypes(cIsStaticArray, VF_STRU), none);
  EXPECT_EQ(mainTypes(cIsDynamicArray, VF_STRU), (Codes{8, 10}));
  EXPECT_EQ(formats(cIsDynamicArray, TYP_SETOF), (Codes{24}));
}

TEST_F(CFormat, PointersInHomes)
{
  EXPECT_EQ(formats(cIsPtrAsnHomeMember, TYP_OCTSTR),
            (Codes{13, 14, 15, 16, 24, 27, 28, 29, 30}));
}

TEST_F(CFormat, CountsOfStrings)
{
  const Codes counted = {14, 15, 16, 18, 19, 20};
  for (int mainType : {4, 5, 15, 16, 17, 18, 19, 20, 21, 22})
    EXPECT_EQ(formats(cIsControlMember, mainType), counted) << mainType;
  EXPECT_EQ(formats(cIsControlMember, TYP_BMPSTR),
            (Codes{14, 15, 16, 33, 34, 35}));
  // A segmented string counts in its list.
  set(TYP_OCTSTR, VF_LIST);
  EXPECT_FALSE(cIsControlMember(type));
}

TEST_F(CFormat, TypesWithoutControlMember)
{
  for (int format : {14, 18, 24, 33})
    for (int mainType :
         {TYP_BOOLEAN, TYP_INTEGER, TYP_ENUM, TYP_REAL, TYP_NULL, TYP_ANY,
          TYP_OBJID, TYP_UNISTR, TYP_CHASTR, TYP_GENTIME, TYP_UTCTIME,
          TYP_EXTERNAL, TYP_OBJDESCR, TYP_OPEN, TYP_EXTADDGRP}) {
      set(mainType, format, 4);
      EXPECT_FALSE(cIsControlMember(type)) << mainType << " " << format;
    }
}

TEST_F(CFormat, Masks)
{
  for (int mainType : {TYP_SEQ, TYP_SET}) {
    set(mainType, VF_STRU, 4);
    type.base.nodeOptions = 0;
    type.base.nodeFlags = 0;
    EXPECT_FALSE(cIsControlMember(type));
    type.base.nodeFlags = NF_MANDATORY_COMPS;
    EXPECT_FALSE(cIsControlMember(type));
    type.base.nodeFlags = NF_OPTIONAL_COMPS;
    EXPECT_TRUE(cIsControlMember(type));
    set(mainType, VF_STRU, 0);
    EXPECT_FALSE(cIsControlMember(type));
    set(mainType, VF_STRU, 8);
    option(optAsnhc);
    EXPECT_FALSE(cIsControlMember(type));
  }
}

TEST_F(CFormat, CountsOfLists)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF}) {
    set(mainType, VF_STRU, 2);
    EXPECT_TRUE(cIsControlMember(type));
    set(mainType, VF_STRU, 0);
    EXPECT_FALSE(cIsControlMember(type));
    set(mainType, VF_LIST, 2);
    EXPECT_FALSE(cIsControlMember(type));
  }
}

TEST_F(CFormat, IndexOfAChoice)
{
  set(TYP_CHOICE, VF_STRU, 0);
  EXPECT_TRUE(cIsControlMember(type));
  option(optAsnhc);
  EXPECT_FALSE(cIsControlMember(type));
}

TEST_F(CFormat, NoControlMemberInATableOfHomes)
{
  type.base.nodeFlags = NF_OPTIONAL_COMPS;
  for (int mainType : {TYP_SEQ, TYP_SET, TYP_CHOICE}) {
    set(mainType, VF_STRU, 4);
    EXPECT_TRUE(cIsControlMember(type));
    makeHometab();
    EXPECT_FALSE(cIsControlMember(type));
    glbGeneratingEntryFunction = false;
  }
  // A list is none.
  makeHometab();
  set(TYP_SEQOF, VF_STRU, 4);
  EXPECT_TRUE(cIsControlMember(type));
}

// --- which function is written ----------------------------------------------

TEST_F(CFormat, Hometab)
{
  EXPECT_FALSE(cIsHometab(type));
  makeHometab();
  EXPECT_TRUE(cIsHometab(type));
  for (int category : {2, 3}) {
    module.rec->options.definitionCategory = static_cast<uint8_t>(category);
    EXPECT_TRUE(cIsHometab(type));
  }
  for (int category : {0, 4, 255}) {
    module.rec->options.definitionCategory = static_cast<uint8_t>(category);
    EXPECT_FALSE(cIsHometab(type));
  }
  makeHometab();
  type.entryFlags = 0x3F;
  EXPECT_FALSE(cIsHometab(type));
  type.entryFlags = 0x40;
  module.rec->options.nrEntryTypes = 0;
  EXPECT_FALSE(cIsHometab(type));
  module.rec->options.nrEntryTypes = 1;
  glbGeneratingEntryFunction = false;
  EXPECT_FALSE(cIsHometab(type));
}

TEST_F(CFormat, EntryFunctionOfAView)
{
  AsnType same = type;
  glbEntryType = &type;
  EXPECT_FALSE(cIsGeneratingEntryFuncForThisType(type));
  glbGeneratingEntryFunction = true;
  EXPECT_TRUE(cIsGeneratingEntryFuncForThisType(type));
  EXPECT_FALSE(cIsGeneratingEntryFuncForThisType(same));
  glbEntryType = nullptr;
  EXPECT_FALSE(cIsGeneratingEntryFuncForThisType(type));
}

TEST(CObjClassField, Kinds)
{
  const bool supported[] = {true, true, true, false, false, true, true};
  AsnObjClassField field;
  for (int kind = 0; kind < 7; ++kind) {
    field.fieldKind = kind;
    EXPECT_EQ(cIsSupportedObjClassField(field), supported[kind]) << kind;
  }
}
