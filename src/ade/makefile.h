#pragma once

// The makefile among the IDE's side files: targets, what they depend on and
// their commands. The writers do nothing while it is closed.

// Opens it for writing; one that is open stays as it is. The close ends the
// last line.
void adeMakefileOpenFile();
void adeMakefileCloseFile();

// Begins a rule on a line of its own.
void adeMakefileTarget(const char *name);

// Adds a name to the rule; a line that would exceed 76 characters is
// continued on a new one ahead of the name.
void adeMakefileDependency(const char *name);

// A command line of the rule. It goes behind what is written: the line of the
// rule is not ended for it.
void adeMakefileCommand(const char *text);
