
extern void normLeafy (ASNG_F(ASNPERG *asnperg) Leafy *home);

extern void normLow (ASNG_F(ASNPERG *asnperg) Low *home);

extern void normMiddle (ASNG_F(ASNPERG *asnperg) Middle *home);

extern void normTop (ASNG_F(ASNPERG *asnperg) Top *home);

extern void normSelf (ASNG_F(ASNPERG *asnperg) Self *home);

extern void normPong (ASNG_F(ASNPERG *asnperg) Pong *home);

extern void normPing (ASNG_F(ASNPERG *asnperg) Ping *home);

extern void normAliased (ASNG_F(ASNPERG *asnperg) Aliased *home);

extern void normInstance (ASNG_F(ASNPERG *asnperg) Instance *home);

extern void normUsesInstance (ASNG_F(ASNPERG *asnperg) UsesInstance *home);

extern void normWay (ASNG_F(ASNPERG *asnperg) Way *home);

extern void normPicked (ASNG_F(ASNPERG *asnperg) Picked *home);

extern void normUsesPicked (ASNG_F(ASNPERG *asnperg) UsesPicked *home);

extern void normLater (ASNG_F(ASNPERG *asnperg) Later *home);

extern void normParts (ASNG_F(ASNPERG *asnperg) Parts *home);
