// The decoder generator where runs of the tool do not reach it.

#include "cbet/cvars.h"
#include "cbet/typefuncinfo.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perelem.h"
#include "per/perstruct.h"
#include "support/decodertext.h"

using testing::ExitedWithCode;

namespace {

constexpr int unknownVariant = 2;

struct Decoder : DecoderText {
  BEModMetaRec &meta() const { return *module.rec->beMeta; }

  void setUnknownVariant() const
  {
    meta().encodingVariant = unknownVariant;
    perSetEncodingVariant(unknownVariant);
  }

  // Calls back for the component of that number of T.
  template <class F>
  void atComp(int number, F body)
  {
    static F *todo;
    static int wanted;
    todo = &body;
    wanted = number;
    TestType view(module, type("T"));
    forEachTypeComp(*view, [](AsnType &, AsnType &comp, int compNbr) {
      if (compNbr == wanted)
        (*todo)(comp);
    });
  }
};

}  // namespace

// --- the encoding variant ---------------------------------------------------

TEST_F(Decoder, UnknownVariant)
{
  load("T ::= BOOLEAN --$ entry\n"
       "S ::= SEQUENCE { a BOOLEAN }\n");
  setUnknownVariant();
  generate();
  EXPECT_EQ(decoders(),
            "\nvoid pdc_<unsupported>T (ASNG_F(ASNPERG *asnperg) T *home)\n"
            "{\n"
            "  pd_setEncodingVariant ( ASN_PER_UNKNOWN_VARIANT);\n"
            "  pd_Boolean (home);\n"
            "  pd_end ();\n"
            "}\n"
            "\nvoid pd_<unsupported>S (ASNG_F(ASNPERG *asnperg) S *home)\n"
            "{\n"
            "  pd_Boolean (&home->a_fld);\n"
            "}\n");
}

TEST_F(Decoder, UnknownVariantWithNamesOfBer)
{
  load("T ::= BOOLEAN --$ entry\n"
       "S ::= SEQUENCE { a BOOLEAN }\n");
  setUnknownVariant();
  meta().berFuncPref = 1;
  meta().variantFuncPref = 1;
  generate();
  EXPECT_EQ(decoders(),
            "\nvoid dec_<unsupported>T (ASNG_F(ASNPERG *asnperg) T *home)\n"
            "{\n"
            "  pd_setEncodingVariant ( ASN_PER_UNKNOWN_VARIANT);\n"
            "  pd_Boolean (home);\n"
            "  pd_end ();\n"
            "}\n"
            "\nvoid pd_<unsupported>S (ASNG_F(ASNPERG *asnperg) S *home)\n"
            "{\n"
            "  pd_Boolean (&home->a_fld);\n"
            "}\n");
}

// A variant without a name leaves the call as it is.
TEST_F(Decoder, VariantWithoutName)
{
  load("T ::= BOOLEAN --$ entry\n");
  perSetEncodingVariant(unknownVariant + 1);
  generate();
  EXPECT_EQ(decoders(), "\nvoid pdcT (ASNG_F(ASNPERG *asnperg) T *home)\n"
                        "{\n"
                        "  pd_setEncodingVariant (pd_Boolean (home);\n"
                        "  pd_end ();\n"
                        "}\n");
}

TEST_F(Decoder, OpenTypeOfUnknownVariantIsFatal)
{
  load("T ::= SEQUENCE { ..., a BOOLEAN OPTIONAL }\n");
  setUnknownVariant();
  EXPECT_EXIT(generate(), ExitedWithCode(2), "");
}

// --- the run ----------------------------------------------------------------

// The table is there for the calls of leaves, and only meanwhile.
TEST_F(Decoder, TableOfTheRun)
{
  load("T ::= BOOLEAN --$ entry\n");
  EXPECT_EQ(glbDecTypeFuncInfo, nullptr);
  generate();
  EXPECT_EQ(glbDecTypeFuncInfo, nullptr);
}

// Element functions are static: the next run has names of its own.
TEST_F(Decoder, ElementFunctionsOfEachRun)
{
  load("L ::= SEQUENCE OF NULL\n");
  const std::string text =
      "\nstatic void df1_L (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)\n"
      "{\n"
      "  LIST *home = (LIST *)*p;\n"
      "  ASNHOME *a1;\n"
      "  while (n){\n"
      "    appendList (NULL, home, &a1, VF_NULL, 0);\n"
      "    pd_NullType ();\n"
      "    incListLen (home);\n"
      "    n--;\n"
      "  }\n"
      "}\n"
      "\nvoid pdL (ASNG_F(ASNPERG *asnperg) L *home)\n"
      "{\n"
      "  listInit (home);\n"
      "  {\n"
      "    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_L);\n"
      "  }\n"
      "}\n";
  generate();
  EXPECT_EQ(decoders(), text);
  generate();
  EXPECT_EQ(decoders(), text);
}

