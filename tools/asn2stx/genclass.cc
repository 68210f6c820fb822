// Information object classes: what a name of a class stands for, and the nodes
// of a class and its fields.
//
// The predefined classes have no nodes for their fields: a reference to one
// of these leads through the module ISO8824 to a node of its type.

#include "asn2stx/chain.h"
#include "asn2stx/genfield.h"
#include "asn2stx/gentype.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/objsyntax.h"
#include "asn2stx/resolve.h"
#include <unordered_set>

// Mark in `refModule` of a field reference that is followed in any case.
constexpr int32_t fieldReferenceMark = -2;

// Predefined classes: X.681 (2002) annexes A and B

struct BuiltinClasses {
  AstType id, property;
  AstValue bit;
  AstNamed propertyBit;
  AstField idField, typeField, propertyField;
  AstClass typeIdentifier, abstractSyntax;

  BuiltinClasses();
  BuiltinClasses(const BuiltinClasses &) = delete;
};

static AstSyntax syntaxPart(AstSyntaxKind kind, const char *text)
{
  AstSyntax part;
  part.kind = kind;
  part.text = text;
  return part;
}

BuiltinClasses::BuiltinClasses()
{
  id.kind = AT_OBJECT_IDENTIFIER;
  idField.name = "id";
  idField.governor = &id;
  idField.isUnique = true;
  typeField.name = "Type";
  bit.kind = AV_INTEGER;
  bit.text = "0";
  propertyBit.name = "handles-invalid-encodings";
  propertyBit.value = &bit;
  property.kind = AT_BIT_STRING;
  property.hasBraces = true;
  property.named = {&propertyBit};
  propertyField.name = "property";
  propertyField.governor = &property;
  propertyField.presence = PRES_OPTIONAL;

  typeIdentifier.fields = {&idField, &typeField};
  typeIdentifier.hasSyntax = true;
  typeIdentifier.syntax = {
      syntaxPart(AS_FIELD, "Type"), syntaxPart(AS_LITERAL, "IDENTIFIED"),
      syntaxPart(AS_LITERAL, "BY"), syntaxPart(AS_FIELD, "id")};
  abstractSyntax = typeIdentifier;
  abstractSyntax.fields.push_back(&propertyField);
  AstSyntax group = syntaxPart(AS_GROUP, "");
  group.parts = {syntaxPart(AS_LITERAL, "HAS"),
                 syntaxPart(AS_LITERAL, "PROPERTY"),
                 syntaxPart(AS_FIELD, "property")};
  abstractSyntax.syntax.push_back(group);
}

const AstClass &classText(const ClassUse &objectClass)
{
  static const BuiltinClasses classes;
  if (objectClass.objectClass)
    return *objectClass.objectClass;
  return objectClass.builtin == TYP_ABSTR_STX ? classes.abstractSyntax
                                              : classes.typeIdentifier;
}

static int builtinClass(const AstRef &ref)
{
  if (!ref.module.empty())
    return 0;
  if (ref.name == "TYPE-IDENTIFIER")
    return TYP_TYPE_ID;
  return ref.name == "ABSTRACT-SYNTAX" ? TYP_ABSTR_STX : 0;
}

// Names

static bool notAClass(Compilation &c, const AstRef &ref)
{
  asnError(c.errors, ref.pos, "%s is not a class", asnQuoted(ref.name).c_str());
  return false;
}

// Moves to what a parameter or a definition that is a reference names; false
// at the end, with `found` filled or an error reported. `holder` is the
// definition that is nothing but the reference at hand.
static bool stepClass(Compilation &c, const AstRef *&ref, const Scope *&scope,
                      ClassUse &found, const Definition *&holder, bool &good)
{
  good = false;
  found.scope = scope;
  found.builtin = builtinClass(*ref);
  if (found.builtin != 0) {
    good = true;
    return false;
  }
  Found name = lookUp(c, *ref, *scope);
  if (!name)
    return false;
  const AstType *type = name.binding ? name.binding->actual->type : nullptr;
  if (name.def) {
    const Definition &def = *name.def;
    if (def.kind != DK_CLASS)
      return def.kind != DK_UNKNOWN && notAClass(c, *ref);
    bool isInstance = def.assign->hasParams || ref->hasActuals;
    scope = isInstance ? instantiate(c, def, *ref, *scope)
                       : moduleAt(c, def.module).scope;
    if (!scope)
      return false;
    if (def.assign->kind == AA_CLASS) {
      found.objectClass = def.assign->objectClass;
      found.scope = scope;
      // `Name ::= OTHER {Actual}` is that instance's node.
      if (!isInstance)
        found.node = {def.module, def.node};
      else if (holder)
        found.node = {holder->module, holder->node};
      good = true;
      return false;
    }
    type = def.assign->type;
    holder = isInstance ? nullptr : &def;
  } else {
    scope = name.binding->scope;
    holder = nullptr;
  }
  if (!type || type->kind != AT_REFERENCE)
    return notAClass(c, *ref);
  ref = &type->ref;
  return true;
}

