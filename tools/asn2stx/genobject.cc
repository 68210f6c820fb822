// Objects and object sets. An object's settings are taken in the order of its
// class's fields; a set's elements are constraint records over values that
// are objects, or that carry the node of another set.

#include "asn2stx/genobject.h"
#include "asn2stx/fromobjects.h"
#include "asn2stx/genconstraint.h"
#include "asn2stx/genfield.h"
#include "asn2stx/gentype.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/objsyntax.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <set>

// Sets within sets and objects within objects; values of one tree.
constexpr int maxNesting = 100;
constexpr size_t maxValueNodes = 1000000;

// Instances and sets that are written out in place, of one run.
constexpr int maxInstances = 100000;

// Counts a level of nesting while it lives.
struct ObjectDepth {
  Compilation &c;
  bool good = true;
  ObjectDepth(Compilation &compilation, int into, AsnPos pos,
              const std::string &shown)
      : c(compilation)
  {
    bool tooMany = treeOf(c, into).vNodes.size() > maxValueNodes;
    good = ++c.objectDepth <= maxNesting && !tooMany && !c.exhausted;
    // Once is enough: it would be told again for each level.
    if (!good && !c.exhausted)
      asnError(c.errors, pos, "%s: objects are nested too deeply",
               shown.c_str());
    c.exhausted = c.exhausted || !good;
  }
  ~ObjectDepth() { --c.objectDepth; }
  ObjectDepth(const ObjectDepth &) = delete;
};

static void setGovernor(Compilation &c, int into, int32_t value, NodeAt at)
{
  int32_t number = moduleNumber(c, into, at.module);
  VNode &node = stxValueAt(treeOf(c, into), value);
  node.governor = at.node;
  node.governorModule = number;
}

// Settings

// An object that gets its field values.
struct ObjectRun {
  Compilation &c;
  int into;
  ObjectUse object;
  int32_t node;
};

static int32_t addFieldValue(ObjectRun &run, const AstField &field, AsnPos pos)
{
  VNode value = stxNewVNode(TYP_NONE, 0);
  value.valueStatus = fieldValueStatus;
  value.line = pos.line;
  return stxAddChild(treeOf(run.c, run.into), run.node, field.name, value);
}

static void carryNode(ObjectRun &run, int32_t value, int32_t type, bool isSet)
{
  VNode &node = stxValueAt(treeOf(run.c, run.into), value);
  node.firstChild = type;
  node.refModule = 1;
  if (isSet)
    node.valueFlags |= VFL_SET;
}

// What governs a value or value set field in this object; null type,
// reported, if a field of variable type has none.
static TypeUse governorOf(ObjectRun &run, const AstField &field, FieldKind kind,
                          AsnPos pos)
{
  if (kind == FK_VALUE || kind == FK_VALUE_SET)
    return {field.governor, run.object.objectClass.scope};
  return variableTypeOf(run.c, run.object, field, pos);
}

static int32_t hiddenObjectSet(Compilation &c, int into, const Scope &scope,
                               ClassUse &objectClass, const AstConstraint &set);

static void genSetting(ObjectRun &run, const AstField &field, FieldKind kind,
                       const AstSetting &setting, NodeAt at, int32_t value)
{
  Compilation &c = run.c;
  const Scope &scope = *run.object.scope;
  ClassUse inner;
  TypeUse governor;
  if (kind == FK_OBJECT || kind == FK_OBJECT_SET) {
    if (!resolveClass(c, field.governor->ref, *run.object.objectClass.scope,
                      inner))
      return;
  } else if (kind != FK_TYPE) {
    governor = governorOf(run, field, kind, setting.pos);
    if (!governor.type)
      return;
  }
  if (setting.type) {
    int32_t type = settingTypeNode(c, run.into, scope, *setting.type);
    carryNode(run, value, type, kind != FK_TYPE);
  } else if (kind == FK_OBJECT) {
    genObject(c, run.into, scope, inner, *setting.value, value);
  } else if (kind == FK_OBJECT_SET) {
    int32_t set = hiddenObjectSet(c, run.into, scope, inner, *setting.set);
    carryNode(run, value, set, true);
  } else if (setting.set) {
    int32_t set = hiddenValueSet(c, run.into, governor, *setting.set, scope);
    carryNode(run, value, set, true);
  } else if (setting.value) {
    if (kind == FK_VARIABLE_VALUE)
      at = {run.into,
            settingTypeNode(c, run.into, *governor.scope, *governor.type)};
    genValueInto(c, run.into, scope, *setting.value, governor, at, value);
  }
}

