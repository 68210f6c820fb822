// Element functions: their names, their heads, and the search for their lists.

#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "model/typeiter.h"
#include "per/perelem.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

struct PerElem : LoadedAsn {
  int savedVariant = perGetEncodingVariant();
  PerElem()
  {
    perResetElemFuncs();
    cInitVars();
    perSetEncodingVariant(VARIANT_ALIGNED);
  }
  ~PerElem() override
  {
    perResetElemFuncs();
    cInitVars();
    perSetEncodingVariant(savedVariant);
  }

  // Calls `body` with a list and its element.
  template <class F>
  void atElem(const char *name, F body)
  {
    static F *todo;
    todo = &body;
    TestType list(module, type(name));
    forTypeElem(*list, [](AsnType &l, AsnType &e) { (*todo)(l, e); });
  }
  std::string nameOf(const char *list, const char *prefix)
  {
    std::string text;
    atElem(list, [&](AsnType &l, AsnType &e) {
      perElemFuncName(text, prefix, l, e, "|");
    });
    return text;
  }
  // The head of a function, or nothing.
  std::string headOf(const char *list)
  {
    return writtenText([&](int file) {
      atElem(list, [&](AsnType &l, AsnType &e) {
        if (perBeginElemFunc(file, " ef", l, e))
          cCloseBrace(file);
      });
    });
  }
};

constexpr char lists[] = "E ::= SEQUENCE { a NULL }  A ::= SEQUENCE OF E"
                         " B ::= SET OF E  C ::= SEQUENCE OF NULL";

// The first list of a type keeps the plain name; each sort of function has
// names of its own.
TEST_F(PerElem, Names)
{
  load(lists);
  EXPECT_EQ(nameOf("A", "ef"), "efE|");
  EXPECT_EQ(nameOf("B", "ef"), "efE_B|");
  EXPECT_EQ(nameOf("A", "ef"), "efE|");
  EXPECT_EQ(nameOf("B", "df"), "dfE|");
  EXPECT_EQ(nameOf("A", "df"), "dfE_A|");
  EXPECT_EQ(nameOf("C", "ef"), "ef1_C|");
}

TEST_F(PerElem, BlankAheadOfTheName)
{
  load(lists);
  EXPECT_EQ(nameOf("A", " ef"), " efE|");
  EXPECT_EQ(nameOf("B", " ef"), " efE_B|");
  EXPECT_EQ(nameOf("B", "ef"), "efE_B|");
}

TEST_F(PerElem, NamesOfTheNextRun)
{
  load(lists);
  EXPECT_EQ(nameOf("A", "ef"), "efE|");
  perResetElemFuncs();
  EXPECT_EQ(nameOf("B", "ef"), "efE|");
}

TEST_F(PerElem, Heads)
{
  load(lists);
  EXPECT_EQ(headOf("A"), "\nstatic void efE (ASNG_F(ASNPERG *asnperg)"
                         " sint32 n, BYTE_TYPE **p)\n{\n}\n");
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 1);
  EXPECT_EQ(headOf("A"), "");
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 1);
  EXPECT_EQ(headOf("B"), "\nstatic void efE_B (ASNG_F(ASNPERG *asnperg)"
                         " sint32 n, BYTE_TYPE **p)\n{\n}\n");
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 2);
}

// Long names go to lines of their own.
TEST_F(PerElem, PiecesOfTheHead)
{
  const std::string name = "N" + std::string(29, 'n');
  load(name + " ::= SEQUENCE OF NULL");
  EXPECT_EQ(headOf(name.c_str()), "\nstatic void ef1_" + name +
                                      " (ASNG_F(ASNPERG *asnperg)\n"
                                      "  sint32 n, BYTE_TYPE **p)\n{\n}\n");
}