bool resolveClass(Compilation &c, const AstRef &ref, const Scope &scope,
                  ClassUse &found)
{
  found = ClassUse{};
  const AstRef *at = &ref;
  const Scope *atScope = &scope;
  bool good = false;
  const Definition *holder = nullptr;
  CircleGuard<std::pair<const AstRef *, const Scope *>> guard;
  while (!guard.repeats({at, atScope}))
    if (!stepClass(c, at, atScope, found, holder, good))
      return good;
  asnError(c.errors, ref.pos, "circular definition of %s",
           asnQuoted(ref.name).c_str());
  return false;
}

const AstField *findClassField(const ClassUse &objectClass,
                               const std::string &name)
{
  return fieldNamed(classText(objectClass), name);
}

bool isSameClass(const ClassUse &a, const ClassUse &b)
{
  // An instance of a class with parameters is a class of its own.
  return a.objectClass == b.objectClass && a.builtin == b.builtin &&
         (a.builtin != 0 || a.scope == b.scope);
}

static bool isCapitalField(const AstField &field)
{
  return !field.name.empty() && field.name[0] >= 'A' && field.name[0] <= 'Z';
}

FieldKind fieldKindOf(Compilation &c, const ClassUse &objectClass,
                      const AstField &field)
{
  bool isSet = isCapitalField(field);
  if (!field.governor)
    return FK_TYPE;
  if (field.governor->kind == AT_FIELD && field.governor->ref.name.empty())
    return isSet ? FK_VARIABLE_SET : FK_VARIABLE_VALUE;
  if (governsObjects(c, *field.governor, *objectClass.scope))
    return isSet ? FK_OBJECT_SET : FK_OBJECT;
  return isSet ? FK_VALUE_SET : FK_VALUE;
}

// Nodes of fields

// A field that gets its node's content.
struct FieldRun {
  Compilation &c;
  int into;
  const ClassUse &objectClass;
  const AstField &field;
  int32_t node;
};

static TNode &fieldAt(FieldRun &run)
{
  return stxTypeAt(treeOf(run.c, run.into), run.node);
}

static int32_t addField(Compilation &c, int into, const ClassUse &objectClass,
                        const AstField &field)
{
  StxTree &tree = treeOf(c, into);
  TNode fresh = newNodeFor(c, field.pos, TYP_NONE);
  fresh.compStatus = field.presence == PRES_NONE ? TCS_MANDATORY : TCS_OPTIONAL;
  int32_t index = stxAddComp(tree, objectClass.node.node, field.name, fresh);
  FieldKind kind = fieldKindOf(c, objectClass, field);
  TNode &node = stxTypeAt(tree, index);
  // The sign tells values from types and sets.
  if (!isCapitalField(field))
    node.identifier = -node.identifier;
  else if (kind != FK_TYPE)
    node.classFlags |= CF_SET;
  if (kind == FK_VARIABLE_VALUE || kind == FK_VARIABLE_SET)
    node.classFlags |= CF_VARIABLE_TYPE;
  if (field.isUnique)
    node.nodeFlags |= NF_UNIQUE;
  if (!field.notes.empty())
    moduleAt(c, into).typeNotes.push_back({index, &field.notes});
  return index;
}

// A default that is a type or a set: a value that carries its node.
static void setDefaultNode(FieldRun &run, int32_t type)
{
  int32_t carrier = typeCarrier(run.c, run.into, type);
  VNode &value = stxValueAt(treeOf(run.c, run.into), carrier);
  value.governor = run.node;
  value.governorModule = 1;
  value.valueStatus = fieldValueStatus;
  fieldAt(run).defaultValue = carrier;
}