// --- structures -------------------------------------------------------------

TEST_F(Decoder, RunTimeHandlesFragments)
{
  load("S ::= SEQUENCE OF BOOLEAN\n"
       "L ::= SEQUENCE (SIZE (0..65535)) OF BOOLEAN\n"
       "T ::= SEQUENCE { a BOOLEAN }\n");
  TypeFuncInfo info;
  TestType fragmented(module, type("S"));
  TestType list(module, type("L"));
  TestType structure(module, type("T"));
  EXPECT_FALSE(decCanGenerateComponents(*fragmented, info));
  EXPECT_TRUE(decCanGenerateComponents(*list, info));
  EXPECT_TRUE(decCanGenerateComponents(*structure, info));
}

// What is no component has neither test nor open type.
TEST_F(Decoder, NoComponent)
{
  load("T ::= SEQUENCE { ..., a BOOLEAN OPTIONAL }\n");
  TypeFuncInfo info;
  TestType view(module, type("T"));
  decIsComp(*view, info);
  decCompPrefix(*view, info);
  decCompPostfix(*view, info);
  EXPECT_EQ(decoders(), "");
  EXPECT_EQ(fArr[fiDec].indent, 0);
}

// --- unknown extensions -----------------------------------------------------

TEST_F(Decoder, BitmapOfAdditions)
{
  load("T ::= SEQUENCE { a BOOLEAN, ..., b BOOLEAN OPTIONAL }\n");
  perInitStructure();
  perBeginStructure();
  atComp(1, decExtensionAdditionField);
  perEndStructure();
  EXPECT_EQ(decoders(), "if (extensionBit_0){\n"
                        "  sint32 extensionAdditionField_0 = 0;\n"
                        "  int extensionAdditionCount_0 = "
                        "pd_extensionAddition (1,\n"
                        "    &extensionAdditionField_0);\n"
                        "  ASNPEROPENCTX openctx_0;\n");
  EXPECT_EQ(fArr[fiDec].indent, 1);
}

// An ignore function reads no addition.
TEST_F(Decoder, BitmapOfAdditionsThatAreSkipped)
{
  load("T ::= SEQUENCE { a BOOLEAN, ..., b BOOLEAN OPTIONAL }\n");
  perInitStructure();
  perBeginStructure();
  atComp(1, decSkipExtensionAdditionField);
  perEndStructure();
  EXPECT_EQ(decoders(), "if (extensionBit_0){\n"
                        "  sint32 extensionAdditionField_0 = 0;\n"
                        "  int extensionAdditionCount_0 = "
                        "pd_extensionAddition (1,\n"
                        "    &extensionAdditionField_0);\n");
  EXPECT_EQ(fArr[fiDec].indent, 1);
}

TEST_F(Decoder, BitmapOfNoSequence)
{
  load("T ::= CHOICE { a BOOLEAN, ..., b BOOLEAN }\n");
  atComp(1, decExtensionAdditionField);
  atComp(1, decSkipExtensionAdditionField);
  EXPECT_EQ(decoders(), "");
}

TEST_F(Decoder, UnknownAlternativeThatIsSkipped)
{
  load("S ::= SEQUENCE { a BOOLEAN, ... }\n"
       "T ::= CHOICE { a BOOLEAN, ... }\n");
  TestType sequence(module, type("S"));
  decSkipUnknownExtendedComponents(*sequence);
  EXPECT_EQ(decoders(), "");
  TestType choice(module, type("T"));
  decSkipUnknownExtendedComponents(*choice);
  EXPECT_EQ(decoders(), "pd_SkipExtendedComponents (1);\n");
}

// --- default values ---------------------------------------------------------

