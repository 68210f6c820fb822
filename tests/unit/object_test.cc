// Objects, and what they give to the fields of their class.

#include "driver/metaobjects.h"
#include "model/fieldvalue.h"
#include "model/typequery.h"
#include "model/valuecontent.h"
#include "support/objecttrees.h"
#include <algorithm>

using testing::ExitedWithCode;

namespace {

struct ObjViews : ObjectTrees {
  ObjViews() { load(exampleObjects); }

  static std::string numberOf(int number) { return std::to_string(number); }

  // What a walk over the field values of an object visits: the field's
  // number and name, with "?" for a default and "-" for an empty one.
  static void note(AsnObject &object_, AsnObjectFieldValue &at, int fieldNr)
  {
    EXPECT_EQ(getObjectOfFieldValue(at), &object_);
    EXPECT_EQ(getObjClassFieldOfFieldValue(at)->fieldNr, fieldNr);
    EXPECT_EQ(isEmptyFieldValue(at), at.recNr == 0);
    seen += numberOf(fieldNr) + nameOf(at.field->fix) +
            (at.isDefault            ? "? "
             : isEmptyFieldValue(at) ? "- "
                                     : " ");
  }
  typedef void FieldWalker(AsnObject &, ObjectFieldCallBack *);
  std::string walked(FieldWalker *walk, const std::string &name)
  {
    return said([&] { walk(object(name), note); });
  }
  // Calls `f` with a possible field value of an object.
  template <class F>
  void atField(AsnObject &of, const std::string &name, F f)
  {
    static F *todo;
    static std::string wanted;
    static int visits;
    todo = &f;
    wanted = name;
    visits = 0;
    forEachPossibleObjectFieldValue(
        of, [](AsnObject &, AsnObjectFieldValue &at, int) {
          if (nameOf(at.field->fix) != wanted)
            return;
          ++visits;
          (*todo)(at);
        });
    EXPECT_EQ(visits, 1) << name;
  }
  template <class F>
  void atField(const std::string &object_, const std::string &name, F f)
  {
    atField(object(object_), name, f);
  }
  // Of the field values of an object those for which the query is true.
  std::string fieldsWith(bool (*query)(const AsnObjectFieldValue &),
                         const std::string &name)
  {
    static bool (*asked)(const AsnObjectFieldValue &);
    asked = query;
    return said([&] {
      forEachPossibleObjectFieldValue(
          object(name), [](AsnObject &, AsnObjectFieldValue &at, int) {
            if (asked(at))
              seen += nameOf(at.field->fix) + " ";
          });
    });
  }
};

typedef ObjViews ObjDeath;

// --- objects of a module ----------------------------------------------------

void noteObject(AsnObject &object, int index)
{
  ObjectTrees::seen +=
      std::to_string(index) + ":" + ObjectTrees::nameOf(object.compFix) + " ";
}

TEST_F(ObjViews, OfAModule)
{
  EXPECT_EQ(said([&] { forEachObject(module, noteObject); }),
            "0:e 1:p 2:f 3:o 4:q 5:r 6:ti ");
  valueNode(value("p")).hidden = 1;
  loadCompiled();
  EXPECT_EQ(said([&] { forEachObject(module, noteObject); }),
            "0:e 1:f 2:o 3:q 4:r 5:ti ");
}

TEST_F(ObjViews, NoneInAModuleOfValues)
{
  load("v INTEGER ::= 1");
  EXPECT_EQ(said([&] { forEachObject(module, noteObject); }), "");
}

TEST_F(ObjViews, StepsReuseTheObject)
{
  AsnModule home = module;
  AsnObject *view = firstObject(module);
  view->homeMod = &home;
  AsnObject *next = nextObject(view);
  EXPECT_EQ(next, view);
  EXPECT_EQ(next->homeMod, &home);
  EXPECT_EQ(refOf(*next), "p");
  delAsnObject(next);
  // A second time does nothing.
  delAsnObject(next);
  delAsnObject(nullptr);
}

TEST_F(ObjViews, ByRecord)
{
  EXPECT_EQ(said([&] { forObjectByRecNr(module, noteObject, value("q")); }),
            "0:q ");
  // One in place, and a hidden one.
  valueNode(value("p")).hidden = 1;
  loadCompiled();
  EXPECT_EQ(said([&] { forObjectByRecNr(module, noteObject, value("p")); }),
            "0:p ");
  EXPECT_EQ(said([&] {
              forObjectByRecNr(module, noteObject, setting("o", "linked"));
            }),
            "0:linked ");
  // No object, no definition, no record.
  EXPECT_EQ(said([&] { forObjectByRecNr(module, noteObject, value("six")); }),
            "");
  valueNode(value("q")).valueStatus = 1;
  loadCompiled();
  EXPECT_EQ(said([&] { forObjectByRecNr(module, noteObject, value("q")); }),
            "");
  EXPECT_EQ(said([&] { forObjectByRecNr(module, noteObject, 0); }), "");
}

TEST_F(ObjViews, OfAClass)
{
  auto note = [](AsnObjClass &, AsnObject &at, int index) {
    seen += numberOf(index) + nameOf(at.compFix) + " ";
  };
  auto end = [](AsnObjClass &at, int count) {
    seen += nameOf(at.compFix) + "=" + numberOf(count);
  };
  auto ofClass = [&](const char *name) {
    AsnObjClass &of = objClass(name);
    return said([&] { forEachObjectOfClass(module, of, note, end); });
  };
  EXPECT_EQ(ofClass("OP"), "0p 1o 2q 3r OP=4");
  EXPECT_EQ(ofClass("ERR"), "0e 1f ERR=2");
  load("C ::= CLASS { &i INTEGER }\nD ::= CLASS { &i INTEGER }\n"
       "d D ::= {&i 1}");
  EXPECT_EQ(ofClass("C"), "");
}

TEST_F(ObjDeath, NoCallBack)
{
  AsnObject &o = object("o");
  AsnObjClass &op = objClass("OP");
  auto note = [](AsnObjClass &, AsnObject &, int) {};
  auto end = [](AsnObjClass &, int) {};
  EXPECT_EXIT(forEachObject(module, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forObjectByRecNr(module, nullptr, 1), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forEachObjectOfClass(module, op, nullptr, end), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forEachObjectOfClass(module, op, note, nullptr),
              ExitedWithCode(2), noCallBackText);
  for (FieldWalker *walk :
       {forEachObjectFieldValue, forEachObjectFieldValueAndDefaultValue,
        forEachPossibleObjectFieldValue})
    EXPECT_EXIT(walk(o, nullptr), ExitedWithCode(2), noCallBackText);
  EXPECT_EXIT(forEachOptionalObjectFieldValue(o, nullptr), ExitedWithCode(2),
              noCallBackText);
  AsnObjectFieldValue at;
  EXPECT_EXIT(forTypeFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forEntryTypeFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forFixedTypeValueFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forFixedTypeValueSetFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forObjectFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
  EXPECT_EXIT(forObjectSetFieldValue(at, nullptr), ExitedWithCode(2),
              noCallBackText);
}

// --- one object -------------------------------------------------------------

TEST_F(ObjViews, PathsAndQueries)
{
  AsnObject &r = object("r");
  EXPECT_EQ(getUniqueObjectNr(r), value("r") - 1);
  EXPECT_EQ(getUniqueBaseObjectNr(r), value("q") - 1);
  EXPECT_EQ(getObjClassOfObject(r), r.objClass);
  EXPECT_EQ(r.objClass->baseRecNr, type("OP"));
  EXPECT_EQ(getModuleOfObject(r), &module);
  EXPECT_NE(getBEObjMetaRec(r), nullptr);
  // "q" stands on line 12, behind the head of the module.
  EXPECT_EQ(getObjectDefinitionLine(r), 12);
  EXPECT_EQ(getObjectCompStatus(r), 2);
  EXPECT_TRUE(isDefinedObject(r));
  EXPECT_TRUE(isDefinedBaseObject(r));
  AsnObject &inPlace = objectAt(setting("o", "linked"));
  EXPECT_FALSE(isDefinedObject(inPlace));
  EXPECT_FALSE(isDefinedBaseObject(inPlace));
  AsnObject &reference = objectAt(setting("q", "linked"));
  EXPECT_FALSE(isDefinedObject(reference));
  EXPECT_TRUE(isDefinedBaseObject(reference));
  EXPECT_EQ(getBaseObjectCompStatus(reference), 2);
}

TEST_F(ObjViews, Names)
{
  stxGlobalOption(tree(), TED_FRONT_END, "-OPREF=o_");
  loadCompiled();
  AsnObject &r = object("r");
  std::string text = "old";
  EXPECT_EQ(getObjectRef(text, "<", r, ">"), "<r>");
  EXPECT_EQ(getBaseObjectRef(text, "<", r, ">"), "<q>");
  EXPECT_EQ(getObjectId(text, "<", r, ">"), "<o_r>");
  EXPECT_EQ(getBaseObjectId(text, nullptr, r, nullptr), "o_q");
}

TEST_F(ObjViews, FlagsOfReferences)
{
  // Of the reference's flags visibility and naming stay behind.
  valueNode(value("r")).valueFlags = 0x90 | VFL_VISIBLE;
  valueNode(value("q")).valueFlags = 0x20;
  loadCompiled();
  EXPECT_EQ(object("r").base.valueFlags, 0xb0);
}

TEST_F(ObjViews, Comments)
{
  stxValueTed(tree(), value("r"), TED_BACK_END, "-//x");
  loadCompiled();
  EXPECT_TRUE(object("r").commentOptions);
  EXPECT_FALSE(object("q").commentOptions);
}

TEST_F(ObjDeath, NoClass)
{
  valueNode(value("q")).governor = type("Pdu");
  loadCompiled();
  EXPECT_EXIT(object("q"), ExitedWithCode(2), "Internal error\n");
}

TEST_F(ObjDeath, CyclicReferences)
{
  valueNode(value("r")).firstChild = value("r");
  loadCompiled();
  EXPECT_EXIT(object("r"), ExitedWithCode(2),
              "Syntax tree inconsistent\n +m\n");
}

// --- field values -----------------------------------------------------------

TEST_F(ObjViews, GivenValues)
{
  EXPECT_EQ(walked(forEachObjectFieldValue, "p"), "0code ");
  EXPECT_EQ(walked(forEachObjectFieldValue, "o"),
            "0code 1Arg 3def 4Vals 5linked 6Errors ");
  EXPECT_EQ(walked(forEachObjectFieldValue, "r"), "0code 1Arg 5linked 7prio ");
}

TEST_F(ObjViews, ObjectsOfPredefinedClassesHaveNone)
{
  for (FieldWalker *walk :
       {forEachObjectFieldValue, forEachObjectFieldValueAndDefaultValue,
        forEachPossibleObjectFieldValue})
    EXPECT_EQ(walked(walk, "ti"), "");
}

TEST_F(ObjViews, NoValues)
{
  valueNode(value("p")).firstChild = 0;
  loadCompiled();
  EXPECT_EQ(walked(forEachObjectFieldValue, "p"), "");
  EXPECT_EQ(walked(forEachObjectFieldValueAndDefaultValue, "p"),
            "2Res? 7prio? ");
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "p"),
            "0code- 1Arg- 2Res? 3def- 4Vals- 5linked- 6Errors- 7prio? ");
}

// Numbers are those of all fields of the class. The default of &Res takes the
// place of the value that follows: &def in "o", &linked in "q".
TEST_F(ObjViews, GivenValuesAndDefaults)
{
  EXPECT_EQ(walked(forEachObjectFieldValueAndDefaultValue, "p"),
            "0code 2Res? 7prio? ");
  EXPECT_EQ(walked(forEachObjectFieldValueAndDefaultValue, "o"),
            "0code 1Arg 2Res? 4Vals 5linked 6Errors 7prio? ");
  EXPECT_EQ(walked(forEachObjectFieldValueAndDefaultValue, "q"),
            "0code 1Arg 2Res? 7prio ");
}

TEST_F(ObjViews, OptionalFields)
{
  auto note = [](AsnObject &, AsnObjectFieldValue &at, int optionalIndex,
                 int fieldNr) {
    seen += numberOf(optionalIndex) + "/" + numberOf(fieldNr) +
            nameOf(at.field->fix) + " ";
  };
  auto optional = [&](const char *name) {
    return said([&] { forEachOptionalObjectFieldValue(object(name), note); });
  };
  EXPECT_EQ(optional("o"), "0/1Arg 1/3def 2/4Vals 3/5linked 4/6Errors ");
  EXPECT_EQ(optional("q"), "0/1Arg 1/5linked 2/7prio ");
  EXPECT_EQ(optional("p"), "");
}

TEST_F(ObjViews, PossibleValues)
{
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "o"),
            "0code 1Arg 2Res? 3def 4Vals 5linked 6Errors 7prio? ");
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "q"),
            "0code 1Arg 2Res? 3def- 4Vals- 5linked 6Errors- 7prio ");
}

