// The record store: the loader of tree files, access by (module, kind, index)
// with one buffer a kind, and the strings of each module.
//
// A tree file is ten sections without separators, kinds 0 to 9, all numbers
// little-endian; the header is record 1 of section 0 and holds the counts.
// Records are decoded into a vector for each module and kind once, at
// start-up, and never read from disk again.

#include "store/treestore.h"
#include "base/diag.h"
#include "base/strings.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

MNode mNode;
TNode tNode;
VNode vNode;
TagRec tagRec;
SubRec subRec;
TedRec tedRec;
SNode sNode;
STabRec sTabRec;
InstRec instRec;

ModRec *currTPtr[REC_COUNT];
RecPlace recJustRead[REC_COUNT];
RecPlace writePend[REC_COUNT];

std::string stxDir;

// Records of all modules, by kind: the bound of every walk over a chain.
static int64_t recordTotals[REC_COUNT];

// The highest index that a record can be given.
constexpr int32_t maxIndex = 2147483640;

// --- the file ---------------------------------------------------------------

// The open tree file, with what has been read of it and not been taken yet.
static struct TreeFile {
  FILE *stream = nullptr;
  std::vector<uint8_t> buffer;
  size_t begin = 0;
  size_t end = 0;
  int64_t left = 0;  // octets from `begin` on; a pipe has no known size

  // The next `size` octets, or null if the file ends before.
  const uint8_t *take(size_t size)
  {
    if (end - begin < size && !fill(size))
      return nullptr;
    const uint8_t *octets = buffer.data() + begin;
    begin += size;
    left -= static_cast<int64_t>(size);
    return octets;
  }

private:
  bool fill(size_t size)
  {
    memmove(buffer.data(), buffer.data() + begin, end - begin);
    end -= begin;
    begin = 0;
    if (buffer.size() < size)
      buffer.resize(size);
    end += fread(buffer.data() + end, 1, buffer.size() - end, stream);
    return end >= size;
  }
} treeFile;

// What is read at once; the longest string section entry fits.
constexpr size_t readAhead = 256 * 1024;

static bool openTree(const std::string &path)
{
  treeFile.stream = fopen(path.c_str(), "rb");
  if (!treeFile.stream)
    return false;
  // The buffer above serves; a second copy would only cost time.
  setvbuf(treeFile.stream, nullptr, _IONBF, 0);
  treeFile.buffer.resize(readAhead);
  treeFile.begin = treeFile.end = 0;
  struct stat info = {};
  bool sized =
      fstat(fileno(treeFile.stream), &info) == 0 && S_ISREG(info.st_mode);
  treeFile.left = sized ? static_cast<int64_t>(info.st_size) : INT64_MAX;
  return true;
}

// Closes the file and hands the status through.
static int eOfFil(int status)
{
  if (treeFile.stream) {
    FILE *stream = treeFile.stream;
    treeFile.stream = nullptr;
    if (fclose(stream) != 0)
      fatalError(FATAL_CLOSE_FILE, "Syntax tree file");
  }
  return status;
}

// --- access by kind ---------------------------------------------------------

// Calls `f` with the module's section of a record kind and the kind's
// buffer; false if the kind has none.
template <class F>
static bool withRecords(ModRec &module, int kind, F f)
{
  switch (kind) {
  case REC_MNODE:
    f(module.mNodes, mNode);
    return true;
  case REC_TNODE:
    f(module.tNodes, tNode);
    return true;
  case REC_VNODE:
    f(module.vNodes, vNode);
    return true;
  case REC_TAG:
    f(module.tagRecs, tagRec);
    return true;
  case REC_SUB:
    f(module.subRecs, subRec);
    return true;
  case REC_TED:
    f(module.tedRecs, tedRec);
    return true;
  case REC_SNODE:
    f(module.sNodes, sNode);
    return true;
  case REC_STAB:
    f(module.sTabRecs, sTabRec);
    return true;
  case REC_INST:
    f(module.instRecs, instRec);
    return true;
  default:
    return false;
  }
}

