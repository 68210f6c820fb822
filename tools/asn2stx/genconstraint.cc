// Constraint records. They hold the root of an extensible constraint; that
// it is one stands in the node's flags.

#include "asn2stx/genconstraint.h"
#include "asn2stx/chain.h"
#include "asn2stx/fromobjects.h"
#include "asn2stx/gentype.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/objsyntax.h"
#include "asn2stx/parser.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <algorithm>
#include <charconv>

// Bits of `subFlags`.
constexpr uint8_t hasException = 0x01, fullSpecification = 0x02,
                  isPresent = 0x04, isAbsent = 0x08, isOptional = 0x10,
                  lowerClosed = 0x20, upperClosed = 0x40;

constexpr size_t maxSubs = 2000000;

// The place of an element: the constrained type and its node.
struct ElemRun {
  Compilation &c;
  int into;
  const Scope &scope;
  TypeUse parent;
  NodeAt at;
};

static int32_t addSub(ElemRun &run, int kind, int32_t operand1 = 0,
                      int32_t operand2 = 0)
{
  return stxSub(treeOf(run.c, run.into), stxNewSub(kind, operand1, operand2));
}

static SubRec &subAt(ElemRun &run, int32_t sub)
{
  return stxSubAt(treeOf(run.c, run.into), sub);
}

int32_t joinSubs(Compilation &c, int into, int kind,
                 const std::vector<int32_t> &subs)
{
  if (subs.size() < 2)
    return subs.empty() ? 0 : subs.front();
  StxTree &tree = treeOf(c, into);
  return stxSub(tree, stxNewSub(kind, stxChainSubs(tree, subs)));
}

// Kind of the constrained type; -1 if it cannot be told.
static int parentKind(ElemRun &run)
{
  TypeUse base = baseType(run.c, *run.parent.type, *run.parent.scope);
  return base.type ? mainTypeOf(*base.type) : -1;
}

static bool isSized(int mainType)
{
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
         mainType == TYP_SEQOF || mainType == TYP_SETOF ||
         (mainType >= TYP_NUMSTR && mainType <= TYP_CHASTR) ||
         mainType == TYP_OBJDESCR;
}