TEST_F(ObjViews, ValuesInAnotherOrderThanTheFields)
{
  // &prio, then &code: the fields are begun again.
  int32_t prio = setting("q", "prio"), code = setting("q", "code");
  valueNode(value("q")).firstChild = prio;
  valueNode(prio).next = code;
  valueNode(code).next = 0;
  loadCompiled();
  EXPECT_EQ(walked(forEachObjectFieldValue, "q"), "7prio 0code ");
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "q"),
            "0code- 1Arg- 2Res? 3def- 4Vals- 5linked- 6Errors- 7prio ");
}

TEST_F(ObjViews, ManyValuesInReverseOrder)
{
  constexpr int count = 5000;
  std::string fields, values;
  for (int i = 0; i < count; ++i) {
    const char *separator = i == 0 ? "" : ", ";
    fields += separator + ("&f" + numberOf(i)) + " INTEGER";
    values += separator + ("&f" + numberOf(i)) + " 1";
  }
  load("C ::= CLASS {" + fields + "}\nc C ::= {" + values + "}");
  int32_t before = 0;
  for (int32_t child : childrenOf(tree(), value("c"))) {
    valueNode(child).next = before;
    before = child;
  }
  valueNode(value("c")).firstChild = before;
  loadCompiled();
  static int expected;
  expected = count;
  forEachObjectFieldValue(
      object("c"), [](AsnObject &, AsnObjectFieldValue &at, int fieldNr) {
        --expected;
        EXPECT_EQ(fieldNr, expected);
        EXPECT_EQ(nameOf(at.field->fix), "f" + numberOf(expected));
      });
  EXPECT_EQ(expected, 0);
}

