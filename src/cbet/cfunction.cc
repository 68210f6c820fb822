// Heads, prototypes and calls of generated functions.

#include "cbet/cfunction.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/chome.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include <cstring>

const char *const externPrefix = "extern ";

// What a run without additions has.
static const CFunctionInfo noAdditions;

static const CFunctionInfo &orNone(const CFunctionInfo *info)
{
  return info ? *info : noAdditions;
}

static bool isAnsi(const AsnType &type)
{
  return getGlobalOptions(*getModuleOfType(type)).ansiC != 0;
}

static void emit(CArgEmitter *emitter, int file, AsnType &type)
{
  if (emitter)
    emitter(file, type);
}

// --- the writer of heads ----------------------------------------------------

// The function's place in the tree of what was generated.
static void addBrowserNode(int file, const CFuncHead &head)
{
  if (file == 0 || !adeIsActive())
    return;
  std::string name = orEmpty(head.namePrefix);
  name += orEmpty(head.nameBody);
  name += "()";
  std::string directory, fileName;
  const std::string *hasDirectory = dirOfF(directory, nullptr, file, nullptr);
  const std::string *hasName = nameOfFnoDir(fileName, nullptr, file, nullptr);
  bool isExtern = strcmp(orEmpty(head.prefixText), externPrefix) == 0;
  adeBrowserAddFunctionNode(
      name.c_str(), hasDirectory ? directory.c_str() : nullptr,
      hasName ? fileName.c_str() : nullptr, linesInF(file) + 1,
      isExtern ? "extern" : "function");
}

// The run-time's macros drop the argument where it is a global.
static void genArg(int file, const CFuncHead &head)
{
  const char *macro = head.homeArg ? "ASNG_F" : "ASNG_L";
  const char *gap = head.homeArg ? " " : "";
  const char *gType = orEmpty(head.gType);
  const char *gName = orEmpty(head.gName);
  if (*gType)
    printfToF(file, "%s(%s *%s)%s", macro, gType, gName, gap);
  else if (*gName)
    printfToF(file, "%s(%s)%s", macro, gName, gap);
}

void cFunc(int file, AsnType &type, const CFuncHead &head)
{
  const char *resultType = head.resultType;
  if (!resultType)
    resultType = orNone(head.info).returnType;
  printfToF(file, "%s%s %s%s (", orEmpty(head.prefixText),
            resultType ? resultType : "void", orEmpty(head.namePrefix),
            orEmpty(head.nameBody));
  addBrowserNode(file, head);
  if (!head.homeArgEmitter)
    genArg(file, head);
  emit(head.preArgs, file, type);
  if (!head.homeArgEmitter && !head.postArgs) {
    printfToF(file, "%s)%s", orEmpty(head.homeArg), orEmpty(head.tail));
    return;
  }
  if (head.homeArgEmitter)
    head.homeArgEmitter(file, type);
  else
    wToF(file, head.homeArg);
  emit(head.postArgs, file, type);
  printfToF(file, ")%s", orEmpty(head.tail));
}

// --- prototypes and definitions ---------------------------------------------

// What normal functions and entry functions differ in.
struct HomeForm {
  std::string homeArg;  // the argument with its type
  const char *name;     // the argument alone
};

static HomeForm formOfNormal(const AsnType &type)
{
  std::string name;
  return {getDefTypeId(name, nullptr, type, " *home"), "home"};
}

static HomeForm formOfEntry(const AsnType &type)
{
  if (isVarnoApplication(*getModuleOfType(type)))
    return {"ASNHOME **hometab", "hometab"};
  return formOfNormal(type);
}

static void writeProto(int file, const char *prefix, int gIndex,
                       const CFunctionInfo *info, AsnType &type,
                       const HomeForm &form)
{
  const CFunctionInfo &args = orNone(info);
  bool ansi = isAnsi(type);
  std::string name;
  getDefTypeId(name, nullptr, type, nullptr);
  std::string homeArg = ansi ? form.homeArg : "/* " + form.homeArg + " */";
  fArr[file].indent = 0;
  cFunc(file, type,
        {.prefixText = externPrefix,
         .info = info,
         .namePrefix = prefix,
         .nameBody = name.c_str(),
         .gType = ansi ? cGetGType(gIndex) : nullptr,
         .gName = ansi ? cGetGName(gIndex) : nullptr,
         .preArgs = args.protoPreArgs,
         .homeArg = homeArg.c_str(),
         .homeArgEmitter = args.protoHomeArg,
         .postArgs = args.protoPostArgs,
         .tail = ";\n"});
}

// The head as far as its line end; without ANSI the declarations follow.
static void writeDef(int file, const char *prefix, int gIndex,
                     const CFunctionInfo *info, AsnType &type,
                     const HomeForm &form)
{
  const CFunctionInfo &args = orNone(info);
  bool ansi = isAnsi(type);
  std::string name;
  getDefTypeId(name, nullptr, type, nullptr);
  fArr[file].indent = 0;
  cFunc(file, type,
        {.info = info,
         .namePrefix = prefix,
         .nameBody = name.c_str(),
         .gType = ansi ? cGetGType(gIndex) : nullptr,
         .gName = cGetGName(gIndex),
         .preArgs = ansi ? args.ansiPreArgs : args.oldPreArgs,
         .homeArg = ansi ? form.homeArg.c_str() : form.name,
         .homeArgEmitter = ansi ? args.ansiHomeArg : args.oldHomeArg,
         .postArgs = ansi ? args.ansiPostArgs : args.oldPostArgs,
         .tail = "\n"});
}

