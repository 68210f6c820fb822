#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Whole runs of the tool within the fuzzer's process. The linker hands
// `endRun` and the opening of files for writing to the harness: the end of a
// run comes back here, and nothing is written anywhere.

// Runs the tool; its exit status. Modules, files and options of the run are
// forgotten afterwards.
int runTool(const std::vector<std::string> &arguments);

// Calls `f` and comes back even if it ends the run.
int runGuarded(void (*f)());

// A directory of this process for input files, ending in "/".
const std::string &fuzzDirectory();

// Writes a file there.
void writeFuzzFile(const char *name, const uint8_t *data, size_t size);