// The class is begun again for a value of the right number in a module that is
// not the class's, and in vain.
TEST_F(ObjDeath, ValueForAFieldOfAnotherModule)
{
  loadModules("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "IMPORTS T FROM N;\n"
              "C ::= CLASS { &i INTEGER, &T }\nc C ::= {&i 2, &T T}\nEND\n"
              "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\nT ::= NULL\nEND\n");
  EXPECT_EQ(walked(forEachObjectFieldValue, "c"), "0i 1T ");
  valueNode(setting("c", "T")).governorModule = 2;
  loadCompiled();
  AsnObject &c = object("c");
  EXPECT_EXIT(forEachObjectFieldValue(c, note), ExitedWithCode(2),
              "Syntax tree inconsistent\n");
}

TEST_F(ObjDeath, ValueForNoFieldOfTheClass)
{
  valueNode(setting("q", "Arg")).governor = fieldNode("ERR", "Par");
  loadCompiled();
  AsnObject &q = object("q");
  EXPECT_EXIT(forEachObjectFieldValue(q, note), ExitedWithCode(2),
              "Syntax tree inconsistent\n +m\n");
}

TEST_F(ObjDeath, CyclicValues)
{
  valueNode(setting("q", "prio")).next = setting("q", "code");
  loadCompiled();
  AsnObject &q = object("q");
  EXPECT_EXIT(forEachObjectFieldValue(
                  q, [](AsnObject &, AsnObjectFieldValue &, int) {}),
              ExitedWithCode(2), "Syntax tree inconsistent\n +m\n");
}