static bool fits(const AstSetting &setting, FieldKind kind)
{
  switch (kind) {
  case FK_TYPE:
    return setting.type;
  case FK_VALUE:
  case FK_VARIABLE_VALUE:
  case FK_OBJECT:
    return setting.value;
  case FK_VALUE_SET:
  case FK_VARIABLE_SET:
  case FK_OBJECT_SET:
    return setting.type || setting.set;
  }
  return false;
}

static void genFieldValue(ObjectRun &run, const AstField &field,
                          const AstSetting &setting)
{
  Compilation &c = run.c;
  FieldKind kind = fieldKindOf(c, run.object.objectClass, field);
  if (!fits(setting, kind)) {
    asnError(c.errors, setting.pos, "the setting does not fit field %s",
             fieldShown(field.name).c_str());
    return;
  }
  NodeAt at = fieldNodeFor(c, run.into, run.object.objectClass, field);
  int32_t value = addFieldValue(run, field, setting.pos);
  genSetting(run, field, kind, setting, at, value);
  setGovernor(c, run.into, value, at);
}

// The setting of each field, by the names; what no field takes is reported.
static std::map<std::string, const AstSetting *>
settingsByName(Compilation &c, const AstClass &objectClass,
               const std::vector<AstSetting> &settings)
{
  std::map<std::string, const AstSetting *> byName;
  std::set<std::string> names;
  for (const AstField *field : objectClass.fields)
    names.insert(field->name);
  for (const AstSetting &setting : settings) {
    if (!names.count(setting.field))
      asnError(c.errors, setting.pos, "the class has no field %s",
               fieldShown(setting.field).c_str());
    else if (!byName.emplace(setting.field, &setting).second)
      asnError(c.errors, setting.pos, "field %s is set twice",
               fieldShown(setting.field).c_str());
  }
  return byName;
}

static int classMainType(const ClassUse &objectClass)
{
  return objectClass.builtin != 0 ? objectClass.builtin : TYP_CLASS;
}

static void genBraces(ObjectRun &run)
{
  Compilation &c = run.c;
  const AstClass &text = classText(run.object.objectClass);
  const std::vector<AstSetting> *found =
      objectSettings(c.ast, c.errors, text, *run.object.braces);
  if (!found)
    return;
  // The list may go when a setting is the same text for another class.
  const std::vector<AstSetting> settings = *found;
  auto byName = settingsByName(c, text, settings);
  stxValueAt(treeOf(c, run.into), run.node).mainType =
      static_cast<uint8_t>(classMainType(run.object.objectClass));
  for (const AstField *field : text.fields) {
    auto setting = byName.find(field->name);
    if (setting != byName.end())
      genFieldValue(run, *field, *setting->second);
    else if (field->presence == PRES_NONE)
      asnError(c.errors, run.object.pos, "field %s is not set",
               fieldShown(field->name).c_str());
  }
}

// Objects

// The definition that a name leads to without parameters; null: none.
static const Definition *plainObject(Compilation &c, const AstValue &value,
                                     const Scope &scope)
{
  const AstValue *at = &value;
  const Scope *atScope = &scope;
  skipValueParameters(c, at, atScope);
  if (at->kind != AV_REFERENCE || at->ref.hasActuals)
    return nullptr;
  Found found = findName(c, at->ref, *atScope);
  bool isPlain =
      found.def && found.def->kind == DK_OBJECT && found.def->node != 0;
  return isPlain ? found.def : nullptr;
}

void genObject(Compilation &c, int into, const Scope &scope,
               ClassUse &objectClass, const AstValue &value, int32_t node)
{
  ObjectDepth depth(c, into, value.pos, valueShown(value));
  if (!depth.good)
    return;
  NodeAt at = classNodeFor(c, into, objectClass);
  setGovernor(c, into, node, at);
  ObjectUse object;
  if (!resolveObject(c, value, scope, &objectClass, object))
    return;
  if (!isSameClass(object.objectClass, objectClass)) {
    asnError(c.errors, value.pos, "%s is an object of another class",
             valueShown(value).c_str());
    return;
  }
  if (const Definition *def = plainObject(c, value, scope)) {
    int32_t number = moduleNumber(c, into, def->module);
    VNode &reference = stxValueAt(treeOf(c, into), node);
    reference.mainType = TYP_SYNONYM;
    reference.firstChild = def->node;
    reference.refModule = number;
    return;
  }
  object.objectClass = objectClass;
  ObjectRun run = {c, into, object, node};
  genBraces(run);
}

