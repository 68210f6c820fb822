
extern void normPart (ASNG_F(ASNCODG *asncodg) Part *home);

extern void normS (ASNG_F(ASNCODG *asncodg) S *home);

extern void entryS (ASNG_F(ASNCODG *asncodg) S *home);

extern void normHomes (ASNG_F(ASNCODG *asncodg) Homes *home);

extern void normSet (ASNG_F(ASNCODG *asncodg) Set *home);

extern void entryNumber (ASNG_F(ASNCODG *asncodg) Number *home);