// The same for strings.
template <class F>
static bool withStris(ModRec &module, int kind, F f)
{
  switch (kind) {
  case REC_STRI:
    f(module.stris);
    return true;
  case REC_STRI16:
    f(module.stris16);
    return true;
  case REC_STRI32:
    f(module.stris32);
    return true;
  default:
    return false;
  }
}

template <class T>
static T *recordAt(RecSection<T> &section, int32_t index)
{
  size_t i = static_cast<size_t>(index) - 1;
  if (index < 1 || i >= section.records.size())
    return nullptr;
  if (!section.holes.empty() && section.holes[i])
    return nullptr;
  return &section.records[i];
}

// Records of a kind that the module has, gaps not counted.
static int64_t recordsOfModule(ModRec &module, int kind)
{
  int64_t number = 0;
  withRecords(module, kind, [&](auto &section, auto &) {
    number = static_cast<int64_t>(section.records.size()) -
             std::count(section.holes.begin(), section.holes.end(), true);
  });
  withStris(module, kind, [&](auto &section) {
    number = static_cast<int64_t>(section.strings.size());
  });
  return number;
}

// --- loading ----------------------------------------------------------------

static bool outside(int32_t index, int32_t count)
{
  return index < 0 || index > count;
}

// Faults in the fields of the header whose range is fixed.
static int headerFaults()
{
  const int32_t *counts = mNode.counts;
  int faults = 0;
  faults += mNode.date < 0;
  faults += mNode.time < 0;
  faults += mNode.moduleName < 1 || mNode.moduleName > counts[REC_STRI];
  faults += outside(mNode.filePrefix, counts[REC_STRI]);
  faults += outside(mNode.firstType, counts[REC_TNODE]);
  faults += outside(mNode.firstValue, counts[REC_VNODE]);
  faults += outside(mNode.auxValueA, counts[REC_VNODE]);
  faults += outside(mNode.auxValueB, counts[REC_VNODE]);
  faults += mNode.visibilityMode > 2;
  faults += mNode.nrEntryTypes < 0;
  faults += mNode.nrVisibleTypes < 0;
  faults += mNode.nrObjects < 0;  // nrObjectSets is not looked at
  faults += outside(mNode.firstGlobalTed, counts[REC_TED]);
  faults += outside(mNode.lastGlobalTed, counts[REC_TED]);
  return faults;
}

int checkMNode(std::string &message)
{
  message.clear();
  int faults = 0;
  if (mNode.toolVersion != treeVersionAccepted &&
      mNode.treeVersion != treeVersionAccepted) {
    std::string found, expected;
    printVersionStri(found, nullptr, mNode.treeVersion, 0, nullptr);
    printVersionStri(expected, nullptr, treeVersionAccepted, 0, nullptr);
    message = "Syntax tree generated by ZELK version " + found + ", expected " +
              expected;
    ++faults;
  }
  // An older writer may write this format; a newer format is refused even
  // from a writer of this version, and without a word.
  faults += mNode.treeVersion != treeVersionAccepted;
  faults += headerFaults();
  if (faults != 0)
    return 0;
  for (int32_t count : mNode.counts)
    faults += count < 0;
  // Without its own record the header would be taken for the next section.
  faults += mNode.counts[REC_MNODE] < 1;
  return faults == 0;
}

// True if the file can still hold `count` things of at least `size` octets:
// a count beyond that would only cost memory before the section fails.
static bool fitsFile(int32_t count, size_t size)
{
  return count <= treeFile.left / static_cast<int64_t>(size);
}

// What to reserve for a section: all of it where the size of the file bears
// the count out.
static size_t reserveFor(int32_t count)
{
  bool sized = treeFile.left < INT64_MAX / 2;
  return static_cast<size_t>(sized ? count : std::min(count, 65536));
}

template <class T>
static bool readRecords(RecSection<T> &section, int kind, int32_t count)
{
  size_t size = recSize[kind];
  if (!fitsFile(count, size))
    return false;
  section.records.reserve(reserveFor(count));
  for (int32_t i = 0; i < count; ++i) {
    const uint8_t *octets = treeFile.take(size);
    if (!octets)
      return false;
    decodeRecord(kind, octets, &section.records.emplace_back());
  }
  return true;
}

static void decodeUnit(const uint8_t *octets, char &unit)
{
  unit = static_cast<char>(*octets);
}