TEST_F(ObjDeath, CyclicFields)
{
  node(fieldNode("OP", "prio")).next = fieldNode("OP", "code");
  loadCompiled();
  AsnObject &p = object("p");
  for (FieldWalker *walk : {forEachObjectFieldValueAndDefaultValue,
                            forEachPossibleObjectFieldValue})
    EXPECT_EXIT(walk(p, [](AsnObject &, AsnObjectFieldValue &, int) {}),
                ExitedWithCode(2), "Syntax tree inconsistent\n +m\n");
}

TEST_F(ObjViews, KindsOfFieldValues)
{
  EXPECT_EQ(fieldsWith(isTypeFieldValue, "o"), "Arg Res ");
  EXPECT_EQ(fieldsWith(isFixedTypeValueFieldValue, "o"), "code prio ");
  EXPECT_EQ(fieldsWith(isFixedTypeValueSetFieldValue, "o"), "Vals ");
  EXPECT_EQ(fieldsWith(isVariableTypeValueFieldValue, "o"), "def ");
  EXPECT_EQ(fieldsWith(isVariableTypeValueSetFieldValue, "o"), "");
  EXPECT_EQ(fieldsWith(isObjectFieldValue, "o"), "linked ");
  EXPECT_EQ(fieldsWith(isObjectSetFieldValue, "o"), "Errors ");
  EXPECT_EQ(fieldsWith(isEmptyFieldValue, "o"), "");
}

