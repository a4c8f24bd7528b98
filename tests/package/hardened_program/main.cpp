#include <cstring>

int main(int argc, char** argv) {
    char text[16];
    std::strcpy(text, argv[argc - 1]); // the check of this call is looked for
    return text[0] == 'x';
}
