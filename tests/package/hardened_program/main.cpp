#include <cstring>

#ifdef FORTIFIED
static_assert(_FORTIFY_SOURCE == FORTIFIED, "calls of the C library are checked at another level");
#endif

// Several pages of stack: touched one by one, they cannot reach over the page that guards its end.
__attribute__((noinline)) char first(const char* text) {
    char copy[16384];
    std::strcpy(copy, text); // the check of this call is looked for
    return copy[0];
}

int main(int argc, char** argv) {
    return first(argv[argc - 1]) == 'x';
}