static bool isRestrictedString(int mainType)
{
  return (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

static void doesNotApply(ElemRun &run, const AstElem &elem, const char *what)
{
  asnError(run.c.errors, elem.pos, "%s does not apply to %s", what,
           typeShown(*run.parent.type).c_str());
}

// Leaves

static int32_t genTable(ElemRun &run, const AstElem &elem)
{
  return genTableConstraint(run.c, run.into, run.scope, elem, run.at.node);
}

static int32_t genSingleValue(ElemRun &run, const AstElem &elem)
{
  Compilation &c = run.c;
  // `({object})` reads as a value where a table may stand.
  bool isFieldOfClass = run.parent.type && run.parent.type->kind == AT_FIELD;
  if (elem.value->kind == AV_BRACES &&
      (parentKind(run) == TYP_OPEN || isFieldOfClass)) {
    AstElem &table = c.ast.elems.emplace_back();
    AstTokens tokens = elem.value->braces->tokens;
    table.pos = elem.pos;
    table.kind = AE_TABLE;
    // The set is read with its braces.
    --tokens.first;
    ++tokens.end;
    table.set = parseSetAt(c.ast, c.errors, tokens);
    return table.set ? genTable(run, table) : 0;
  }
  int32_t value =
      genValue(c, run.into, run.scope, *elem.value, run.parent, run.at);
  return addSub(run, SUB_SINGLE_VALUE, value);
}

// True for a number that no record holds; as an end of a range it stands for
// MIN or MAX.
static bool isBeyond(Compilation &c, const AstValue &written,
                     const Scope &scope, bool isUpper)
{
  const AstValue *at = &written;
  const Scope *atScope = &scope;
  skipValueParameters(c, at, atScope);
  const AstValue &value = *at;
  if (value.kind != AV_INTEGER || (value.text[0] == '-') == isUpper)
    return false;
  int64_t number = 0;
  const char *first = value.text.data();
  return std::from_chars(first, first + value.text.size(), number).ec ==
         std::errc::result_out_of_range;
}

static int32_t genRange(ElemRun &run, const AstElem &elem)
{
  Compilation &c = run.c;
  int32_t ends[2] = {};
  const AstValue *written[2] = {elem.lower, elem.upper};
  for (size_t i = 0; i < 2; ++i)
    if (written[i] && !isBeyond(c, *written[i], run.scope, i == 1))
      ends[i] =
          genValue(c, run.into, run.scope, *written[i], run.parent, run.at);
  int kind = parentKind(run);
  int32_t governor = builtinNode(
      c, run.into, kind < 0 || kind > TYP_OBJDESCR ? TYP_INTEGER : kind);
  int32_t index = addSub(run, SUB_RANGE, ends[0], ends[1]);
  SubRec &sub = subAt(run, index);
  sub.subFlags = static_cast<uint8_t>((elem.isLowerOpen ? 0 : lowerClosed) |
                                      (elem.isUpperOpen ? 0 : upperClosed));
  sub.compModule = 1;
  sub.compNode = governor;
  return index;
}

static int32_t genSize(ElemRun &run, const AstElem &elem)
{
  Compilation &c = run.c;
  int kind = parentKind(run);
  if (kind >= 0 && kind != TYP_OPEN && !isSized(kind)) {
    doesNotApply(run, elem, "SIZE");
    return 0;
  }
  NodeAt integer = {run.into, builtinNode(c, run.into, TYP_INTEGER)};
  int32_t inner = genConstraint(c, run.into, run.scope, *elem.inner,
                                {c.integer, run.parent.scope}, integer);
  return inner ? addSub(run, SUB_SIZE, inner) : 0;
}

static int32_t genAlphabet(ElemRun &run, const AstElem &elem)
{
  int kind = parentKind(run);
  if (kind >= 0 && kind != TYP_OPEN && !isRestrictedString(kind)) {
    doesNotApply(run, elem, "FROM");
    return 0;
  }
  int32_t inner = genConstraint(run.c, run.into, run.scope, *elem.inner,
                                run.parent, run.at);
  return inner ? addSub(run, SUB_ALPHABET, inner) : 0;
}

static int32_t genContained(ElemRun &run, const AstType &contained);

// What one object has at the end of a path.
static int32_t genFieldOfObject(ElemRun &run, const FieldUse &field)
{
  Compilation &c = run.c;
  ElemRun inner = {c, run.into, *field.scope, run.parent, run.at};
  if (field.value) {
    int32_t value =
        genValue(c, run.into, *field.scope, *field.value, run.parent, run.at);
    return addSub(inner, SUB_SINGLE_VALUE, value);
  }
  if (field.set)
    return genConstraint(c, run.into, *field.scope, *field.set, run.parent,
                         run.at);
  return field.type ? genContained(inner, *field.type) : 0;
}

// The values that a path into objects leads to, as one union.
static int32_t genFromObjects(ElemRun &run, const AstType &path)
{
  Compilation &c = run.c;
  std::vector<FieldUse> fields;
  if (!fieldsFromObjects(c, path, run.scope, fields))
    return 0;
  std::vector<int32_t> subs;
  for (const FieldUse &field : fields) {
    FieldKind kind = fieldKindOf(c, field.objectClass, *field.field);
    if (kind == FK_OBJECT || kind == FK_OBJECT_SET) {
      asnError(c.errors, path.fieldPos.back(), "field %s has no values",
               fieldShown(path.fields.back()).c_str());
      return 0;
    }
    if (int32_t sub = genFieldOfObject(run, field))
      subs.push_back(sub);
  }
  return joinSubs(c, run.into, SUB_UNION, subs);
}

static int32_t genContained(ElemRun &run, const AstType &contained)
{
  Compilation &c = run.c;
  const AstType *type = &contained;
  const Scope *scope = &run.scope;
  while (type->kind == AT_REFERENCE) {
    Found found = lookUp(c, type->ref, *scope);
    if (!found)
      return 0;
    if (found.binding && found.binding->actual->set)
      return genConstraint(c, run.into, *found.binding->scope,
                           *found.binding->actual->set, run.parent, run.at);
    if (!found.binding || !found.binding->actual->type)
      break;
    type = found.binding->actual->type;
    scope = found.binding->scope;
  }
  if (isFromObjects(c, *type, *scope)) {
    ElemRun inner = {c, run.into, *scope, run.parent, run.at};
    return genFromObjects(inner, *type);
  }
  if (!baseType(c, *type, *scope).type)
    return 0;
  int parent = parentKind(run);
  int kind = parent == TYP_OPEN || parent == TYP_ANY ? SUB_TYPE : SUB_INCLUDES;
  int32_t node = governorNode(c, run.into, *scope, *type);
  return addSub(run, kind, typeCarrier(c, run.into, node));
}

// Components

static int32_t genElementOf(ElemRun &run, const AstElem &elem)
{
  Compilation &c = run.c;
  TypeUse base = baseType(c, *run.parent.type, *run.parent.scope);
  NodeAt list = baseNode(c, run.at);
  if (!base.type)
    return 0;
  if (!base.type->element || list.node <= 0 ||
      (base.type->kind != AT_SEQUENCE_OF && base.type->kind != AT_SET_OF)) {
    doesNotApply(run, elem, "WITH COMPONENT");
    return 0;
  }
  NodeAt element = {list.module,
                    stxTypeAt(treeOf(c, list.module), list.node).ref};
  int32_t inner = genConstraint(c, run.into, run.scope, *elem.inner,
                                {base.type->element, base.scope}, element);
  return inner ? addSub(run, SUB_WITH_COMPONENT, inner) : 0;
}

static uint8_t presenceFlags(AstPresence presence)
{
  switch (presence) {
  case PRES_PRESENT:
    return isPresent;
  case PRES_ABSENT:
    return isAbsent;
  case PRES_OPTIONAL:
    return isOptional;
  default:
    return 0;
  }
}

static int32_t genItem(ElemRun &run, const AstInner &item)
{
  Compilation &c = run.c;
  const Scope *scope = nullptr;
  const AstComp *comp = findComp(c, run.parent, item.name, scope);
  NodeAt at = comp ? findCompNode(c, run.at, item.name) : NodeAt{};
  if (!comp || !comp->type || at.node == 0) {
    asnError(c.errors, item.pos, "%s has no component %s",
             typeShown(*run.parent.type).c_str(), asnQuoted(item.name).c_str());
    return 0;
  }
  int32_t index = 0;
  if (item.constraint)
    index = genConstraint(c, run.into, run.scope, *item.constraint,
                          {comp->type, scope}, at);
  if (index == 0)
    index = addSub(run, SUB_EXCEPTION);
  int32_t number = moduleNumber(c, run.into, at.module);
  SubRec &sub = subAt(run, index);
  sub.subFlags |= presenceFlags(item.presence);
  sub.compModule = number;
  sub.compNode = at.node;
  return index;
}

static int32_t genItems(ElemRun &run, const AstElem &elem)
{
  Compilation &c = run.c;
  TypeUse base = baseType(c, *run.parent.type, *run.parent.scope);
  if (!base.type)
    return 0;
  if (base.type->kind != AT_SEQUENCE && base.type->kind != AT_SET &&
      base.type->kind != AT_CHOICE) {
    // EXTERNAL and its like have components without nodes.
    bool isAssociated =
        base.type->kind == AT_EXTERNAL || base.type->kind == AT_EMBEDDED_PDV ||
        base.type->kind == AT_CHARACTER_STRING || base.type->kind == AT_REAL ||
        base.type->kind == AT_INSTANCE_OF;
    if (!isAssociated)
      doesNotApply(run, elem, "WITH COMPONENTS");
    return 0;
  }
  std::vector<int32_t> subs;
  for (const AstInner &item : elem.items)
    if (int32_t sub = genItem(run, item))
      subs.push_back(sub);
  int32_t first = stxChainSubs(treeOf(c, run.into), subs);
  int32_t index = addSub(run, SUB_WITH_COMPONENTS, first);
  if (!elem.isPartial)
    subAt(run, index).subFlags |= fullSpecification;
  return index;
}

// Sets of elements

static bool isSizeOrAlphabet(const AstElem &elem)
{
  return elem.kind == AE_SIZE || elem.kind == AE_FROM ||
         std::any_of(
             elem.operands.begin(), elem.operands.end(),
             [](const AstElem *operand) { return isSizeOrAlphabet(*operand); });
}

static int32_t genOperand(ElemRun &run, const AstElem &elem)
{
  return genElement(run.c, run.into, run.scope, elem, run.parent, run.at);
}

static int32_t genUnion(ElemRun &run, const AstElem &elem)
{
  std::vector<int32_t> subs;
  bool isComplete = true;
  for (const AstElem *operand : elem.operands) {
    int32_t sub = genOperand(run, *operand);
    isComplete = isComplete && sub != 0;
    if (sub)
      subs.push_back(sub);
  }
  // What leaves no record may let anything through, and so does the union.
  return isComplete ? joinSubs(run.c, run.into, SUB_UNION, subs) : 0;
}

static int32_t genIntersection(ElemRun &run, const AstElem &elem)
{
  std::vector<int32_t> subs;
  for (const AstElem *operand : elem.operands)
    if (int32_t sub = genOperand(run, *operand))
      subs.push_back(sub);
  // Readers of strings walk serial constraints only, which mean the same.
  int kind = isSizeOrAlphabet(elem) ? SUB_CATENATED : SUB_INTERSECTION;
  return joinSubs(run.c, run.into, kind, subs);
}

static int32_t genExcept(ElemRun &run, const AstElem &elem)
{
  if (elem.operands.size() < 2)
    return 0;
  int32_t kept = genOperand(run, *elem.operands[0]);
  int32_t removed = genOperand(run, *elem.operands[1]);
  if (kept == 0 || removed == 0)
    return kept;
  stxChainSubs(treeOf(run.c, run.into), {kept, removed});
  return addSub(run, SUB_EXCEPT, kept);
}

static int32_t genAllExcept(ElemRun &run, const AstElem &elem)
{
  int32_t removed =
      elem.operands.empty() ? 0 : genOperand(run, *elem.operands[0]);
  return removed ? addSub(run, SUB_ALL_EXCEPT, removed) : 0;
}

// CONTAINING leaves no record, but its names must be there.
static void checkContaining(ElemRun &run, const AstElem &elem)
{
  if (elem.type)
    baseType(run.c, *elem.type, run.scope);
}

int32_t genElement(Compilation &c, int into, const Scope &scope,
                   const AstElem &elem, TypeUse parent, NodeAt at)
{
  ElemRun run = {c, into, scope, parent, at};
  if (c.exhausted || treeOf(c, into).subRecs.size() > maxSubs)
    return 0;
  switch (elem.kind) {
  case AE_VALUE:
    return genSingleValue(run, elem);
  case AE_RANGE:
    return genRange(run, elem);
  case AE_SIZE:
    return genSize(run, elem);
  case AE_FROM:
    return genAlphabet(run, elem);
  case AE_TYPE:
    return genContained(run, *elem.type);
  case AE_UNION:
    return genUnion(run, elem);
  case AE_INTERSECTION:
    return genIntersection(run, elem);
  case AE_EXCEPT:
    return genExcept(run, elem);
  case AE_ALL_EXCEPT:
    return genAllExcept(run, elem);
  case AE_WITH_COMPONENT:
    return genElementOf(run, elem);
  case AE_WITH_COMPONENTS:
    return genItems(run, elem);
  case AE_CONSTRAINED_BY:
    return addSub(run, SUB_USER_DEFINED);
  case AE_TABLE:
    return genTable(run, elem);
  case AE_CONTAINING:
    checkContaining(run, elem);
    return 0;
  default:
    return 0;
  }
}

int32_t genConstraint(Compilation &c, int into, const Scope &scope,
                      const AstConstraint &constraint, TypeUse parent,
                      NodeAt at)
{
  int32_t index = 0;
  if (constraint.root)
    index = genElement(c, into, scope, *constraint.root, parent, at);
  if (index != 0 && constraint.additions && c.options.unionOfAdditions) {
    int32_t more =
        genElement(c, into, scope, *constraint.additions, parent, at);
    std::vector<int32_t> subs = {index};
    if (more)
      subs.push_back(more);
    index = joinSubs(c, into, SUB_UNION, subs);
  }
  if (index != 0 && constraint.exception.present)
    stxSubAt(treeOf(c, into), index).subFlags |= hasException;
  return index;
}

// Extensibility

// True if a size within the element is extensible.
static bool hasExtensibleSize(const AstElem &elem)
{
  if (elem.kind == AE_SIZE)
    return elem.inner->isExtensible;
  return (elem.kind == AE_UNION || elem.kind == AE_INTERSECTION) &&
         std::any_of(elem.operands.begin(), elem.operands.end(),
                     [](const AstElem *operand) {
                       return hasExtensibleSize(*operand);
                     });
}

static bool hasSize(const AstElem &elem)
{
  return elem.kind == AE_SIZE ||
         std::any_of(elem.operands.begin(), elem.operands.end(),
                     [](const AstElem *operand) { return hasSize(*operand); });
}

// Whether PER sends a bit for the constraint: X.691 (2002) 9.3.
static bool isExtensible(const AstConstraint &constraint, int mainType)
{
  if (mainType == TYP_INTEGER)
    return constraint.isExtensible;
  if (!isSized(mainType) || !constraint.root)
    return false;
  return (constraint.isExtensible && hasSize(*constraint.root)) ||
         hasExtensibleSize(*constraint.root);
}

// True for a constraint that PER never sees: what stands ahead of it stays as
// extensible as it is.
static bool isUnseen(const AstConstraint &constraint)
{
  AstElemKind kind = constraint.root ? constraint.root->kind : AE_VALUE;
  switch (kind) {
  case AE_WITH_COMPONENT:
  case AE_WITH_COMPONENTS:
  case AE_CONTAINING:
  case AE_ENCODED_BY:
  case AE_CONSTRAINED_BY:
  case AE_PATTERN:
  case AE_SETTINGS:
  case AE_TABLE:
    return true;
  default:
    return false;
  }
}

// Numbers beyond 64 bits

static bool reachesBeyond(Compilation &c, const AstElem &elem,
                          const Scope &scope);

// True for an end that is written as a number and has no place within the
// bounds of a node, where the limits of 64 bits stand for open ends.
static bool isWideEnd(Compilation &c, const AstValue &written,
                      const Scope &scope, bool isUpper)
{
  const AstValue *at = &written;
  const Scope *atScope = &scope;
  CircleGuard<std::pair<const AstValue *, const Scope *>> guard;
  while (!guard.repeats({at, atScope})) {
    skipValueParameters(c, at, atScope);
    if (at->kind != AV_REFERENCE)
      break;
    Found found = findName(c, at->ref, *atScope);
    if (!found.def || found.def->kind != DK_VALUE ||
        found.def->assign->hasParams)
      return false;
    at = found.def->assign->value;
    atScope = moduleAt(c, found.def->module).scope;
  }
  return isBeyond(c, *at, *atScope, isUpper) ||
         (at->kind == AV_INTEGER &&
          at->text == std::to_string(isUpper ? INT64_MAX : INT64_MIN));
}

// The same of a name: what a parameter stands for is part of the constraint,
// what a definition holds is looked up among the nodes.
static bool nameReachesBeyond(Compilation &c, const AstType &name,
                              const Scope &scope)
{
  const AstType *type = &name;
  const Scope *at = &scope;
  while (type && type->kind == AT_REFERENCE) {
    Found found = findName(c, type->ref, *at);
    if (!found.binding)
      return false;
    const AstActual &actual = *found.binding->actual;
    at = found.binding->scope;
    if (actual.set)
      return actual.set->root && reachesBeyond(c, *actual.set->root, *at);
    type = actual.type;
  }
  return false;
}

static bool reachesBeyond(Compilation &c, const AstElem &elem,
                          const Scope &scope)
{
  switch (elem.kind) {
  case AE_RANGE:
    return (elem.lower && isWideEnd(c, *elem.lower, scope, false)) ||
           (elem.upper && isWideEnd(c, *elem.upper, scope, true));
  case AE_TYPE:
    return nameReachesBeyond(c, *elem.type, scope);
  case AE_UNION:
  case AE_INTERSECTION:
    return std::any_of(elem.operands.begin(), elem.operands.end(),
                       [&](const AstElem *operand) {
                         return reachesBeyond(c, *operand, scope);
                       });
  default:
    return false;
  }
}

// Those of one node

// What else of a constraint matters to its node.
static void noteConstraint(Compilation &c, const LateConstraints &late,
                           const AstConstraint &constraint, const Scope &scope,
                           TypeUse parent)
{
  std::pair<int, int32_t> node = {late.into, late.node};
  TypeUse base = baseType(c, *parent.type, *parent.scope);
  if (base.type && base.type->kind == AT_INTEGER && constraint.root &&
      reachesBeyond(c, *constraint.root, scope))
    c.wideNodes.insert(node);
  c.places.insert({node, {constraint.pos, typeShown(*parent.type)}});
}

static void genNodeConstraints(Compilation &c, const LateConstraints &late)
{
  std::vector<int32_t> subs;
  NodeAt at = {late.into, late.node};
  TypeUse parent;
  const AstConstraint *last = nullptr;
  auto add = [&](const AstConstraint &constraint, const Scope &scope,
                 TypeUse constrained) {
    parent = constrained;
    if (!isUnseen(constraint))
      last = &constraint;
    int32_t sub =
        genConstraint(c, late.into, scope, constraint, constrained, at);
    noteConstraint(c, late, constraint, scope, constrained);
    if (sub)
      subs.push_back(sub);
  };
  auto addAll = [&](TypeUse layer) {
    for (const AstConstraint *constraint : layer.type->constraints)
      add(*constraint, *layer.scope, layer);
  };
  if (late.inPlace.type)
    addAll(late.inPlace);
  if (late.set)
    add(*late.set, *late.setScope, {late.governor, late.setScope});
  for (auto layer = late.layers.rbegin(); layer != late.layers.rend(); ++layer)
    addAll(*layer);
  int32_t first = joinSubs(c, late.into, SUB_CATENATED, subs);
  TypeUse base = last ? baseType(c, *parent.type, *parent.scope) : TypeUse{};
  TNode &node = stxTypeAt(treeOf(c, late.into), late.node);
  node.firstConstraint = first;
  if (base.type && isExtensible(*last, mainTypeOf(*base.type)))
    node.nodeFlags |= NF_EXTENSIBLE;
}

void genLateConstraints(Compilation &c)
{
  while (!c.lateConstraints.empty()) {
    LateConstraints late = std::move(c.lateConstraints.front());
    c.lateConstraints.pop_front();
    genNodeConstraints(c, late);
  }
}
