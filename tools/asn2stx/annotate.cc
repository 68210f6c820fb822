// Annotations: notes in ASN.1 comments that change records. The words are in
// docs/asn2stx.md.

#include "asn2stx/annotate.h"
#include "base/strings.h"
#include "options/params.h"
#include <cstdlib>
#include <iterator>

// --- values of words --------------------------------------------------------

static bool needsValue(Compilation &c, const AsnAnnotation &note)
{
  if (note.hasValue && !note.value.empty())
    return true;
  asnError(c.errors, note.pos, "annotation %s needs a value",
           asnQuoted(note.key).c_str());
  return false;
}

static void badValue(Compilation &c, const AsnAnnotation &note)
{
  asnError(c.errors, note.pos, "bad value %s of annotation %s",
           asnQuoted(note.value).c_str(), asnQuoted(note.key).c_str());
}

// A number in decimal or, behind "0x", in hexadecimal.
static bool numberOf(Compilation &c, const AsnAnnotation &note, int64_t least,
                     int64_t most, int64_t &number)
{
  if (!needsValue(c, note))
    return false;
  const char *text = note.value.c_str();
  char *end = nullptr;
  errno = 0;
  bool hexadecimal = startsWith(text, "0x");
  number = strtoll(text, &end, hexadecimal ? 16 : 10);
  if (*end || errno != 0 || number < least || number > most) {
    badValue(c, note);
    return false;
  }
  return true;
}

// A representation code by its name without "VF_", in any case.
static bool fieldOf(Compilation &c, const AsnAnnotation &note, uint8_t &field)
{
  if (!needsValue(c, note))
    return false;
  std::string name = "VF_" + note.value;
  for (int code = 0; code < VF_COUNT; ++code) {
    if (strCaseComp(vfIdName(code), name.c_str()) == 0) {
      field = static_cast<uint8_t>(code);
      return true;
    }
  }
  badValue(c, note);
  return false;
}

// "ignore" is 0, "error" is 1.
static bool actionOf(Compilation &c, const AsnAnnotation &note, uint8_t &action)
{
  bool isError = note.value == "error";
  if (note.hasValue && !isError && note.value != "ignore") {
    badValue(c, note);
    return false;
  }
  action = isError;
  return true;
}

// --- the node at hand -------------------------------------------------------

struct NoteTarget {
  Compilation &c;
  int module;
  StxTree &tree;
  int32_t node;
};

typedef void ApplyNote(NoteTarget &target, const AsnAnnotation &note);

struct NoteWord {
  const char *word;
  ApplyNote *apply;
};

static TNode &typeOf(NoteTarget &target)
{
  return stxTypeAt(target.tree, target.node);
}

// Option bits, by the names that the layouts give them.
struct OptionWord {
  const char *word;
  int bit;
};

static const OptionWord optionWords[] = {
    {"asnhome", optAsnHome},
    {"pointer", optPointer},
    {"asnhc", optAsnhc},
    {"ptrcomps", optPtrComps},
    {"frame", optFrame},
    {"homelist", optHomeList},
    {"homeelems", optHomeElems},
    {"dynamicarray", optDynamicArray},
    {"inherited15", optInherited15},
    {"extmarkerfield", optExtMarkerField},
};

struct FlagWord {
  const char *word;
  uint16_t flag;
};

static const FlagWord flagWords[] = {
    {"optionalcomps", NF_OPTIONAL_COMPS},
    {"untaggedcomps", NF_UNTAGGED_COMPS},
    {"recursive", NF_RECURSIVE},
    {"mandatorycomps", NF_MANDATORY_COMPS},
    {"extensible", NF_EXTENSIBLE},
    {"automatictags", NF_AUTOMATIC_TAGS},
    {"ignorable", NF_IGNORABLE},
};

