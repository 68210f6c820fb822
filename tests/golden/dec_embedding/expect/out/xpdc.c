/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = EmbeddingX
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdT (ASNG_F(ASNPERG *asnperg) T *home)
{
  /* T: */
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
#line 1
    pd_Boolean (&home->a_fld);
    /* :a */
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_Boolean (&home->b_fld);
      /* :b */
    }
    /* c: */
    staArrInit (&home->c_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_al_clt64K_le255 (&len_1, 2, 3, 1);
      while (n1 < len_1){
        pd_Boolean (&home->c_fld.elem [n1]);
        incStaArrLen (&home->c_fld);
        n1++;
      }
    }
    /* :c */
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(4);
        /* d: */
        pd_Boolean (&home->d_fld);
        /* :d */
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  /* :T */
}

void pdcT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdT (ASNG_F(asnperg) home);
  pd_end ();
}
