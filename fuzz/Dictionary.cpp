// Prints a libFuzzer dictionary of the package format.

#include <iostream>

#include "parser/internal/TagConstants.h"

int main() {
    for (const char* name : qenxml::tag::all) {
        std::cout << '"' << name << "\"\n"
                  << "\"<" << name << ">\"\n"
                  << "\"</" << name << ">\"\n"
                  << "\" " << name << "=\\\"\"\n";
    }
    std::cout << "\"00112233-4455-6677-8899-aabbccddeeff\"\n"
              << "\"{00112233445566778899aabbccddeeff}\"\n"
              << "\"<![CDATA[\"\n\"]]>\"\n\"<!--\"\n\"-->\"\n\"&#0;\"\n\"&amp;\"\n\"<!DOCTYPE\"\n"
              << "\"0x1p-3\"\n\"1e308\"\n\"-1\"\n\"\\xEF\\xBB\\xBF\"\n\"\\xFF\\xFE\"\n";
}
