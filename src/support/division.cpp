// The library never divides by zero, but without these definitions the run-time support of ARM compilers
// would import the function raise for that case.
#if defined(__ARM_EABI__)
extern "C" {
int __aeabi_idiv0(int quotient);
long long __aeabi_ldiv0(long long quotient);

int __aeabi_idiv0(int quotient) { return quotient; }
long long __aeabi_ldiv0(long long quotient) { return quotient; }
}
#endif
