#pragma once

// Start-up, common to all back-ends of the family. `version` 101 is 1.01;
// `usageText` are lines ended by null.

// The C toolkit's start around `initBackend`.
void cInitCBET(int count, char **vector, const char *name, int version,
               int patchLevel, const char *const *usageText);

// On return every tree is in memory and every option is applied.
void initBackend(int count, char **vector, const char *name, int version,
                 int patchLevel, const char *const *usageText);