// Without a preamble the text follows the components. Such a structure has no
// control member, so that the test is in the encoder's file.
TEST_F(Decoder, DefaultOfMandatoryComponent)
{
  compiled =
      compileBody("T ::= SEQUENCE { a BOOLEAN DEFAULT TRUE }\n", options);
  StxTree &tree = treeOf(compiled);
  int32_t record = type("T");
  stxTypeAt(tree, compNamed(tree, record, "a")).compStatus = TCS_MANDATORY;
  stxTypeAt(tree, record).nodeFlags &=
      static_cast<uint16_t>(~NF_OPTIONAL_COMPS);
  loadCompiled();
  meta().decodingFillDefaultValues = 1;
  generate();
  EXPECT_EQ(decoders(), "\nvoid pdT (ASNG_F(ASNPERG *asnperg) T *home)\n"
                        "{\n"
                        "  pd_Boolean (&home->a_fld);\n"
                        "  {\n"
                        "    home->a_fld = TRUE;\n"
                        "  }\n"
                        "}\n");
  EXPECT_EQ(encoders(), "if (home->a_fld == NULL)");
}

// 0 ignores, 1 is an error; anything above means that nothing is skipped.
TEST_F(Decoder, SkipKindOfAnAddition)
{
  for (uint8_t kind : {uint8_t{0}, uint8_t{2}, uint8_t{254}}) {
    compiled =
        compileBody("T ::= SEQUENCE { ..., a BOOLEAN OPTIONAL }\n", options);
    StxTree &tree = treeOf(compiled);
    stxTypeAt(tree, compNamed(tree, type("T"), "a")).typeOptions.skipKind =
        kind;
    loadCompiled();
    generate();
    std::string text = decoders();
    bool begins =
        text.find("pd_BeginOpenType_al (&openctx_0);") != std::string::npos;
    EXPECT_EQ(begins, kind != 0) << int{kind};
    EXPECT_NE(text.find("pd_Boolean (&home->a_fld);"), std::string::npos);
    EXPECT_NE(text.find("pd_EndOpenType_al (&openctx_0);"), std::string::npos);
  }
}

// --- the cut into texts -----------------------------------------------------

namespace {

// Deep inside blocks each text of three characters and more has a line of its
// own.
struct DecoderPieces : Decoder {
  TypeFuncInfo info;

  DecoderPieces()
  {
    info.gIndex = 4;
    glbDecTypeFuncInfo = &info;
    perInitStructure();
    perBeginStructure();
  }
  ~DecoderPieces() override
  {
    perEndStructure();
    glbDecTypeFuncInfo = nullptr;
    cResetVars();
  }

  // What `write` makes of the type, lines joined by "|" without the blanks
  // ahead of them.
  template <class F>
  std::string pieces(const std::string &name, F write)
  {
    constexpr int deep = 40;
    TestType view(module, type(name));
    fArr[fiDec].indent = deep;
    write(*view);
    fArr[fiDec].indent = 0;
    std::string result;
    bool atStart = true;
    for (char c : decoders()) {
      if (c == ' ' && atStart)
        continue;
      atStart = c == '\n';
      result += atStart ? '|' : c;
    }
    if (result.ends_with('|'))
      result.pop_back();
    return result;
  }
  std::string prefixOfList(const std::string &list)
  {
    load("L " + list + "\n");
    perResetElemFuncs();
    return pieces("L",
                  [](AsnType &type) { forTypeElem(type, decSeqOfPrefix); });
  }
  std::string loopOfList(const std::string &list)
  {
    load("L " + list + "\n");
    localVarCount[VAR_N] = 1;
    return pieces("L", [](AsnType &type) {
      forTypeElem(type, [](AsnType &, AsnType &elem) {
        decConstructElemLoop(fiDec, elem);
      });
    });
  }
};

}  // namespace

TEST_F(DecoderPieces, Preamble)
{
  load("T ::= SEQUENCE { a BOOLEAN OPTIONAL, ... }\n");
  EXPECT_EQ(pieces("T", decSeqPrefix),
            "{|BOOLE extensionBit_0 =|pd_extensionBit ();|"
            "sint32 |optfield_0;|optfield_0|= pd_getBits (1);");
}

TEST_F(DecoderPieces, PreambleOfTwoWords)
{
  std::string comps;
  for (int i = 0; i < 33; ++i)
    comps += formatText("%sa%d NULL OPTIONAL", i ? ", " : "", i);
  load("T ::= SEQUENCE { " + comps + " }\n");
  EXPECT_EQ(pieces("T", decSeqPrefix),
            "{|sint32 |optfield_0|[2];|optfield_0|[1]|= pd_getBits (1);|"
            "optfield_0|[0]|= pd_getBits (32);");
}