static void genTypeField(FieldRun &run)
{
  fieldAt(run).mainType = TYP_OPEN;
  if (run.field.defaultType)
    setDefaultNode(run, settingTypeNode(run.c, run.into, *run.objectClass.scope,
                                        *run.field.defaultType));
}

// The node of the type field that governs a field of variable type: of this
// class, or of a class further on.
static NodeAt governingField(FieldRun &run)
{
  Compilation &c = run.c;
  const AstType &governor = *run.field.governor;
  ClassUse at = run.objectClass;
  for (size_t i = 0; i < governor.fields.size(); ++i) {
    const AstField *field = findClassField(at, governor.fields[i]);
    if (!field) {
      asnError(c.errors, governor.fieldPos[i], "the class has no field %s",
               fieldShown(governor.fields[i]).c_str());
      return {};
    }
    FieldKind kind = fieldKindOf(c, at, *field);
    bool isLast = i + 1 == governor.fields.size();
    if (isLast ? kind != FK_TYPE : kind != FK_OBJECT) {
      asnError(c.errors, governor.fieldPos[i], "field %s is no %s field",
               fieldShown(field->name).c_str(), isLast ? "type" : "object");
      return {};
    }
    if (isLast)
      return fieldNodeFor(c, run.into, at, *field);
    const Scope *scope = at.scope;
    if (!resolveClass(c, field->governor->ref, *scope, at))
      return {};
  }
  return {};
}

static void genVariableField(FieldRun &run)
{
  Compilation &c = run.c;
  NodeAt type = governingField(run);
  fieldAt(run).mainType = TYP_FIELDLIST;
  if (type.node == 0)
    return;
  int32_t number = moduleNumber(c, run.into, type.module);
  int32_t link = stxLink(treeOf(c, run.into), stxNewLink(type.node, number));
  TNode &node = fieldAt(run);
  node.fieldRef = link;
  node.ref = run.objectClass.node.node;
  node.refModule = fieldReferenceMark;
}

static void genObjectField(FieldRun &run)
{
  Compilation &c = run.c;
  const Scope &scope = *run.objectClass.scope;
  const AstField &field = run.field;
  ClassUse governor;
  if (!resolveClass(c, field.governor->ref, scope, governor))
    return;
  makeSynonym(c, run.into, run.node, classNodeFor(c, run.into, governor));
  const AstValue *object = field.defaultValue;
  if (object && object->kind == AV_REFERENCE && !object->ref.hasActuals) {
    VNode value = stxNewVNode(TYP_NONE, run.node);
    value.valueStatus = fieldValueStatus;
    value.line = object->pos.line;
    int32_t index = stxValue(treeOf(c, run.into), value);
    genObject(c, run.into, scope, governor, *object, index);
    VNode &filled = stxValueAt(treeOf(c, run.into), index);
    filled.governor = run.node;
    filled.governorModule = 1;
    fieldAt(run).defaultValue = index;
  }
  if (field.defaultType)
    setDefaultNode(run,
                   settingTypeNode(c, run.into, scope, *field.defaultType));
}

static void genValueField(FieldRun &run)
{
  Compilation &c = run.c;
  const AstField &field = run.field;
  const Scope &scope = *run.objectClass.scope;
  genTypeInto(c, run.into, scope, *field.governor, run.node);
  // Tells circles.
  baseType(c, *field.governor, scope);
  if (field.defaultSet)
    setDefaultNode(run, hiddenValueSet(c, run.into, {field.governor, &scope},
                                       *field.defaultSet, scope));
  if (field.defaultType)
    setDefaultNode(run,
                   settingTypeNode(c, run.into, scope, *field.defaultType));
}

// Defaults that need the content of other definitions.
static void deferDefault(FieldRun &run)
{
  if (!run.field.defaultValue || fieldAt(run).defaultValue != 0)
    return;
  LateValue late;
  late.into = run.into;
  late.governor = {run.field.governor, run.objectClass.scope};
  late.governorNode = run.node;
  late.value = run.field.defaultValue;
  late.scope = run.objectClass.scope;
  late.owner = run.node;
  run.c.lateValues.push_back(late);
}

