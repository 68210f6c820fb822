/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Alternatives
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peCh255 (ASNG_F(ASNPERG *asnperg) Ch255 *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 254, 8);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.c0_fld);
      }
      break;
    case 1:
      {
        pe_Boolean (home->i1.c1_fld);
      }
      break;
    case 2:
      {
        pe_Boolean (home->i1.c2_fld);
      }
      break;
    case 3:
      {
        pe_Boolean (home->i1.c3_fld);
      }
      break;
    case 4:
      {
        pe_Boolean (home->i1.c4_fld);
      }
      break;
    case 5:
      {
        pe_Boolean (home->i1.c5_fld);
      }
      break;
    case 6:
      {
        pe_Boolean (home->i1.c6_fld);
      }
      break;
    case 7:
      {
        pe_Boolean (home->i1.c7_fld);
      }
      break;
    case 8:
      {
        pe_Boolean (home->i1.c8_fld);
      }
      break;
    case 9:
      {
        pe_Boolean (home->i1.c9_fld);
      }
      break;
    case 10:
      {
        pe_Boolean (home->i1.c10_fld);
      }
      break;
    case 11:
      {
        pe_Boolean (home->i1.c11_fld);
      }
      break;
    case 12:
      {
        pe_Boolean (home->i1.c12_fld);
      }
      break;
    case 13:
      {
        pe_Boolean (home->i1.c13_fld);
      }
      break;
    case 14:
      {
        pe_Boolean (home->i1.c14_fld);
      }
      break;
    case 15:
      {
        pe_Boolean (home->i1.c15_fld);
      }
      break;
    case 16:
      {
        pe_Boolean (home->i1.c16_fld);
      }
      break;
    case 17:
      {
        pe_Boolean (home->i1.c17_fld);
      }
      break;
    case 18:
      {
        pe_Boolean (home->i1.c18_fld);
      }
      break;
    case 19:
      {
        pe_Boolean (home->i1.c19_fld);
      }
      break;
    case 20:
      {
        pe_Boolean (home->i1.c20_fld);
      }
      break;
    case 21:
      {
        pe_Boolean (home->i1.c21_fld);
      }
      break;
    case 22:
      {
        pe_Boolean (home->i1.c22_fld);
      }
      break;
    case 23:
      {
        pe_Boolean (home->i1.c23_fld);
      }
      break;
    case 24:
      {
        pe_Boolean (home->i1.c24_fld);
      }
      break;
    case 25:
      {
        pe_Boolean (home->i1.c25_fld);
      }
      break;
    case 26:
      {
        pe_Boolean (home->i1.c26_fld);
      }
      break;
    case 27:
      {
        pe_Boolean (home->i1.c27_fld);
      }
      break;
    case 28:
      {
        pe_Boolean (home->i1.c28_fld);
      }
      break;
    case 29:
      {
        pe_Boolean (home->i1.c29_fld);
      }
      break;
    case 30:
      {
        pe_Boolean (home->i1.c30_fld);
      }
      break;
    case 31:
      {
        pe_Boolean (home->i1.c31_fld);
      }
      break;
    case 32:
      {
        pe_Boolean (home->i1.c32_fld);
      }
      break;
    case 33:
      {
        pe_Boolean (home->i1.c33_fld);
      }
      break;
    case 34:
      {
        pe_Boolean (home->i1.c34_fld);
      }
      break;
    case 35:
      {
        pe_Boolean (home->i1.c35_fld);
      }
      break;
    case 36:
      {
        pe_Boolean (home->i1.c36_fld);
      }
      break;
    case 37:
      {
        pe_Boolean (home->i1.c37_fld);
      }
      break;
    case 38:
      {
        pe_Boolean (home->i1.c38_fld);
      }
      break;
    case 39:
      {
        pe_Boolean (home->i1.c39_fld);
      }
      break;
    case 40:
      {
        pe_Boolean (home->i1.c40_fld);
      }
      break;
    case 41:
      {
        pe_Boolean (home->i1.c41_fld);
      }
      break;
    case 42:
      {
        pe_Boolean (home->i1.c42_fld);
      }
      break;
    case 43:
      {
        pe_Boolean (home->i1.c43_fld);
      }
      break;
    case 44:
      {
        pe_Boolean (home->i1.c44_fld);
      }
      break;
    case 45:
      {
        pe_Boolean (home->i1.c45_fld);
      }
      break;
    case 46:
      {
        pe_Boolean (home->i1.c46_fld);
      }
      break;
    case 47:
      {
        pe_Boolean (home->i1.c47_fld);
      }
      break;
    case 48:
      {
        pe_Boolean (home->i1.c48_fld);
      }
      break;
    case 49:
      {
        pe_Boolean (home->i1.c49_fld);
      }
      break;
    case 50:
      {
        pe_Boolean (home->i1.c50_fld);
      }
      break;
    case 51:
      {
        pe_Boolean (home->i1.c51_fld);
      }
      break;
    case 52:
      {
        pe_Boolean (home->i1.c52_fld);
      }
      break;
    case 53:
      {
        pe_Boolean (home->i1.c53_fld);
      }
      break;
    case 54:
      {
        pe_Boolean (home->i1.c54_fld);
      }
      break;
    case 55:
      {
        pe_Boolean (home->i1.c55_fld);
      }
      break;
    case 56:
      {
        pe_Boolean (home->i1.c56_fld);
      }
      break;
    case 57:
      {
        pe_Boolean (home->i1.c57_fld);
      }
      break;
    case 58:
      {
        pe_Boolean (home->i1.c58_fld);
      }
      break;
    case 59:
      {
        pe_Boolean (home->i1.c59_fld);
      }
      break;
    case 60:
      {
        pe_Boolean (home->i1.c60_fld);
      }
      break;
    case 61:
      {
        pe_Boolean (home->i1.c61_fld);
      }
      break;
    case 62:
      {
        pe_Boolean (home->i1.c62_fld);
      }
      break;
    case 63:
      {
        pe_Boolean (home->i1.c63_fld);
      }
      break;
    case 64:
      {
        pe_Boolean (home->i1.c64_fld);
      }
      break;
    case 65:
      {
        pe_Boolean (home->i1.c65_fld);
      }
      break;
    case 66:
      {
        pe_Boolean (home->i1.c66_fld);
      }
      break;
    case 67:
      {
        pe_Boolean (home->i1.c67_fld);
      }
      break;
    case 68:
      {
        pe_Boolean (home->i1.c68_fld);
      }
      break;
    case 69:
      {
        pe_Boolean (home->i1.c69_fld);
      }
      break;
    case 70:
      {
        pe_Boolean (home->i1.c70_fld);
      }
      break;
    case 71:
      {
        pe_Boolean (home->i1.c71_fld);
      }
      break;
    case 72:
      {
        pe_Boolean (home->i1.c72_fld);
      }
      break;
    case 73:
      {
        pe_Boolean (home->i1.c73_fld);
      }
      break;
    case 74:
      {
        pe_Boolean (home->i1.c74_fld);
      }
      break;
    case 75:
      {
        pe_Boolean (home->i1.c75_fld);
      }
      break;
    case 76:
      {
        pe_Boolean (home->i1.c76_fld);
      }
      break;
    case 77:
      {
        pe_Boolean (home->i1.c77_fld);
      }
      break;
    case 78:
      {
        pe_Boolean (home->i1.c78_fld);
      }
      break;
    case 79:
      {
        pe_Boolean (home->i1.c79_fld);
      }
      break;
    case 80:
      {
        pe_Boolean (home->i1.c80_fld);
      }
      break;
    case 81:
      {
        pe_Boolean (home->i1.c81_fld);
      }
      break;
    case 82:
      {
        pe_Boolean (home->i1.c82_fld);
      }
      break;
    case 83:
      {
        pe_Boolean (home->i1.c83_fld);
      }
      break;
    case 84:
      {
        pe_Boolean (home->i1.c84_fld);
      }
      break;
    case 85:
      {
        pe_Boolean (home->i1.c85_fld);
      }
      break;
    case 86:
      {
        pe_Boolean (home->i1.c86_fld);
      }
      break;
    case 87:
      {
        pe_Boolean (home->i1.c87_fld);
      }
      break;
    case 88:
      {
        pe_Boolean (home->i1.c88_fld);
      }
      break;
    case 89:
      {
        pe_Boolean (home->i1.c89_fld);
      }
      break;
    case 90:
      {
        pe_Boolean (home->i1.c90_fld);
      }
      break;
    case 91:
      {
        pe_Boolean (home->i1.c91_fld);
      }
      break;
    case 92:
      {
        pe_Boolean (home->i1.c92_fld);
      }
      break;
    case 93:
      {
        pe_Boolean (home->i1.c93_fld);
      }
      break;
    case 94:
      {
        pe_Boolean (home->i1.c94_fld);
      }
      break;
    case 95:
      {
        pe_Boolean (home->i1.c95_fld);
      }
      break;
    case 96:
      {
        pe_Boolean (home->i1.c96_fld);
      }
      break;
    case 97:
      {
        pe_Boolean (home->i1.c97_fld);
      }
      break;
    case 98:
      {
        pe_Boolean (home->i1.c98_fld);
      }
      break;
    case 99:
      {
        pe_Boolean (home->i1.c99_fld);
      }
      break;
    case 100:
      {
        pe_Boolean (home->i1.c100_fld);
      }
      break;
    case 101:
      {
        pe_Boolean (home->i1.c101_fld);
      }
      break;
    case 102:
      {
        pe_Boolean (home->i1.c102_fld);
      }
      break;
    case 103:
      {
        pe_Boolean (home->i1.c103_fld);
      }
      break;
    case 104:
      {
        pe_Boolean (home->i1.c104_fld);
      }
      break;
    case 105:
      {
        pe_Boolean (home->i1.c105_fld);
      }
      break;
    case 106:
      {
        pe_Boolean (home->i1.c106_fld);
      }
      break;
    case 107:
      {
        pe_Boolean (home->i1.c107_fld);
      }
      break;
    case 108:
      {
        pe_Boolean (home->i1.c108_fld);
      }
      break;
    case 109:
      {
        pe_Boolean (home->i1.c109_fld);
      }
      break;
    case 110:
      {
        pe_Boolean (home->i1.c110_fld);
      }
      break;
    case 111:
      {
        pe_Boolean (home->i1.c111_fld);
      }
      break;
    case 112:
      {
        pe_Boolean (home->i1.c112_fld);
      }
      break;
    case 113:
      {
        pe_Boolean (home->i1.c113_fld);
      }
      break;
    case 114:
      {
        pe_Boolean (home->i1.c114_fld);
      }
      break;
    case 115:
      {
        pe_Boolean (home->i1.c115_fld);
      }
      break;
    case 116:
      {
        pe_Boolean (home->i1.c116_fld);
      }
      break;
    case 117:
      {
        pe_Boolean (home->i1.c117_fld);
      }
      break;
    case 118:
      {
        pe_Boolean (home->i1.c118_fld);
      }
      break;
    case 119:
      {
        pe_Boolean (home->i1.c119_fld);
      }
      break;
    case 120:
      {
        pe_Boolean (home->i1.c120_fld);
      }
      break;
    case 121:
      {
        pe_Boolean (home->i1.c121_fld);
      }
      break;
    case 122:
      {
        pe_Boolean (home->i1.c122_fld);
      }
      break;
    case 123:
      {
        pe_Boolean (home->i1.c123_fld);
      }
      break;
    case 124:
      {
        pe_Boolean (home->i1.c124_fld);
      }
      break;
    case 125:
      {
        pe_Boolean (home->i1.c125_fld);
      }
      break;
    case 126:
      {
        pe_Boolean (home->i1.c126_fld);
      }
      break;
    case 127:
      {
        pe_Boolean (home->i1.c127_fld);
      }
      break;
    case 128:
      {
        pe_Boolean (home->i1.c128_fld);
      }
      break;
    case 129:
      {
        pe_Boolean (home->i1.c129_fld);
      }
      break;
    case 130:
      {
        pe_Boolean (home->i1.c130_fld);
      }
      break;
    case 131:
      {
        pe_Boolean (home->i1.c131_fld);
      }
      break;
    case 132:
      {
        pe_Boolean (home->i1.c132_fld);
      }
      break;
    case 133:
      {
        pe_Boolean (home->i1.c133_fld);
      }
      break;
    case 134:
      {
        pe_Boolean (home->i1.c134_fld);
      }
      break;
    case 135:
      {
        pe_Boolean (home->i1.c135_fld);
      }
      break;
    case 136:
      {
        pe_Boolean (home->i1.c136_fld);
      }
      break;
    case 137:
      {
        pe_Boolean (home->i1.c137_fld);
      }
      break;
    case 138:
      {
        pe_Boolean (home->i1.c138_fld);
      }
      break;
    case 139:
      {
        pe_Boolean (home->i1.c139_fld);
      }
      break;
    case 140:
      {
        pe_Boolean (home->i1.c140_fld);
      }
      break;
    case 141:
      {
        pe_Boolean (home->i1.c141_fld);
      }
      break;
    case 142:
      {
        pe_Boolean (home->i1.c142_fld);
      }
      break;
    case 143:
      {
        pe_Boolean (home->i1.c143_fld);
      }
      break;
    case 144:
      {
        pe_Boolean (home->i1.c144_fld);
      }
      break;
    case 145:
      {
        pe_Boolean (home->i1.c145_fld);
      }
      break;
    case 146:
      {
        pe_Boolean (home->i1.c146_fld);
      }
      break;
    case 147:
      {
        pe_Boolean (home->i1.c147_fld);
      }
      break;
    case 148:
      {
        pe_Boolean (home->i1.c148_fld);
      }
      break;
    case 149:
      {
        pe_Boolean (home->i1.c149_fld);
      }
      break;
    case 150:
      {
        pe_Boolean (home->i1.c150_fld);
      }
      break;
    case 151:
      {
        pe_Boolean (home->i1.c151_fld);
      }
      break;
    case 152:
      {
        pe_Boolean (home->i1.c152_fld);
      }
      break;
    case 153:
      {
        pe_Boolean (home->i1.c153_fld);
      }
      break;
    case 154:
      {
        pe_Boolean (home->i1.c154_fld);
      }
      break;
    case 155:
      {
        pe_Boolean (home->i1.c155_fld);
      }
      break;
    case 156:
      {
        pe_Boolean (home->i1.c156_fld);
      }
      break;
    case 157:
      {
        pe_Boolean (home->i1.c157_fld);
      }
      break;
    case 158:
      {
        pe_Boolean (home->i1.c158_fld);
      }
      break;
    case 159:
      {
        pe_Boolean (home->i1.c159_fld);
      }
      break;
    case 160:
      {
        pe_Boolean (home->i1.c160_fld);
      }
      break;
    case 161:
      {
        pe_Boolean (home->i1.c161_fld);
      }
      break;
    case 162:
      {
        pe_Boolean (home->i1.c162_fld);
      }
      break;
    case 163:
      {
        pe_Boolean (home->i1.c163_fld);
      }
      break;
    case 164:
      {
        pe_Boolean (home->i1.c164_fld);
      }
      break;
    case 165:
      {
        pe_Boolean (home->i1.c165_fld);
      }
      break;
    case 166:
      {
        pe_Boolean (home->i1.c166_fld);
      }
      break;
    case 167:
      {
        pe_Boolean (home->i1.c167_fld);
      }
      break;
    case 168:
      {
        pe_Boolean (home->i1.c168_fld);
      }
      break;
    case 169:
      {
        pe_Boolean (home->i1.c169_fld);
      }
      break;
    case 170:
      {
        pe_Boolean (home->i1.c170_fld);
      }
      break;
    case 171:
      {
        pe_Boolean (home->i1.c171_fld);
      }
      break;
    case 172:
      {
        pe_Boolean (home->i1.c172_fld);
      }
      break;
    case 173:
      {
        pe_Boolean (home->i1.c173_fld);
      }
      break;
    case 174:
      {
        pe_Boolean (home->i1.c174_fld);
      }
      break;
    case 175:
      {
        pe_Boolean (home->i1.c175_fld);
      }
      break;
    case 176:
      {
        pe_Boolean (home->i1.c176_fld);
      }
      break;
    case 177:
      {
        pe_Boolean (home->i1.c177_fld);
      }
      break;
    case 178:
      {
        pe_Boolean (home->i1.c178_fld);
      }
      break;
    case 179:
      {
        pe_Boolean (home->i1.c179_fld);
      }
      break;
    case 180:
      {
        pe_Boolean (home->i1.c180_fld);
      }
      break;
    case 181:
      {
        pe_Boolean (home->i1.c181_fld);
      }
      break;
    case 182:
      {
        pe_Boolean (home->i1.c182_fld);
      }
      break;
    case 183:
      {
        pe_Boolean (home->i1.c183_fld);
      }
      break;
    case 184:
      {
        pe_Boolean (home->i1.c184_fld);
      }
      break;
    case 185:
      {
        pe_Boolean (home->i1.c185_fld);
      }
      break;
    case 186:
      {
        pe_Boolean (home->i1.c186_fld);
      }
      break;
    case 187:
      {
        pe_Boolean (home->i1.c187_fld);
      }
      break;
    case 188:
      {
        pe_Boolean (home->i1.c188_fld);
      }
      break;
    case 189:
      {
        pe_Boolean (home->i1.c189_fld);
      }
      break;
    case 190:
      {
        pe_Boolean (home->i1.c190_fld);
      }
      break;
    case 191:
      {
        pe_Boolean (home->i1.c191_fld);
      }
      break;
    case 192:
      {
        pe_Boolean (home->i1.c192_fld);
      }
      break;
    case 193:
      {
        pe_Boolean (home->i1.c193_fld);
      }
      break;
    case 194:
      {
        pe_Boolean (home->i1.c194_fld);
      }
      break;
    case 195:
      {
        pe_Boolean (home->i1.c195_fld);
      }
      break;
    case 196:
      {
        pe_Boolean (home->i1.c196_fld);
      }
      break;
    case 197:
      {
        pe_Boolean (home->i1.c197_fld);
      }
      break;
    case 198:
      {
        pe_Boolean (home->i1.c198_fld);
      }
      break;
    case 199:
      {
        pe_Boolean (home->i1.c199_fld);
      }
      break;
    case 200:
      {
        pe_Boolean (home->i1.c200_fld);
      }
      break;
    case 201:
      {
        pe_Boolean (home->i1.c201_fld);
      }
      break;
    case 202:
      {
        pe_Boolean (home->i1.c202_fld);
      }
      break;
    case 203:
      {
        pe_Boolean (home->i1.c203_fld);
      }
      break;
    case 204:
      {
        pe_Boolean (home->i1.c204_fld);
      }
      break;
    case 205:
      {
        pe_Boolean (home->i1.c205_fld);
      }
      break;
    case 206:
      {
        pe_Boolean (home->i1.c206_fld);
      }
      break;
    case 207:
      {
        pe_Boolean (home->i1.c207_fld);
      }
      break;
    case 208:
      {
        pe_Boolean (home->i1.c208_fld);
      }
      break;
    case 209:
      {
        pe_Boolean (home->i1.c209_fld);
      }
      break;
    case 210:
      {
        pe_Boolean (home->i1.c210_fld);
      }
      break;
    case 211:
      {
        pe_Boolean (home->i1.c211_fld);
      }
      break;
    case 212:
      {
        pe_Boolean (home->i1.c212_fld);
      }
      break;
    case 213:
      {
        pe_Boolean (home->i1.c213_fld);
      }
      break;
    case 214:
      {
        pe_Boolean (home->i1.c214_fld);
      }
      break;
    case 215:
      {
        pe_Boolean (home->i1.c215_fld);
      }
      break;
    case 216:
      {
        pe_Boolean (home->i1.c216_fld);
      }
      break;
    case 217:
      {
        pe_Boolean (home->i1.c217_fld);
      }
      break;
    case 218:
      {
        pe_Boolean (home->i1.c218_fld);
      }
      break;
    case 219:
      {
        pe_Boolean (home->i1.c219_fld);
      }
      break;
    case 220:
      {
        pe_Boolean (home->i1.c220_fld);
      }
      break;
    case 221:
      {
        pe_Boolean (home->i1.c221_fld);
      }
      break;
    case 222:
      {
        pe_Boolean (home->i1.c222_fld);
      }
      break;
    case 223:
      {
        pe_Boolean (home->i1.c223_fld);
      }
      break;
    case 224:
      {
        pe_Boolean (home->i1.c224_fld);
      }
      break;
    case 225:
      {
        pe_Boolean (home->i1.c225_fld);
      }
      break;
    case 226:
      {
        pe_Boolean (home->i1.c226_fld);
      }
      break;
    case 227:
      {
        pe_Boolean (home->i1.c227_fld);
      }
      break;
    case 228:
      {
        pe_Boolean (home->i1.c228_fld);
      }
      break;
    case 229:
      {
        pe_Boolean (home->i1.c229_fld);
      }
      break;
    case 230:
      {
        pe_Boolean (home->i1.c230_fld);
      }
      break;
    case 231:
      {
        pe_Boolean (home->i1.c231_fld);
      }
      break;
    case 232:
      {
        pe_Boolean (home->i1.c232_fld);
      }
      break;
    case 233:
      {
        pe_Boolean (home->i1.c233_fld);
      }
      break;
    case 234:
      {
        pe_Boolean (home->i1.c234_fld);
      }
      break;
    case 235:
      {
        pe_Boolean (home->i1.c235_fld);
      }
      break;
    case 236:
      {
        pe_Boolean (home->i1.c236_fld);
      }
      break;
    case 237:
      {
        pe_Boolean (home->i1.c237_fld);
      }
      break;
    case 238:
      {
        pe_Boolean (home->i1.c238_fld);
      }
      break;
    case 239:
      {
        pe_Boolean (home->i1.c239_fld);
      }
      break;
    case 240:
      {
        pe_Boolean (home->i1.c240_fld);
      }
      break;
    case 241:
      {
        pe_Boolean (home->i1.c241_fld);
      }
      break;
    case 242:
      {
        pe_Boolean (home->i1.c242_fld);
      }
      break;
    case 243:
      {
        pe_Boolean (home->i1.c243_fld);
      }
      break;
    case 244:
      {
        pe_Boolean (home->i1.c244_fld);
      }
      break;
    case 245:
      {
        pe_Boolean (home->i1.c245_fld);
      }
      break;
    case 246:
      {
        pe_Boolean (home->i1.c246_fld);
      }
      break;
    case 247:
      {
        pe_Boolean (home->i1.c247_fld);
      }
      break;
    case 248:
      {
        pe_Boolean (home->i1.c248_fld);
      }
      break;
    case 249:
      {
        pe_Boolean (home->i1.c249_fld);
      }
      break;
    case 250:
      {
        pe_Boolean (home->i1.c250_fld);
      }
      break;
    case 251:
      {
        pe_Boolean (home->i1.c251_fld);
      }
      break;
    case 252:
      {
        pe_Boolean (home->i1.c252_fld);
      }
      break;
    case 253:
      {
        pe_Boolean (home->i1.c253_fld);
      }
      break;
    case 254:
      {
        pe_Boolean (home->i1.c254_fld);
      }
      break;
  }
}

