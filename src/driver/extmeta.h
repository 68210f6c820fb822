#pragma once

// Extension information of types, kept in their meta records. What it answers
// is declared in base/upcalls.h.

// At the start of a run: its warnings may come again.
void initExtMeta();
