// Tags. A type's list of dynamic nodes holds tags and embedding options in
// the order of the chain, from the outside in; the chain through `nextInner`
// links the tags alone, outermost first.

#include "model/tags.h"
#include "base/diag.h"
#include "base/strings.h"

// Modes: a tag in the state "explicit" is stored, and its own mode is the
// next state.
constexpr int tagExplicit = 1;

// Embedding options of a node, beside which no other kind is written.
constexpr int embeddingKindOptions = 2;

// --- building ---------------------------------------------------------------

// A node for a tag of the current type node: the last one, if it has no tag
// yet and came from there.
static DynaNode *nodeForTag(AsnType &type)
{
  const RecPlace &current = recJustRead[REC_TNODE];
  DynaNode *last = type.tagsLast;
  if (last && last->tagClass == TAG_NOT_A_TAG &&
      last->module == current.module && last->record == current.index)
    return last;
  return insDynaNode(type.tagsFirst, type.tagsLast);
}

static void storeTag(AsnType &type, int32_t tagClass, int32_t tagNumber)
{
  DynaNode *node = nodeForTag(type);
  node->tagClass = tagClass;
  node->tagNumber = tagNumber;
}

void setEmbeddingOptionsFromTNode(DynaNode *&first, DynaNode *&last)
{
  if (!(tNode.nodeOptions >> optEmbedding & 1))
    return;
  DynaNode *node = insDynaNode(first, last);
  node->embeddingKind = embeddingKindOptions;
  node->embedding = {tNode.firstTed, tNode.lastTed};
}

void getTagsAndEmbeddingOpts(AsnType &type, int &tagState)
{
  ModRec *module = currTPtr[REC_TNODE];
  setEmbeddingOptionsFromTNode(type.tagsFirst, type.tagsLast);
  ChainGuard guard(module, REC_TAG);
  for (int32_t index = tNode.firstTag; index != 0; index = tagRec.nextTag) {
    guard.step();
    readRec(module, REC_TAG, index);
    if (tagState == tagExplicit)
      storeTag(type, tagRec.tagClass, tagRec.tagNumber);
    tagState = tagRec.tagMode;
  }
}

// Types that stand for the tags of whatever is inside.
static bool isTagless(int mainType)
{
  return mainType == TYP_CHOICE || mainType == TYP_ANY || mainType == TYP_OPEN;
}

static void addUniversalTag(AsnType &son, int tagState)
{
  int mainType = tNode.mainType;
  if (tagState != tagExplicit || isTagless(mainType) ||
      mainType == TYP_FIELDLIST || mainType == TYP_EXTENSION_MARKER)
    return;
  const MainTypeRow &row = typeRow(mainType);
  storeTag(son, row.tagClass, row.tagNumber);
}

// A tag that came from the type's own node.
static bool isLocalTag(const AsnType &type, const DynaNode &node)
{
  return node.module == type.compModRec && node.record == type.compRecNr &&
         node.tagClass != TAG_UNI && node.tagClass != TAG_NOT_A_TAG;
}

// Links the tags, and counts them and those of the son's own node.
static void linkTags(AsnType &son)
{
  for (DynaNode *node = son.tagsLast; node; node = node->prev) {
    if (node->tagClass == TAG_NOT_A_TAG)
      continue;
    node->nextInner = son.tagsOutermost;
    son.tagsOutermost = node;
    ++son.nrTags;
    if (isLocalTag(son, *node))
      ++son.nrLocalTags;
  }
}

static bool hasAutomaticTags(const AsnType *type)
{
  return type && type->base.nodeFlags & NF_AUTOMATIC_TAGS;
}

// A COMPONENTS OF entry tags as the structure does that it stands in.
static bool isAutomaticallyTagged(const AsnType *father)
{
  bool isEntry = father && father->compStatus == TCS_COMPOF;
  return hasAutomaticTags(isEntry ? father->father : father);
}

static void setContextTag(AsnType &son, DynaNode *node, int autoTagNr)
{
  node->tagClass = TAG_CTX;
  node->tagNumber = autoTagNr;
  son.nrLocalTags = 1;
}

void initSonTags(AsnType *father, AsnType &son, int tagState, int autoTagNr)
{
  addUniversalTag(son, tagState);
  linkTags(son);
  if (tNode.mainType == TYP_EXTENSION_MARKER || !isAutomaticallyTagged(father))
    return;
  if (son.tagsOutermost) {
    setContextTag(son, son.tagsOutermost, autoTagNr);
  } else if (isTagless(tNode.mainType)) {
    DynaNode *node = nodeForTag(son);
    setContextTag(son, node, autoTagNr);
    son.tagsOutermost = node;
    son.nrTags = 1;
  }
}

// --- visits -----------------------------------------------------------------

static int positionOf(int index, int count)
{
  int position = 0;
  if (index == 0)
    position |= TAG_OUTERMOST;
  if (index == count - 1)
    position |= TAG_INNERMOST;
  return position ? position : TAG_MIDDLE;
}

static void visitTag(AsnType &type, TagCallBack *cb, const DynaNode &node,
                     int index)
{
  AsnTag tag = {node.tagClass, node.tagNumber};
  cb(type, tag, index);
}

