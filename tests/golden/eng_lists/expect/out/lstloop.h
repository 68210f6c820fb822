
extern void normArray (ASNG_F(ASNPERG *asnperg) Array *home);

extern void normFixed (ASNG_F(ASNPERG *asnperg) Fixed *home);

extern void normDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home);

extern void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home);

extern void normMatrix (ASNG_F(ASNPERG *asnperg) Matrix *home);

extern void normWeb (ASNG_F(ASNPERG *asnperg) Web *home);

extern void normRows (ASNG_F(ASNPERG *asnperg) Rows *home);

extern void normLinks (ASNG_F(ASNPERG *asnperg) Links *home);