void peCh256 (ASNG_F(ASNPERG *asnperg) Ch256 *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.c0_fld);
      }
      break;
    case 1:
      {
        pe_Boolean (home->i1.c1_fld);
      }
      break;
    case 2:
      {
        pe_Boolean (home->i1.c2_fld);
      }
      break;
    case 3:
      {
        pe_Boolean (home->i1.c3_fld);
      }
      break;
    case 4:
      {
        pe_Boolean (home->i1.c4_fld);
      }
      break;
    case 5:
      {
        pe_Boolean (home->i1.c5_fld);
      }
      break;
    case 6:
      {
        pe_Boolean (home->i1.c6_fld);
      }
      break;
    case 7:
      {
        pe_Boolean (home->i1.c7_fld);
      }
      break;
    case 8:
      {
        pe_Boolean (home->i1.c8_fld);
      }
      break;
    case 9:
      {
        pe_Boolean (home->i1.c9_fld);
      }
      break;
    case 10:
      {
        pe_Boolean (home->i1.c10_fld);
      }
      break;
    case 11:
      {
        pe_Boolean (home->i1.c11_fld);
      }
      break;
    case 12:
      {
        pe_Boolean (home->i1.c12_fld);
      }
      break;
    case 13:
      {
        pe_Boolean (home->i1.c13_fld);
      }
      break;
    case 14:
      {
        pe_Boolean (home->i1.c14_fld);
      }
      break;
    case 15:
      {
        pe_Boolean (home->i1.c15_fld);
      }
      break;
    case 16:
      {
        pe_Boolean (home->i1.c16_fld);
      }
      break;
    case 17:
      {
        pe_Boolean (home->i1.c17_fld);
      }
      break;
    case 18:
      {
        pe_Boolean (home->i1.c18_fld);
      }
      break;
    case 19:
      {
        pe_Boolean (home->i1.c19_fld);
      }
      break;
    case 20:
      {
        pe_Boolean (home->i1.c20_fld);
      }
      break;
    case 21:
      {
        pe_Boolean (home->i1.c21_fld);
      }
      break;
    case 22:
      {
        pe_Boolean (home->i1.c22_fld);
      }
      break;
    case 23:
      {
        pe_Boolean (home->i1.c23_fld);
      }
      break;
    case 24:
      {
        pe_Boolean (home->i1.c24_fld);
      }
      break;
    case 25:
      {
        pe_Boolean (home->i1.c25_fld);
      }
      break;
    case 26:
      {
        pe_Boolean (home->i1.c26_fld);
      }
      break;
    case 27:
      {
        pe_Boolean (home->i1.c27_fld);
      }
      break;
    case 28:
      {
        pe_Boolean (home->i1.c28_fld);
      }
      break;
    case 29:
      {
        pe_Boolean (home->i1.c29_fld);
      }
      break;
    case 30:
      {
        pe_Boolean (home->i1.c30_fld);
      }
      break;
    case 31:
      {
        pe_Boolean (home->i1.c31_fld);
      }
      break;
    case 32:
      {
        pe_Boolean (home->i1.c32_fld);
      }
      break;
    case 33:
      {
        pe_Boolean (home->i1.c33_fld);
      }
      break;
    case 34:
      {
        pe_Boolean (home->i1.c34_fld);
      }
      break;
    case 35:
      {
        pe_Boolean (home->i1.c35_fld);
      }
      break;
    case 36:
      {
        pe_Boolean (home->i1.c36_fld);
      }
      break;
    case 37:
      {
        pe_Boolean (home->i1.c37_fld);
      }
      break;
    case 38:
      {
        pe_Boolean (home->i1.c38_fld);
      }
      break;
    case 39:
      {
        pe_Boolean (home->i1.c39_fld);
      }
      break;
    case 40:
      {
        pe_Boolean (home->i1.c40_fld);
      }
      break;
    case 41:
      {
        pe_Boolean (home->i1.c41_fld);
      }
      break;
    case 42:
      {
        pe_Boolean (home->i1.c42_fld);
      }
      break;
    case 43:
      {
        pe_Boolean (home->i1.c43_fld);
      }
      break;
    case 44:
      {
        pe_Boolean (home->i1.c44_fld);
      }
      break;
    case 45:
      {
        pe_Boolean (home->i1.c45_fld);
      }
      break;
    case 46:
      {
        pe_Boolean (home->i1.c46_fld);
      }
      break;
    case 47:
      {
        pe_Boolean (home->i1.c47_fld);
      }
      break;
    case 48:
      {
        pe_Boolean (home->i1.c48_fld);
      }
      break;
    case 49:
      {
        pe_Boolean (home->i1.c49_fld);
      }
      break;
    case 50:
      {
        pe_Boolean (home->i1.c50_fld);
      }
      break;
    case 51:
      {
        pe_Boolean (home->i1.c51_fld);
      }
      break;
    case 52:
      {
        pe_Boolean (home->i1.c52_fld);
      }
      break;
    case 53:
      {
        pe_Boolean (home->i1.c53_fld);
      }
      break;
    case 54:
      {
        pe_Boolean (home->i1.c54_fld);
      }
      break;
    case 55:
      {
        pe_Boolean (home->i1.c55_fld);
      }
      break;
    case 56:
      {
        pe_Boolean (home->i1.c56_fld);
      }
      break;
    case 57:
      {
        pe_Boolean (home->i1.c57_fld);
      }
      break;
    case 58:
      {
        pe_Boolean (home->i1.c58_fld);
      }
      break;
    case 59:
      {
        pe_Boolean (home->i1.c59_fld);
      }
      break;
    case 60:
      {
        pe_Boolean (home->i1.c60_fld);
      }
      break;
    case 61:
      {
        pe_Boolean (home->i1.c61_fld);
      }
      break;
    case 62:
      {
        pe_Boolean (home->i1.c62_fld);
      }
      break;
    case 63:
      {
        pe_Boolean (home->i1.c63_fld);
      }
      break;
    case 64:
      {
        pe_Boolean (home->i1.c64_fld);
      }
      break;
    case 65:
      {
        pe_Boolean (home->i1.c65_fld);
      }
      break;
    case 66:
      {
        pe_Boolean (home->i1.c66_fld);
      }
      break;
    case 67:
      {
        pe_Boolean (home->i1.c67_fld);
      }
      break;
    case 68:
      {
        pe_Boolean (home->i1.c68_fld);
      }
      break;
    case 69:
      {
        pe_Boolean (home->i1.c69_fld);
      }
      break;
    case 70:
      {
        pe_Boolean (home->i1.c70_fld);
      }
      break;
    case 71:
      {
        pe_Boolean (home->i1.c71_fld);
      }
      break;
    case 72:
      {
        pe_Boolean (home->i1.c72_fld);
      }
      break;
    case 73:
      {
        pe_Boolean (home->i1.c73_fld);
      }
      break;
    case 74:
      {
        pe_Boolean (home->i1.c74_fld);
      }
      break;
    case 75:
      {
        pe_Boolean (home->i1.c75_fld);
      }
      break;
    case 76:
      {
        pe_Boolean (home->i1.c76_fld);
      }
      break;
    case 77:
      {
        pe_Boolean (home->i1.c77_fld);
      }
      break;
    case 78:
      {
        pe_Boolean (home->i1.c78_fld);
      }
      break;
    case 79:
      {
        pe_Boolean (home->i1.c79_fld);
      }
      break;
    case 80:
      {
        pe_Boolean (home->i1.c80_fld);
      }
      break;
    case 81:
      {
        pe_Boolean (home->i1.c81_fld);
      }
      break;
    case 82:
      {
        pe_Boolean (home->i1.c82_fld);
      }
      break;
    case 83:
      {
        pe_Boolean (home->i1.c83_fld);
      }
      break;
    case 84:
      {
        pe_Boolean (home->i1.c84_fld);
      }
      break;
    case 85:
      {
        pe_Boolean (home->i1.c85_fld);
      }
      break;
    case 86:
      {
        pe_Boolean (home->i1.c86_fld);
      }
      break;
    case 87:
      {
        pe_Boolean (home->i1.c87_fld);
      }
      break;
    case 88:
      {
        pe_Boolean (home->i1.c88_fld);
      }
      break;
    case 89:
      {
        pe_Boolean (home->i1.c89_fld);
      }
      break;
    case 90:
      {
        pe_Boolean (home->i1.c90_fld);
      }
      break;
    case 91:
      {
        pe_Boolean (home->i1.c91_fld);
      }
      break;
    case 92:
      {
        pe_Boolean (home->i1.c92_fld);
      }
      break;
    case 93:
      {
        pe_Boolean (home->i1.c93_fld);
      }
      break;
    case 94:
      {
        pe_Boolean (home->i1.c94_fld);
      }
      break;
    case 95:
      {
        pe_Boolean (home->i1.c95_fld);
      }
      break;
    case 96:
      {
        pe_Boolean (home->i1.c96_fld);
      }
      break;
    case 97:
      {
        pe_Boolean (home->i1.c97_fld);
      }
      break;
    case 98:
      {
        pe_Boolean (home->i1.c98_fld);
      }
      break;
    case 99:
      {
        pe_Boolean (home->i1.c99_fld);
      }
      break;
    case 100:
      {
        pe_Boolean (home->i1.c100_fld);
      }
      break;
    case 101:
      {
        pe_Boolean (home->i1.c101_fld);
      }
      break;
    case 102:
      {
        pe_Boolean (home->i1.c102_fld);
      }
      break;
    case 103:
      {
        pe_Boolean (home->i1.c103_fld);
      }
      break;
    case 104:
      {
        pe_Boolean (home->i1.c104_fld);
      }
      break;
    case 105:
      {
        pe_Boolean (home->i1.c105_fld);
      }
      break;
    case 106:
      {
        pe_Boolean (home->i1.c106_fld);
      }
      break;
    case 107:
      {
        pe_Boolean (home->i1.c107_fld);
      }
      break;
    case 108:
      {
        pe_Boolean (home->i1.c108_fld);
      }
      break;
    case 109:
      {
        pe_Boolean (home->i1.c109_fld);
      }
      break;
    case 110:
      {
        pe_Boolean (home->i1.c110_fld);
      }
      break;
    case 111:
      {
        pe_Boolean (home->i1.c111_fld);
      }
      break;
    case 112:
      {
        pe_Boolean (home->i1.c112_fld);
      }
      break;
    case 113:
      {
        pe_Boolean (home->i1.c113_fld);
      }
      break;
    case 114:
      {
        pe_Boolean (home->i1.c114_fld);
      }
      break;
    case 115:
      {
        pe_Boolean (home->i1.c115_fld);
      }
      break;
    case 116:
      {
        pe_Boolean (home->i1.c116_fld);
      }
      break;
    case 117:
      {
        pe_Boolean (home->i1.c117_fld);
      }
      break;
    case 118:
      {
        pe_Boolean (home->i1.c118_fld);
      }
      break;
    case 119:
      {
        pe_Boolean (home->i1.c119_fld);
      }
      break;
    case 120:
      {
        pe_Boolean (home->i1.c120_fld);
      }
      break;
    case 121:
      {
        pe_Boolean (home->i1.c121_fld);
      }
      break;
    case 122:
      {
        pe_Boolean (home->i1.c122_fld);
      }
      break;
    case 123:
      {
        pe_Boolean (home->i1.c123_fld);
      }
      break;
    case 124:
      {
        pe_Boolean (home->i1.c124_fld);
      }
      break;
    case 125:
      {
        pe_Boolean (home->i1.c125_fld);
      }
      break;
    case 126:
      {
        pe_Boolean (home->i1.c126_fld);
      }
      break;
    case 127:
      {
        pe_Boolean (home->i1.c127_fld);
      }
      break;
    case 128:
      {
        pe_Boolean (home->i1.c128_fld);
      }
      break;
    case 129:
      {
        pe_Boolean (home->i1.c129_fld);
      }
      break;
    case 130:
      {
        pe_Boolean (home->i1.c130_fld);
      }
      break;
    case 131:
      {
        pe_Boolean (home->i1.c131_fld);
      }
      break;
    case 132:
      {
        pe_Boolean (home->i1.c132_fld);
      }
      break;
    case 133:
      {
        pe_Boolean (home->i1.c133_fld);
      }
      break;
    case 134:
      {
        pe_Boolean (home->i1.c134_fld);
      }
      break;
    case 135:
      {
        pe_Boolean (home->i1.c135_fld);
      }
      break;
    case 136:
      {
        pe_Boolean (home->i1.c136_fld);
      }
      break;
    case 137:
      {
        pe_Boolean (home->i1.c137_fld);
      }
      break;
    case 138:
      {
        pe_Boolean (home->i1.c138_fld);
      }
      break;
    case 139:
      {
        pe_Boolean (home->i1.c139_fld);
      }
      break;
    case 140:
      {
        pe_Boolean (home->i1.c140_fld);
      }
      break;
    case 141:
      {
        pe_Boolean (home->i1.c141_fld);
      }
      break;
    case 142:
      {
        pe_Boolean (home->i1.c142_fld);
      }
      break;
    case 143:
      {
        pe_Boolean (home->i1.c143_fld);
      }
      break;
    case 144:
      {
        pe_Boolean (home->i1.c144_fld);
      }
      break;
    case 145:
      {
        pe_Boolean (home->i1.c145_fld);
      }
      break;
    case 146:
      {
        pe_Boolean (home->i1.c146_fld);
      }
      break;
    case 147:
      {
        pe_Boolean (home->i1.c147_fld);
      }
      break;
    case 148:
      {
        pe_Boolean (home->i1.c148_fld);
      }
      break;
    case 149:
      {
        pe_Boolean (home->i1.c149_fld);
      }
      break;
    case 150:
      {
        pe_Boolean (home->i1.c150_fld);
      }
      break;
    case 151:
      {
        pe_Boolean (home->i1.c151_fld);
      }
      break;
    case 152:
      {
        pe_Boolean (home->i1.c152_fld);
      }
      break;
    case 153:
      {
        pe_Boolean (home->i1.c153_fld);
      }
      break;
    case 154:
      {
        pe_Boolean (home->i1.c154_fld);
      }
      break;
    case 155:
      {
        pe_Boolean (home->i1.c155_fld);
      }
      break;
    case 156:
      {
        pe_Boolean (home->i1.c156_fld);
      }
      break;
    case 157:
      {
        pe_Boolean (home->i1.c157_fld);
      }
      break;
    case 158:
      {
        pe_Boolean (home->i1.c158_fld);
      }
      break;
    case 159:
      {
        pe_Boolean (home->i1.c159_fld);
      }
      break;
    case 160:
      {
        pe_Boolean (home->i1.c160_fld);
      }
      break;
    case 161:
      {
        pe_Boolean (home->i1.c161_fld);
      }
      break;
    case 162:
      {
        pe_Boolean (home->i1.c162_fld);
      }
      break;
    case 163:
      {
        pe_Boolean (home->i1.c163_fld);
      }
      break;
    case 164:
      {
        pe_Boolean (home->i1.c164_fld);
      }
      break;
    case 165:
      {
        pe_Boolean (home->i1.c165_fld);
      }
      break;
    case 166:
      {
        pe_Boolean (home->i1.c166_fld);
      }
      break;
    case 167:
      {
        pe_Boolean (home->i1.c167_fld);
      }
      break;
    case 168:
      {
        pe_Boolean (home->i1.c168_fld);
      }
      break;
    case 169:
      {
        pe_Boolean (home->i1.c169_fld);
      }
      break;
    case 170:
      {
        pe_Boolean (home->i1.c170_fld);
      }
      break;
    case 171:
      {
        pe_Boolean (home->i1.c171_fld);
      }
      break;
    case 172:
      {
        pe_Boolean (home->i1.c172_fld);
      }
      break;
    case 173:
      {
        pe_Boolean (home->i1.c173_fld);
      }
      break;
    case 174:
      {
        pe_Boolean (home->i1.c174_fld);
      }
      break;
    case 175:
      {
        pe_Boolean (home->i1.c175_fld);
      }
      break;
    case 176:
      {
        pe_Boolean (home->i1.c176_fld);
      }
      break;
    case 177:
      {
        pe_Boolean (home->i1.c177_fld);
      }
      break;
    case 178:
      {
        pe_Boolean (home->i1.c178_fld);
      }
      break;
    case 179:
      {
        pe_Boolean (home->i1.c179_fld);
      }
      break;
    case 180:
      {
        pe_Boolean (home->i1.c180_fld);
      }
      break;
    case 181:
      {
        pe_Boolean (home->i1.c181_fld);
      }
      break;
    case 182:
      {
        pe_Boolean (home->i1.c182_fld);
      }
      break;
    case 183:
      {
        pe_Boolean (home->i1.c183_fld);
      }
      break;
    case 184:
      {
        pe_Boolean (home->i1.c184_fld);
      }
      break;
    case 185:
      {
        pe_Boolean (home->i1.c185_fld);
      }
      break;
    case 186:
      {
        pe_Boolean (home->i1.c186_fld);
      }
      break;
    case 187:
      {
        pe_Boolean (home->i1.c187_fld);
      }
      break;
    case 188:
      {
        pe_Boolean (home->i1.c188_fld);
      }
      break;
    case 189:
      {
        pe_Boolean (home->i1.c189_fld);
      }
      break;
    case 190:
      {
        pe_Boolean (home->i1.c190_fld);
      }
      break;
    case 191:
      {
        pe_Boolean (home->i1.c191_fld);
      }
      break;
    case 192:
      {
        pe_Boolean (home->i1.c192_fld);
      }
      break;
    case 193:
      {
        pe_Boolean (home->i1.c193_fld);
      }
      break;
    case 194:
      {
        pe_Boolean (home->i1.c194_fld);
      }
      break;
    case 195:
      {
        pe_Boolean (home->i1.c195_fld);
      }
      break;
    case 196:
      {
        pe_Boolean (home->i1.c196_fld);
      }
      break;
    case 197:
      {
        pe_Boolean (home->i1.c197_fld);
      }
      break;
    case 198:
      {
        pe_Boolean (home->i1.c198_fld);
      }
      break;
    case 199:
      {
        pe_Boolean (home->i1.c199_fld);
      }
      break;
    case 200:
      {
        pe_Boolean (home->i1.c200_fld);
      }
      break;
    case 201:
      {
        pe_Boolean (home->i1.c201_fld);
      }
      break;
    case 202:
      {
        pe_Boolean (home->i1.c202_fld);
      }
      break;
    case 203:
      {
        pe_Boolean (home->i1.c203_fld);
      }
      break;
    case 204:
      {
        pe_Boolean (home->i1.c204_fld);
      }
      break;
    case 205:
      {
        pe_Boolean (home->i1.c205_fld);
      }
      break;
    case 206:
      {
        pe_Boolean (home->i1.c206_fld);
      }
      break;
    case 207:
      {
        pe_Boolean (home->i1.c207_fld);
      }
      break;
    case 208:
      {
        pe_Boolean (home->i1.c208_fld);
      }
      break;
    case 209:
      {
        pe_Boolean (home->i1.c209_fld);
      }
      break;
    case 210:
      {
        pe_Boolean (home->i1.c210_fld);
      }
      break;
    case 211:
      {
        pe_Boolean (home->i1.c211_fld);
      }
      break;
    case 212:
      {
        pe_Boolean (home->i1.c212_fld);
      }
      break;
    case 213:
      {
        pe_Boolean (home->i1.c213_fld);
      }
      break;
    case 214:
      {
        pe_Boolean (home->i1.c214_fld);
      }
      break;
    case 215:
      {
        pe_Boolean (home->i1.c215_fld);
      }
      break;
    case 216:
      {
        pe_Boolean (home->i1.c216_fld);
      }
      break;
    case 217:
      {
        pe_Boolean (home->i1.c217_fld);
      }
      break;
    case 218:
      {
        pe_Boolean (home->i1.c218_fld);
      }
      break;
    case 219:
      {
        pe_Boolean (home->i1.c219_fld);
      }
      break;
    case 220:
      {
        pe_Boolean (home->i1.c220_fld);
      }
      break;
    case 221:
      {
        pe_Boolean (home->i1.c221_fld);
      }
      break;
    case 222:
      {
        pe_Boolean (home->i1.c222_fld);
      }
      break;
    case 223:
      {
        pe_Boolean (home->i1.c223_fld);
      }
      break;
    case 224:
      {
        pe_Boolean (home->i1.c224_fld);
      }
      break;
    case 225:
      {
        pe_Boolean (home->i1.c225_fld);
      }
      break;
    case 226:
      {
        pe_Boolean (home->i1.c226_fld);
      }
      break;
    case 227:
      {
        pe_Boolean (home->i1.c227_fld);
      }
      break;
    case 228:
      {
        pe_Boolean (home->i1.c228_fld);
      }
      break;
    case 229:
      {
        pe_Boolean (home->i1.c229_fld);
      }
      break;
    case 230:
      {
        pe_Boolean (home->i1.c230_fld);
      }
      break;
    case 231:
      {
        pe_Boolean (home->i1.c231_fld);
      }
      break;
    case 232:
      {
        pe_Boolean (home->i1.c232_fld);
      }
      break;
    case 233:
      {
        pe_Boolean (home->i1.c233_fld);
      }
      break;
    case 234:
      {
        pe_Boolean (home->i1.c234_fld);
      }
      break;
    case 235:
      {
        pe_Boolean (home->i1.c235_fld);
      }
      break;
    case 236:
      {
        pe_Boolean (home->i1.c236_fld);
      }
      break;
    case 237:
      {
        pe_Boolean (home->i1.c237_fld);
      }
      break;
    case 238:
      {
        pe_Boolean (home->i1.c238_fld);
      }
      break;
    case 239:
      {
        pe_Boolean (home->i1.c239_fld);
      }
      break;
    case 240:
      {
        pe_Boolean (home->i1.c240_fld);
      }
      break;
    case 241:
      {
        pe_Boolean (home->i1.c241_fld);
      }
      break;
    case 242:
      {
        pe_Boolean (home->i1.c242_fld);
      }
      break;
    case 243:
      {
        pe_Boolean (home->i1.c243_fld);
      }
      break;
    case 244:
      {
        pe_Boolean (home->i1.c244_fld);
      }
      break;
    case 245:
      {
        pe_Boolean (home->i1.c245_fld);
      }
      break;
    case 246:
      {
        pe_Boolean (home->i1.c246_fld);
      }
      break;
    case 247:
      {
        pe_Boolean (home->i1.c247_fld);
      }
      break;
    case 248:
      {
        pe_Boolean (home->i1.c248_fld);
      }
      break;
    case 249:
      {
        pe_Boolean (home->i1.c249_fld);
      }
      break;
    case 250:
      {
        pe_Boolean (home->i1.c250_fld);
      }
      break;
    case 251:
      {
        pe_Boolean (home->i1.c251_fld);
      }
      break;
    case 252:
      {
        pe_Boolean (home->i1.c252_fld);
      }
      break;
    case 253:
      {
        pe_Boolean (home->i1.c253_fld);
      }
      break;
    case 254:
      {
        pe_Boolean (home->i1.c254_fld);
      }
      break;
    case 255:
      {
        pe_Boolean (home->i1.c255_fld);
      }
      break;
  }
}