static void decodeUnit(const uint8_t *octets, char16_t &unit)
{
  unit = littleU16(octets);
}

static void decodeUnit(const uint8_t *octets, char32_t &unit)
{
  unit = littleU32(octets);
}

static const char *internUnits(std::string_view units)
{
  return internStri(units);
}

static const char16_t *internUnits(std::u16string_view units)
{
  return internStri16(units);
}

static const char32_t *internUnits(std::u32string_view units)
{
  return internStri32(units);
}

template <class C>
static bool readStris(StriSection<C> &section, int kind, int32_t count)
{
  if (!fitsFile(count, 2 + sizeof(C)))
    return false;
  section.reserve(reserveFor(count));
  reserveUniqStris(kind, reserveFor(count));
  std::basic_string<C> units;
  for (int32_t i = 0; i < count; ++i) {
    const uint8_t *octets = treeFile.take(2);
    size_t length = octets ? littleU16(octets) : 0;
    if (length == 0 || length > maxStriUnits)
      return false;
    octets = treeFile.take(length * sizeof(C));
    if (!octets)
      return false;
    units.resize(length);
    for (size_t k = 0; k < length; ++k)
      decodeUnit(octets + k * sizeof(C), units[k]);
    if (units.back() != 0)
      return false;
    // An inner zero ends the string.
    std::basic_string_view<C> text = units.c_str();
    int32_t index = section.append(internUnits(text));
    if (text.size() + 1 < length)
      section.cut.push_back({index, static_cast<int32_t>(length) - 1});
  }
  return true;
}

// Loads one section: 1 good, 0 bad.
static int readSubTree(ModRec &module, int kind)
{
  int32_t count = mNode.counts[kind];
  bool good = false;
  int64_t before = recordsOfModule(module, kind);
  withRecords(module, kind, [&](auto &section, auto &) {
    good = readRecords(section, kind, count);
  });
  withStris(module, kind, [&](auto &section) {
    setupStriCaches(module, kind);
    good = readStris(section, kind, count);
  });
  // What a bad section gave is in the store, too.
  recordTotals[kind] += recordsOfModule(module, kind) - before;
  return good;
}

int readTree(ModRec &module, std::string &message)
{
  message.clear();
  std::string prefix = orEmpty(module.generationPrefix);
  if (backendVerbosity > 0)
    fprintf(stderr, "  %s", prefix.c_str());
  if (!openTree(stxDir + prefix + ".stx"))
    return eOfFil(READ_NOT_FOUND);
  const uint8_t *header = treeFile.take(recSize[REC_MNODE]);
  // The buffer holds no record of the store from here on.
  recJustRead[REC_MNODE] = {};
  if (!header)
    return eOfFil(READ_INVALID);
  decodeRecord(REC_MNODE, header, &mNode);
  if (!checkMNode(message))
    return eOfFil(READ_INVALID);
  // Section 0 has the header as its first record.
  treeFile.begin -= recSize[REC_MNODE];
  treeFile.left += recSize[REC_MNODE];
  for (int kind = 0; kind < storedKinds; ++kind)
    if (mNode.counts[kind] != 0 && !readSubTree(module, kind))
      return eOfFil(READ_INVALID);
  return eOfFil(READ_GOOD);
}

// --- records ----------------------------------------------------------------

void *findRPos(ModRec *module, int kind, int32_t index)
{
  void *found = nullptr;
  if (module) {
    withRecords(*module, kind, [&](auto &section, auto &) {
      found = recordAt(section, index);
    });
    withStris(*module, kind, [&](auto &section) {
      if (index >= 1 && static_cast<size_t>(index) <= section.strings.size())
        found = const_cast<void *>(static_cast<const void *>(
            section.strings[static_cast<size_t>(index) - 1]));
    });
  }
  if (!found)
    fatalError(FATAL_READ_RECORD);
  return found;
}