// The tag ahead of a node in the chain.
static const DynaNode *outerTag(const AsnType &type, const DynaNode *node)
{
  const DynaNode *tag = type.tagsOutermost;
  while (tag && tag->nextInner != node)
    tag = tag->nextInner;
  if (!tag)
    fatalError(FATAL_INTERNAL);
  return tag;
}

void forTags(AsnType &type, TagCallBack *cb, int positions, bool reverse)
{
  int count = type.nrTags;
  // The only tag is the innermost one as well. Asked ahead of everything.
  if (count == 1 && positions == (TAG_OUTERMOST | TAG_MIDDLE))
    return;
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  if (count == 0)
    return;
  const DynaNode *node = type.tagsOutermost;
  if (reverse)
    node = outerTag(type, nullptr);
  for (int i = 0; i < count; ++i) {
    int index = reverse ? count - 1 - i : i;
    if (positionOf(index, count) & positions)
      visitTag(type, cb, *node, index);
    if (i + 1 < count)
      node = reverse ? outerTag(type, node) : node->nextInner;
  }
}

void forEachTag(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_ALL, false);
}

void forEachTagRevOrd(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_ALL, true);
}

void forOutermostTag(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_OUTERMOST, false);
}

void forOutermostTags(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_OUTERMOST | TAG_MIDDLE, false);
}

void forOutermostTagsRevOrd(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_OUTERMOST | TAG_MIDDLE, true);
}

void forInnermostTag(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_INNERMOST, false);
}

void forInnermostTags(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_MIDDLE | TAG_INNERMOST, false);
}

void forInnermostTagsRevOrd(AsnType &type, TagCallBack *cb)
{
  forTags(type, cb, TAG_MIDDLE | TAG_INNERMOST, true);
}

void forEachLocalTag(AsnType &type, TagCallBack *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  int index = 0;
  for (const DynaNode *tag = type.tagsOutermost; tag; tag = tag->nextInner)
    if (isLocalTag(type, *tag))
      visitTag(type, cb, *tag, index++);
}

void forEachLocalTagRevOrd(AsnType &type, TagCallBack *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  int index = 0;
  for (const DynaNode *tag = type.tagsOutermost; tag; tag = tag->nextInner)
    index += isLocalTag(type, *tag);
  // The list has the tags in the order of the chain.
  for (const DynaNode *node = type.tagsLast; index > 0; node = node->prev)
    if (isLocalTag(type, *node))
      visitTag(type, cb, *node, --index);
}

int32_t getNrOfTags(const AsnType &type) { return type.nrTags; }

int32_t getNrOfLocalTags(const AsnType &type) { return type.nrLocalTags; }

int32_t getTagClass(const AsnTag &tag) { return tag.tagClass; }

int32_t getTagNumber(const AsnTag &tag) { return tag.tagNumber; }

// --- texts ------------------------------------------------------------------

static const char *tagClassName(int tagClass)
{
  static const char *const names[] = {"TAG_UNI", "TAG_APP", "TAG_CTX",
                                      "TAG_PRV"};
  return tagClass >= TAG_UNI && tagClass <= TAG_PRV ? names[tagClass] : "";
}

std::string &getTagClassStri(std::string &text, const char *prefix,
                             const AsnTag &tag, const char *suffix)
{
  return between(text, prefix, tagClassName(tag.tagClass), suffix);
}

std::string &getTagNumberStri(std::string &text, const char *prefix,
                              const AsnTag &tag, const char *suffix)
{
  return between(text, prefix, std::to_string(tag.tagNumber), suffix);
}

int getBuiltinTypeTagClass(int mainType)
{
  return mainType >= 0 && mainType <= TYP_INSTANCE_OF
             ? typeRow(mainType).tagClass
             : TAG_UNI;
}

int getBuiltinTypeTagNumber(int mainType)
{
  return mainType >= 0 && mainType <= TYP_INSTANCE_OF
             ? typeRow(mainType).tagNumber
             : typeRow(TYP_NONE).tagNumber;
}

std::string &getBuiltinTypeTagClassStri(std::string &text, const char *prefix,
                                        int mainType, const char *suffix)
{
  return between(text, prefix, tagClassName(getBuiltinTypeTagClass(mainType)),
                 suffix);
}

std::string &getBuiltinTypeTagNumberStri(std::string &text, const char *prefix,
                                         int mainType, const char *suffix)
{
  int number = getBuiltinTypeTagNumber(mainType);
  std::string middle = number >= 0    ? std::to_string(number)
                       : number == -3 ? "TNR_ANY"
                       : number == -2 ? "TNR_CHOICE"
                                      : "TNR_NONE";
  return between(text, prefix, middle, suffix);
}

std::string &getTagStriClassNumber(std::string &text, const char *prefix,
                                   int tagClass, bool constructed,
                                   int32_t number, const char *suffix)
{
  std::string middle =
      formatText("TAG(%s%s, %ld)", tagClassName(tagClass),
                 constructed ? ", TAG_STR" : ", TAG_PRI",
                 static_cast<long>(number));
  return between(text, prefix, middle, suffix);
}

std::string &getTagStri(std::string &text, const char *prefix,
                        const AsnTag &tag, bool constructed,
                        const char *suffix)
{
  return getTagStriClassNumber(text, prefix, tag.tagClass, constructed,
                               tag.tagNumber, suffix);
}
