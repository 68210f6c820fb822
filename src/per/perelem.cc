// Element functions: their names, their heads, and the search for the lists
// that need one.

#include "per/perelem.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/perlength.h"
#include <unordered_map>
#include <unordered_set>

// The functions of a generator's run. They are static: one run writes one
// file.
static struct ElemFuncs {
  // Name without the list's own: the list that has it.
  std::unordered_map<std::string, std::pair<const ModRec *, int32_t>> owners;
  std::unordered_set<std::string> written;
} elemFuncs;

void perResetElemFuncs()
{
  elemFuncs = ElemFuncs{};
}

std::string &perElemFuncName(std::string &text, const char *prefix,
                             const AsnType &list, const AsnType &elem,
                             const char *suffix)
{
  const char *stem = *prefix == ' ' ? prefix + 1 : prefix;
  cTypeId(text, stem, elem, nullptr);
  std::pair<const ModRec *, int32_t> owner{list.compModRec, list.compRecNr};
  std::string listId;
  if (elemFuncs.owners.try_emplace(text, owner).first->second != owner)
    text += cTypeId(listId, "_", list, nullptr);
  if (stem != prefix)
    text.insert(0, " ");
  return text += orEmpty(suffix);
}

bool perBeginElemFunc(int file, const char *prefix, const AsnType &list,
                      const AsnType &elem)
{
  std::string name;
  perElemFuncName(name, prefix, list, elem, " (");
  if (!elemFuncs.written.insert(name).second)
    return false;
  endlToF(file);
  cIncAsnHomeVarCount();
  wToF(file, "static void");
  wToF(file, name.c_str());
  wToF(file, "ASNG_F(ASNPERG *asnperg)");
  wToF(file, " sint32 n,");
  wToF(file, " BYTE_TYPE **p)\n");
  cOpenBrace(file);
  return true;
}

bool perIsElemSupported(const AsnType &elem)
{
  return cIsDefinedBaseType(elem) || isLeafType(elem);
}

bool perIsArray(const AsnType &list)
{
  return cIsStaticArray(list) || cIsDynamicArray(list);
}

// --- the search -------------------------------------------------------------

static PerElemVisit *elemVisit;

static void searchType(AsnType &type);

// What has a function of its own has its element functions ahead of that.
static void searchInline(AsnType &type)
{
  if (!cIsDefinedBaseType(type))
    searchType(type);
}

static void searchElem(AsnType &, AsnType &elem)
{
  searchInline(elem);
}

static void searchComp(AsnType &father, AsnType &comp, int)
{
  if (getTypeMainType(comp) == TYP_EXTADDGRP)
    forEachAdditionGroupComp(father, comp, searchComp);
  else
    searchInline(comp);
}

static void searchType(AsnType &type)
{
  if (isListType(type)) {
    InlineNesting nesting(type);
    forTypeElem(type, perValueCanBeFragmented(type) ? elemVisit : searchElem);
  } else if (isStructuredType(type)) {
    InlineNesting nesting(type);
    forEachTypeComp(type, searchComp);
  }
}

void perForEachInlineFragmentedList(AsnType &type, PerElemVisit *visit)
{
  PerElemVisit *outer = elemVisit;
  elemVisit = visit;
  searchType(type);
  elemVisit = outer;
}