TEST_F(PerElem, SupportedElements)
{
  load("E ::= SEQUENCE { a NULL }  A ::= SEQUENCE OF E"
       " B ::= SEQUENCE OF NULL  C ::= SEQUENCE OF SEQUENCE { a NULL }"
       " D ::= SEQUENCE OF SET OF NULL  F ::= SEQUENCE OF A"
       " G ::= SEQUENCE OF ENUMERATED { a, ... }"
       " H ::= SEQUENCE OF SEQUENCE { ... }  I ::= SEQUENCE OF SEQUENCE { }"
       " J ::= SEQUENCE OF CHOICE { a NULL }");
  const std::string supported = "ABFGI";
  for (char c : std::string("ABCDFGHIJ"))
    atElem(std::string(1, c).c_str(), [&](AsnType &, AsnType &e) {
      EXPECT_EQ(perIsElemSupported(e), supported.find(c) != std::string::npos)
          << c;
    });
}

TEST_F(PerElem, Arrays)
{
  load("A ::= SEQUENCE (SIZE(2)) OF NULL\n"
       "B ::= SEQUENCE (SIZE(2)) OF NULL --$ dynamicarray\n"
       "C ::= SEQUENCE OF NULL\n");
  TestType sta(module, type("A")), dyn(module, type("B"));
  TestType list(module, type("C"));
  EXPECT_TRUE(perIsArray(*sta));
  EXPECT_TRUE(perIsArray(*dyn));
  EXPECT_FALSE(perIsArray(*list));
}

// --- the search

std::string found;

void noteElem(AsnType &list, AsnType &)
{
  std::string id;
  found += cTypeId(id, nullptr, list, " ");
}

struct PerElemSearch : PerElem {
  std::string search(const char *name)
  {
    found.clear();
    TestType view(module, type(name));
    perForEachInlineFragmentedList(*view, noteElem);
    return found;
  }
};

TEST_F(PerElemSearch, TheListItself)
{
  load("A ::= SEQUENCE OF NULL  B ::= SEQUENCE (SIZE(2)) OF NULL"
       " C ::= SEQUENCE OF SEQUENCE { a SEQUENCE OF NULL }  D ::= NULL");
  EXPECT_EQ(search("A"), "A ");
  EXPECT_EQ(search("B"), "");
  // The elements of a fragmentable list are never written in line.
  EXPECT_EQ(search("C"), "C ");
  EXPECT_EQ(search("D"), "");
}

TEST_F(PerElemSearch, Components)
{
  load("L ::= SEQUENCE OF NULL  T ::= SEQUENCE {"
       " a SEQUENCE OF NULL, b L, c SET { d SEQUENCE OF NULL OPTIONAL },"
       " e CHOICE { f SET OF NULL, g NULL }, h SEQUENCE (SIZE(2)) OF NULL,"
       " ..., i SEQUENCE OF NULL,"
       " [[ j SEQUENCE OF NULL, k SEQUENCE { l SEQUENCE OF NULL } ]] }");
  EXPECT_EQ(search("T"), "a_T d_c_T f_e_T i_T j_T l_k_T ");
}

TEST_F(PerElemSearch, ElementsOfInlineLists)
{
  load("S ::= SEQUENCE { a SEQUENCE OF NULL }"
       " T ::= SEQUENCE (SIZE(2)) OF SEQUENCE { a SEQUENCE OF NULL }"
       " U ::= SEQUENCE { b SEQUENCE (SIZE(2)) OF SEQUENCE OF NULL }"
       " V ::= SEQUENCE (SIZE(2)) OF S");
  EXPECT_EQ(search("T"), "a_T ");
  EXPECT_EQ(search("U"), "1_b_b_U ");
  EXPECT_EQ(search("V"), "");
}

// A type is reached again through a definition only.
TEST_F(PerElemSearch, Recursion)
{
  load("R ::= SEQUENCE { a SEQUENCE OF R, b SEQUENCE { c R OPTIONAL } }");
  EXPECT_EQ(search("R"), "a_R ");
}

}  // namespace
