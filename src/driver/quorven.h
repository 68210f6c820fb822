#pragma once
#include <string>

struct AsnModule;

// The whole run; always 0.
int quorven_main(int count, char **vector);

// Generates one module.
void genModule(AsnModule &module);

// The banner and the closing progress line, by the verbosity of the module.
void printProgInfo(AsnModule &module);
void printDone(AsnModule &module);

// The copyright text in lines, made once.
const std::string &formatToolCopyright();