static void declareGenArg(int file, int gIndex)
{
  printfToF(file, "ASNG_DEF(%s *%s)\n", cGetGType(gIndex), cGetGName(gIndex));
}

static void declareHome(int file, const CFunctionInfo &args, AsnType &type,
                        const HomeForm &form)
{
  emit(args.oldPreDecl, file, type);
  if (args.oldHomeDecl)
    args.oldHomeDecl(file, type);
  else
    wToF(file, (form.homeArg + ";\n").c_str());
  emit(args.oldPostDecl, file, type);
}

void cFunctionProto(int file, const char *prefix, int gIndex,
                    const CFunctionInfo *info, AsnType &type)
{
  writeProto(file, prefix, gIndex, info, type, formOfNormal(type));
}

void cVoidFunctionProto(int file, const char *prefix, int gIndex, AsnType &type)
{
  cFunctionProto(file, prefix, gIndex, nullptr, type);
}

void cFunctionDef(int file, const char *prefix, int gIndex,
                  const CFunctionInfo *info, AsnType &type)
{
  HomeForm form = formOfNormal(type);
  writeDef(file, prefix, gIndex, info, type, form);
  if (!isAnsi(type)) {
    const CFunctionInfo &args = orNone(info);
    if (!args.oldHomeArg && *cGetGName(gIndex))
      declareGenArg(file, gIndex);
    declareHome(file, args, type, form);
  }
  cResetVars();
}

void cVoidFunctionDef(int file, const char *prefix, int gIndex, AsnType &type)
{
  cFunctionDef(file, prefix, gIndex, nullptr, type);
}

void cEntryFunctionProto(int file, const char *prefix, int gIndex,
                         const CFunctionInfo *info, AsnType &type)
{
  writeProto(file, prefix, gIndex, info, type, formOfEntry(type));
}

void cEntryFunctionDef(int file, const char *prefix, int gIndex,
                       const CFunctionInfo *info, AsnType &type)
{
  writeDef(file, prefix, gIndex, info, type, formOfEntry(type));
  if (!isAnsi(type))
    cNonAnsiCEntryFuncArgDef(file, gIndex, info, type);
  cResetVars();
}

// Here it is the home's declaration, not its name, whose replacement takes
// over the generation argument as well.
void cNonAnsiCEntryFuncArgDef(int file, int gIndex, const CFunctionInfo *info,
                              AsnType &type)
{
  const CFunctionInfo &args = orNone(info);
  if (!args.oldHomeDecl && *cGetGName(gIndex))
    declareGenArg(file, gIndex);
  declareHome(file, args, type, formOfEntry(type));
}

// --- calls ------------------------------------------------------------------

// The generation argument of a call; false if there is none.
static bool genArgRef(int file, int gIndex)
{
  const char *name = cGetGName(gIndex);
  if (!*name)
    return false;
  printfToF(file, "ASNG_F(%s)", name);
  return true;
}

void cFunctionRef(int file, const char *prefix, int gIndex,
                  const CFunctionInfo *info, AsnType &type)
{
  const CFunctionInfo &args = orNone(info);
  std::string text;
  wToF(file, getDefBaseTypeId(text, prefix, type, " (").c_str());
  const char *gap = genArgRef(file, gIndex) ? " " : "";
  emit(args.refPreArgs, file, type);
  if (args.refHomeArg)
    args.refHomeArg(file, type);
  else
    wToF(file, cHome(text, gap, true, type, false, nullptr).c_str());
  emit(args.refPostArgs, file, type);
  wToF(file, ");\n");
}

void cVoidFunctionRef(int file, const char *prefix, int gIndex, AsnType &type)
{
  cFunctionRef(file, prefix, gIndex, nullptr, type);
}

// --- functions for an ANY ---------------------------------------------------

void cAnyFunctionProto(int file, const char *prefix, int gIndex, AsnType &type)
{
  bool ansi = isAnsi(type);
  std::string name;
  cTypeId(name, nullptr, type, nullptr);
  cFunc(file, type,
        {.prefixText = externPrefix,
         .resultType = "void",
         .namePrefix = prefix,
         .nameBody = name.c_str(),
         .gType = ansi ? cGetGType(gIndex) : nullptr,
         .gName = ansi ? cGetGName(gIndex) : nullptr,
         .homeArg = ansi ? "ANY *, BYTE_TYPE *" : "/* ANY *, BYTE_TYPE * */",
         .tail = ";\n"});
}

void cAnyFunctionRef(int file, const char *prefix, int gIndex, AsnType &type,
                     AsnType *classifier)
{
  std::string text;
  wToF(file, cTypeId(text, prefix, type, " (").c_str());
  genArgRef(file, gIndex);
  wToF(file, cHome(text, " ", true, type, false, ",").c_str());
  if (!classifier) {
    wToF(file, " NULL);\n");
    return;
  }
  wToF(file, " (BYTE_TYPE *)");
  cAnyDefinedByClassifierTypeHome(text, "(", true, *classifier, "));\n");
  wToF(file, text.c_str());
}