void peCh257 (ASNG_F(ASNPERG *asnperg) Ch257 *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.c0_fld);
      }
      break;
    case 1:
      {
        pe_Boolean (home->i1.c1_fld);
      }
      break;
    case 2:
      {
        pe_Boolean (home->i1.c2_fld);
      }
      break;
    case 3:
      {
        pe_Boolean (home->i1.c3_fld);
      }
      break;
    case 4:
      {
        pe_Boolean (home->i1.c4_fld);
      }
      break;
    case 5:
      {
        pe_Boolean (home->i1.c5_fld);
      }
      break;
    case 6:
      {
        pe_Boolean (home->i1.c6_fld);
      }
      break;
    case 7:
      {
        pe_Boolean (home->i1.c7_fld);
      }
      break;
    case 8:
      {
        pe_Boolean (home->i1.c8_fld);
      }
      break;
    case 9:
      {
        pe_Boolean (home->i1.c9_fld);
      }
      break;
    case 10:
      {
        pe_Boolean (home->i1.c10_fld);
      }
      break;
    case 11:
      {
        pe_Boolean (home->i1.c11_fld);
      }
      break;
    case 12:
      {
        pe_Boolean (home->i1.c12_fld);
      }
      break;
    case 13:
      {
        pe_Boolean (home->i1.c13_fld);
      }
      break;
    case 14:
      {
        pe_Boolean (home->i1.c14_fld);
      }
      break;
    case 15:
      {
        pe_Boolean (home->i1.c15_fld);
      }
      break;
    case 16:
      {
        pe_Boolean (home->i1.c16_fld);
      }
      break;
    case 17:
      {
        pe_Boolean (home->i1.c17_fld);
      }
      break;
    case 18:
      {
        pe_Boolean (home->i1.c18_fld);
      }
      break;
    case 19:
      {
        pe_Boolean (home->i1.c19_fld);
      }
      break;
    case 20:
      {
        pe_Boolean (home->i1.c20_fld);
      }
      break;
    case 21:
      {
        pe_Boolean (home->i1.c21_fld);
      }
      break;
    case 22:
      {
        pe_Boolean (home->i1.c22_fld);
      }
      break;
    case 23:
      {
        pe_Boolean (home->i1.c23_fld);
      }
      break;
    case 24:
      {
        pe_Boolean (home->i1.c24_fld);
      }
      break;
    case 25:
      {
        pe_Boolean (home->i1.c25_fld);
      }
      break;
    case 26:
      {
        pe_Boolean (home->i1.c26_fld);
      }
      break;
    case 27:
      {
        pe_Boolean (home->i1.c27_fld);
      }
      break;
    case 28:
      {
        pe_Boolean (home->i1.c28_fld);
      }
      break;
    case 29:
      {
        pe_Boolean (home->i1.c29_fld);
      }
      break;
    case 30:
      {
        pe_Boolean (home->i1.c30_fld);
      }
      break;
    case 31:
      {
        pe_Boolean (home->i1.c31_fld);
      }
      break;
    case 32:
      {
        pe_Boolean (home->i1.c32_fld);
      }
      break;
    case 33:
      {
        pe_Boolean (home->i1.c33_fld);
      }
      break;
    case 34:
      {
        pe_Boolean (home->i1.c34_fld);
      }
      break;
    case 35:
      {
        pe_Boolean (home->i1.c35_fld);
      }
      break;
    case 36:
      {
        pe_Boolean (home->i1.c36_fld);
      }
      break;
    case 37:
      {
        pe_Boolean (home->i1.c37_fld);
      }
      break;
    case 38:
      {
        pe_Boolean (home->i1.c38_fld);
      }
      break;
    case 39:
      {
        pe_Boolean (home->i1.c39_fld);
      }
      break;
    case 40:
      {
        pe_Boolean (home->i1.c40_fld);
      }
      break;
    case 41:
      {
        pe_Boolean (home->i1.c41_fld);
      }
      break;
    case 42:
      {
        pe_Boolean (home->i1.c42_fld);
      }
      break;
    case 43:
      {
        pe_Boolean (home->i1.c43_fld);
      }
      break;
    case 44:
      {
        pe_Boolean (home->i1.c44_fld);
      }
      break;
    case 45:
      {
        pe_Boolean (home->i1.c45_fld);
      }
      break;
    case 46:
      {
        pe_Boolean (home->i1.c46_fld);
      }
      break;
    case 47:
      {
        pe_Boolean (home->i1.c47_fld);
      }
      break;
    case 48:
      {
        pe_Boolean (home->i1.c48_fld);
      }
      break;
    case 49:
      {
        pe_Boolean (home->i1.c49_fld);
      }
      break;
    case 50:
      {
        pe_Boolean (home->i1.c50_fld);
      }
      break;
    case 51:
      {
        pe_Boolean (home->i1.c51_fld);
      }
      break;
    case 52:
      {
        pe_Boolean (home->i1.c52_fld);
      }
      break;
    case 53:
      {
        pe_Boolean (home->i1.c53_fld);
      }
      break;
    case 54:
      {
        pe_Boolean (home->i1.c54_fld);
      }
      break;
    case 55:
      {
        pe_Boolean (home->i1.c55_fld);
      }
      break;
    case 56:
      {
        pe_Boolean (home->i1.c56_fld);
      }
      break;
    case 57:
      {
        pe_Boolean (home->i1.c57_fld);
      }
      break;
    case 58:
      {
        pe_Boolean (home->i1.c58_fld);
      }
      break;
    case 59:
      {
        pe_Boolean (home->i1.c59_fld);
      }
      break;
    case 60:
      {
        pe_Boolean (home->i1.c60_fld);
      }
      break;
    case 61:
      {
        pe_Boolean (home->i1.c61_fld);
      }
      break;
    case 62:
      {
        pe_Boolean (home->i1.c62_fld);
      }
      break;
    case 63:
      {
        pe_Boolean (home->i1.c63_fld);
      }
      break;
    case 64:
      {
        pe_Boolean (home->i1.c64_fld);
      }
      break;
    case 65:
      {
        pe_Boolean (home->i1.c65_fld);
      }
      break;
    case 66:
      {
        pe_Boolean (home->i1.c66_fld);
      }
      break;
    case 67:
      {
        pe_Boolean (home->i1.c67_fld);
      }
      break;
    case 68:
      {
        pe_Boolean (home->i1.c68_fld);
      }
      break;
    case 69:
      {
        pe_Boolean (home->i1.c69_fld);
      }
      break;
    case 70:
      {
        pe_Boolean (home->i1.c70_fld);
      }
      break;
    case 71:
      {
        pe_Boolean (home->i1.c71_fld);
      }
      break;
    case 72:
      {
        pe_Boolean (home->i1.c72_fld);
      }
      break;
    case 73:
      {
        pe_Boolean (home->i1.c73_fld);
      }
      break;
    case 74:
      {
        pe_Boolean (home->i1.c74_fld);
      }
      break;
    case 75:
      {
        pe_Boolean (home->i1.c75_fld);
      }
      break;
    case 76:
      {
        pe_Boolean (home->i1.c76_fld);
      }
      break;
    case 77:
      {
        pe_Boolean (home->i1.c77_fld);
      }
      break;
    case 78:
      {
        pe_Boolean (home->i1.c78_fld);
      }
      break;
    case 79:
      {
        pe_Boolean (home->i1.c79_fld);
      }
      break;
    case 80:
      {
        pe_Boolean (home->i1.c80_fld);
      }
      break;
    case 81:
      {
        pe_Boolean (home->i1.c81_fld);
      }
      break;
    case 82:
      {
        pe_Boolean (home->i1.c82_fld);
      }
      break;
    case 83:
      {
        pe_Boolean (home->i1.c83_fld);
      }
      break;
    case 84:
      {
        pe_Boolean (home->i1.c84_fld);
      }
      break;
    case 85:
      {
        pe_Boolean (home->i1.c85_fld);
      }
      break;
    case 86:
      {
        pe_Boolean (home->i1.c86_fld);
      }
      break;
    case 87:
      {
        pe_Boolean (home->i1.c87_fld);
      }
      break;
    case 88:
      {
        pe_Boolean (home->i1.c88_fld);
      }
      break;
    case 89:
      {
        pe_Boolean (home->i1.c89_fld);
      }
      break;
    case 90:
      {
        pe_Boolean (home->i1.c90_fld);
      }
      break;
    case 91:
      {
        pe_Boolean (home->i1.c91_fld);
      }
      break;
    case 92:
      {
        pe_Boolean (home->i1.c92_fld);
      }
      break;
    case 93:
      {
        pe_Boolean (home->i1.c93_fld);
      }
      break;
    case 94:
      {
        pe_Boolean (home->i1.c94_fld);
      }
      break;
    case 95:
      {
        pe_Boolean (home->i1.c95_fld);
      }
      break;
    case 96:
      {
        pe_Boolean (home->i1.c96_fld);
      }
      break;
    case 97:
      {
        pe_Boolean (home->i1.c97_fld);
      }
      break;
    case 98:
      {
        pe_Boolean (home->i1.c98_fld);
      }
      break;
    case 99:
      {
        pe_Boolean (home->i1.c99_fld);
      }
      break;
    case 100:
      {
        pe_Boolean (home->i1.c100_fld);
      }
      break;
    case 101:
      {
        pe_Boolean (home->i1.c101_fld);
      }
      break;
    case 102:
      {
        pe_Boolean (home->i1.c102_fld);
      }
      break;
    case 103:
      {
        pe_Boolean (home->i1.c103_fld);
      }
      break;
    case 104:
      {
        pe_Boolean (home->i1.c104_fld);
      }
      break;
    case 105:
      {
        pe_Boolean (home->i1.c105_fld);
      }
      break;
    case 106:
      {
        pe_Boolean (home->i1.c106_fld);
      }
      break;
    case 107:
      {
        pe_Boolean (home->i1.c107_fld);
      }
      break;
    case 108:
      {
        pe_Boolean (home->i1.c108_fld);
      }
      break;
    case 109:
      {
        pe_Boolean (home->i1.c109_fld);
      }
      break;
    case 110:
      {
        pe_Boolean (home->i1.c110_fld);
      }
      break;
    case 111:
      {
        pe_Boolean (home->i1.c111_fld);
      }
      break;
    case 112:
      {
        pe_Boolean (home->i1.c112_fld);
      }
      break;
    case 113:
      {
        pe_Boolean (home->i1.c113_fld);
      }
      break;
    case 114:
      {
        pe_Boolean (home->i1.c114_fld);
      }
      break;
    case 115:
      {
        pe_Boolean (home->i1.c115_fld);
      }
      break;
    case 116:
      {
        pe_Boolean (home->i1.c116_fld);
      }
      break;
    case 117:
      {
        pe_Boolean (home->i1.c117_fld);
      }
      break;
    case 118:
      {
        pe_Boolean (home->i1.c118_fld);
      }
      break;
    case 119:
      {
        pe_Boolean (home->i1.c119_fld);
      }
      break;
    case 120:
      {
        pe_Boolean (home->i1.c120_fld);
      }
      break;
    case 121:
      {
        pe_Boolean (home->i1.c121_fld);
      }
      break;
    case 122:
      {
        pe_Boolean (home->i1.c122_fld);
      }
      break;
    case 123:
      {
        pe_Boolean (home->i1.c123_fld);
      }
      break;
    case 124:
      {
        pe_Boolean (home->i1.c124_fld);
      }
      break;
    case 125:
      {
        pe_Boolean (home->i1.c125_fld);
      }
      break;
    case 126:
      {
        pe_Boolean (home->i1.c126_fld);
      }
      break;
    case 127:
      {
        pe_Boolean (home->i1.c127_fld);
      }
      break;
    case 128:
      {
        pe_Boolean (home->i1.c128_fld);
      }
      break;
    case 129:
      {
        pe_Boolean (home->i1.c129_fld);
      }
      break;
    case 130:
      {
        pe_Boolean (home->i1.c130_fld);
      }
      break;
    case 131:
      {
        pe_Boolean (home->i1.c131_fld);
      }
      break;
    case 132:
      {
        pe_Boolean (home->i1.c132_fld);
      }
      break;
    case 133:
      {
        pe_Boolean (home->i1.c133_fld);
      }
      break;
    case 134:
      {
        pe_Boolean (home->i1.c134_fld);
      }
      break;
    case 135:
      {
        pe_Boolean (home->i1.c135_fld);
      }
      break;
    case 136:
      {
        pe_Boolean (home->i1.c136_fld);
      }
      break;
    case 137:
      {
        pe_Boolean (home->i1.c137_fld);
      }
      break;
    case 138:
      {
        pe_Boolean (home->i1.c138_fld);
      }
      break;
    case 139:
      {
        pe_Boolean (home->i1.c139_fld);
      }
      break;
    case 140:
      {
        pe_Boolean (home->i1.c140_fld);
      }
      break;
    case 141:
      {
        pe_Boolean (home->i1.c141_fld);
      }
      break;
    case 142:
      {
        pe_Boolean (home->i1.c142_fld);
      }
      break;
    case 143:
      {
        pe_Boolean (home->i1.c143_fld);
      }
      break;
    case 144:
      {
        pe_Boolean (home->i1.c144_fld);
      }
      break;
    case 145:
      {
        pe_Boolean (home->i1.c145_fld);
      }
      break;
    case 146:
      {
        pe_Boolean (home->i1.c146_fld);
      }
      break;
    case 147:
      {
        pe_Boolean (home->i1.c147_fld);
      }
      break;
    case 148:
      {
        pe_Boolean (home->i1.c148_fld);
      }
      break;
    case 149:
      {
        pe_Boolean (home->i1.c149_fld);
      }
      break;
    case 150:
      {
        pe_Boolean (home->i1.c150_fld);
      }
      break;
    case 151:
      {
        pe_Boolean (home->i1.c151_fld);
      }
      break;
    case 152:
      {
        pe_Boolean (home->i1.c152_fld);
      }
      break;
    case 153:
      {
        pe_Boolean (home->i1.c153_fld);
      }
      break;
    case 154:
      {
        pe_Boolean (home->i1.c154_fld);
      }
      break;
    case 155:
      {
        pe_Boolean (home->i1.c155_fld);
      }
      break;
    case 156:
      {
        pe_Boolean (home->i1.c156_fld);
      }
      break;
    case 157:
      {
        pe_Boolean (home->i1.c157_fld);
      }
      break;
    case 158:
      {
        pe_Boolean (home->i1.c158_fld);
      }
      break;
    case 159:
      {
        pe_Boolean (home->i1.c159_fld);
      }
      break;
    case 160:
      {
        pe_Boolean (home->i1.c160_fld);
      }
      break;
    case 161:
      {
        pe_Boolean (home->i1.c161_fld);
      }
      break;
    case 162:
      {
        pe_Boolean (home->i1.c162_fld);
      }
      break;
    case 163:
      {
        pe_Boolean (home->i1.c163_fld);
      }
      break;
    case 164:
      {
        pe_Boolean (home->i1.c164_fld);
      }
      break;
    case 165:
      {
        pe_Boolean (home->i1.c165_fld);
      }
      break;
    case 166:
      {
        pe_Boolean (home->i1.c166_fld);
      }
      break;
    case 167:
      {
        pe_Boolean (home->i1.c167_fld);
      }
      break;
    case 168:
      {
        pe_Boolean (home->i1.c168_fld);
      }
      break;
    case 169:
      {
        pe_Boolean (home->i1.c169_fld);
      }
      break;
    case 170:
      {
        pe_Boolean (home->i1.c170_fld);
      }
      break;
    case 171:
      {
        pe_Boolean (home->i1.c171_fld);
      }
      break;
    case 172:
      {
        pe_Boolean (home->i1.c172_fld);
      }
      break;
    case 173:
      {
        pe_Boolean (home->i1.c173_fld);
      }
      break;
    case 174:
      {
        pe_Boolean (home->i1.c174_fld);
      }
      break;
    case 175:
      {
        pe_Boolean (home->i1.c175_fld);
      }
      break;
    case 176:
      {
        pe_Boolean (home->i1.c176_fld);
      }
      break;
    case 177:
      {
        pe_Boolean (home->i1.c177_fld);
      }
      break;
    case 178:
      {
        pe_Boolean (home->i1.c178_fld);
      }
      break;
    case 179:
      {
        pe_Boolean (home->i1.c179_fld);
      }
      break;
    case 180:
      {
        pe_Boolean (home->i1.c180_fld);
      }
      break;
    case 181:
      {
        pe_Boolean (home->i1.c181_fld);
      }
      break;
    case 182:
      {
        pe_Boolean (home->i1.c182_fld);
      }
      break;
    case 183:
      {
        pe_Boolean (home->i1.c183_fld);
      }
      break;
    case 184:
      {
        pe_Boolean (home->i1.c184_fld);
      }
      break;
    case 185:
      {
        pe_Boolean (home->i1.c185_fld);
      }
      break;
    case 186:
      {
        pe_Boolean (home->i1.c186_fld);
      }
      break;
    case 187:
      {
        pe_Boolean (home->i1.c187_fld);
      }
      break;
    case 188:
      {
        pe_Boolean (home->i1.c188_fld);
      }
      break;
    case 189:
      {
        pe_Boolean (home->i1.c189_fld);
      }
      break;
    case 190:
      {
        pe_Boolean (home->i1.c190_fld);
      }
      break;
    case 191:
      {
        pe_Boolean (home->i1.c191_fld);
      }
      break;
    case 192:
      {
        pe_Boolean (home->i1.c192_fld);
      }
      break;
    case 193:
      {
        pe_Boolean (home->i1.c193_fld);
      }
      break;
    case 194:
      {
        pe_Boolean (home->i1.c194_fld);
      }
      break;
    case 195:
      {
        pe_Boolean (home->i1.c195_fld);
      }
      break;
    case 196:
      {
        pe_Boolean (home->i1.c196_fld);
      }
      break;
    case 197:
      {
        pe_Boolean (home->i1.c197_fld);
      }
      break;
    case 198:
      {
        pe_Boolean (home->i1.c198_fld);
      }
      break;
    case 199:
      {
        pe_Boolean (home->i1.c199_fld);
      }
      break;
    case 200:
      {
        pe_Boolean (home->i1.c200_fld);
      }
      break;
    case 201:
      {
        pe_Boolean (home->i1.c201_fld);
      }
      break;
    case 202:
      {
        pe_Boolean (home->i1.c202_fld);
      }
      break;
    case 203:
      {
        pe_Boolean (home->i1.c203_fld);
      }
      break;
    case 204:
      {
        pe_Boolean (home->i1.c204_fld);
      }
      break;
    case 205:
      {
        pe_Boolean (home->i1.c205_fld);
      }
      break;
    case 206:
      {
        pe_Boolean (home->i1.c206_fld);
      }
      break;
    case 207:
      {
        pe_Boolean (home->i1.c207_fld);
      }
      break;
    case 208:
      {
        pe_Boolean (home->i1.c208_fld);
      }
      break;
    case 209:
      {
        pe_Boolean (home->i1.c209_fld);
      }
      break;
    case 210:
      {
        pe_Boolean (home->i1.c210_fld);
      }
      break;
    case 211:
      {
        pe_Boolean (home->i1.c211_fld);
      }
      break;
    case 212:
      {
        pe_Boolean (home->i1.c212_fld);
      }
      break;
    case 213:
      {
        pe_Boolean (home->i1.c213_fld);
      }
      break;
    case 214:
      {
        pe_Boolean (home->i1.c214_fld);
      }
      break;
    case 215:
      {
        pe_Boolean (home->i1.c215_fld);
      }
      break;
    case 216:
      {
        pe_Boolean (home->i1.c216_fld);
      }
      break;
    case 217:
      {
        pe_Boolean (home->i1.c217_fld);
      }
      break;
    case 218:
      {
        pe_Boolean (home->i1.c218_fld);
      }
      break;
    case 219:
      {
        pe_Boolean (home->i1.c219_fld);
      }
      break;
    case 220:
      {
        pe_Boolean (home->i1.c220_fld);
      }
      break;
    case 221:
      {
        pe_Boolean (home->i1.c221_fld);
      }
      break;
    case 222:
      {
        pe_Boolean (home->i1.c222_fld);
      }
      break;
    case 223:
      {
        pe_Boolean (home->i1.c223_fld);
      }
      break;
    case 224:
      {
        pe_Boolean (home->i1.c224_fld);
      }
      break;
    case 225:
      {
        pe_Boolean (home->i1.c225_fld);
      }
      break;
    case 226:
      {
        pe_Boolean (home->i1.c226_fld);
      }
      break;
    case 227:
      {
        pe_Boolean (home->i1.c227_fld);
      }
      break;
    case 228:
      {
        pe_Boolean (home->i1.c228_fld);
      }
      break;
    case 229:
      {
        pe_Boolean (home->i1.c229_fld);
      }
      break;
    case 230:
      {
        pe_Boolean (home->i1.c230_fld);
      }
      break;
    case 231:
      {
        pe_Boolean (home->i1.c231_fld);
      }
      break;
    case 232:
      {
        pe_Boolean (home->i1.c232_fld);
      }
      break;
    case 233:
      {
        pe_Boolean (home->i1.c233_fld);
      }
      break;
    case 234:
      {
        pe_Boolean (home->i1.c234_fld);
      }
      break;
    case 235:
      {
        pe_Boolean (home->i1.c235_fld);
      }
      break;
    case 236:
      {
        pe_Boolean (home->i1.c236_fld);
      }
      break;
    case 237:
      {
        pe_Boolean (home->i1.c237_fld);
      }
      break;
    case 238:
      {
        pe_Boolean (home->i1.c238_fld);
      }
      break;
    case 239:
      {
        pe_Boolean (home->i1.c239_fld);
      }
      break;
    case 240:
      {
        pe_Boolean (home->i1.c240_fld);
      }
      break;
    case 241:
      {
        pe_Boolean (home->i1.c241_fld);
      }
      break;
    case 242:
      {
        pe_Boolean (home->i1.c242_fld);
      }
      break;
    case 243:
      {
        pe_Boolean (home->i1.c243_fld);
      }
      break;
    case 244:
      {
        pe_Boolean (home->i1.c244_fld);
      }
      break;
    case 245:
      {
        pe_Boolean (home->i1.c245_fld);
      }
      break;
    case 246:
      {
        pe_Boolean (home->i1.c246_fld);
      }
      break;
    case 247:
      {
        pe_Boolean (home->i1.c247_fld);
      }
      break;
    case 248:
      {
        pe_Boolean (home->i1.c248_fld);
      }
      break;
    case 249:
      {
        pe_Boolean (home->i1.c249_fld);
      }
      break;
    case 250:
      {
        pe_Boolean (home->i1.c250_fld);
      }
      break;
    case 251:
      {
        pe_Boolean (home->i1.c251_fld);
      }
      break;
    case 252:
      {
        pe_Boolean (home->i1.c252_fld);
      }
      break;
    case 253:
      {
        pe_Boolean (home->i1.c253_fld);
      }
      break;
    case 254:
      {
        pe_Boolean (home->i1.c254_fld);
      }
      break;
    case 255:
      {
        pe_Boolean (home->i1.c255_fld);
      }
      break;
    case 256:
      {
        pe_Boolean (home->i1.c256_fld);
      }
      break;
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peCh255 (ASNG_F(asnperg) &home->a_fld);
  peCh256 (ASNG_F(asnperg) &home->b_fld);
  peCh257 (ASNG_F(asnperg) &home->c_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
