
extern void normUsed (ASNG_F(ASNPERG *asnperg) Used *home);

extern void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home);

extern void normBoth (ASNG_F(ASNPERG *asnperg) Both *home);
