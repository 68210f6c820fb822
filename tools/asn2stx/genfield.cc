// Fields by name: what `CLASS.&field`, `object.&field` and `Set.&field` stand
// for, and the nodes of such types. A type or value out of an object is taken
// from the text, so that objects need no records yet.

#include "asn2stx/genfield.h"
#include "asn2stx/chain.h"
#include "asn2stx/gentype.h"
#include "asn2stx/objsyntax.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"

static bool noField(Compilation &c, AsnPos pos, const char *what,
                    const std::string &name)
{
  asnError(c.errors, pos, "the %s has no field %s", what,
           fieldShown(name).c_str());
  return false;
}

// Objects

static bool notAnObject(Compilation &c, const AstRef &ref)
{
  asnError(c.errors, ref.pos, "%s is not an object",
           asnQuoted(ref.name).c_str());
  return false;
}

// An object that is looked for: the value at hand, and the class if it is
// known.
struct ObjectWalk {
  const AstValue *value;
  const Scope *scope;
  ClassUse objectClass;
  bool isClassKnown;
};

static bool stepReference(Compilation &c, ObjectWalk &walk, const AstRef &ref)
{
  Found found = lookUp(c, ref, *walk.scope);
  if (!found)
    return false;
  if (found.binding) {
    const AstType *governor = found.binding->param->governor;
    if (!governor || !governsObjects(c, *governor, *walk.scope))
      return notAnObject(c, ref);
    walk.isClassKnown =
        resolveClass(c, governor->ref, *walk.scope, walk.objectClass);
    const AstValue *before = walk.value;
    skipValueParameters(c, walk.value, walk.scope);
    return walk.isClassKnown && (walk.value != before || notAnObject(c, ref));
  }
  const Definition &def = *found.def;
  if (def.kind != DK_OBJECT)
    return def.kind != DK_UNKNOWN && notAnObject(c, ref);
  bool isInstance = def.assign->hasParams || ref.hasActuals;
  walk.scope = isInstance ? instantiate(c, def, ref, *walk.scope)
                          : moduleAt(c, def.module).scope;
  if (!walk.scope)
    return false;
  walk.value = def.assign->value;
  walk.isClassKnown =
      resolveClass(c, def.assign->type->ref, *walk.scope, walk.objectClass);
  return walk.isClassKnown;
}

static bool stepField(Compilation &c, ObjectWalk &walk)
{
  const AstValue &value = *walk.value;
  ObjectUse object;
  FieldUse field;
  if (!objectOfRef(c, value.ref, *walk.scope, object) ||
      !resolveFieldPath(c, object, value.fields, value.fieldPos, field))
    return false;
  if (!field.value ||
      fieldKindOf(c, field.objectClass, *field.field) != FK_OBJECT) {
    asnError(c.errors, value.fieldPos.back(), "field %s is no object field",
             fieldShown(value.fields.back()).c_str());
    return false;
  }
  walk.isClassKnown = resolveClass(c, field.field->governor->ref,
                                   *field.objectClass.scope, walk.objectClass);
  walk.value = field.value;
  walk.scope = field.scope;
  return walk.isClassKnown;
}

bool resolveObject(Compilation &c, const AstValue &value, const Scope &scope,
                   const ClassUse *objectClass, ObjectUse &found)
{
  Walk search(c, WALK_OBJECT, &value, &scope);
  tellWalk(search, value.pos, valueShown(value));
  ObjectWalk walk = {&value, &scope, {}, objectClass != nullptr};
  if (objectClass)
    walk.objectClass = *objectClass;
  bool good = search.isGood();
  CircleGuard<std::pair<const AstValue *, const Scope *>> guard;
  while (good && !guard.repeats({walk.value, walk.scope})) {
    if (!walk.value)
      return false;
    if (walk.value->kind == AV_REFERENCE) {
      good = stepReference(c, walk, walk.value->ref);
    } else if (walk.value->kind == AV_FIELD) {
      good = stepField(c, walk);
    } else if (walk.value->kind == AV_BRACES && walk.isClassKnown) {
      found = {walk.objectClass, walk.value->braces, walk.scope,
               walk.value->pos};
      return true;
    } else {
      asnError(c.errors, walk.value->pos, "an object is needed here, not %s",
               valueShown(*walk.value).c_str());
      return false;
    }
  }
  if (good)
    asnError(c.errors, value.pos, "circular definition of %s",
             valueShown(value).c_str());
  return false;
}

