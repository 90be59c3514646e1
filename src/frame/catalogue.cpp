// The catalogue of the worksheet language: argument counts, names and the
// value types offered for arguments. The tables are switch statements on the
// number: constant lookups with no state and no initialisation.

#include <exception>

#include "frame/catalogue.h"
#include "frame/catalogue_tables.h"

namespace VarnholtMath {
namespace ValueTypes {

unsigned int numberOfFunctionArguments(NodeType id)
{
    switch (static_cast<int>(id)) {
    // 56 and 425 are numbers that were given up; asking for them is a
    // programming error of the caller.
    case 56:
    case 425:
        throw std::exception();
    case 5: case 6: case 23: case 24: case 25: case 57: case 58: case 59: case 60: case 61: case 62:
    case 63: case 64: case 65: case 66: case 67: case 68: case 69: case 70: case 71: case 72:
    case 73: case 74: case 75: case 76: case 77: case 78: case 79: case 80: case 81: case 82:
    case 83: case 84: case 85: case 86: case 87: case 88: case 89: case 90: case 93: case 95:
    case 112: case 113: case 115: case 120: case 134: case 135: case 136: case 137: case 139:
    case 141: case 142: case 152: case 153: case 154: case 155: case 156: case 159: case 160:
    case 161: case 162: case 183: case 184: case 185: case 186: case 187: case 188: case 189:
    case 190: case 191: case 192: case 193: case 194: case 195: case 196: case 197: case 198:
    case 199: case 200: case 201: case 202: case 203: case 204: case 205: case 206: case 207:
    case 208: case 209: case 210: case 211: case 212: case 213: case 221: case 223: case 225:
    case 227: case 229: case 232: case 233: case 234: case 235: case 236: case 237: case 284:
    case 286: case 287: case 288: case 289: case 290: case 291: case 308: case 309: case 322:
    case 324: case 326: case 328: case 338: case 339: case 340: case 341: case 347: case 348:
    case 349: case 354: case 355: case 356: case 357: case 358: case 359: case 360: case 361:
    case 381: case 382: case 383: case 385: case 386: case 387: case 388: case 389: case 390:
    case 391: case 402: case 403: case 404: case 405: case 406: case 407: case 408: case 412:
    case 413: case 414: case 415: case 435: case 436: case 437: case 439: case 446: case 448:
    case 450: case 451: case 452: case 454: case 460: case 463: case 469: case 470: case 471:
    case 472: case 473: case 474: case 475: case 476: case 486: case 494: case 497: case 506:
    case 509: case 512: case 515: case 524: case 540: case 541: case 542: case 546: case 547:
    case 548: case 549: case 558: case 559: case 560: case 561: case 562: case 563: case 564:
    case 565: case 569: case 571: case 572: case 574: case 597: case 598: case 601: case 602:
    case 603: case 604: case 605: case 611: case 613: case 618: case 621: case 631: case 638:
    case 659: case 660: case 662: case 665: case 672: case 675: case 676: case 677: case 682:
    case 705: case 712: case 718: case 720: case 721: case 723: case 725: case 727: case 730:
    case 736: case 742: case 745: case 747: case 749: case 777: case 779: case 780: case 781:
    case 797: case 801: case 802: case 803: case 804: case 805: case 806: case 807: case 808:
    case 811: case 815: case 816: case 817: case 818: case 819: case 820: case 821: case 822:
    case 823: case 824: case 825: case 830: case 831: case 834: case 835: case 840: case 841:
    case 842: case 843: case 844: case 845: case 850: case 851: case 857: case 860: case 861:
    case 866: case 871: case 872: case 873: case 874: case 876: case 877: case 878: case 879:
    case 881: case 883: case 885: case 886: case 896: case 897: case 899: case 900: case 901:
    case 902: case 903: case 923: case 924: case 987: case 989: case 991: case 993: case 996:
    case 998: case 1000: case 1001: case 1002: case 1003: case 1004: case 1005: case 1006:
    case 1007: case 1008: case 1009: case 1010: case 1011: case 1012: case 1013: case 1016:
    case 1023: case 1024: case 1025: case 1027: case 1029: case 1030: case 1032: case 1033:
    case 1035: case 1036: case 1037: case 1042: case 1045: case 1047: case 1048: case 1055:
    case 1056: case 1057: case 1061: case 1063: case 1064: case 1065: case 1072: case 1073:
    case 1074: case 1075: case 1076: case 1079: case 1080: case 1081: case 1083: case 1084:
    case 1086: case 1087: case 1090: case 1092: case 1093: case 1095: case 1098: case 1099:
    case 1100: case 1101: case 1102: case 1103: case 1104: case 1105: case 1110: case 1111:
    case 1112: case 1117: case 1128:
        return 1;
    case 7: case 20: case 21: case 22: case 35: case 36: case 91: case 92: case 94: case 96:
    case 97: case 98: case 99: case 100: case 101: case 102: case 103: case 104: case 105: case 106:
    case 107: case 108: case 109: case 110: case 111: case 114: case 116: case 117: case 118:
    case 119: case 138: case 140: case 144: case 145: case 146: case 147: case 148: case 149:
    case 150: case 151: case 158: case 166: case 167: case 168: case 169: case 170: case 171:
    case 172: case 173: case 174: case 175: case 176: case 177: case 178: case 179: case 180:
    case 181: case 182: case 214: case 215: case 216: case 217: case 218: case 219: case 220:
    case 222: case 224: case 226: case 228: case 238: case 239: case 240: case 241: case 242:
    case 243: case 272: case 275: case 276: case 281: case 282: case 283: case 285: case 292:
    case 293: case 294: case 295: case 299: case 300: case 301: case 302: case 303: case 310:
    case 311: case 314: case 315: case 316: case 317: case 318: case 319: case 320: case 321:
    case 323: case 325: case 327: case 329: case 330: case 331: case 332: case 333: case 334:
    case 335: case 345: case 346: case 352: case 353: case 362: case 398: case 399: case 400:
    case 401: case 409: case 410: case 417: case 420: case 421: case 426: case 438: case 445:
    case 447: case 453: case 456: case 459: case 461: case 462: case 464: case 466: case 477:
    case 478: case 479: case 482: case 483: case 484: case 485: case 487: case 488: case 491:
    case 495: case 498: case 500: case 503: case 507: case 510: case 513: case 516: case 518:
    case 521: case 525: case 531: case 532: case 533: case 534: case 535: case 536: case 537:
    case 538: case 539: case 550: case 551: case 552: case 553: case 555: case 556: case 557:
    case 566: case 568: case 570: case 573: case 575: case 576: case 580: case 581: case 586:
    case 587: case 588: case 590: case 591: case 593: case 595: case 596: case 606: case 607:
    case 608: case 609: case 614: case 617: case 633: case 639: case 640: case 641: case 642:
    case 643: case 645: case 647: case 653: case 655: case 656: case 657: case 661: case 663:
    case 664: case 669: case 671: case 673: case 680: case 683: case 684: case 685: case 686:
    case 687: case 706: case 707: case 710: case 711: case 719: case 722: case 724: case 728:
    case 732: case 735: case 756: case 759: case 760: case 768: case 772: case 778: case 782:
    case 784: case 788: case 789: case 790: case 792: case 798: case 810: case 826: case 827:
    case 828: case 829: case 832: case 833: case 836: case 837: case 838: case 839: case 846:
    case 847: case 848: case 849: case 852: case 853: case 854: case 858: case 859: case 862:
    case 867: case 869: case 882: case 884: case 887: case 892: case 893: case 894: case 895:
    case 898: case 904: case 905: case 906: case 909: case 910: case 913: case 914: case 915:
    case 916: case 917: case 918: case 920: case 926: case 985: case 988: case 992: case 994:
    case 995: case 1017: case 1019: case 1020: case 1026: case 1038: case 1039: case 1043:
    case 1044: case 1050: case 1052: case 1058: case 1059: case 1060: case 1062: case 1066:
    case 1068: case 1069: case 1070: case 1071: case 1082: case 1085: case 1089: case 1091:
    case 1096: case 1097: case 1106: case 1107: case 1108: case 1109: case 1114: case 1115:
    case 1118: case 1119:
        return 2;
    case 18: case 34: case 123: case 126: case 127: case 128: case 129: case 130: case 132:
    case 133: case 163: case 164: case 231: case 244: case 245: case 246: case 247: case 248:
    case 249: case 250: case 251: case 252: case 253: case 254: case 255: case 256: case 257:
    case 258: case 259: case 260: case 261: case 262: case 263: case 264: case 265: case 266:
    case 267: case 278: case 279: case 280: case 296: case 297: case 298: case 304: case 305:
    case 306: case 307: case 350: case 363: case 380: case 395: case 418: case 419: case 422:
    case 423: case 424: case 428: case 429: case 455: case 465: case 480: case 481: case 489:
    case 492: case 496: case 499: case 501: case 504: case 508: case 511: case 514: case 517:
    case 519: case 522: case 526: case 528: case 529: case 530: case 544: case 567: case 577:
    case 584: case 585: case 589: case 599: case 600: case 658: case 670: case 678: case 679:
    case 698: case 700: case 701: case 708: case 709: case 713: case 714: case 726: case 740:
    case 741: case 743: case 748: case 769: case 783: case 785: case 786: case 787: case 791:
    case 793: case 794: case 795: case 796: case 813: case 890: case 919: case 921: case 922:
    case 986: case 990: case 1040: case 1049: case 1051: case 1054: case 1077: case 1113: case 1116:
    case 1120:
        return 3;
    case 19: case 26: case 27: case 28: case 29: case 30: case 31: case 121: case 122: case 124:
    case 125: case 131: case 143: case 157: case 165: case 230: case 312: case 351: case 394:
    case 396: case 397: case 416: case 427: case 457: case 458: case 490: case 493: case 502:
    case 505: case 520: case 523: case 619: case 622: case 666: case 681: case 689: case 692:
    case 699: case 731: case 737: case 746: case 757: case 758: case 773: case 799: case 800:
    case 855: case 875: case 880: case 889: case 891: case 1021: case 1067: case 1121:
        return 4;
    case 336: case 337: case 411: case 582: case 583: case 594: case 620: case 623: case 624:
    case 691: case 693: case 694: case 695: case 744: case 751: case 755: case 774: case 856:
    case 888: case 908: case 912: case 1122: case 1123: case 1124:
        return 5;
    case 32: case 33: case 268: case 271: case 273: case 274: case 696: case 715: case 717:
        return 6;
    case 592: case 690: case 716: case 752: case 754: case 864: case 1094: case 1126:
        return 7;
    case 270:
        return 8;
    case 313: case 644: case 646: case 648: case 649:
        return 9;
    case 1125:
        return 11;
    case 269: case 277:
        return 12;
    case 650:
        return 15;
    case 651: case 652:
        return 18;
    default:
        return 0;
    }
}

std::string functionName(NodeType id)
{
    switch (static_cast<int>(id)) {
    case 5: return "vector";
    case 6: return "vectorr";
    case 7: return "matrix";
    case 18: return "equation";
    case 19: return "interval";
    case 20: return "root";
    case 21: return "pow";
    case 22: return "pow";
    case 23: return "abs";
    case 24: return "abs";
    case 25: return "factorial";
    case 26: return "series";
    case 27: return "iteratedProduct";
    case 28: return "integrateTrapez";
    case 29: return "integrateSimpson";
    case 30: return "integrateRectangle";
    case 31: return "integrateGausN";
    case 32: return "derivative";
    case 33: return "derivative";
    case 34: return "limit";
    case 35: return "limiti";
    case 36: return "subValue";
    case 38: return "cPi";
    case 39: return "cE";
    case 40: return "cInf";
    case 41: return "cC";
    case 42: return "cEc";
    case 43: return "cH";
    case 44: return "cK";
    case 45: return "cMu";
    case 46: return "cNa";
    case 47: return "cR";
    case 48: return "cRc";
    case 49: return "cFsc";
    case 50: return "cEMc";
    case 51: return "cPs";
    case 52: return "cMps";
    case 53: return "cSbc";
    case 54: return "cMfq";
    case 57: return "acos";
    case 58: return "asin";
    case 59: return "atan";
    case 60: return "ceil";
    case 61: return "cos";
    case 62: return "cosh";
    case 63: return "fabs";
    case 64: return "floor";
    case 65: return "log";
    case 66: return "log10";
    case 67: return "log2";
    case 68: return "log1p";
    case 69: return "logb";
    case 70: return "sin";
    case 71: return "sinh";
    case 72: return "tan";
    case 73: return "cot";
    case 74: return "tanh";
    case 75: return "acosh";
    case 76: return "asinh";
    case 77: return "atanh";
    case 78: return "cbrt";
    case 79: return "exp2";
    case 80: return "expm1";
    case 81: return "round";
    case 82: return "trunc";
    case 83: return "coth";
    case 84: return "acot";
    case 85: return "acoth";
    case 86: return "exp";
    case 87: return "sqrt";
    case 88: return "sgn";
    case 89: return "conj";
    case 90: return "fact";
    case 91: return "atan2";
    case 92: return "fmod";
    case 93: return "frexp";
    case 94: return "ldexp";
    case 95: return "modf";
    case 96: return "fdim";
    case 97: return "fmin";
    case 98: return "fmax";
    case 99: return "hypot";
    case 100: return "remainder";
    case 101: return "min";
    case 102: return "max";
    case 103: return "nextafter";
    case 104: return "scalbn";
    case 105: return "remquo";
    case 106: return "gcd";
    case 107: return "gcde";
    case 108: return "lcm";
    case 109: return "pseudoinverse";
    case 110: return "chineserem";
    case 111: return "BinomialCoefficient";
    case 112: return "FibonaciNumber";
    case 113: return "CountPartitions";
    case 114: return "CountkPartitions";
    case 115: return "BellNumber";
    case 116: return "StirlingNumber1stKindSigned";
    case 117: return "StirlingNumber1stKindUnsigned";
    case 118: return "StirlingNumber2ndKind";
    case 119: return "PoissonCoefficient";
    case 120: return "isPrime";
    case 121: return "presentvalue";
    case 122: return "futurevalue";
    case 123: return "annualpayment";
    case 124: return "interestpayment";
    case 125: return "capitalpayment";
    case 126: return "rate";
    case 127: return "numberofperiods";
    case 128: return "bondprice";
    case 129: return "bondyieldtomaturity";
    case 130: return "bondduration";
    case 131: return "bonddurationmodified";
    case 132: return "bondconvexity";
    case 133: return "bondaccuredinterest";
    case 134: return "erf";
    case 135: return "erfc";
    case 136: return "lgamma";
    case 137: return "gamma";
    case 138: return "beta";
    case 139: return "zeta";
    case 140: return "struve";
    case 141: return "lambert";
    case 142: return "heavyside";
    case 143: return "gausshypergeometric";
    case 144: return "BesselFirstKind";
    case 145: return "BesselFirstKindZero";
    case 146: return "BesselSecondKind";
    case 147: return "BesselSecondKindZero";
    case 148: return "ModifiedBesselFirstKind";
    case 149: return "ModifiedBesselSecondKind";
    case 150: return "SphericalBesselFirstKind";
    case 151: return "SphericalBesselSecondKind";
    case 152: return "bgamma";
    case 153: return "AiryAi";
    case 154: return "AiryAiZero";
    case 155: return "AiryBi";
    case 156: return "AiryBiZero";
    case 157: return "SphericalHarmonic";
    case 158: return "ExponentialIntegralEn";
    case 159: return "ExponentialIntegralEi";
    case 160: return "FresnelsIntegralS";
    case 161: return "FresnelsIntegralC";
    case 162: return "DawsonsIntegral";
    case 163: return "EllipticIntegralCarlsonRf";
    case 164: return "EllipticIntegralCarlsonRd";
    case 165: return "EllipticIntegralCarlsonRj";
    case 166: return "EllipticIntegralCarlsonRc";
    case 167: return "JacobiEllipticSn";
    case 168: return "JacobiEllipticCn";
    case 169: return "JacobiEllipticDn";
    case 170: return "JacobiCd";
    case 171: return "JacobiCn";
    case 172: return "JacobiCs";
    case 173: return "JacobiDc";
    case 174: return "JacobiDn";
    case 175: return "JacobiDs";
    case 176: return "JacobiNc";
    case 177: return "JacobiNd";
    case 178: return "JacobiNs";
    case 179: return "JacobiSc";
    case 180: return "JacobiSd";
    case 181: return "JacobiSn";
    case 182: return "FermiDirac";
    case 183: return "decLU";
    case 184: return "decLUL";
    case 185: return "decLUU";
    case 186: return "decLUPQ";
    case 187: return "decLUPQL";
    case 188: return "decLUPQU";
    case 189: return "decLUPQP";
    case 190: return "decLUPQQ";
    case 191: return "decQR";
    case 192: return "decQRQ";
    case 193: return "decQRR";
    case 194: return "decQRP";
    case 195: return "decQRPQ";
    case 196: return "decQRPR";
    case 197: return "decQRPP";
    case 198: return "decHessenberg";
    case 199: return "decHessenbergH";
    case 200: return "decHessenbergQ";
    case 201: return "decCholesky";
    case 202: return "decCholeskyLDP";
    case 203: return "decCholeskyLDPL";
    case 204: return "decCholeskyLDPD";
    case 205: return "decCholeskyLDPP";
    case 206: return "decSVD";
    case 207: return "decSVDU";
    case 208: return "decSVDS";
    case 209: return "decSVDV";
    case 210: return "characteristicPolynomialRoots";
    case 211: return "diagonalization";
    case 212: return "diagonalizationD";
    case 213: return "diagonalizationP";
    case 214: return "poladd";
    case 215: return "polsub";
    case 216: return "polmul";
    case 217: return "poldiv";
    case 218: return "polrem";
    case 219: return "polValue";
    case 220: return "polLegandre";
    case 221: return "polLegandreRoots";
    case 222: return "polChebyshev1k";
    case 223: return "polChebyshev1kRoots";
    case 224: return "polChebyshev2k";
    case 225: return "polChebyshev2kRoots";
    case 226: return "polLager";
    case 227: return "polLagerRoots";
    case 228: return "polHermite";
    case 229: return "polHermiteRoots";
    case 230: return "polJacobi";
    case 231: return "polJacobiRoots";
    case 232: return "rad2deg";
    case 233: return "deg2rad";
    case 234: return "rad2grad";
    case 235: return "grad2rad";
    case 236: return "grad2deg";
    case 237: return "deg2grad";
    case 238: return "cartesian2polar";
    case 239: return "cartesian2polarR";
    case 240: return "cartesian2polarF";
    case 241: return "polar2cartesian";
    case 242: return "polar2cartesianX";
    case 243: return "polar2cartesianY";
    case 244: return "cartesian2sphere";
    case 245: return "cartesian2sphereR";
    case 246: return "cartesian2sphereF";
    case 247: return "cartesian2sphereT";
    case 248: return "sphere2cartesian";
    case 249: return "sphere2cartesianX";
    case 250: return "sphere2cartesianY";
    case 251: return "sphere2cartesianZ";
    case 252: return "cartesian2cylinder";
    case 253: return "cartesian2cylinderR";
    case 254: return "cartesian2cylinderF";
    case 255: return "cartesian2cylinderZ";
    case 256: return "cylinder2cartesian";
    case 257: return "cylinder2cartesianX";
    case 258: return "cylinder2cartesianY";
    case 259: return "cylinder2cartesianZ";
    case 260: return "cylinder2sphere";
    case 261: return "cylinder2sphereR";
    case 262: return "cylinder2sphereF";
    case 263: return "cylinder2sphereT";
    case 264: return "sphere2cylinder";
    case 265: return "sphere2cylinderR";
    case 266: return "sphere2cylinderF";
    case 267: return "sphere2cylinderZ";
    case 268: return "areColinear";
    case 269: return "areComplanar";
    case 270: return "areCocyclic";
    case 271: return "areConcurent";
    case 272: return "anglebtwlines";
    case 273: return "areaofTriangle";
    case 274: return "angle";
    case 275: return "PlotArc";
    case 276: return "PlotCircle";
    case 277: return "volumeOfTetrahedron";
    case 278: return "finv";
    case 279: return "gammadist";
    case 280: return "gammainv";
    case 281: return "geometricdens";
    case 282: return "geometricdist";
    case 283: return "geometricinv";
    case 284: return "average";
    case 285: return "trimmean";
    case 286: return "median";
    case 287: return "variance";
    case 288: return "varianceSample";
    case 289: return "deviation";
    case 290: return "deviationSample";
    case 291: return "avgdev";
    case 292: return "percentile";
    case 293: return "correlation";
    case 294: return "autocorrelation";
    case 295: return "exponentialinv";
    case 296: return "fdist";
    case 297: return "betadist";
    case 298: return "betainv";
    case 299: return "chidist";
    case 300: return "chiinv";
    case 301: return "poissondens";
    case 302: return "poissondist";
    case 303: return "poissoninv";
    case 304: return "normaldist";
    case 305: return "normalinv";
    case 306: return "cauchydist";
    case 307: return "cauchyinv";
    case 308: return "modus";
    case 309: return "asymmetry";
    case 310: return "covariance";
    case 311: return "exponentialdist";
    case 312: return "curve2D";
    case 313: return "surface3D";
    case 314: return "CSInterpolation";
    case 315: return "CBSInterpolation";
    case 316: return "ASInterpolation";
    case 317: return "HSInterpolation";
    case 318: return "LinInterpolation";
    case 319: return "PolyInterpolation";
    case 320: return "RatioInterpolation";
    case 321: return "BezInterpolation";
    case 322: return "LinRegressionCoef";
    case 323: return "LinRegressionValue";
    case 324: return "LogRegressionCoef";
    case 325: return "LogRegressionValue";
    case 326: return "ExpRegressionCoef";
    case 327: return "ExpRegressionValue";
    case 328: return "PowRegressionCoef";
    case 329: return "PowRegressionValue";
    case 330: return "XNodes";
    case 331: return "derivative";
    case 332: return "linsolve";
    case 333: return "linsolvesys";
    case 334: return "nonlinsolve";
    case 335: return "nonlinneqsolve";
    case 336: return "desolve";
    case 337: return "desolvesys";
    case 338: return "FFT1";
    case 339: return "FFTI1";
    case 340: return "FFT2";
    case 341: return "FFTI2";
    case 345: return "createMatrix";
    case 346: return "createVector";
    case 347: return "rows";
    case 348: return "columns";
    case 349: return "size";
    case 350: return "valueAt";
    case 351: return "setValueAt";
    case 352: return "vectorsToMatrixRows";
    case 353: return "vectorsToMatrixColumns";
    case 354: return "vectorToRowVector";
    case 355: return "vectorToColumnVector";
    case 356: return "matrixInverse";
    case 357: return "matrixCoFactor";
    case 358: return "matrixAdjoint";
    case 359: return "matrixTranspose";
    case 360: return "matrixDeterminant";
    case 361: return "symbols";
    case 362: return "containSymbol";
    case 363: return "replaceSymbols";
    case 385: return "typeName";
    case 386: return "toString";
    case 387: return "print";
    case 391: return "getc";
    case 394: return "curves3D";
    case 395: return "setSubValue";
    case 396: return "complexCurve2DRe";
    case 397: return "complexCurve2DImg";
    case 398: return "joinMatrixRows";
    case 399: return "joinMatrixColumns";
    case 400: return "row2Vector";
    case 401: return "column2Vector";
    case 402: return "isHermitian";
    case 403: return "positiveDefinite";
    case 404: return "negativeDefinite";
    case 405: return "positiveSemiDefinite";
    case 406: return "negativeSemiDefinite";
    case 407: return "matrixConjugateTranspose";
    case 408: return "isSymbolic";
    case 409: return "matrixSMul";
    case 410: return "matrixSDiv";
    case 411: return "matrixSubset";
    case 412: return "complexRe";
    case 413: return "complexImg";
    case 414: return "eigenVectors";
    case 415: return "rank";
    case 416: return "constantOfIntegration";
    case 417: return "logax";
    case 418: return "betadens";
    case 419: return "cauchydens";
    case 420: return "chidens";
    case 422: return "fdens";
    case 423: return "gammadens";
    case 424: return "normaldens";
    case 426: return "symbolicIntegral";
    case 427: return "integrateSymbolic";
    case 428: return "symbolicDerivative";
    case 429: return "symbolicDerivative";
    case 436: return "toNumber";
    case 437: return "strlen";
    case 438: return "strat";
    case 441: return "rand";
    case 445: return "setRowNames";
    case 446: return "rowNames";
    case 447: return "setColumnNames";
    case 448: return "columnNames";
    case 450: return "LinFit";
    case 451: return "ExpFit";
    case 452: return "LogFit";
    case 453: return "PolyFit";
    case 454: return "PowFit";
    case 455: return "PolyRegressionValue";
    case 456: return "PolyRegressionCoef";
    case 457: return "ExcelWrite";
    case 458: return "ExcelRead";
    case 459: return "ExcelCell";
    case 460: return "ExcelSheetNames";
    case 461: return "CsvWrite";
    case 462: return "CsvRead";
    case 463: return "DatabaseTables";
    case 464: return "DatabaseTableColumns";
    case 465: return "DatabaseWrite";
    case 466: return "DatabaseRead";
    case 467: return "InstallDir";
    case 468: return "UserDir";
    case 469: return "diag";
    case 470: return "trace";
    case 471: return "matMax";
    case 472: return "rowsMax";
    case 473: return "columnsMax";
    case 474: return "matMin";
    case 475: return "rowsMin";
    case 476: return "columnsMin";
    case 477: return "sort";
    case 478: return "rowsSort";
    case 479: return "columnsSort";
    case 480: return "matrixCreate";
    case 481: return "vectorCreate";
    case 482: return "identityMatrix";
    case 483: return "columnDelete";
    case 484: return "rowDelete";
    case 485: return "complex";
    case 486: return "phangle";
    case 487: return "complexIdentity";
    case 488: return "uRandNum";
    case 489: return "uRandVec";
    case 490: return "uRandMat";
    case 491: return "normRandNum";
    case 492: return "normRandVec";
    case 493: return "normRandMat";
    case 494: return "expRandNum";
    case 495: return "expRandVec";
    case 496: return "expRandMat";
    case 497: return "dblexpRandNum";
    case 498: return "dblexpRandVec";
    case 499: return "dblexpRandMat";
    case 500: return "gammaRandNum";
    case 501: return "gammaRandVec";
    case 502: return "gammaRandMat";
    case 503: return "betaRandNum";
    case 504: return "betaRandVec";
    case 505: return "betaRandMat";
    case 506: return "chi2RandNum";
    case 507: return "chi2RandVec";
    case 508: return "chi2RandMat";
    case 509: return "poissonRandNum";
    case 510: return "poissonRandVec";
    case 511: return "poissonRandMat";
    case 512: return "geometricRandNum";
    case 513: return "geometricRandVec";
    case 514: return "geometricRandMat";
    case 515: return "logarithmicRandNum";
    case 516: return "logarithmicRandVec";
    case 517: return "logarithmicRandMat";
    case 518: return "cauchyRandNum";
    case 519: return "cauchyRandVec";
    case 520: return "cauchyRandMat";
    case 521: return "fRandNum";
    case 522: return "fRandVec";
    case 523: return "fRandMat";
    case 524: return "tRandNum";
    case 525: return "tRandVec";
    case 526: return "tRandMat";
    case 528: return "dblexponentialinv";
    case 529: return "dblexponentialdist";
    case 530: return "dblexponentialdens";
    case 531: return "logarithmicdens";
    case 532: return "logarithmicdist";
    case 533: return "logarithmicinv";
    case 534: return "tdens";
    case 535: return "tdist";
    case 536: return "tinv";
    case 537: return "rSquared";
    case 538: return "rSquaredAdjusted";
    case 539: return "estError";
    case 540: return "anova";
    case 541: return "anovaF";
    case 542: return "anovaP";
    case 544: return "nonlinsolvesys";
    case 545: return "ChannelsTable";
    case 546: return "Sleep";
    case 547: return "ChannelTable";
    case 548: return "ChannelDirection";
    case 549: return "ChannelClose";
    case 550: return "ChannelCreate";
    case 551: return "ChannelWrite";
    case 552: return "ChannelConnect";
    case 553: return "ChannelRead";
    case 555: return "tableCreate";
    case 556: return "staticValue";
    case 557: return "setStaticValue";
    case 558: return "isUndefined";
    case 559: return "isInteger";
    case 560: return "isDouble";
    case 561: return "isComplex";
    case 562: return "isString";
    case 563: return "isVector";
    case 564: return "isMatrix";
    case 565: return "isTable";
    case 566: return "regression";
    case 567: return "InnerPoints";
    case 568: return "MovingAverage";
    case 569: return "LinInterpMat";
    case 570: return "LinInterpEq";
    case 571: return "PolyInterpEq";
    case 572: return "ASInterpolation";
    case 573: return "ASInterpEq";
    case 574: return "CSInterpMat";
    case 575: return "CSInterpEq";
    case 576: return "HSInterpMat";
    case 577: return "HSInterpEq";
    case 580: return "Widget";
    case 581: return "Button";
    case 582: return "SpinBox";
    case 583: return "DoubleSpinBox";
    case 584: return "RadioButton";
    case 585: return "CheckBox";
    case 586: return "ListBox";
    case 587: return "ComboBox";
    case 588: return "GroupBox";
    case 589: return "TabWidget";
    case 590: return "LineTextBox";
    case 591: return "TextBox";
    case 592: return "Slider";
    case 593: return "Label";
    case 594: return "ProgressBar";
    case 595: return "MessageBox";
    case 596: return "OnEvent";
    case 597: return "Show";
    case 598: return "Close";
    case 599: return "SetPos";
    case 600: return "SetSize";
    case 601: return "PosX";
    case 602: return "PosY";
    case 603: return "Width";
    case 604: return "Height";
    case 605: return "WidgetValue";
    case 606: return "SetWidgetValue";
    case 607: return "SetVisible";
    case 608: return "TableWidget";
    case 609: return "Graph3D";
    case 611: return "EmbedWidget";
    case 613: return "BezInterpMat";
    case 614: return "BezInterpEq";
    case 617: return "sumOfSqError";
    case 618: return "regressionTable";
    case 619: return "FIRlowpass";
    case 620: return "FIRbandpass";
    case 621: return "vecOfIntervals";
    case 622: return "FIRhighpass";
    case 623: return "FIRhilbert";
    case 624: return "FIRbandstop";
    case 630: return "InRuntime";
    case 631: return "SetDecPlaces";
    case 632: return "DecPlaces";
    case 633: return "makeWindow";
    case 638: return "norm";
    case 639: return "vecangle";
    case 640: return "areOrthogonal";
    case 641: return "scalproj";
    case 642: return "vecproj";
    case 643: return "crossprod";
    case 644: return "areaofParal3D";
    case 645: return "vecareaofParal3D";
    case 646: return "areaofTriangle3D";
    case 647: return "vecareaofTriangle3D";
    case 648: return "distPointLine";
    case 649: return "planeVector";
    case 650: return "intersecLinePlane";
    case 651: return "intersecPlanes";
    case 652: return "intersecTriangles";
    case 653: return "intersecsurface";
    case 655: return "OpenFileWidget";
    case 656: return "SaveFileWidget";
    case 657: return "FileOpen";
    case 658: return "FileCreate";
    case 659: return "FileSize";
    case 660: return "FilePos";
    case 661: return "FileSeek";
    case 662: return "FileClose";
    case 663: return "FileWrite";
    case 664: return "FileRead";
    case 665: return "FileToChannel";
    case 666: return "ChannelToFile";
    case 667: return "DocumentDir";
    case 669: return "downsample";
    case 670: return "resample";
    case 671: return "upsample";
    case 672: return "sinc";
    case 673: return "diric";
    case 675: return "sawtooth";
    case 676: return "square";
    case 677: return "peaks";
    case 678: return "InitFIRFilter";
    case 679: return "FIRFilter";
    case 680: return "InitIIRFilter";
    case 681: return "IIRFilter";
    case 682: return "triangle";
    case 683: return "flip";
    case 684: return "rectangle";
    case 685: return "crosscorr";
    case 686: return "crosscov";
    case 687: return "convolution";
    case 689: return "firfreqsampl";
    case 690: return "firopt";
    case 691: return "firoptord";
    case 692: return "buttlowhigh";
    case 693: return "buttband";
    case 694: return "cheby1lohi";
    case 695: return "cheby2lohi";
    case 696: return "elliplohi";
    case 698: return "FIRFreqResponse";
    case 699: return "IIRFreqResponse";
    case 700: return "iirgroupdelay";
    case 701: return "iirphasedelay";
    case 705: return "FFTShift";
    case 706: return "FFT1N";
    case 707: return "FFTI1N";
    case 708: return "FFT2N";
    case 709: return "FFTI2N";
    case 710: return "DCT1";
    case 711: return "DCTI1";
    case 712: return "envelopeTop";
    case 713: return "fwht";
    case 714: return "ifwht";
    case 715: return "cheby2band";
    case 716: return "ellipband";
    case 717: return "cheby1band";
    case 718: return "numofdigits";
    case 719: return "coef2polynomial";
    case 720: return "polynomial2coef";
    case 721: return "polRoots";
    case 722: return "analyticsig";
    case 723: return "unwrap";
    case 724: return "roots2pol";
    case 725: return "continuousPhase";
    case 726: return "issorted";
    case 727: return "next2pow";
    case 728: return "elementsSum";
    case 729: return "timeNow";
    case 730: return "maxPoint";
    case 731: return "YNodes";
    case 732: return "triangular";
    case 735: return "Graph2D";
    case 736: return "Visible";
    case 737: return "SetGraphTitles";
    case 740: return "shift";
    case 741: return "matrep";
    case 742: return "envelopeBottom";
    case 743: return "periodogram";
    case 744: return "powSpectWelch";
    case 745: return "WaveRead";
    case 746: return "WaveWrite";
    case 747: return "WaveProperties";
    case 748: return "AudioPlay";
    case 749: return "WavePlay";
    case 751: return "spectrogram";
    case 752: return "threeDdata";
    case 754: return "PidController";
    case 755: return "PidAutotuner";
    case 756: return "PidSpringModelWidget";
    case 757: return "PidControllerWidget";
    case 758: return "DataLoggerWidget";
    case 759: return "DatabaseQuery";
    case 760: return "SetTooltip";
    case 768: return "mod";
    case 769: return "AudioRecord";
    case 772: return "ProjectManagementWidget";
    case 773: return "SetGraphAxis";
    case 774: return "SetGraphRange";
    case 777: return "ChemParse";
    case 778: return "ChemBalance";
    case 779: return "matRREForm";
    case 780: return "chemSolver";
    case 781: return "WaveletFilter";
    case 782: return "DiscreteWavelet";
    case 783: return "WaveletPacketDec";
    case 784: return "ChemReactionMatrix";
    case 785: return "didownsample";
    case 786: return "WaveDec";
    case 787: return "DiscreteWaveletI";
    case 788: return "WaveletPacketRec";
    case 789: return "WaveRec";
    case 790: return "subValue";
    case 791: return "setSubValue";
    case 792: return "Threshold";
    case 793: return "columnThreshold";
    case 794: return "rowThreshold";
    case 795: return "columnReplace";
    case 796: return "rowReplace";
    case 797: return "isRow";
    case 798: return "matrixReshape";
    case 799: return "matrixSetSubset";
    case 800: return "LMSAdaptive";
    case 801: return "sec";
    case 802: return "csc";
    case 803: return "asec";
    case 804: return "acsc";
    case 805: return "sech";
    case 806: return "csch";
    case 807: return "asech";
    case 808: return "acsch";
    case 810: return "FileCopy";
    case 811: return "FileDelete";
    case 813: return "LinProgMax";
    case 815: return "isPointer";
    case 816: return "ColumnsAverage";
    case 817: return "RowsAverage";
    case 818: return "ColumnsDeviation";
    case 819: return "RowsDeviation";
    case 820: return "columnSum";
    case 821: return "rowSum";
    case 822: return "columnMul";
    case 823: return "rowMul";
    case 824: return "matrixSum";
    case 825: return "matrixMul";
    case 826: return "rowShift";
    case 827: return "columnShift";
    case 828: return "rowSorted";
    case 829: return "columnSorted";
    case 830: return "rowAsymmetry";
    case 831: return "columnAsymmetry";
    case 832: return "rowAutocorrelation";
    case 833: return "columnAutocorrelation";
    case 834: return "rowAvgdev";
    case 835: return "columnAvgdev";
    case 836: return "rowCorrelation";
    case 837: return "columnCorrelation";
    case 838: return "rowCovariance";
    case 839: return "columnCovariance";
    case 840: return "rowDeviationSample";
    case 841: return "columnDeviationSample";
    case 842: return "rowMedian";
    case 843: return "columnMedian";
    case 844: return "rowModus";
    case 845: return "columnModus";
    case 846: return "rowPercentile";
    case 847: return "columnPercentile";
    case 848: return "rowTrimmean";
    case 849: return "columnTrimmean";
    case 850: return "rowVariance";
    case 851: return "columnVariance";
    case 852: return "linSysSplit";
    case 853: return "linSysMatrix";
    case 854: return "linSysTerms";
    case 855: return "naiveBayesTesting";
    case 856: return "naiveBayesCalc";
    case 857: return "isOrthogonal";
    case 858: return "gradient";
    case 859: return "jacobian";
    case 860: return "isSymmetric";
    case 861: return "isSkewSymmetric";
    case 862: return "dotprod";
    case 864: return "LinProgMin";
    case 866: return "ImageRead";
    case 867: return "ImageWrite";
    case 868: return "ImageCapture";
    case 869: return "ImageWidget";
    case 871: return "ImageRed";
    case 872: return "ImageGreen";
    case 873: return "ImageBlue";
    case 874: return "ImageAlpha";
    case 875: return "ImageBGRA";
    case 876: return "ToRed";
    case 877: return "ToGreen";
    case 878: return "ToBlue";
    case 879: return "ToAlpha";
    case 880: return "ToBGRA";
    case 881: return "IsImage";
    case 882: return "ImageSetDPI";
    case 883: return "ImageDPI";
    case 884: return "ImageCreate";
    case 885: return "ImageWidth";
    case 886: return "ImageHeight";
    case 887: return "ImageFill";
    case 888: return "ImageRotate";
    case 889: return "ImageScale";
    case 890: return "ImageMirror";
    case 891: return "ImageShear";
    case 892: return "ImageRedMul";
    case 893: return "ImageGreenMul";
    case 894: return "ImageBlueMul";
    case 895: return "ImageAlphaMul";
    case 896: return "Image2Matrix";
    case 897: return "Matrix2Image";
    case 898: return "ImageFilter";
    case 899: return "ImageSmooth";
    case 900: return "ImageEdge";
    case 901: return "ImageMblur";
    case 902: return "ImageSharpen";
    case 903: return "ImageRaised";
    case 904: return "ImageMedian";
    case 905: return "ImageAbsDiff";
    case 906: return "ImageMsePsnr";
    case 908: return "BilinearInterpolation";
    case 909: return "Factor";
    case 910: return "FactorUnique";
    case 912: return "BicubicInterpolation";
    case 913: return "MeanSquareError";
    case 914: return "MeanPercentageError";
    case 915: return "MeanAbsoluteError";
    case 916: return "MeanAbsolutePercentageError";
    case 917: return "Ustatistics";
    case 918: return "YuleWalker";
    case 919: return "ARForecast";
    case 920: return "PartialAutocorrelation";
    case 921: return "AudioIn";
    case 922: return "AudioOut";
    case 923: return "AudioInProperties";
    case 924: return "AudioOutProperties";
    case 926: return "PyEvaluate";
    case 985: return "ScrollWidget";
    case 986: return "QuestionBox";
    case 987: return "WidgetText";
    case 988: return "SetWidgetText";
    case 989: return "WidgetRange";
    case 990: return "SetWidgetRange";
    case 991: return "WidgetStep";
    case 992: return "SetWidgetStep";
    case 993: return "WidgetOrientation";
    case 994: return "SetWidgetOrientation";
    case 995: return "SetEnabled";
    case 996: return "Enabled";
    case 998: return "CppEvaluate";
    case 1000: return "Decimal2Binary";
    case 1001: return "Binary2Decimal";
    case 1002: return "Decimal2Hexadecimal";
    case 1003: return "Hexadecimal2Decimal";
    case 1004: return "Binary2Hexadecimal";
    case 1005: return "Hexadecimal2Binary";
    case 1006: return "Newton2Pound";
    case 1007: return "Pound2Newton";
    case 1008: return "Meter2Foot";
    case 1009: return "Foot2Meter";
    case 1010: return "Kilo2Pound";
    case 1011: return "Pound2Kilo";
    case 1012: return "Celsius2Fahrenheit";
    case 1013: return "Fahrenheit2Celsius";
    case 1016: return "sgnIm";
    case 1017: return "curl";
    case 1019: return "hessian";
    case 1020: return "laplacian";
    case 1021: return "polTaylor";
    case 1023: return "nextPrime";
    case 1024: return "previousPrime";
    case 1025: return "nthPrime";
    case 1026: return "charpoly";
    case 1027: return "polDegree";
    case 1029: return "rowCumSum";
    case 1030: return "columnCumSum";
    case 1032: return "rowCumProd";
    case 1033: return "columnCumProd";
    case 1034: return "DefinedTypes";
    case 1035: return "TypeConstructors";
    case 1036: return "TypeMembers";
    case 1037: return "TypeMethods";
    case 1038: return "TypeMethodArguments";
    case 1039: return "isBitActive";
    case 1040: return "setBit";
    case 1042: return "ImageResRead";
    case 1043: return "ImageCreateScale";
    case 1044: return "ClipboardSet";
    case 1045: return "ClipboardGet";
    case 1046: return "ProcessEvents";
    case 1047: return "ComOpen";
    case 1048: return "ComClose";
    case 1049: return "ComWrite";
    case 1050: return "ComRead";
    case 1051: return "ModbSendCmd";
    case 1052: return "ImageWidgetRotate";
    case 1054: return "InstrumentWidget";
    case 1055: return "InstrumentWidgetType";
    case 1056: return "InstrumentWidgetTag";
    case 1057: return "SaveWidgetSettings";
    case 1058: return "LoadWidgetSettings";
    case 1059: return "WidgetFromSettings";
    case 1060: return "SetWidgetEditable";
    case 1061: return "WidgetEditable";
    case 1062: return "SetWidgetLayout";
    case 1063: return "WidgetLayout";
    case 1064: return "WidgetSelected";
    case 1065: return "SubWidgets";
    case 1066: return "TabAt";
    case 1067: return "TabInsert";
    case 1068: return "TabRemove";
    case 1069: return "TabCurrent";
    case 1070: return "TabSetCurrent";
    case 1071: return "TabCaption";
    case 1072: return "TabCount";
    case 1073: return "SetWidgetPassword";
    case 1074: return "WidgetPasswordOk";
    case 1075: return "WidgetFontName";
    case 1076: return "WidgetFontSize";
    case 1077: return "SetWidgetFont";
    case 1079: return "PyEvaluate";
    case 1080: return "EvaluateLine";
    case 1081: return "FileExists";
    case 1082: return "FileRename";
    case 1083: return "DirExists";
    case 1084: return "DirCreate";
    case 1085: return "DirRename";
    case 1086: return "DirDelete";
    case 1087: return "DirEntrys";
    case 1088: return "TempDir";
    case 1089: return "TcpConnect";
    case 1090: return "TcpClose";
    case 1091: return "TcpWrite";
    case 1092: return "TcpRead";
    case 1093: return "TcpDataAvailable";
    case 1094: return "DBConnect";
    case 1095: return "DBClose";
    case 1096: return "DBLastError";
    case 1097: return "DBQuery";
    case 1098: return "AppVersion";
    case 1099: return "ToXml";
    case 1100: return "FromXml";
    case 1101: return "XmlCreateDoc";
    case 1102: return "XmlLoadDoc";
    case 1103: return "XmlSaveDoc";
    case 1104: return "XmlHasElements";
    case 1105: return "XmlElements";
    case 1106: return "XmlCreateElement";
    case 1107: return "XmlAddElement";
    case 1108: return "XmlRemoveElement";
    case 1109: return "XmlElement";
    case 1110: return "XmlElementName";
    case 1111: return "XmlHasAttributes";
    case 1112: return "XmlAttributes";
    case 1113: return "XmlAddAttribute";
    case 1114: return "XmlRemoveAttribute";
    case 1115: return "XmlAttribute";
    case 1116: return "HttpPost";
    case 1117: return "HttpGet";
    case 1118: return "OpenFileContent";
    case 1119: return "SaveFileContent";
    case 1120: return "DownloadFile";
    case 1121: return "AudioRecordAsync";
    case 1122: return "curve2Dparam";
    case 1123: return "curve2DparamRe";
    case 1124: return "curve2DparamImg";
    case 1125: return "surface3Dparam";
    case 1126: return "TMCLSendCmd";
    case 1128: return "TreeWidget";
    default:
        return std::string();
    }
}

std::string functionName_f(NodeType id) { return functionName(id) + "_f"; }

std::vector<std::string> functionKeyword(NodeType id)
{
    const int n = static_cast<int>(id);
    unsigned lo = 0, hi = catalogue::keywordRowCount;
    while (lo < hi) {
        const unsigned mid = (lo + hi) / 2;
        if (catalogue::keywordRows[mid].id < n)
            lo = mid + 1;
        else
            hi = mid;
    }
    if (lo < catalogue::keywordRowCount && catalogue::keywordRows[lo].id == n) {
        const catalogue::KeywordRow& row = catalogue::keywordRows[lo];
        return {row.keyword, row.title, row.category};
    }
    return {std::string(), std::string(), std::string()};
}

std::vector<std::string> functionDescription(NodeType id)
{
    // The two common endings of descriptions whose result follows the shape
    // of the input.
    static const std::string endings[] = {
        std::string(),
        "Depending on input, function can return scalar, vector, matrix or complex number.",
        "Depending on input, function can return scalar, vector or matrix",
    };
    const int n = static_cast<int>(id);
    unsigned lo = 0, hi = catalogue::descriptionRowCount;
    while (lo < hi) {
        const unsigned mid = (lo + hi) / 2;
        if (catalogue::descriptionRows[mid].id < n)
            lo = mid + 1;
        else
            hi = mid;
    }
    std::vector<std::string> text;
    if (lo >= catalogue::descriptionRowCount || catalogue::descriptionRows[lo].id != n)
        return text;
    const catalogue::DescriptionRow& row = catalogue::descriptionRows[lo];
    for (const char* line : row.lines) {
        if (!line)
            break;
        text.emplace_back(line);
    }
    if (!text.empty() && row.ending != catalogue::noEnding)
        text[0] += "\n" + endings[row.ending];
    return text;
}

} // namespace ValueTypes
} // namespace VarnholtMath

std::vector<int> getInputOptionsForFunction(VarnholtMath::ValueTypes::NodeType id)
{
    const int n = static_cast<int>(id);
    if (n < 57 || n > 105)
        return {3};
    switch (n) {
    // sqrt (87) is offered no complex value, although it accepts one.
    case 69:
    case 82:
    case 87:
    case 90:
        return {1, 2, 3, 8, 9};
    default:
        if (n >= 93)
            return {1, 2, 3, 8, 9};
        return {1, 2, 3, 4, 8, 9};
    }
}
