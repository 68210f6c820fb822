#pragma once
#include <cstdio>
#include <string>

// Lines of option files, as both passes over the command line see them.

// Opens an option file; fatal error 1 with the name, or with "(No option
// file name specified)" for an empty one.
FILE *openOptionFile(const char *path);

// Reads one line, trimmed, of at most 1024 characters; the rest of a longer
// one is the next line. False at the end of the file or at a read error.
bool readOptionFileLine(FILE *stream, std::string &line);

// True if the line is a comment by its first characters.
bool isCommentLine(const std::string &line);

// True if the line begins with the mark, in any case.
bool beginsWithMark(const std::string &line, const char *mark);

// Longest line of an option file, and longest option of the command line
// that is recorded.
constexpr size_t maxOptionLine = 1024;
