/* beforeNormalFunc Part "" */

void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* canGenerateComponents Part "" */
  /* struPrefix Part "" */
  /* canGenerateComponents Part "" */
  /* compPrefix x#0 "" */
  /* pushPath x#0 "x_fld" */
  /* leaf x#0 "x_fld" */
  /* popPath x#0 "x_fld" */
  /* compPostfix x#0 "x_fld" */
  /* compPrefix y#1 "" */
  /* pushPath y#1 "y_fld" */
  /* leaf y#1 "y_fld" */
  /* popPath y#1 "y_fld" */
  /* compPostfix y#1 "y_fld" */
  /* struPostfix Part "" */
}
/* afterNormalFunc Part "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "b_fld.i1.c_fld" */
  /* leaf c#0 "b_fld.i1.c_fld" */
  /* popPath c#0 "b_fld.i1.c_fld" */
  /* compPostfix c#0 "b_fld.i1.c_fld" */
  /* compPrefix d#1 "" */
  /* pushPath d#1 "b_fld.i1.d_fld" */
  /* defStruct d#1 "b_fld.i1.d_fld" */
  normPart (ASNG_F(asnperg) &home->b_fld.i1.d_fld);
  /* popPath d#1 "b_fld.i1.d_fld" */
  /* compPostfix d#1 "b_fld.i1.d_fld" */
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* compPrefix e#2 "" */
  /* pushPath e#2 "e_fld" */
  /* builtinCompPrefix e#2 "e_fld" */
  /* canGenerateComponents e#2 "e_fld" */
  /* struPrefix e#2 "e_fld" */
  /* canGenerateComponents e#2 "e_fld" */
  /* compPrefix element "" */
  /* pushElem element "" */
  /* leaf element "" */
  /* popPath element "" */
  /* compPostfix element "" */
  /* struPostfix e#2 "e_fld" */
  /* builtinCompPostfix e#2 "e_fld" */
  /* popPath e#2 "e_fld" */
  /* compPostfix e#2 "e_fld" */
  /* compPrefix f#3 "" */
  /* pushPath f#3 "f_fld" */
  /* skipFunc f#3 "f_fld" */
  /* popPath f#3 "f_fld" */
  /* compPostfix f#3 "f_fld" */
  /* compPrefix g#4 "" */
  /* pushPath g#4 "g_fld" */
  /* skip g#4 "g_fld" */
  /* popPath g#4 "g_fld" */
  /* compPostfix g#4 "g_fld" */
  /* compPrefix h#5 "" */
  /* pushPath h#5 "h_fld" */
  /* frame h#5 "h_fld" */
  /* popPath h#5 "h_fld" */
  /* compPostfix h#5 "h_fld" */
  /* compPrefix group#7 "" */
  /* pushPath group#7 "" */
  /* additionGroupPrefix group#7 "" */
  /* compPrefix i#7 "" */
  /* pushPath i#7 "i_fld" */
  /* leaf i#7 "i_fld" */
  /* popPath i#7 "i_fld" */
  /* compPostfix i#7 "i_fld" */
  /* additionGroupPostfix group#7 "" */
  /* popPath group#7 "" */
  /* compPostfix group#7 "" */
  /* compPrefix j#8 "" */
  /* pushPath j#8 "j_fld" */
  /* builtinCompPrefix j#8 "j_fld" */
  /* canGenerateComponents j#8 "j_fld" */
  /* struPrefix j#8 "j_fld" */
  /* canGenerateComponents j#8 "j_fld" */
  /* compPrefix element "" */
  /* pushElem element "j_fld.elem [n0]" */
  /* defStruct element "j_fld.elem [n0]" */
  normPart (ASNG_F(asnperg) &home->j_fld.elem [n0]);
  /* popPath element "j_fld.elem [n0]" */
  /* compPostfix element "j_fld.elem [n0]" */
  /* struPostfix j#8 "j_fld" */
  /* builtinCompPostfix j#8 "j_fld" */
  /* popPath j#8 "j_fld" */
  /* compPostfix j#8 "j_fld" */
  /* struPostfix S "" */
}
/* afterNormalFunc S "" */
/* beforeEntryFunc S "" */

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* entryPushPath S "" */
  /* entryPrefix S "" */
  normS (ASNG_F(asnperg) home);
  /* entryPostfix S "" */
  /* entryPopPath S "" */
}
/* afterEntryFunc S "" */
/* additionalNormalFunc Number "" */
/* beforeEntryFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* entryPushPath Number "" */
  /* entryPrefix Number "" */
  /* leaf Number "" */
  /* entryPostfix Number "" */
  /* entryPopPath Number "" */
}
/* afterEntryFunc Number "" */

/* passed 4 */
