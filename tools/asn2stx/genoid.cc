// Object identifiers: arcs by number, by well-known name and by reference,
// and the decimal text with points that equality compares.

#include "asn2stx/gentype.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/resolve.h"
#include "asn2stx/shown.h"
#include <limits>

typedef std::vector<int64_t> OidArcs;

struct KnownArc {
  const char *name;
  int64_t number;
};

// X.660 Annex A, by what stands ahead.
static const KnownArc rootArcs[] = {
    {"itu-t", 0}, {"ccitt", 0},           {"itu-r", 0},
    {"iso", 1},   {"joint-iso-itu-t", 2}, {"joint-iso-ccitt", 2},
};
static const KnownArc ituArcs[] = {
    {"recommendation", 0},          {"question", 1},
    {"administration", 2},          {"network-operator", 3},
    {"identified-organization", 4}, {"r-recommendation", 5},
};
static const KnownArc isoArcs[] = {
    {"standard", 0},
    {"registration-authority", 1},
    {"member-body", 2},
    {"identified-organization", 3},
};

template <size_t N>
static bool findArc(const KnownArc (&arcs)[N], const std::string &name,
                    int64_t &number)
{
  for (const KnownArc &arc : arcs)
    if (name == arc.name) {
      number = arc.number;
      return true;
    }
  return false;
}

static bool knownArc(const OidArcs &ahead, const std::string &name,
                     int64_t &number)
{
  if (ahead.empty())
    return findArc(rootArcs, name, number);
  if (ahead.size() == 1 && ahead[0] == 0)
    return findArc(ituArcs, name, number);
  if (ahead.size() == 1 && ahead[0] == 1)
    return findArc(isoArcs, name, number);
  // itu-t recommendation: the letters of the series.
  if (ahead == OidArcs{0, 0} && name.size() == 1 && name[0] >= 'a' &&
      name[0] <= 'z') {
    number = name[0] - 'a' + 1;
    return true;
  }
  return false;
}

static bool oidArcs(Compilation &c, const Scope &scope, const AstValue &value,
                    bool isRelative, OidArcs &arcs);

// The definition that a name among the arcs refers to, if it is one of an
// object identifier.
static const Definition *oidDefinition(Compilation &c, const AstArc &arc,
                                       const Scope &scope)
{
  if (arc.value || arc.ref.name.empty() || arc.ref.hasActuals)
    return nullptr;
  Found found = findName(c, arc.ref, scope);
  if (!found.def || found.def->kind != DK_VALUE || found.def->assign->hasParams)
    return nullptr;
  TypeUse type = baseType(c, *found.def->assign->type,
                          *moduleAt(c, found.def->module).scope);
  bool isOid = type.type && (type.type->kind == AT_OBJECT_IDENTIFIER ||
                             type.type->kind == AT_RELATIVE_OID);
  return isOid ? found.def : nullptr;
}

static bool arcNumber(Compilation &c, const Scope &scope, const AstArc &arc,
                      int64_t &number)
{
  AstValue reference;
  reference.pos = arc.pos;
  reference.kind = AV_REFERENCE;
  reference.ref = arc.ref;
  return integerOf(c, scope, arc.value ? *arc.value : reference, {}, number);
}

// One arc: its number, or the arcs of the identifier that it refers to.
static bool addArc(Compilation &c, const Scope &scope, const AstArc &arc,
                   bool isRelative, OidArcs &arcs)
{
  int64_t number = 0;
  if (!isRelative && !arc.value && arc.ref.module.empty() &&
      knownArc(arcs, arc.ref.name, number)) {
    arcs.push_back(number);
    return true;
  }
  if (const Definition *def = oidDefinition(c, arc, scope)) {
    OidArcs inner;
    if (!oidArcs(c, *moduleAt(c, def->module).scope, *def->assign->value,
                 isRelative, inner))
      return false;
    arcs.insert(arcs.end(), inner.begin(), inner.end());
    return true;
  }
  // A parameter may stand for either kind.
  AstValue reference;
  reference.pos = arc.pos;
  reference.kind = AV_REFERENCE;
  reference.ref = arc.ref;
  const AstValue *actual = &reference;
  const Scope *actualScope = &scope;
  if (!arc.value)
    skipValueParameters(c, actual, actualScope);
  if (actual != &reference && actual->kind == AV_BRACES) {
    OidArcs inner;
    if (!oidArcs(c, *actualScope, *actual, isRelative, inner))
      return false;
    arcs.insert(arcs.end(), inner.begin(), inner.end());
    return true;
  }
  if (!arcNumber(c, scope, arc, number))
    return false;
  if (number < 0) {
    asnError(c.errors, arc.pos, "arc %lld is negative",
             static_cast<long long>(number));
    return false;
  }
  arcs.push_back(number);
  return true;
}

