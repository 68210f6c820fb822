
extern void normArray (ASNG_F(ASNPERG *asnperg) Array *home);

extern void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home);

extern void normExact (ASNG_F(ASNPERG *asnperg) Exact *home);

extern void normRefuse (ASNG_F(ASNPERG *asnperg) Refuse *home);

extern void normBare (ASNG_F(ASNPERG *asnperg) Bare *home);

extern void normS (ASNG_F(ASNPERG *asnperg) S *home);

extern void normHuge (ASNG_F(ASNPERG *asnperg) Huge *home);