bool objectOfRef(Compilation &c, const AstRef &ref, const Scope &scope,
                 ObjectUse &found)
{
  Walk search(c, WALK_OBJECT_NAME, &ref, &scope);
  tellWalk(search, ref.pos, asnQuoted(ref.name));
  AstValue value;
  value.kind = AV_REFERENCE;
  value.pos = ref.pos;
  value.ref = ref;
  ObjectWalk walk = {&value, &scope, {}, false};
  return search.isGood() && stepReference(c, walk, ref) &&
         resolveObject(c, *walk.value, *walk.scope, &walk.objectClass, found);
}

// Settings

static FieldUse fieldUseOf(const ObjectUse &object, const AstField &field)
{
  FieldUse use;
  use.objectClass = object.objectClass;
  use.field = &field;
  use.scope = object.scope;
  return use;
}

static bool takeDefault(FieldUse &use)
{
  use.type = use.field->defaultType;
  use.value = use.field->defaultValue;
  use.set = use.field->defaultSet;
  use.scope = use.objectClass.scope;
  return use.type || use.value || use.set;
}

bool settingOf(Compilation &c, const ObjectUse &object, const std::string &name,
               AsnPos pos, bool mayLack, FieldUse &found)
{
  const AstField *field = findClassField(object.objectClass, name);
  if (!field)
    return noField(c, pos, "class", name);
  found = fieldUseOf(object, *field);
  const std::vector<AstSetting> *settings = objectSettings(
      c.ast, c.errors, classText(object.objectClass), *object.braces);
  if (!settings)
    return false;
  for (const AstSetting &setting : *settings)
    if (setting.field == name) {
      found.type = setting.type;
      found.value = setting.value;
      found.set = setting.set;
      return found.type || found.value || found.set;
    }
  return takeDefault(found) || (!mayLack && noField(c, pos, "object", name));
}

bool resolveFieldPath(Compilation &c, ObjectUse object,
                      const std::vector<std::string> &fields,
                      const std::vector<AsnPos> &fieldPos, FieldUse &found)
{
  for (size_t i = 0; i < fields.size(); ++i) {
    if (!settingOf(c, object, fields[i], fieldPos[i], false, found))
      return false;
    if (i + 1 == fields.size())
      return true;
    ClassUse inner;
    bool isObject =
        fieldKindOf(c, found.objectClass, *found.field) == FK_OBJECT;
    if (!isObject || !found.value) {
      asnError(c.errors, fieldPos[i], "field %s is no object field",
               fieldShown(fields[i]).c_str());
      return false;
    }
    if (!resolveClass(c, found.field->governor->ref, *found.objectClass.scope,
                      inner) ||
        !resolveObject(c, *found.value, *found.scope, &inner, object))
      return false;
  }
  return false;
}

bool resolveFieldValue(Compilation &c, const AstValue &value,
                       const Scope &scope, const AstValue *&found,
                       const Scope *&foundScope)
{
  Walk search(c, WALK_FIELD, &value, &scope);
  tellWalk(search, value.pos, valueShown(value));
  const AstValue *at = &value;
  const Scope *atScope = &scope;
  bool good = search.isGood();
  CircleGuard<std::pair<const AstValue *, const Scope *>> guard;
  while (good && !guard.repeats({at, atScope})) {
    skipValueParameters(c, at, atScope);
    if (at->kind != AV_FIELD) {
      found = at;
      foundScope = atScope;
      return true;
    }
    ObjectUse object;
    FieldUse field;
    good = objectOfRef(c, at->ref, *atScope, object) &&
           resolveFieldPath(c, object, at->fields, at->fieldPos, field);
    if (good && !field.value) {
      asnError(c.errors, at->fieldPos.back(), "field %s is no value",
               fieldShown(at->fields.back()).c_str());
      good = false;
    }
    if (good) {
      at = field.value;
      atScope = field.scope;
    }
  }
  if (good)
    asnError(c.errors, value.pos, "circular definition of %s",
             valueShown(value).c_str());
  return false;
}

TypeUse variableTypeOf(Compilation &c, const ObjectUse &object,
                       const AstField &field, AsnPos pos)
{
  Walk search(c, WALK_VARIABLE_TYPE, &field, object.scope);
  tellWalk(search, pos, fieldShown(field.name));
  FieldUse type;
  const std::vector<std::string> &path = field.governor->fields;
  const std::vector<AsnPos> places(path.size(), pos);
  if (!search.isGood() || !resolveFieldPath(c, object, path, places, type))
    return {};
  return {type.type, type.scope};
}

// Sets