TEST_F(ObjViews, VariableTypeValueSets)
{
  load("C ::= CLASS { &T, &S &T }\nc C ::= {&T INTEGER, &S {1 | 2}}");
  EXPECT_EQ(fieldsWith(isVariableTypeValueSetFieldValue, "c"), "S ");
}

TEST_F(ObjViews, MainTypes)
{
  atField("o", "code", [](AsnObjectFieldValue &at) {
    EXPECT_EQ(getFieldBaseValueMainType(at), TYP_INTEGER);
  });
  atField("q", "linked", [](AsnObjectFieldValue &at) {
    EXPECT_EQ(getFieldBaseValueMainType(at), TYP_CLASS);
  });
  atField("p", "Arg", [](AsnObjectFieldValue &at) {
    EXPECT_EQ(getFieldBaseValueMainType(at), TYP_NONE);
  });
}

// --- types and values -------------------------------------------------------

void noteType(AsnObjectFieldValue &, AsnType &type)
{
  EXPECT_TRUE(type.partialInfo);
  ObjectTrees::seen +=
      std::to_string(type.compRecNr) + "/" + std::to_string(type.base.mainType);
}

TEST_F(ObjViews, TypeOfAField)
{
  auto typeAt = [&](const char *name, const char *field) {
    return said([&] {
      atField(name, field,
              [](AsnObjectFieldValue &at) { forTypeFieldValue(at, noteType); });
    });
  };
  auto carried = [&](int32_t record) {
    return numberOf(valueNode(record).firstChild);
  };
  EXPECT_EQ(typeAt("o", "Arg"), carried(setting("o", "Arg")) + "/1");
  EXPECT_EQ(typeAt("q", "Arg"), numberOf(type("Pdu")) + "/0");
  EXPECT_EQ(typeAt("p", "Res"),
            carried(node(fieldNode("OP", "Res")).defaultValue) + "/6");
  EXPECT_EQ(typeAt("p", "Arg"), "");
  EXPECT_EQ(typeAt("o", "code"), "");
  valueNode(setting("q", "Arg")).firstChild = 0;
  loadCompiled();
  EXPECT_EQ(typeAt("q", "Arg"), "");
}

TEST_F(ObjViews, ModuleOfTheType)
{
  static const AsnModule *found;
  auto note = [](AsnObjectFieldValue &, AsnType &at) { found = at.homeMod; };
  AsnObject &q = object("q");
  atField(q, "Arg",
          [&](AsnObjectFieldValue &at) { forTypeFieldValue(at, note); });
  EXPECT_EQ(found, &module);
  atField(q, "Res",
          [&](AsnObjectFieldValue &at) { forTypeFieldValue(at, note); });
  EXPECT_EQ(found, q.objClass->homeMod);
}

TEST_F(ObjViews, EntryTypes)
{
  load("C ::= CLASS { &T, &i INTEGER }\n"
       "Pdu ::= BOOLEAN --$ entry\n"
       "Ref ::= Pdu\nOther ::= BOOLEAN\nCon ::= Num (1)\n"
       "Num ::= INTEGER --$ entry\n"
       "a C ::= {&T Pdu, &i 1}\nb C ::= {&T Ref, &i 1}\n"
       "c C ::= {&T Other, &i 1}\nd C ::= {&T Con, &i 1}\n");
  auto note = [](AsnObjectFieldValue &, AsnType &at) {
    seen += nameOf(at.compFix);
  };
  auto entryOf = [&](const char *name) {
    return said([&] {
      atField(name, "T", [&](AsnObjectFieldValue &at) {
        seen += isEntryTypeFieldValue(at) ? "entry " : "no";
        forEntryTypeFieldValue(at, note);
      });
    });
  };
  EXPECT_EQ(entryOf("a"), "entry Pdu");
  EXPECT_EQ(entryOf("b"), "entry Pdu");
  EXPECT_EQ(entryOf("c"), "no");
  // The constraint on the way makes another type of it.
  EXPECT_EQ(entryOf("d"), "no");
  atField("a", "i", [&](AsnObjectFieldValue &at) {
    EXPECT_FALSE(isEntryTypeFieldValue(at));
    EXPECT_EQ(said([&] { forEntryTypeFieldValue(at, note); }), "");
  });
}