static void genField(FieldRun &run)
{
  switch (fieldKindOf(run.c, run.objectClass, run.field)) {
  case FK_TYPE:
    return genTypeField(run);
  case FK_VARIABLE_VALUE:
  case FK_VARIABLE_SET:
    genVariableField(run);
    break;
  case FK_OBJECT:
  case FK_OBJECT_SET:
    genObjectField(run);
    break;
  case FK_VALUE:
  case FK_VALUE_SET:
    genValueField(run);
    break;
  }
  deferDefault(run);
}

static void checkFields(Compilation &c, const AstClass &objectClass)
{
  std::unordered_set<std::string> names;
  for (const AstField *field : objectClass.fields)
    if (!names.insert(field->name).second)
      asnError(c.errors, field->pos, "duplicate field %s",
               fieldShown(field->name).c_str());
  checkSyntax(c.errors, objectClass);
}

void genClassInto(Compilation &c, int into, const Scope &scope,
                  const AstClass &objectClass, int32_t node)
{
  // A field of it may have been needed before.
  if (stxTypeAt(treeOf(c, into), node).ref != 0)
    return;
  checkFields(c, objectClass);
  ClassUse use;
  use.objectClass = &objectClass;
  use.scope = &scope;
  use.node = {into, node};
  // All fields first: they may refer to each other.
  std::vector<int32_t> nodes;
  for (const AstField *field : objectClass.fields)
    nodes.push_back(addField(c, into, use, *field));
  int nesting = c.nesting;
  c.nesting = 0;
  for (size_t i = 0; i < nodes.size(); ++i) {
    FieldRun run = {c, into, use, *objectClass.fields[i], nodes[i]};
    genField(run);
  }
  c.nesting = nesting;
}

// Finding nodes again

static NodeAt fieldNodeOf(Compilation &c, NodeAt at, const std::string &name)
{
  const StxTree &tree = treeOf(c, at.module);
  auto id = tree.stris.indexOf.find(stxName(name));
  if (id == tree.stris.indexOf.end())
    return {};
  int32_t field = tree.tNodes[static_cast<size_t>(at.node) - 1].ref;
  while (field != 0) {
    const TNode &node = tree.tNodes[static_cast<size_t>(field) - 1];
    if (node.identifier == id->second || node.identifier == -id->second)
      return {at.module, field};
    field = node.next;
  }
  return {};
}

NodeAt classFieldNode(Compilation &c, const ClassUse &objectClass,
                      const std::string &name)
{
  if (!objectClass.objectClass || objectClass.node.node == 0)
    return {};
  genClassInto(c, objectClass.node.module, *objectClass.scope,
               *objectClass.objectClass, objectClass.node.node);
  return fieldNodeOf(c, objectClass.node, name);
}

NodeAt classNodeFor(Compilation &c, int into, ClassUse &objectClass)
{
  if (objectClass.builtin != 0)
    return {into, builtinNode(c, into, objectClass.builtin)};
  if (objectClass.node.node == 0 && objectClass.objectClass) {
    // An instance: the class is made where it is used, once.
    int32_t &known = c.classInstances[{into, objectClass.scope}];
    if (known == 0) {
      TNode node = newNodeFor(c, objectClass.objectClass->pos, TYP_CLASS);
      node.hidden = 1;
      node.compStatus = -TCS_HEADER;
      known = stxType(treeOf(c, into), node);
      genClassInto(c, into, *objectClass.scope, *objectClass.objectClass,
                   known);
    }
    objectClass.node = {into, known};
  }
  return objectClass.node;
}

NodeAt fieldNodeFor(Compilation &c, int into, ClassUse &objectClass,
                    const AstField &field)
{
  if (objectClass.builtin == 0) {
    classNodeFor(c, into, objectClass);
    return classFieldNode(c, objectClass, field.name);
  }
  if (!field.governor)
    return {into, builtinFieldNode(c, into, TYP_OPEN)};
  if (field.governor->kind == AT_OBJECT_IDENTIFIER)
    return {into, builtinFieldNode(c, into, TYP_OBJID)};
  int32_t node = genHiddenType(c, into, *objectClass.scope, *field.governor);
  stxTypeAt(treeOf(c, into), node).compStatus = TCS_OPTIONAL;
  return {into, node};
}
