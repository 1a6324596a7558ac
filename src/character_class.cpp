#include <ostrel/character_class.h>

namespace {

// Short names keep each sixteen-byte row of the table on one line.
constexpr unsigned char N = 0;
constexpr unsigned char U = CT_UPPER;
constexpr unsigned char L = CT_LOWER;
constexpr unsigned char D = CT_DIGIT;
constexpr unsigned char C = CT_CNTRL;
constexpr unsigned char P = CT_PUNCT;
constexpr unsigned char B = CT_SPACE | CT_BLANK;   // space, no-break space
constexpr unsigned char CS = CT_CNTRL | CT_SPACE;  // tab to carriage return
constexpr unsigned char XU = CT_XLETTER | CT_UPPER;
constexpr unsigned char XL = CT_XLETTER | CT_LOWER;

}  // namespace

// clang-format off
const unsigned char ostrel_ctype[256] = {
    C, C,  C,  C,  C,  C,  C,  C, C, CS, CS, CS, CS, CS, C, C,   // 00
    C, C,  C,  C,  C,  C,  C,  C, C, C,  C,  C,  C,  C,  C, C,   // 10
    B, P,  P,  P,  P,  P,  P,  P, P, P,  P,  P,  P,  P,  P, P,   // 20 space ! to /
    D, D,  D,  D,  D,  D,  D,  D, D, D,  P,  P,  P,  P,  P, P,   // 30 0 to 9 : to ?
    P, XU, XU, XU, XU, XU, XU, U, U, U,  U,  U,  U,  U,  U, U,   // 40 @ A to O
    U, U,  U,  U,  U,  U,  U,  U, U, U,  U,  P,  P,  P,  P, P,   // 50 P to Z [ to _
    P, XL, XL, XL, XL, XL, XL, L, L, L,  L,  L,  L,  L,  L, L,   // 60 ` a to o
    L, L,  L,  L,  L,  L,  L,  L, L, L,  L,  P,  P,  P,  P, C,   // 70 p to z { to ~ delete
    N, N,  N,  N,  N,  N,  N,  N, N, N,  N,  N,  N,  N,  N, N,   // 80
    N, N,  N,  N,  N,  N,  N,  N, N, N,  N,  N,  N,  N,  N, N,   // 90
    B, P,  P,  P,  P,  P,  P,  P, P, P,  P,  P,  P,  P,  P, P,   // A0 no-break space, signs
    P, P,  P,  P,  P,  P,  P,  P, P, P,  P,  P,  P,  P,  P, P,   // B0
    U, U,  U,  U,  U,  U,  U,  U, U, U,  U,  U,  U,  U,  U, U,   // C0
    U, U,  U,  U,  U,  U,  U,  P, U, U,  U,  U,  U,  U,  U, L,   // D0 D7 is the multiplication sign
    L, L,  L,  L,  L,  L,  L,  L, L, L,  L,  L,  L,  L,  L, L,   // E0
    L, L,  L,  L,  L,  L,  L,  P, L, L,  L,  L,  L,  L,  L, L,   // F0 F7 is the division sign
};
// clang-format on