TEST_F(ObjViews, ValueOfAField)
{
  auto note = [](AsnObjectFieldValue &, AsnValue &at) {
    seen += nameOf(at.compFix) + "=" + i64text(int64Value(at));
  };
  auto valueAt = [&](const char *name, const char *field) {
    return said([&] {
      atField(name, field, [&](AsnObjectFieldValue &at) {
        forFixedTypeValueFieldValue(at, note);
      });
    });
  };
  EXPECT_EQ(valueAt("p", "code"), "code=1");
  // A reference to a definition; a default, which has no name and counts as
  // a definition, and then as none: the item behind it.
  EXPECT_EQ(valueAt("o", "code"), "six=6");
  EXPECT_EQ(valueAt("p", "prio"), "-=0");
  valueNode(node(fieldNode("OP", "prio")).defaultValue).valueStatus = 3;
  loadCompiled();
  EXPECT_EQ(valueAt("p", "prio"), "low=0");
  // Values of a variable type, types.
  EXPECT_EQ(valueAt("o", "def"), "");
  EXPECT_EQ(valueAt("o", "Arg"), "");
}

// --- value sets -------------------------------------------------------------

struct ObjValueSets : ObjViews {
  // The values of a set of a class with one value set field.
  std::string valuesOf(const std::string &set, const std::string &type_,
                       const std::string &more = "")
  {
    load("C ::= CLASS { &V " + type_ + " OPTIONAL }\nc C ::= {&V " + set +
         "}\n" + more);
    return values("c");
  }
  std::string values(const char *name)
  {
    int size = -1;
    std::string text = said([&] {
      atField(name, "V", [&](AsnObjectFieldValue &at) {
        forFixedTypeValueSetFieldValue(
            at, [](AsnObjectFieldValue &, AsnValue &v, int index) {
              seen += numberOf(index) + ":" + i64text(int64Value(v)) + " ";
            });
        size = getFixedTypeValueSetFieldSize(at);
      });
    });
    EXPECT_EQ(size, std::count(text.begin(), text.end(), ' '));
    return text;
  }
};

TEST_F(ObjValueSets, SinglesAndRanges)
{
  EXPECT_EQ(valuesOf("{1 | 3..5}", "INTEGER"), "0:1 1:3 2:4 3:5 ");
  EXPECT_EQ(valuesOf("{7}", "INTEGER"), "0:7 ");
  EXPECT_EQ(valuesOf("{-1..1}", "INTEGER"), "0:-1 1:0 2:1 ");
}

TEST_F(ObjValueSets, OpenEnds)
{
  EXPECT_EQ(valuesOf("{2<..5}", "INTEGER"), "0:3 1:4 2:5 ");
  EXPECT_EQ(valuesOf("{2..<5}", "INTEGER"), "0:2 1:3 2:4 ");
  EXPECT_EQ(valuesOf("{2<..<3}", "INTEGER"), "");
}

TEST_F(ObjValueSets, InfiniteEnds)
{
  EXPECT_EQ(valuesOf("{1 | 3..MAX | 2}", "INTEGER"), "0:1 1:2 ");
  EXPECT_EQ(valuesOf("{MIN..3}", "INTEGER"), "");
  EXPECT_EQ(valuesOf("{9223372036854775805..9223372036854775806}", "INTEGER"),
            "0:9223372036854775805 1:9223372036854775806 ");
}

TEST_F(ObjValueSets, RangesOfOtherTypes)
{
  load("C ::= CLASS { &V REAL OPTIONAL }\nc C ::= {&V {0..1}}");
  EXPECT_EQ(values("c"), "");
}

// What restricts the type, and not the set, is not taken for values.
TEST_F(ObjValueSets, ConstraintsOfTheTypeStayOut)
{
  EXPECT_EQ(valuesOf("{2 | 3}", "Num", "Num ::= INTEGER (1..9)"), "0:2 1:3 ");
}

TEST_F(ObjValueSets, NamedSet)
{
  EXPECT_EQ(valuesOf("Named", "INTEGER", "Named INTEGER ::= {4 | 6}"),
            "0:4 1:6 ");
}

TEST_F(ObjValueSets, OtherConstraintsPass)
{
  EXPECT_EQ(valuesOf("{(1..5) ^ (3..9)}", "INTEGER"), "");
}

