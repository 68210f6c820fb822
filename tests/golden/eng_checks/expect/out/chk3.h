
extern void normRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void entryS (ASNG_F(ASNPERG *asnperg) S *home);

extern void entryRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home);

extern void entryPlain (ASNG_F(ASNPERG *asnperg) Plain *home);

extern void entryText (ASNG_F(ASNPERG *asnperg) Text *home);

extern void entryAliasOfRow (ASNG_F(ASNPERG *asnperg) AliasOfRow *home);

extern void entryAliasOfS (ASNG_F(ASNPERG *asnperg) AliasOfS *home);

extern void entrySkipped (ASNG_F(ASNPERG *asnperg) Skipped *home);

extern void entryOid (ASNG_F(ASNPERG *asnperg) Oid *home);

extern void entryDyn (ASNG_F(ASNPERG *asnperg) Dyn *home);

extern void normWc (ASNG_F(ASNPERG *asnperg) Wc *home);

extern void entryWc (ASNG_F(ASNPERG *asnperg) Wc *home);

extern void entryFramed (ASNG_F(ASNPERG *asnperg) Framed *home);
