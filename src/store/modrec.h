#pragma once
#include "store/fixrec.h"
#include "store/records.h"
#include "store/stamp.h"
#include "store/stricache.h"
#include <string>
#include <unordered_map>
#include <vector>

// Module records: one for each ASN.1 module of the run, whether it is
// generated or only imported. Names are interned strings or null.

struct BEModMetaRec;
struct ModRec;

// First and last index in kind 5; a first of 0 means 1, a last of 0 none.
struct TedRange {
  int32_t first = 0;
  int32_t last = 0;
};

// The options of the front-end's catalogue that a tree can bring along, with
// their defaults. Texts are empty where an option is absent.
struct GlobalOptions {
  FixRec fixRecs[fixHeadCount];  // in the order T, CL, V, VS, O, OS, C, F
  FixRec entryFixRec;

  uint8_t encF = 255;  // bit vectors of functions
  uint8_t decF = 255;
  uint8_t askF = 255;
  uint8_t priF = 255;
  uint8_t altEncF[8] = {};
  uint8_t altDecF[8] = {};
  uint8_t allow = 0;
  TedRange commentTed;  // global comment lines

  std::string info;  // printed in file headers
  std::string cDirectory;
  std::string hDirectory;
  uint8_t genArr[17] = {};  // by file category
  uint8_t intSize = 0;
  uint8_t nSize = 0;
  uint8_t compMaskSize = 0;
  uint8_t choiceSize = 0;
  uint8_t realSize = 11;
  uint8_t pushPath = 0;
  uint8_t xref = 1;
  uint8_t list = 1;
  uint8_t ansiC = 1;
  uint8_t reentrant = 0;
  uint8_t plmBoole = 0;
  uint8_t near = 0;
  uint8_t altTab = 0;
  uint8_t asnHc = 0;
  uint8_t optVars = 0;
  uint8_t omitSkippedFields = 0;
  int32_t standardVersion = 1994;
  uint8_t definitionCategory = 0;
  uint8_t decimals = 255;
  uint8_t compTag = 0;
  uint8_t explicitTag = 0;
  uint8_t nameLen = 32;  // characters of a generated name
  uint8_t recursion = 0;
  uint8_t tagUsage = 0;
  uint8_t generate = 3;
  uint8_t memory = 0;
  uint8_t definiteLen = 0;
  uint8_t extensions = 1;
  uint8_t zeroHome = 0;
  uint8_t tDefs = 0;
  uint8_t cDefs = 0;
  uint8_t tabO = 0;
  uint8_t setN = 2;
  uint8_t altMax = 0;
  uint32_t cGeneration = 0;  // bits by the numbers of C-GENERATION
  int32_t segListLim = 16384;
  int32_t dynListLim = 4096;
  int32_t dynArrLim = 0;
  int32_t segStrLim = 16384;
  int32_t dynStrLim = 4096;
  int32_t split = 0;
  RealVal realLim;
  std::string combine;
  std::string tabRef;

  ModRec *prefixes = nullptr;  // auxiliary record: owner of the prefix table
  uint8_t prefixLen = 0;       // 0: none of its own yet
  const char *sourceDirectory = nullptr;
  const char *sourceFileName = nullptr;
  int32_t nrEntryTypes = 0;
  int32_t nrVisibleTypes = 0;
  int32_t nrObjects = 0;
  int32_t nrObjectSets = 0;
  TedRange globalTed;
};

// One import entry of a tree.
struct PicRec {
  const char *moduleName = nullptr;
  StampRec stamp;
  int32_t moduleNumber = 0;  // of the entry, 2 or above
  int32_t auxValueB = 0;
  ModRec *module = nullptr;  // null if reading it failed
  bool usesDeclarations = false;
  PicRec *next = nullptr;
};

// Flags that the C toolkit keeps per module and per type: which are known,
// and their values.
struct InfoCache {
  uint32_t known = 0;
  uint32_t value = 0;
};

enum TreeStatus : uint8_t {
  TREE_NOT_READ = 0,
  TREE_FAILED = 1,
  TREE_READ = 2,
  TREE_PREDEFINED = 3  // no file behind it
};

// Records of one kind. A record that was never written or read is no record:
// `holes` is empty unless a write has left a gap.
template <class T>
struct RecSection {
  std::vector<T> records;
  std::vector<bool> holes;
};

struct ModRec {
  const char *moduleName = nullptr;  // null until the tree is read
  StampRec stamp;
  const char *filePrefix = nullptr;
  const char *generationPrefix = nullptr;
  int32_t auxValueB = 0;

  RecSection<MNode> mNodes;
  RecSection<TNode> tNodes;
  RecSection<VNode> vNodes;
  RecSection<TagRec> tagRecs;
  RecSection<SubRec> subRecs;
  RecSection<TedRec> tedRecs;
  RecSection<SNode> sNodes;
  StriSection<char> stris;
  StriSection<char16_t> stris16;
  StriSection<char32_t> stris32;
  RecSection<STabRec> sTabRecs;
  RecSection<InstRec> instRecs;

  uint8_t treeStatus = TREE_NOT_READ;
  char metaChar = 0;
  GlobalOptions options;
  PicRec *firstImport = nullptr;
  PicRec *lastImport = nullptr;
  std::vector<PicRec *> importsByNumber;                     // entry k at k - 2
  std::unordered_map<const char *, PicRec *> importsByName;  // interned
  ModRec *next = nullptr;
  int32_t listPosition = 0;  // in the whole list, from 0
  bool inGenerationList = false;

  int32_t firstType = 0;
  int32_t firstValue = 0;
  int32_t auxValueA = 0;
  int32_t nextFree[REC_COUNT] = {};  // 0 while the tree is loading
  uint8_t tagDefault = 0;
  uint8_t visibilityMode = 0;
  uint8_t automaticTags = 0;
  int32_t nrWarnings = 0;
  BEModMetaRec *beMeta = nullptr;
  TedRange commandLineTed;
  InfoCache moduleInfoCache;
  std::vector<InfoCache> typeInfoCache;  // by type node, from 0
  std::vector<ModRec *> combined;        // the module's group
};

// The whole list, the generation list (its leading stretch: the modules
// named on the command line) and the current module.
extern ModRec *bOfModRList;
extern ModRec *eOfModRList;
extern ModRec *fstOfModRList;
extern ModRec *lstOfModRList;
extern ModRec *cMP;