void genObjectInto(Compilation &c, int into, const Scope &scope,
                   const AstType &governor, const AstValue &value, int32_t node)
{
  ClassUse objectClass;
  if (resolveClass(c, governor.ref, scope, objectClass))
    genObject(c, into, scope, objectClass, value, node);
}

// Sets

// A set that gets its records. Without `writes` its names are looked up only.
struct SetRun {
  Compilation &c;
  int into;
  ClassUse *objectClass;  // null: not known
  bool writes;
  Definition *self;  // null: no definition
  std::set<std::pair<const AstConstraint *, const Scope *>> looked;
};

static int32_t genElem(SetRun &run, const Scope &scope, const AstElem &elem);
static int32_t genSetElem(SetRun &run, const Scope &scope, const AstType &type);
static int32_t genSetBody(SetRun &run, const Scope &scope,
                          const AstConstraint &set);

static int32_t addSub(SetRun &run, int kind, int32_t operand)
{
  if (!run.writes)
    return 0;
  return stxSub(treeOf(run.c, run.into), stxNewSub(kind, operand));
}

static int32_t genObjectElem(SetRun &run, const Scope &scope,
                             const AstValue &value)
{
  Compilation &c = run.c;
  ObjectUse object;
  if (!run.writes || !run.objectClass) {
    // In braces without a class there is nothing to look up.
    if (value.kind == AV_BRACES && !run.objectClass)
      return 0;
    if (!resolveObject(c, value, scope, run.objectClass, object))
      return 0;
    if (run.objectClass && !isSameClass(*run.objectClass, object.objectClass))
      asnError(c.errors, value.pos, "%s is an object of another class",
               valueShown(value).c_str());
    else
      objectSettings(c.ast, c.errors, classText(object.objectClass),
                     *object.braces);
    return 0;
  }
  VNode fresh = stxNewVNode(TYP_NONE, 0);
  fresh.valueStatus = fieldValueStatus;
  fresh.line = value.pos.line;
  int32_t index = stxValue(treeOf(c, run.into), fresh);
  genObject(c, run.into, scope, *run.objectClass, value, index);
  return addSub(run, SUB_SINGLE_VALUE, index);
}

static bool checkSetClass(SetRun &run, const AstRef &ref, const Scope &scope)
{
  ClassUse other;
  if (!classOfSet(run.c, ref, scope, other))
    return false;
  if (!run.objectClass || isSameClass(*run.objectClass, other))
    return true;
  asnError(run.c.errors, ref.pos, "%s is a set of another class",
           asnQuoted(ref.name).c_str());
  return false;
}

static int32_t includeNode(SetRun &run, int32_t set)
{
  if (!run.writes)
    return 0;
  return addSub(run, SUB_INCLUDES, typeCarrier(run.c, run.into, set));
}

// A set that is written out where it is included.
static int32_t genInPlace(SetRun &run, const Scope &scope,
                          const AstConstraint &set)
{
  Compilation &c = run.c;
  if (!run.writes)
    return run.looked.insert({&set, &scope}).second
               ? genSetBody(run, scope, set)
               : 0;
  if (c.exhausted)
    return 0;
  if (++c.instantiations <= maxInstances)
    return genSetBody(run, scope, set);
  asnError(c.errors, set.pos, "more than %d object sets are written out",
           maxInstances);
  c.exhausted = true;
  return 0;
}

