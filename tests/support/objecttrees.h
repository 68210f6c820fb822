#pragma once
#include "model/fieldvalue.h"
#include "model/objectset.h"
#include "options/fixrec.h"
#include "support/loadedasn.h"
#include <string>
#include <vector>

constexpr char noCallBackText[] = "Call-back function not defined";

// Objects of two classes and of a predefined one, some of them in place.
constexpr char exampleObjects[] =
    "OP ::= CLASS { &code INTEGER UNIQUE, &Arg OPTIONAL,\n"
    "  &Res DEFAULT NULL, &def &Arg OPTIONAL, &Vals INTEGER OPTIONAL,\n"
    "  &linked OP OPTIONAL, &Errors ERR OPTIONAL,\n"
    "  &prio INTEGER {low(0), high(1)} DEFAULT low }\n"
    "ERR ::= CLASS { &id INTEGER, &Par OPTIONAL }\n"
    "e ERR ::= {&id 1}\n"
    "p OP ::= {&code 1}\n"
    "f ERR ::= {&id 2, &Par Pdu}\n"
    "o OP ::= {&code six, &Arg INTEGER (0..9), &def 7, &Vals {1 | 3..5},\n"
    "  &linked {&code 8}, &Errors {e | {&id 9} | Errs}}\n"
    "q OP ::= {&code 2, &Arg Pdu, &linked p, &prio high}\n"
    "r OP ::= q\n"
    "Errs ERR ::= {f}\n"
    "six INTEGER ::= 6\n"
    "Pdu ::= BOOLEAN\n"
    "TI ::= TYPE-IDENTIFIER\n"
    "ti TI ::= {NULL IDENTIFIED BY {1 2}}\n";

// Views of classes, objects and sets of compiled ASN.1, taken back at the
// end, and the texts that call-backs leave.
struct ObjectTrees : LoadedAsn {
  static inline std::string seen;
  std::vector<AsnObjClass *> classViews;
  std::vector<AsnObject *> objectViews;
  std::vector<AsnObjectSet *> setViews;

  ObjectTrees() { seen.clear(); }
  ~ObjectTrees() override
  {
    for (AsnObjClass *view : classViews)
      delAsnObjClass(view);
    for (AsnObject *view : objectViews)
      delAsnObject(view);
    for (AsnObjectSet *view : setViews)
      delAsnObjectSet(view);
  }

  StxTree &tree(size_t number = 0) { return treeOf(compiled, number); }
  TNode &node(int32_t record) { return stxTypeAt(tree(), record); }
  VNode &valueNode(int32_t record) { return stxValueAt(tree(), record); }
  int32_t value(const std::string &name) { return valueNamed(tree(), name); }
  int32_t fieldNode(const std::string &objClass_, const std::string &name)
  {
    return compNamed(tree(), type(objClass_), name);
  }
  // The field value of an object, by the name of the field.
  int32_t setting(const std::string &object_, const std::string &name)
  {
    for (int32_t child : childrenOf(tree(), value(object_)))
      if (striAt(tree(), stxValueAt(tree(), child).identifier) == name)
        return child;
    ADD_FAILURE() << "no setting " << name;
    return 0;
  }

  // What the call leaves in `seen`.
  template <class F>
  static std::string said(F call)
  {
    seen.clear();
    call();
    return seen;
  }

  AsnObjClass &classAt(int32_t record)
  {
    readRec(module.rec, REC_TNODE, record);
    classViews.push_back(newAsnObjClass(&module, &module));
    getClassPath(nullptr, *classViews.back());
    return *classViews.back();
  }
  AsnObjClass &objClass(const std::string &name) { return classAt(type(name)); }
  AsnObject &objectAt(int32_t record)
  {
    readRec(module.rec, REC_VNODE, record);
    objectViews.push_back(newAsnObject(&module, &module));
    getObjectPath(nullptr, *objectViews.back(), FIX_OBJECT);
    return *objectViews.back();
  }
  AsnObject &object(const std::string &name) { return objectAt(value(name)); }
  AsnObjectSet &setAt(int32_t record)
  {
    readRec(module.rec, REC_TNODE, record);
    setViews.push_back(newAsnObjectSet(&module, &module));
    getObjectSetPath(nullptr, *setViews.back());
    return *setViews.back();
  }
  AsnObjectSet &objectSet(const std::string &name) { return setAt(type(name)); }

  // --- texts, for the call-backs
  static std::string nameOf(const FixRec &fix) { return fix.id ? fix.id : "-"; }
  static std::string printedOf(const FixRec &fix)
  {
    std::string text;
    return printFixRec(text, nullptr, fix, nullptr);
  }
  static std::string refOf(const AsnObject &object_)
  {
    std::string text;
    getBaseObjectRef(text, nullptr, object_, nullptr);
    return text.empty() ? "#" + std::to_string(object_.baseRecNr) : text;
  }
};