bool classOfSet(Compilation &c, const AstRef &ref, const Scope &scope,
                ClassUse &found)
{
  const AstType *governor = nullptr;
  const Scope *inner = &scope;
  Found name = lookUp(c, ref, scope);
  if (!name)
    return false;
  if (name.binding) {
    governor = name.binding->param->governor;
  } else {
    const Definition &def = *name.def;
    inner = def.assign->hasParams || ref.hasActuals
                ? instantiate(c, def, ref, scope)
                : moduleAt(c, def.module).scope;
    if (!inner)
      return false;
    governor = def.kind == DK_OBJECT_SET ? def.assign->type : nullptr;
  }
  if (!governor || !governsObjects(c, *governor, *inner)) {
    asnError(c.errors, ref.pos, "%s is not an object set",
             asnQuoted(ref.name).c_str());
    return false;
  }
  return resolveClass(c, governor->ref, *inner, found);
}

// Types

int32_t settingTypeNode(Compilation &c, int into, const Scope &scope,
                        const AstType &type)
{
  if (type.kind == AT_REFERENCE && type.tags.empty() &&
      type.constraints.empty() && !type.ref.hasActuals) {
    Found found = findName(c, type.ref, scope);
    if (found.def && found.def->node != 0 &&
        (found.def->kind == DK_TYPE || found.def->kind == DK_VALUE_SET ||
         found.def->kind == DK_OBJECT_SET))
      return localReference(c, into, {found.def->module, found.def->node});
  }
  return genHiddenType(c, into, scope, type);
}

TypeUse governorIn(Compilation &c, TypeUse governor, const Scope &scope)
{
  if (governor.scope == &scope)
    return governor;
  static const char name[] = "&governor";
  AstParam param;
  param.name = name;
  AstAssign &owner = c.ast.assignNodes.emplace_back();
  owner.params.push_back(param);
  AstActual &actual = c.ast.actuals.emplace_back();
  actual.type = newAstType(c.ast, AT_REFERENCE, governor.type->pos);
  *actual.type = *governor.type;
  Scope &inner = c.scopes.emplace_back(scope);
  inner.bindings.push_back({&owner.params.front(), &actual, governor.scope});
  AstType *type = newAstType(c.ast, AT_REFERENCE, governor.type->pos);
  type->ref.pos = type->pos;
  type->ref.name = name;
  return {type, &inner};
}

int32_t hiddenValueSet(Compilation &c, int into, TypeUse governor,
                       const AstConstraint &set, const Scope &scope)
{
  TNode node = newNodeFor(c, set.pos, TYP_NONE);
  node.hidden = 1;
  node.compStatus = -TCS_HEADER;
  int32_t index = stxType(treeOf(c, into), node);
  TypeUse use = governorIn(c, governor, scope);
  genValueSetInto(c, into, *use.scope, *use.type, set, index);
  return index;
}

static bool isObjectName(const AstRef &ref)
{
  return !ref.name.empty() && ref.name[0] >= 'a' && ref.name[0] <= 'z';
}

// The class that `CLASS.&field` or `Set.&field` begins with.
static bool classOfRef(Compilation &c, const AstRef &ref, const Scope &scope,
                       ClassUse &found)
{
  Found name = findName(c, ref, scope);
  if (name.binding && name.binding->param->governor)
    return classOfSet(c, ref, scope, found);
  DefKind kind = kindOf(c, ref, scope);
  if (kind == DK_CLASS)
    return resolveClass(c, ref, scope, found);
  if (kind == DK_OBJECT_SET)
    return classOfSet(c, ref, scope, found);
  if (kind != DK_UNKNOWN || lookUp(c, ref, scope))
    asnError(c.errors, ref.pos, "%s is neither a class nor an object set",
             asnQuoted(ref.name).c_str());
  return false;
}

// A step of `CLASS.&field.&field`.
struct FieldStep {
  ClassUse objectClass;
  const AstField *field = nullptr;
};

// The fields of a path through classes; false, reported, if it has none or
// does not end in a field that is of some type.
static bool stepsOf(Compilation &c, const AstType &type, const Scope &scope,
                    std::vector<FieldStep> &steps)
{
  ClassUse at;
  if (!classOfRef(c, type.ref, scope, at))
    return false;
  for (size_t i = 0; i < type.fields.size(); ++i) {
    const AstField *field = findClassField(at, type.fields[i]);
    if (!field)
      return noField(c, type.fieldPos[i], "class", type.fields[i]);
    steps.push_back({at, field});
    FieldKind kind = fieldKindOf(c, at, *field);
    bool isObject = kind == FK_OBJECT || kind == FK_OBJECT_SET;
    bool isLast = i + 1 == type.fields.size();
    if (isObject == isLast) {
      asnError(c.errors, type.fieldPos[i],
               isLast ? "field %s is no type" : "field %s has no fields",
               fieldShown(field->name).c_str());
      return false;
    }
    const Scope *inner = at.scope;
    if (!isLast && !resolveClass(c, field->governor->ref, *inner, at))
      return false;
  }
  return !steps.empty();
}