// Another set by name: its node if it is a definition without parameters,
// else its elements.
static int32_t genIncluded(SetRun &run, const Scope &scope, const AstRef &ref)
{
  Compilation &c = run.c;
  ObjectDepth depth(c, run.into, ref.pos, asnQuoted(ref.name));
  if (!depth.good || !checkSetClass(run, ref, scope))
    return 0;
  Found found = findName(c, ref, scope);
  if (found.binding) {
    const AstActual &actual = *found.binding->actual;
    const Scope &outer = *found.binding->scope;
    if (actual.set)
      return genInPlace(run, outer, *actual.set);
    if (actual.type && (actual.type->kind == AT_REFERENCE ||
                        isFromObjects(c, *actual.type, outer)))
      return genSetElem(run, outer, *actual.type);
    asnError(c.errors, ref.pos, "%s is not an object set",
             asnQuoted(ref.name).c_str());
    return 0;
  }
  Definition &def = *found.def;
  if (def.assign->hasParams || ref.hasActuals) {
    const Scope *inner = instantiate(c, def, ref, scope);
    return inner && def.assign->set ? genInPlace(run, *inner, *def.assign->set)
                                    : 0;
  }
  // A set may not include itself, which is checked with the values.
  if (run.self)
    c.valueEdges.push_back({run.self, &def});
  if (!run.writes)
    return 0;
  return includeNode(run, localReference(c, run.into, {def.module, def.node}));
}

// What one object has at the end of a path: an object or a set of them.
static int32_t genFieldOfObject(SetRun &run, const FieldUse &field,
                                const AstType &path)
{
  Compilation &c = run.c;
  FieldKind kind = fieldKindOf(c, field.objectClass, *field.field);
  ClassUse inner;
  bool isObjects = kind == FK_OBJECT || kind == FK_OBJECT_SET;
  if (!isObjects || !resolveClass(c, field.field->governor->ref,
                                  *field.objectClass.scope, inner)) {
    asnError(c.errors, path.fieldPos.back(), "field %s is no object set",
             fieldShown(path.fields.back()).c_str());
    return 0;
  }
  if (run.objectClass && !isSameClass(*run.objectClass, inner)) {
    asnError(c.errors, path.pos, "%s is a set of another class",
             typeShown(path).c_str());
    return 0;
  }
  if (field.value)
    return genObjectElem(run, *field.scope, *field.value);
  if (field.set)
    return genInPlace(run, *field.scope, *field.set);
  return field.type ? genSetElem(run, *field.scope, *field.type) : 0;
}

// `object.&Set`, `ObjectSet.&object` and the like.
static int32_t genFromObjects(SetRun &run, const Scope &scope,
                              const AstType &path)
{
  Compilation &c = run.c;
  ObjectDepth depth(c, run.into, path.pos, typeShown(path));
  std::vector<FieldUse> fields;
  if (!depth.good || !fieldsFromObjects(c, path, scope, fields))
    return 0;
  std::vector<int32_t> subs;
  for (const FieldUse &field : fields)
    if (int32_t sub = genFieldOfObject(run, field, path))
      subs.push_back(sub);
  return joinSubs(c, run.into, SUB_UNION, subs);
}

static int32_t genSetElem(SetRun &run, const Scope &scope, const AstType &type)
{
  if (type.kind == AT_REFERENCE)
    return genIncluded(run, scope, type.ref);
  if (isFromObjects(run.c, type, scope))
    return genFromObjects(run, scope, type);
  asnError(run.c.errors, type.pos,
           "an object or object set is needed here, not %s",
           typeShown(type).c_str());
  return 0;
}

static int subKindOf(AstElemKind kind)
{
  switch (kind) {
  case AE_UNION:
    return SUB_UNION;
  case AE_INTERSECTION:
    return SUB_INTERSECTION;
  case AE_EXCEPT:
    return SUB_EXCEPT;
  default:
    return SUB_ALL_EXCEPT;
  }
}

static int32_t genOperands(SetRun &run, const Scope &scope, const AstElem &elem)
{
  std::vector<int32_t> subs;
  for (const AstElem *operand : elem.operands)
    if (int32_t sub = operand ? genElem(run, scope, *operand) : 0)
      subs.push_back(sub);
  if (elem.kind == AE_UNION || elem.kind == AE_INTERSECTION)
    return joinSubs(run.c, run.into, subKindOf(elem.kind), subs);
  // An empty set takes nothing away, and nothing can be taken from one.
  if (subs.size() < elem.operands.size())
    return subs.empty() || elem.kind == AE_ALL_EXCEPT ? 0 : subs.front();
  return addSub(run, subKindOf(elem.kind),
                stxChainSubs(treeOf(run.c, run.into), subs));
}