TEST_F(DecoderPieces, Tests)
{
  load("T ::= SEQUENCE { a NULL OPTIONAL, ..., b NULL OPTIONAL }\n");
  auto test = [this](int number) {
    return pieces("T", [&](AsnType &type) {
      static int wanted;
      wanted = number;
      forEachTypeComp(type, [](AsnType &, AsnType &comp, int compNbr) {
        if (compNbr == wanted)
          decIsComp(comp, *glbDecTypeFuncInfo);
      });
    });
  };
  EXPECT_EQ(test(0), "if (|optfield_0|& BITL(0))");
  EXPECT_EQ(test(2), "if (|extensionAdditionField_0 &|BITL(0))");
}

TEST_F(DecoderPieces, OpenType)
{
  load("T ::= NULL\n");
  EXPECT_EQ(pieces("T", [](AsnType &) { decOpenTypeToF("pd_Begin"); }),
            "pd_BeginOpenType_al (&|openctx_0);");
}

TEST_F(DecoderPieces, BitmapOfAdditions)
{
  load("T ::= SEQUENCE { ..., a NULL OPTIONAL }\n");
  EXPECT_EQ(pieces("T",
                   [](AsnType &type) {
                     forEachTypeComp(type, [](AsnType &, AsnType &comp, int) {
                       if (isTypeExtensionmarker(comp))
                         decExtensionAdditionField(comp);
                     });
                   }),
            "if (extensionBit_0){|sint32 extensionAdditionField_0 = 0;|"
            "int extensionAdditionCount_0 =|pd_extensionAddition (1,|"
            "&extensionAdditionField_0);|ASNPEROPENCTX openctx_0;");
}

TEST_F(DecoderPieces, UnknownExtensions)
{
  load("S ::= SEQUENCE { ... }\n"
       "K --$ extmarkerfield -- ::= SEQUENCE { ... }\n"
       "SC ::= CHOICE { a NULL, ... }\n"
       "KC --$ extmarkerfield -- ::= CHOICE { a NULL, ... }\n");
  auto unknown = [this](const char *name) {
    return pieces(name, decUnknownExtendedComponents);
  };
  EXPECT_EQ(unknown("S"),
            "pd_SkipExtendedComponents (|extensionAdditionCount_0);|}");
  EXPECT_EQ(unknown("K"), "pd_SaveExtendedComponents (|"
                          "&home->extensionmarker,|"
                          "extensionAdditionCount_0);|}");
  EXPECT_EQ(unknown("SC"), "pd_SkipExtendedComponents (|1);");
  EXPECT_EQ(unknown("KC"), "pd_SaveExtendedComponents (|"
                           "&home->i1.extensionmarker,|1);");
}

TEST_F(DecoderPieces, DynamicArray)
{
  EXPECT_EQ(prefixOfList("--$ dynamicarray -- ::= "
                         "SEQUENCE (SIZE (1..10)) OF BOOLEAN"),
            "uint32 len_0;|pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);|"
            "if (len_0 > 0){|home->elem =|(BOOLE *)|allocAsn (|NULL,|MB_STG, |"
            "len_0 *|sizeof (BOOLE));|if (|home->elem == NULL){|"
            "reportFatalError (LACK_OF_MEMORY);|}|}");
}

TEST_F(DecoderPieces, LimitedDynamicArray)
{
  EXPECT_EQ(prefixOfList("--$ dynamicarray limit=4 limitaction=error -- ::= "
                         "SEQUENCE (SIZE (1..10)) OF --$ asnhome -- BOOLEAN"),
            "uint32 len_0;|pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);|"
            "if (len_0 > 0){|home->elem =|(ASNHOME **)|allocAsn (|NULL,|"
            "MB_STG, |((len_0 < 4)? len_0 : 4) *|sizeof (ASNHOME *));|"
            "if (|home->elem == NULL){|"
            "reportFatalError (LACK_OF_MEMORY);|}|}");
}

TEST_F(DecoderPieces, Fragments)
{
  EXPECT_EQ(prefixOfList("::= SEQUENCE OF BOOLEAN"),
            "pd_ConstructFragmentedValue (|(BYTE_TYPE *)home,|df1_L);");
  EXPECT_EQ(prefixOfList("--$ field=STRU size=I32 no-homelist -- ::= "
                         "SEQUENCE OF BOOLEAN"),
            "BOOLE *iter =|home->elem;|"
            "pd_ConstructFragmentedValue (|(BYTE_TYPE *)iter,|df1_L);");
}

