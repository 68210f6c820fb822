
extern void normRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void entryS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryPlain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryAliasOfRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryAliasOfS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entrySkipped (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryOid (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryDyn (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void normWc (ASNG_F(ASNPERG *asnperg) Wc *home);

extern void entryWc (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);

extern void entryFramed (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab);