// Sets an option bit or a summary bit by its word, "no-" clearing it.
static bool applyBit(NoteTarget &target, const std::string &key)
{
  TNode &node = typeOf(target);
  bool clear = key.starts_with("no-");
  std::string word = clear ? key.substr(3) : key;
  for (const OptionWord &row : optionWords) {
    if (word == row.word) {
      uint32_t mask = 1u << row.bit;
      node.nodeOptions =
          clear ? node.nodeOptions & ~mask : node.nodeOptions | mask;
      return true;
    }
  }
  for (const FlagWord &row : flagWords) {
    if (word == row.word) {
      node.nodeFlags = static_cast<uint16_t>(clear ? node.nodeFlags & ~row.flag
                                                   : node.nodeFlags | row.flag);
      if (row.flag == NF_IGNORABLE && clear)
        moduleAt(target.c, target.module).notIgnorable.push_back(target.node);
      return true;
    }
  }
  return false;
}

// --- words of types ---------------------------------------------------------

static void applyField(NoteTarget &target, const AsnAnnotation &note)
{
  fieldOf(target.c, note, typeOf(target).valueField);
}

static void applySize(NoteTarget &target, const AsnAnnotation &note)
{
  fieldOf(target.c, note, typeOf(target).valueFieldSize);
}

static void applySkip(NoteTarget &target, const AsnAnnotation &note)
{
  uint8_t kind = 0;
  if (!actionOf(target.c, note, kind))
    return;
  TNode &node = typeOf(target);
  node.nodeOptions |= 1u << optSkip;
  node.typeOptions.skipKind = kind;
}

static void applyLimit(NoteTarget &target, const AsnAnnotation &note)
{
  int64_t limit = 0;
  if (numberOf(target.c, note, 1, INT32_MAX, limit))
    typeOf(target).typeOptions.sizeLimit = static_cast<int32_t>(limit);
}

static void applyLimitAction(NoteTarget &target, const AsnAnnotation &note)
{
  if (needsValue(target.c, note))
    actionOf(target.c, note, typeOf(target).typeOptions.limitAction);
}

static void applyDefiniteLen(NoteTarget &target, const AsnAnnotation &note)
{
  int64_t choice = 0;
  if (numberOf(target.c, note, 0, 255, choice))
    typeOf(target).typeOptions.definiteLength = static_cast<uint8_t>(choice);
}

static void applyEntry(NoteTarget &target, const AsnAnnotation &note)
{
  uint8_t category = 0;
  if (!entryCategory(note.value, category))
    return badValue(target.c, note);
  TNode &node = typeOf(target);
  node.entryFlags |= entryOfBoth;
  node.entryCategory = category;
}

static void applyEntryBits(NoteTarget &target, const AsnAnnotation &note)
{
  int64_t bits = 0;
  if (numberOf(target.c, note, 0, 255, bits))
    typeOf(target).entryFlags = static_cast<uint8_t>(bits);
}

static void applyVisible(NoteTarget &target, const AsnAnnotation &)
{
  typeOf(target).classFlags |= CF_VISIBLE;
}

static void applyHidden(NoteTarget &target, const AsnAnnotation &)
{
  typeOf(target).hidden = 1;
}

// A naming option of the node, with or without its "-"; its name in
// capitals.
static std::string lineOf(const AsnAnnotation &note)
{
  std::string line =
      note.value.starts_with("-") ? note.value : "-" + note.value;
  return optionToUpper(line);
}

static void applyOption(NoteTarget &target, const AsnAnnotation &note)
{
  if (needsValue(target.c, note))
    stxNodeTed(target.tree, target.node, TED_FRONT_END, lineOf(note));
}

static void applyBeo(NoteTarget &target, const AsnAnnotation &note)
{
  if (needsValue(target.c, note))
    stxNodeTed(target.tree, target.node, TED_BACK_END,
               backEndOption(note.value));
}

// "E1:text": the key of the place, then the text.
static void applyEmbed(NoteTarget &target, const AsnAnnotation &note)
{
  if (note.value.size() < 3 || note.value[2] != ':')
    return badValue(target.c, note);
  stxNodeTed(target.tree, target.node, TED_EMBEDDING, "-" + note.value);
}