// Makes a zeroed record, and holes up to it.
template <class T>
static T *recordMadeAt(RecSection<T> &section, int32_t index, int kind)
{
  size_t i = static_cast<size_t>(index) - 1;
  size_t size = section.records.size();
  if (i > size && section.holes.empty())
    section.holes.resize(size, false);
  if (i > size || !section.holes.empty()) {
    if (i >= section.holes.size())
      section.holes.resize(i + 1, true);
    section.holes[i] = false;
  }
  if (i >= size)
    section.records.resize(i + 1);
  ++recordTotals[kind];
  return &(section.records[i] = T{});
}

void *findWPos(ModRec *module, int kind, int32_t index)
{
  void *found = nullptr;
  if (module && index >= 1 && index <= maxIndex) {
    withRecords(*module, kind, [&](auto &section, auto &) {
      found = recordAt(section, index);
      if (!found)
        found = recordMadeAt(section, index, kind);
    });
  }
  if (!found)
    fatalError(FATAL_WRITE_RECORD);
  return found;
}

void readRec(ModRec *module, int kind, int32_t index)
{
  // The same record again: the buffer is taken as good, edits and all.
  RecPlace &just = recJustRead[kind];
  if (just.index == index && just.module == module && module)
    return;
  if (!module)
    fatalError(FATAL_READ_RECORD);
  bool buffered = withRecords(*module, kind, [&](auto &section, auto &buffer) {
    const auto *record = recordAt(section, index);
    if (!record)
      fatalError(FATAL_READ_RECORD);
    flushRecs(kind);
    just = {module, index};
    currTPtr[kind] = module;
    buffer = *record;
  });
  if (!buffered)
    fatalError(FATAL_READ_RECORD);
}

void writeRec(ModRec *module, int kind, int32_t index)
{
  findWPos(module, kind, index);
  recJustRead[kind] = {module, index};
  currTPtr[kind] = module;
  writePend[kind] = {};
  withRecords(*module, kind, [&](auto &section, auto &buffer) {
    section.records[static_cast<size_t>(index) - 1] = buffer;
  });
}

static void flushRec(int kind)
{
  // Nothing defers a write, so there is never an index here; the place is
  // kept for a store that does.
  RecPlace pending = writePend[kind];
  if (pending.index != 0)
    writeRec(pending.module, kind, pending.index);
}

void flushRecs(int kind)
{
  if (kind >= 0)
    return flushRec(kind);
  for (int k = 0; k < REC_COUNT; ++k)
    flushRec(k);
}

void changeCMP(ModRec *module)
{
  flushRecs(-1);
  for (RecPlace &pending : writePend)
    pending.module = module;
  cMP = module;
}

void saveNodeContext(int kind, NodeContext *context)
{
  *context = recJustRead[kind];
}

void restoreNodeContext(int kind, const NodeContext *context)
{
  if (context->module && context->index != 0)
    readRec(context->module, kind, context->index);
}

void clearCursors()
{
  std::fill(std::begin(currTPtr), std::end(currTPtr), nullptr);
  std::fill(std::begin(recJustRead), std::end(recJustRead), RecPlace{});
  std::fill(std::begin(writePend), std::end(writePend), RecPlace{});
}

void initNextFree(ModRec &module)
{
  MNode &header = *static_cast<MNode *>(findRPos(&module, REC_MNODE, 1));
  for (int kind = 0; kind < storedKinds; ++kind)
    module.nextFree[kind] = header.counts[kind] + 1;
}

// --- chains -----------------------------------------------------------------

int64_t recordsOfRun(int kind)
{
  return recordTotals[kind];
}

void forgetRecords(const ModRec &module)
{
  for (int kind = 0; kind < REC_COUNT; ++kind)
    recordTotals[kind] -= recordsOfModule(const_cast<ModRec &>(module), kind);
}

void treeInconsistent(const ModRec *module)
{
  fatalError(FATAL_TREE_INCONSISTENT, module ? module->filePrefix : nullptr);
}

ChainGuard::ChainGuard(const ModRec *ofModule, int kind)
    : module(ofModule), stepsLeft(recordsOfRun(kind))
{
}

void ChainGuard::step()
{
  if (--stepsLeft < 0)
    treeInconsistent(module);
}