bool typeInObject(Compilation &c, const AstType &type, const Scope &scope,
                  FieldUse &found)
{
  ObjectUse object;
  if (!objectOfRef(c, type.ref, scope, object) ||
      !resolveFieldPath(c, object, type.fields, type.fieldPos, found))
    return false;
  FieldKind kind = fieldKindOf(c, found.objectClass, *found.field);
  if ((found.type && kind != FK_OBJECT_SET) ||
      (found.set && kind == FK_VALUE_SET))
    return true;
  asnError(c.errors, type.fieldPos.back(), "field %s is no type",
           fieldShown(found.field->name).c_str());
  return false;
}

TypeUse fieldTypeOf(Compilation &c, const AstType &type, const Scope &scope)
{
  // A bare &field stands in a class only, for the type of another field.
  if (type.ref.name.empty() || type.fields.empty())
    return {};
  if (isObjectName(type.ref)) {
    FieldUse found;
    if (!typeInObject(c, type, scope, found))
      return {};
    if (found.type)
      return {found.type, found.scope};
    return {found.field->governor, found.objectClass.scope};
  }
  std::vector<FieldStep> steps;
  if (!stepsOf(c, type, scope, steps))
    return {};
  const FieldStep &last = steps.back();
  FieldKind kind = fieldKindOf(c, last.objectClass, *last.field);
  if (kind != FK_VALUE && kind != FK_VALUE_SET)
    return {};
  return {last.field->governor, last.objectClass.scope};
}

// Nodes

// A field of a predefined class: the link leads to ISO8824, and `ref` to the
// type.
static int32_t genPredefinedLink(Compilation &c, int into, FieldStep &step)
{
  const AstClass &text = classText(step.objectClass);
  int32_t number = 1;
  while (text.fields[static_cast<size_t>(number) - 1] != step.field)
    ++number;
  int32_t module = predefinedModule(c, into);
  return stxLink(treeOf(c, into), stxNewLink(number, module));
}

static void genTypeOfClass(Compilation &c, int into, const Scope &scope,
                           const AstType &type, int32_t node)
{
  std::vector<FieldStep> steps;
  if (!stepsOf(c, type, scope, steps))
    return;
  std::vector<int32_t> links;
  NodeAt ref = classNodeFor(c, into, steps.front().objectClass);
  for (FieldStep &step : steps) {
    NodeAt field = fieldNodeFor(c, into, step.objectClass, *step.field);
    if (step.objectClass.builtin != 0) {
      links.push_back(genPredefinedLink(c, into, step));
      ref = field;
    } else if (field.node != 0) {
      int32_t number = moduleNumber(c, into, field.module);
      links.push_back(stxLink(treeOf(c, into), stxNewLink(field.node, number)));
    }
  }
  int32_t number = moduleNumber(c, into, ref.module);
  int32_t first = stxChainLinks(treeOf(c, into), links);
  TNode &filled = stxTypeAt(treeOf(c, into), node);
  filled.mainType = TYP_FIELDLIST;
  filled.fieldRef = first;
  filled.ref = ref.node;
  filled.refModule = number;
}

// X.681 (2002) C.7: SEQUENCE {type-id CLASS.&id, value [0] CLASS.&Type}.
static void genInstanceOf(Compilation &c, int into, const Scope &scope,
                          const AstType &type, int32_t node)
{
  ClassUse found;
  if (!resolveClass(c, type.ref, scope, found))
    return;
  if (found.builtin != TYP_TYPE_ID) {
    asnError(c.errors, type.ref.pos, "%s is not TYPE-IDENTIFIER",
             asnQuoted(type.ref.name).c_str());
    return;
  }
  constexpr int contextClass = 2, explicitMode = 1;
  StxTree &tree = treeOf(c, into);
  stxTypeAt(tree, node).mainType = TYP_INSTANCE_OF;
  stxAddComp(tree, node, "type-id", newNodeFor(c, type.pos, TYP_OBJID));
  int32_t value =
      stxAddComp(tree, node, "value", newNodeFor(c, type.pos, TYP_OPEN));
  stxAddTag(tree, value, contextClass, 0, explicitMode);
}

void genFieldTypeInto(Compilation &c, int into, const Scope &scope,
                      const AstType &type, int32_t node)
{
  if (type.kind == AT_INSTANCE_OF)
    return genInstanceOf(c, into, scope, type, node);
  if (type.ref.name.empty() || type.fields.empty()) {
    asnError(c.errors, type.pos, "field %s without its class",
             typeShown(type).c_str());
    return;
  }
  // What an object has there was put in its place, or an error was told.
  if (!isObjectName(type.ref))
    genTypeOfClass(c, into, scope, type, node);
}
