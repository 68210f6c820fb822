// Whole runs of the tool within the fuzzer's process.

#include "harness.h"
#include "ade/browser.h"
#include "ade/summary.h"
#include "base/diag.h"
#include "cbet/outfile.h"
#include "driver/modfiles.h"
#include "driver/quorven.h"
#include "options/params.h"
#include "store/module.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The end of a run, on its way to `runGuarded`.
struct RunEnd {
  int status;
};

// The names that the linker gives to wrapped functions.
extern "C" {
[[noreturn]] void __wrap__Z6endRuni(int status);
FILE *__wrap__Z13fopenTextFilePKcS0_S0_(const char *, const char *,
                                        const char *);
FILE *__real__Z13fopenTextFilePKcS0_S0_(const char *, const char *,
                                        const char *);
}

void __wrap__Z6endRuni(int status) { throw RunEnd{status}; }

FILE *__wrap__Z13fopenTextFilePKcS0_S0_(const char *directory,
                                        const char *name, const char *mode)
{
  if (mode[0] == 'r')
    return __real__Z13fopenTextFilePKcS0_S0_(directory, name, mode);
  return fopen("/dev/null", mode);
}

static void closeAll()
{
  for (OutFile &file : fArr)
    if (file.fp)
      fclose(file.fp);
  clearOutFiles();
  fiEnc = fiDec = fiEncE = fiDecE = 0;
  if (fiLog)
    fclose(fiLog);
  fiLog = nullptr;
}

int runGuarded(void (*f)())
{
  try {
    f();
    return 0;
  } catch (const RunEnd &end) {
    return end.status;
  }
}

static std::vector<char *> vectorOfRun;

int runTool(const std::vector<std::string> &arguments)
{
  std::vector<std::string> words = arguments;
  words.insert(words.begin(), "quorven");
  vectorOfRun.clear();
  for (std::string &word : words)
    vectorOfRun.push_back(word.data());
  vectorOfRun.push_back(nullptr);
  verboseEx = 3;
  stxDir.clear();
  int status = runGuarded([] {
    quorven_main(static_cast<int>(vectorOfRun.size()) - 1,
                 vectorOfRun.data());
  });
  closeAll();
  adeRecord = AdeRecord{};
  adeSummaryCloseFile();
  if (g_adeBrowserTree)
    adeBrowserDeleteTree(g_adeBrowserTree);
  resetStore();
  resetParams();
  // Anything else is a way out that the tool does not have.
  if (status < 0 || status > 2)
    abort();
  return status;
}

const std::string &fuzzDirectory()
{
  static std::string directory;
  if (directory.empty()) {
    char name[] = "/tmp/quorven-fuzz-XXXXXX";
    if (!mkdtemp(name))
      abort();
    directory = std::string(name) + "/";
  }
  return directory;
}

void writeFuzzFile(const char *name, const uint8_t *data, size_t size)
{
  std::string path = fuzzDirectory() + name;
  FILE *file = fopen(path.c_str(), "wb");
  if (!file || (size > 0 && fwrite(data, 1, size, file) != size))
    abort();
  fclose(file);
}