static int32_t genElem(SetRun &run, const Scope &scope, const AstElem &elem)
{
  switch (elem.kind) {
  case AE_VALUE:
    return elem.value ? genObjectElem(run, scope, *elem.value) : 0;
  case AE_TYPE:
    return elem.type ? genSetElem(run, scope, *elem.type) : 0;
  case AE_UNION:
  case AE_INTERSECTION:
  case AE_EXCEPT:
  case AE_ALL_EXCEPT:
    return genOperands(run, scope, elem);
  default:
    asnError(run.c.errors, elem.pos,
             "an object or object set is needed here, not %s",
             elemShown(elem).c_str());
    return 0;
  }
}

// The records of a set in braces; an extension marker is a record behind
// those of the root, and the additions are left to an option.
static int32_t genSetBody(SetRun &run, const Scope &scope,
                          const AstConstraint &set)
{
  std::vector<int32_t> subs;
  if (set.root)
    if (int32_t sub = genElem(run, scope, *set.root))
      subs.push_back(sub);
  if (set.additions) {
    bool writes = run.writes;
    run.writes = writes && run.c.options.unionOfAdditions;
    if (int32_t sub = genElem(run, scope, *set.additions))
      subs.push_back(sub);
    run.writes = writes;
  }
  if (set.isExtensible)
    if (int32_t sub = addSub(run, SUB_EXTENDED_SET, 0))
      subs.push_back(sub);
  // The operands of a union of the root become those of the whole.
  StxTree &tree = treeOf(run.c, run.into);
  if (subs.size() > 1 && stxSubAt(tree, subs[0]).kind == SUB_UNION) {
    int32_t first = stxSubAt(tree, subs[0]).operand1;
    std::vector<int32_t> all;
    for (int32_t sub = first; sub != 0; sub = stxSubAt(tree, sub).nextSub)
      all.push_back(sub);
    all.insert(all.end(), subs.begin() + 1, subs.end());
    stxSubAt(tree, subs[0]).operand1 = stxChainSubs(tree, all);
    return subs[0];
  }
  return joinSubs(run.c, run.into, SUB_UNION, subs);
}

static Definition *definitionOf(Compilation &c, NodeAt at)
{
  for (Definition *def : moduleAt(c, at.module).order)
    if (def->node == at.node && def->kind == DK_OBJECT_SET)
      return def;
  return nullptr;
}

static void genSetNode(Compilation &c, int into, const Scope &scope,
                       ClassUse &objectClass, NodeAt target,
                       const AstConstraint &set, int32_t node)
{
  makeSynonym(c, into, node, target);
  SetRun run = {c, into, &objectClass, true, definitionOf(c, {into, node}), {}};
  int32_t first = genSetBody(run, scope, set);
  TNode &filled = stxTypeAt(treeOf(c, into), node);
  filled.classFlags |= CF_SET;
  filled.firstConstraint = first;
  if (set.isExtensible)
    filled.nodeFlags |= NF_EXTENSIBLE;
}

static int32_t hiddenObjectSet(Compilation &c, int into, const Scope &scope,
                               ClassUse &objectClass, const AstConstraint &set)
{
  TNode fresh = newNodeFor(c, set.pos, TYP_SYNONYM);
  fresh.hidden = 1;
  fresh.compStatus = -TCS_HEADER;
  int32_t node = stxType(treeOf(c, into), fresh);
  NodeAt target = classNodeFor(c, into, objectClass);
  genSetNode(c, into, scope, objectClass, target, set, node);
  return node;
}

void genObjectSetInto(Compilation &c, int into, const Scope &scope,
                      const AstType &governor, const AstConstraint &set,
                      int32_t node)
{
  ClassUse objectClass;
  if (!resolveClass(c, governor.ref, scope, objectClass))
    return;
  NodeAt target = classNodeFor(c, into, objectClass);
  Found name = findName(c, governor.ref, scope);
  if (name.def && name.def->node != 0)
    target = {name.def->module, name.def->node};
  genSetNode(c, into, scope, objectClass, target, set, node);
}

// Tables

// The record says that there is a table; readers take nothing else from it.
int32_t genTableConstraint(Compilation &c, int into, const Scope &scope,
                           const AstElem &elem, int32_t)
{
  SetRun run = {c, into, nullptr, false, nullptr, {}};
  if (elem.set)
    genSetBody(run, scope, *elem.set);
  int kind = elem.paths.empty() ? SUB_TABLE : SUB_COMPONENT_RELATION;
  return stxSub(treeOf(c, into), stxNewSub(kind));
}
