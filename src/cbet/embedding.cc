// Embedding lines of types. The list of dynamic nodes has them in the order
// of the chain. The option bit that tells of lines is cleared in a view's
// copy of its base, so the list is asked for them.

#include "cbet/embedding.h"
#include "cbet/outfile.h"
#include "model/typequery.h"

static bool isOfRecord(const DynaNode &node, const ModRec *module,
                       int32_t record)
{
  return node.module == module && node.record == record;
}

// The lines of the type's base, null without any.
static const DynaNode *baseNodeOf(const AsnType &type)
{
  const DynaNode *node = type.tagsFirst;
  while (node && !(node->embeddingKind &&
                   isOfRecord(*node, type.baseModRec, type.baseRecNr)))
    node = node->next;
  return node;
}

static void printNode(int file, const DynaNode &node, int selector)
{
  if (node.embeddingKind)
    printTEDs(file, node.module, node.embedding.first, node.embedding.last,
              selector);
}

// The row of the letter "T".
static const TedPlace &typePlace = tedArr[0];

static bool wantsBaseLines(const AsnType &type, int selector)
{
  if (isCompOrElemType(type))
    return true;
  return isDefinedType(type) && isLeafType(type) &&
         selector != typePlace.first && selector != typePlace.second;
}

void printTypeEmbeddingOptions(int file, const AsnType &type, int selector)
{
  const DynaNode *base = baseNodeOf(type);
  bool isBehind = selector >= typePlace.second;
  if (!isBehind)
    for (const DynaNode *node = type.tagsFirst; node != base; node = node->next)
      printNode(file, *node, selector);
  if (base && wantsBaseLines(type, selector))
    printNode(file, *base, selector);
  if (isBehind)
    for (const DynaNode *node = base ? base->prev : type.tagsLast; node;
         node = node->prev)
      printNode(file, *node, selector);
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