void forEachTNodeByMod(ModRec *module, int32_t first, NodeCallBack *f,
                       void *argument)
{
  if (!f)
    fatalError(FATAL_NO_CALL_BACK);
  SavedNode saved(REC_TNODE);
  ChainGuard guard(module, REC_TNODE);
  for (int32_t index = first; index != 0;) {
    guard.step();
    readRec(module, REC_TNODE, index);
    // Taken first: the call-back may read another node.
    index = tNode.next;
    f(argument);
  }
}

void forEachVNode(int32_t first, NodeCallBack *f, void *argument)
{
  if (!f)
    fatalError(FATAL_NO_CALL_BACK);
  SavedNode saved(REC_VNODE);
  ModRec *module = currTPtr[REC_VNODE];
  ChainGuard guard(module, REC_VNODE);
  for (int32_t index = first; index != 0;) {
    guard.step();
    readRec(module, REC_VNODE, index);
    index = vNode.next;
    f(argument);
  }
}

// --- strings ----------------------------------------------------------------

static int32_t striPlace(int32_t index)
{
  if (index == INT32_MIN)
    fatalError(FATAL_READ_RECORD);
  return index < 0 ? -index : index;
}

template <class C>
static const C *striOf(ModRec *module, int kind, int32_t index)
{
  static const C empty[1] = {};
  if (index == emptyStriIndex)
    return empty;
  return static_cast<const C *>(findRPos(module, kind, striPlace(index)));
}

const char *getStri(ModRec *module, int32_t index)
{
  return striOf<char>(module, REC_STRI, index);
}

const char16_t *getStri16(ModRec *module, int32_t index)
{
  return striOf<char16_t>(module, REC_STRI16, index);
}

const char32_t *getStri32(ModRec *module, int32_t index)
{
  return striOf<char32_t>(module, REC_STRI32, index);
}

const char *getStriOrEmpty(ModRec *module, int32_t index)
{
  return index == 0 ? "" : getStri(module, index);
}

template <class C>
static int32_t unitsInSection(const StriSection<C> &section, int32_t index)
{
  auto isBefore = [](const CutStri &cut, int32_t i) { return cut.index < i; };
  auto cut =
      std::lower_bound(section.cut.begin(), section.cut.end(), index, isBefore);
  if (cut != section.cut.end() && cut->index == index)
    return cut->units;
  const C *text = section.strings[static_cast<size_t>(index) - 1];
  return static_cast<int32_t>(std::basic_string_view<C>(text).size());
}

int32_t striUnits(ModRec *module, int kind, int32_t index)
{
  if (index == emptyStriIndex)
    return 0;
  index = striPlace(index);
  findRPos(module, kind, index);
  int32_t units = 0;
  withStris(*module, kind,
            [&](auto &section) { units = unitsInSection(section, index); });
  return units;
}

StriIndex &setupStriCaches(ModRec &module, int kind)
{
  StriIndex *cache = nullptr;
  withStris(module, kind, [&](auto &section) { cache = &section.cache; });
  if (!cache)
    fatalError(FATAL_INTERNAL);
  return *cache;
}

template <class C>
static int32_t putInterned(ModRec &module, StriSection<C> &section, int kind,
                           const C *interned)
{
  int32_t index = section.find(interned);
  // While a tree is loading its strings can only be looked up.
  if (index != 0 || module.nextFree[kind] == 0)
    return index;
  index = section.append(interned);
  module.nextFree[kind] = index + 1;
  ++recordTotals[kind];
  currTPtr[kind] = &module;
  return index;
}

int32_t putStriInternal(ModRec *module, const void *text, int kind)
{
  if (!module || !text)
    fatalError(FATAL_WRITE_RECORD);
  setupStriCaches(*module, kind);
  const void *interned = allocateUniqStri(text, kind);
  int32_t index = 0;
  withStris(*module, kind, [&](auto &section) {
    using Text = std::decay_t<decltype(section.strings[0])>;
    index = putInterned(*module, section, kind, static_cast<Text>(interned));
  });
  return index;
}

int32_t putStri(ModRec *module, const char *text)
{
  return putStriInternal(module, text, REC_STRI);
}

int32_t putStri16(ModRec *module, const char16_t *text)
{
  return putStriInternal(module, text, REC_STRI16);
}

int32_t putStri32(ModRec *module, const char32_t *text)
{
  return putStriInternal(module, text, REC_STRI32);
}