static bool oidArcs(Compilation &c, const Scope &scope, const AstValue &value,
                    bool isRelative, OidArcs &arcs)
{
  Walk walk(c, WALK_OID, &value, &scope);
  tellWalk(walk, value.pos, valueShown(value));
  if (!walk.isGood())
    return false;
  const AstValue *at = &value;
  const Scope *atScope = &scope;
  skipValueParameters(c, at, atScope);
  bool good = false;
  if (at->kind == AV_REFERENCE) {
    AstArc arc;
    arc.pos = at->pos;
    arc.ref = at->ref;
    const Definition *def = oidDefinition(c, arc, *atScope);
    good = def && oidArcs(c, *moduleAt(c, def->module).scope,
                          *def->assign->value, isRelative, arcs);
    if (!def)
      valueMisfit(c, *at);
  } else if (at->kind == AV_BRACES && !at->braces->arcs.empty()) {
    good = true;
    for (const AstArc &arc : at->braces->arcs)
      good = good && addArc(c, *atScope, arc, isRelative, arcs);
    if (arcs.size() > maxStriUnits / 4) {
      asnError(c.errors, at->pos, "%s has too many arcs",
               valueShown(*at).c_str());
      good = false;
    }
  } else {
    valueMisfit(c, *at);
  }
  return good;
}

// Arcs as they are sent, X.690 8.20, in hexadecimal digits.
static std::string relativeDigits(const OidArcs &arcs)
{
  static const char digits[] = "0123456789ABCDEF";
  std::string text;
  for (int64_t arc : arcs) {
    int shift = 63 - 63 % 7;
    while (shift > 0 && arc >> shift == 0)
      shift -= 7;
    for (; shift >= 0; shift -= 7) {
      int octet = static_cast<int>(arc >> shift & 0x7F) | (shift ? 0x80 : 0);
      text += digits[octet >> 4];
      text += digits[octet & 15];
    }
  }
  return text;
}

static std::string pointedText(const OidArcs &arcs)
{
  std::string text;
  for (int64_t arc : arcs)
    text += (text.empty() ? "" : ".") + std::to_string(arc);
  return text;
}

// A child for each arc as it is written.
static void addArcNodes(Compilation &c, int into, const Scope &scope,
                        const AstValue &value, int32_t node)
{
  OidArcs ahead;
  for (const AstArc &arc : value.braces->arcs) {
    size_t before = ahead.size();
    addArc(c, scope, arc, false, ahead);
    VNode child = stxNewVNode(TYP_INTEGER, builtinNode(c, into, TYP_INTEGER));
    child.valueStatus = 0;
    child.line = arc.pos.line;
    const Definition *def = oidDefinition(c, arc, scope);
    bool isIdentifier = ahead.size() != before + 1 || (def && before == 0);
    int64_t known = 0;
    if (before == 0 && knownArc({}, arc.ref.name, known))
      isIdentifier = false;
    if (isIdentifier && def) {
      child.mainType = TYP_SYNONYM;
      child.governor = builtinNode(c, into, TYP_OBJID);
      child.firstChild = def->node;
      child.refModule = moduleNumber(c, into, def->module);
      if (c.currentValue)
        c.valueEdges.push_back({c.currentValue, def});
      stxAddChild(treeOf(c, into), node, "", child);
      continue;
    }
    // Arcs that a parameter brought along stand one by one.
    for (size_t i = before; i < ahead.size(); ++i) {
      setPayloadInt64(child, stxInt64(ahead[i]));
      bool isNamed = arc.ref.module.empty() && ahead.size() == before + 1;
      stxAddChild(treeOf(c, into), node, isNamed ? arc.ref.name : "", child);
    }
  }
}

void genOidValue(Compilation &c, int into, const Scope &scope,
                 const AstValue &value, bool isRelative, int32_t node)
{
  OidArcs arcs;
  if (!oidArcs(c, scope, value, isRelative, arcs))
    return;
  StxTree &tree = treeOf(c, into);
  if (isRelative) {
    AstValue octets;
    octets.pos = value.pos;
    octets.kind = AV_HSTRING;
    octets.text = relativeDigits(arcs);
    return genOctetsValue(c, into, octets, node);
  }
  std::string text = pointedText(arcs);
  if (text.size() >= maxStriUnits) {
    asnError(c.errors, value.pos, "%s has too many arcs",
             valueShown(value).c_str());
    return;
  }
  int32_t stri = stxStri(tree, text);
  VNode &filled = stxValueAt(tree, node);
  filled.mainType = TYP_OBJID;
  setPayloadStri(filled, static_cast<uint16_t>(text.size()), stri);
  addArcNodes(c, into, scope, value, node);
}
