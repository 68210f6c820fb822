#pragma once

// Lines of the usage text, ended by null.
extern const char *const quorvenUsage[];