TEST_F(ObjValueSets, EmptyOrOfAnotherKind)
{
  load("C ::= CLASS { &V INTEGER OPTIONAL, &i INTEGER }\nc C ::= {&i 1}");
  EXPECT_EQ(values("c"), "");
  atField("c", "i", [](AsnObjectFieldValue &at) {
    EXPECT_EQ(getFixedTypeValueSetFieldSize(at), 0);
  });
}

TEST_F(ObjValueSets, WalksNest)
{
  load("C ::= CLASS { &V INTEGER }\nc C ::= {&V {1 | 2}}");
  auto outer = [](AsnObjectFieldValue &at, AsnValue &v, int index) {
    seen += numberOf(index) + i64text(int64Value(v)) + "(" +
            numberOf(getFixedTypeValueSetFieldSize(at)) + ")";
  };
  EXPECT_EQ(said([&] {
              atField("c", "V", [&](AsnObjectFieldValue &at) {
                forFixedTypeValueSetFieldValue(at, outer);
              });
            }),
            "01(2)12(2)");
}

// --- objects of fields ------------------------------------------------------

TEST_F(ObjViews, ObjectOfAField)
{
  auto note = [](AsnObjectFieldValue &, AsnObject &at) { seen += refOf(at); };
  auto objectOf = [&](const char *name, const char *field) {
    return said([&] {
      atField(name, field,
              [&](AsnObjectFieldValue &at) { forObjectFieldValue(at, note); });
    });
  };
  EXPECT_EQ(objectOf("q", "linked"), "p");
  EXPECT_EQ(objectOf("o", "linked"), "linked");
  EXPECT_EQ(objectOf("p", "linked"), "");
  EXPECT_EQ(objectOf("o", "code"), "");
}

std::string objectsOfSet(ObjViews &views, const char *name, const char *field)
{
  return ObjectTrees::said([&] {
    views.atField(name, field, [&](AsnObjectFieldValue &at) {
      forObjectSetFieldValue(
          at, [](AsnObjectFieldValue &, AsnObject &object, int index) {
            ObjectTrees::seen += std::to_string(index) +
                                 ObjectTrees::refOf(object).substr(0, 1) + " ";
          });
    });
  });
}

TEST_F(ObjViews, ObjectsOfASetField)
{
  EXPECT_EQ(objectsOfSet(*this, "o", "Errors"), "0e 1# 2f ");
  EXPECT_EQ(objectsOfSet(*this, "q", "Errors"), "");
  EXPECT_EQ(objectsOfSet(*this, "o", "linked"), "");
}

TEST_F(ObjViews, NamedObjectSet)
{
  load("C ::= CLASS { &S D }\nD ::= CLASS { &i INTEGER }\n"
       "d D ::= {&i 1}\nNamed D ::= {d}\nc C ::= {&S Named}");
  EXPECT_EQ(objectsOfSet(*this, "c", "S"), "0d ");
}

// Unlike a definition's, a marker is refused.
TEST_F(ObjDeath, TooComplexSets)
{
  load("C ::= CLASS { &S D }\nD ::= CLASS { &i INTEGER }\n"
       "d D ::= {&i 1}\nc C ::= {&S {d, ...}}");
  EXPECT_EXIT(objectsOfSet(*this, "c", "S"), ExitedWithCode(2),
              "Too complex object set");
}

// --- other modules ----------------------------------------------------------

TEST_F(ObjViews, ClassOfAnotherModule)
{
  loadModules("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "IMPORTS C, c FROM N;\n"
              "d C ::= {&i 1, &next c}\ne C ::= {&i 2, &next {&i 3}}\n"
              "r C ::= c\nEND\n"
              "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "C ::= CLASS { &i INTEGER, &T DEFAULT NULL, &next C OPTIONAL }\n"
              "c C ::= {&i 4, &T BOOLEAN}\nEND\n");
  EXPECT_EQ(walked(forEachObjectFieldValue, "d"), "0i 2next ");
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "d"), "0i 1T? 2next ");
  EXPECT_EQ(walked(forEachPossibleObjectFieldValue, "r"), "0i 1T 2next- ");
  atField("d", "next", [&](AsnObjectFieldValue &at) {
    EXPECT_EQ(said([&] {
                forObjectFieldValue(
                    at, [](AsnObjectFieldValue &, AsnObject &object_) {
                      seen += object_.mod->rec->moduleName + refOf(object_);
                    });
              }),
              "Nc");
  });
}

}  // namespace
