
extern void normUsed (ASNG_F(ASNPERG *asnperg) Used *home);

extern void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home);

extern void normEntry (ASNG_F(ASNPERG *asnperg) Entry *home);

extern void entryEntry (ASNG_F(ASNPERG *asnperg) Entry *home);

extern void normBoth (ASNG_F(ASNPERG *asnperg) Both *home);

extern void entryBoth (ASNG_F(ASNPERG *asnperg) Both *home);

extern void entryLeaf (ASNG_F(ASNPERG *asnperg) Leaf *home);

extern void entrySeenLeaf (ASNG_F(ASNPERG *asnperg) SeenLeaf *home);

extern void entryAliasOfBoth (ASNG_F(ASNPERG *asnperg) AliasOfBoth *home);

extern void entryAliasOfUsed (ASNG_F(ASNPERG *asnperg) AliasOfUsed *home);

extern void entryAliasOfLeaf (ASNG_F(ASNPERG *asnperg) AliasOfLeaf *home);

extern void normDecodeOnly (ASNG_F(ASNPERG *asnperg) DecodeOnly *home);

extern void entryDecodeOnly (ASNG_F(ASNPERG *asnperg) DecodeOnly *home);
