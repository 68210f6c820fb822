
extern void normAlternative (Alternative *home);

extern void normSeq (Seq *home);

extern void entrySeq (Seq *home);

extern void entryAlternative (Alternative *home);

extern void normRow (Row *home);

extern void entryRow (Row *home);

extern void normChain (Chain *home);

extern void entryChain (Chain *home);

extern void normHomes (Homes *home);

extern void entryHomes (Homes *home);

extern void entryNumber (Number *home);

extern void entryColour (Colour *home);

extern void entryEmpty (Empty *home);

extern void normOpen (Open *home);

extern void entryOpen (Open *home);

extern void entryAliasOfSeq (AliasOfSeq *home);