static const NoteWord typeWords[] = {
    {"field", applyField},
    {"size", applySize},
    {"skip", applySkip},
    {"limit", applyLimit},
    {"limitaction", applyLimitAction},
    {"definitelen", applyDefiniteLen},
    {"entry", applyEntry},
    {"entrybits", applyEntryBits},
    {"visible", applyVisible},
    {"hidden", applyHidden},
    {"option", applyOption},
    {"beo", applyBeo},
    {"embed", applyEmbed},
};

// --- words of values --------------------------------------------------------

static const NoteWord valueWords[] = {
    {"visible",
     [](NoteTarget &target, const AsnAnnotation &) {
       stxValueAt(target.tree, target.node).valueFlags |= VFL_VISIBLE;
     }},
    {"hidden",
     [](NoteTarget &target, const AsnAnnotation &) {
       stxValueAt(target.tree, target.node).hidden = 1;
     }},
    {"option",
     [](NoteTarget &target, const AsnAnnotation &note) {
       if (needsValue(target.c, note))
         stxValueTed(target.tree, target.node, TED_FRONT_END, lineOf(note));
     }},
    {"beo",
     [](NoteTarget &target, const AsnAnnotation &note) {
       if (needsValue(target.c, note))
         stxValueTed(target.tree, target.node, TED_BACK_END,
                     backEndOption(note.value));
     }},
};

// --- words of modules -------------------------------------------------------

static const NoteWord moduleWords[] = {
    {"prefix", [](NoteTarget &, const AsnAnnotation &) {}},  // taken before
    {"visibility",
     [](NoteTarget &target, const AsnAnnotation &note) {
       int64_t mode = 0;
       if (numberOf(target.c, note, 0, 2, mode))
         target.tree.header.visibilityMode = static_cast<uint8_t>(mode);
     }},
    {"option",
     [](NoteTarget &target, const AsnAnnotation &note) {
       if (needsValue(target.c, note))
         stxGlobalOption(target.tree, TED_FRONT_END, lineOf(note));
     }},
    {"beo",
     [](NoteTarget &target, const AsnAnnotation &note) {
       if (needsValue(target.c, note))
         stxGlobalOption(target.tree, TED_BACK_END, backEndOption(note.value));
     }},
};

// --- application ------------------------------------------------------------

template <size_t n>
static bool applyWord(const NoteWord (&words)[n], NoteTarget &target,
                      const AsnAnnotation &note)
{
  for (const NoteWord &row : words) {
    if (note.key == row.word) {
      row.apply(target, note);
      return true;
    }
  }
  return false;
}

static void unknownWord(Compilation &c, const AsnAnnotation &note)
{
  asnError(c.errors, note.pos, "unknown annotation %s",
           asnQuoted(note.key).c_str());
}

const AsnAnnotation *prefixNote(const AstNotes &notes)
{
  for (const AsnAnnotation &note : notes)
    if (note.key == "prefix")
      return &note;
  return nullptr;
}

void annotateModule(Compilation &c, int module, const AstNotes &notes)
{
  NoteTarget target = {c, module, treeOf(c, module), 0};
  for (const AsnAnnotation &note : notes)
    if (!applyWord(moduleWords, target, note))
      unknownWord(c, note);
}

void annotateType(Compilation &c, int module, int32_t node,
                  const AstNotes &notes)
{
  NoteTarget target = {c, module, treeOf(c, module), node};
  for (const AsnAnnotation &note : notes)
    if (!applyWord(typeWords, target, note) && !applyBit(target, note.key))
      unknownWord(c, note);
}

void annotateValue(Compilation &c, int module, int32_t node,
                   const AstNotes &notes)
{
  NoteTarget target = {c, module, treeOf(c, module), node};
  for (const AsnAnnotation &note : notes)
    if (!applyWord(valueWords, target, note))
      unknownWord(c, note);
}
