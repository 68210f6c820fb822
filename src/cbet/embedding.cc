// Embedding lines of types and classes. The list of dynamic nodes has them in
// the order of the chain. The option bit that tells of lines is cleared in a
// type's copy of its base, so the list is asked for them.

#include "cbet/embedding.h"
#include "cbet/outfile.h"
#include "model/typequery.h"

static bool isOfRecord(const DynaNode &node, const ModRec *module,
                       int32_t record)
{
  return node.module == module && node.record == record;
}

// The lines of the base, null without any.
static const DynaNode *baseNodeOf(const DynaNode *first, const ModRec *module,
                                  int32_t record)
{
  const DynaNode *node = first;
  while (node && !(node->embeddingKind && isOfRecord(*node, module, record)))
    node = node->next;
  return node;
}

static const DynaNode *baseNodeOf(const AsnType &type)
{
  return baseNodeOf(type.tagsFirst, type.baseModRec, type.baseRecNr);
}

static void printNode(int file, const DynaNode &node, int selector)
{
  if (node.embeddingKind)
    printTEDs(file, node.module, node.embedding.first, node.embedding.last,
              selector);
}

// The row of the letter "T".
static const TedPlace &typePlace = tedArr[0];

// The lines of a whole chain, with those of its base if they are wanted.
static void printChain(int file, const DynaNode *first, const DynaNode *last,
                       const DynaNode *base, bool wantsBase, int selector)
{
  bool isBehind = selector >= typePlace.second;
  if (!isBehind)
    for (const DynaNode *node = first; node != base; node = node->next)
      printNode(file, *node, selector);
  if (base && wantsBase)
    printNode(file, *base, selector);
  if (isBehind)
    for (const DynaNode *node = base ? base->prev : last; node;
         node = node->prev)
      printNode(file, *node, selector);
}

// Whether a definition shows the lines of its base.
static bool wantsLeafLines(bool isLeaf, int selector)
{
  return isLeaf && selector != typePlace.first && selector != typePlace.second;
}

static bool wantsBaseLines(const AsnType &type, int selector)
{
  return isCompOrElemType(type) ||
         (isDefinedType(type) && wantsLeafLines(isLeafType(type), selector));
}

void printTypeEmbeddingOptions(int file, const AsnType &type, int selector)
{
  printChain(file, type.tagsFirst, type.tagsLast, baseNodeOf(type),
             wantsBaseLines(type, selector), selector);
}

void printLocalTypeEmbeddingOptions(int file, const AsnType &type, int selector)
{
  for (const DynaNode *node = type.tagsFirst;
       node && isOfRecord(*node, type.compModRec, type.compRecNr);
       node = node->next)
    printNode(file, *node, selector);
}

void printBaseTypeEmbeddingOptions(int file, const AsnType &type, int selector)
{
  if (const DynaNode *base = baseNodeOf(type))
    printNode(file, *base, selector);
}

static bool wantsBaseLines(const AsnObjClass &objClass, int selector)
{
  switch (objClass.compStatus) {
  case TCS_MANDATORY:
  case TCS_OPTIONAL:
  case TCS_CHOICE:
  case TCS_MULTIPLE:
    return true;
  case TCS_HEADER:
    return wantsLeafLines(getNrOfObjClassFields(objClass) == 0 ||
                              testObjClassOption(objClass, optSkip),
                          selector);
  default:
    return false;
  }
}

void printObjClassEmbeddingOptions(int file, const AsnObjClass &objClass,
                                   int selector)
{
  const DynaNode *base = baseNodeOf(objClass.embeddingFirst,
                                    objClass.baseModRec, objClass.baseRecNr);
  printChain(file, objClass.embeddingFirst, objClass.embeddingLast, base,
             wantsBaseLines(objClass, selector), selector);
}
