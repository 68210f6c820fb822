
extern void normAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home);

extern void normSeq (ASNG_F(ASNPERG *asnperg) Seq *home);

extern void entrySeq (ASNG_F(ASNPERG *asnperg) Seq *home);

extern void entryAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home);

extern void normRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void entryRow (ASNG_F(ASNPERG *asnperg) Row *home);

extern void normChain (ASNG_F(ASNPERG *asnperg) Chain *home);

extern void entryChain (ASNG_F(ASNPERG *asnperg) Chain *home);

extern void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home);

extern void entryHomes (ASNG_F(ASNPERG *asnperg) Homes *home);

extern void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home);

extern void entryColour (ASNG_F(ASNPERG *asnperg) Colour *home);

extern void entryEmpty (ASNG_F(ASNPERG *asnperg) Empty *home);

extern void normOpen (ASNG_F(ASNPERG *asnperg) Open *home);

extern void entryOpen (ASNG_F(ASNPERG *asnperg) Open *home);

extern void entryAliasOfSeq (ASNG_F(ASNPERG *asnperg) AliasOfSeq *home);
