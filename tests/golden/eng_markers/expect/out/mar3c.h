
extern void normEmpty (ASNG_F(ASNPERG *asnperg) Empty *home);

extern void normField (ASNG_F(ASNPERG *asnperg) Field *home);

extern void normEither (ASNG_F(ASNPERG *asnperg) Either *home);

extern void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home);

extern void normInner (ASNG_F(ASNPERG *asnperg) Inner *home);