TEST_F(DecoderPieces, LoopsOfLists)
{
  EXPECT_EQ(loopOfList("--$ field=LIST homelist -- ::= "
                       "SEQUENCE (SIZE (1..10)) OF NULL"),
            "while (listLen (home) <|len_0)");
  EXPECT_EQ(loopOfList("::= SEQUENCE (SIZE (1..10)) OF NULL"),
            "while (n1 <|len_0)");
  EXPECT_EQ(loopOfList("--$ size=NONE -- ::= SEQUENCE (SIZE (5)) OF NULL"),
            "while (n1 <|5)");
  EXPECT_EQ(loopOfList("--$ limit=4 limitaction=ignore -- ::= "
                       "SEQUENCE (SIZE (1..10)) OF NULL"),
            "while (n1 <|4 &&|n1 <|len_0)");
  EXPECT_EQ(loopOfList("--$ limit=4 limitaction=error -- ::= "
                       "SEQUENCE (SIZE (1..10)) OF NULL"),
            "if (|len_0 >|4){|"
            "asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);|}|"
            "while (n1 <|len_0)");
}

TEST_F(DecoderPieces, ElementFunctions)
{
  load("L ::= SEQUENCE OF NULL\n"
       "A --$ field=STRU size=I32 no-homelist -- ::= SEQUENCE OF NULL\n");
  auto function = [](AsnType &type) { forTypeElem(type, decElemCallBack); };
  EXPECT_EQ(pieces("L", function),
            "|static void|df1_L (|ASNG_F(ASNPERG *asnperg)|sint32 n,|"
            "BYTE_TYPE **p)|{|LIST *home =|(LIST *)*p;|ASNHOME *a1;|"
            "while (n){|appendList (|NULL,|home,|&a1,|VF_NULL,|0);|"
            "pd_NullType ();|incListLen (home);|n--;|}|}");
  EXPECT_EQ(pieces("A", function),
            "|static void|df1_A (|ASNG_F(ASNPERG *asnperg)|sint32 n,|"
            "BYTE_TYPE **p)|{|NULLTYPE *iter =|(NULLTYPE *)*p;|while (n){|"
            "pd_NullType ();|iter++;|n--;|}|*p = (BYTE_TYPE *)iter;|}");
}

TEST_F(DecoderPieces, IndexOfAlternative)
{
  load("T ::= CHOICE { a NULL, b NULL, ..., c NULL }\n");
  EXPECT_EQ(pieces("T",
                   [](AsnType &type) {
                     decChoiceIndexExtRoot(type, "home->choice", VF_UI8);
                   }),
            "home->choice =|(uint8)pd_ChoiceIndex_al_le255 (1,|1);");
  EXPECT_EQ(pieces("T",
                   [](AsnType &type) {
                     decChoiceIndexExtAdd(type, "home->choice", VF_UI8);
                   }),
            "home->choice = 3 +|(uint8)pd_ChoiceIndex_al_ns ();");
}

// A variable of the code needs no cast, and one alternative no index.
TEST_F(DecoderPieces, IndexInVariable)
{
  load("T ::= CHOICE { a NULL, b NULL, ..., c NULL }\n"
       "S ::= CHOICE { a NULL }\n");
  auto root = [](AsnType &type) {
    decChoiceIndexExtRoot(type, "choice_0", VF_I8);
  };
  EXPECT_EQ(pieces("T", root), "choice_0 =|pd_ChoiceIndex_al_le255 (1,|1);");
  EXPECT_EQ(pieces("S", root), "choice_0 = 0;");
  EXPECT_EQ(
      pieces("S",
             [](AsnType &type) { decChoiceIndexExtRoot(type, "", VF_I8); }),
      "");
}

TEST_F(DecoderPieces, FilledDefaults)
{
  load("T ::= SEQUENCE {\n"
       "  a INTEGER (0..7) DEFAULT 3, --$ asnhome\n"
       "  b SEQUENCE { x NULL },\n"
       "  c BOOLEAN DEFAULT TRUE\n"
       "}\n");
  EXPECT_EQ(pieces("T", decFillDefaultValues),
            "if (!(home->compmask & BIT(0))){|createHome (|NULL,|&home->|"
            "a_fld|, VF_UI8,|0);|home->compmask |= BIT(0);|"
            "home->a_fld->val.ui8 = 3;|}|"
            "if (!(home->compmask & BIT(2))){|home->compmask |= BIT(2);|"
            "home->c_fld = TRUE;|}");
}
