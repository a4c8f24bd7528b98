/// @file
/// Locales for the time of a test.

#ifndef QENXML_TESTS_ROBUSTNESS_LOCALES_H
#define QENXML_TESTS_ROBUSTNESS_LOCALES_H

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <locale.h> // uselocale() and newlocale() are POSIX

#include "tests/support/TemporaryFolder.h"

namespace test {

/// A locale of our own with a decimal comma, made in a folder of its own: no locale has to be
/// installed. Only the program "localedef" is needed.
class CommaLocale {
public:
    static constexpr const char* name = "comma_QENXML";

    CommaLocale() {
        std::string characters = "<code_set_name> ANSI_X3.4-1968\n<comment_char> %\n"
                                 "<escape_char> /\nCHARMAP\n";
        for (unsigned c = 0; c < 128; ++c)
            characters += "<U00" + hex(c) + "> /x" + hex(c) + " character\n";
        characters += "END CHARMAP\n";
        const std::string charmap = folder_.write("charmap", characters);
        const std::string source = folder_.write(
            "source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\n"
                      "END LC_NUMERIC\n");
        const std::string log = folder_.path("log");
        const std::string command = "localedef --force " + byteOrder() + " --charmap='" + charmap +
                                    "' --inputfile='" + source + "' '" + folder_.path(name) +
                                    "' > '" + log + "' 2>&1";
        // Its exit status says nothing: it complains about all the categories that it fills itself.
        std::system(command.c_str()); // NOLINT(cert-env33-c,concurrency-mt-unsafe)

        setenv("LOCPATH", folder_.path("").c_str(), 1); // NOLINT(concurrency-mt-unsafe)
        locale_ = newlocale(LC_NUMERIC_MASK, name, locale_t{});
        if (locale_ == locale_t{}) {
            std::ifstream reason(log);
            throw std::runtime_error(
                "no locale with a decimal comma: this test needs the program \"localedef\" (Debian "
                "package libc-bin). It said:\n" +
                std::string(std::istreambuf_iterator<char>(reason), {}));
        }
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    ~CommaLocale() {
        freelocale(locale_);
        unsetenv("LOCPATH"); // NOLINT(concurrency-mt-unsafe)
    }

    locale_t get() const { return locale_; }

private:
    /// The option for the byte order of this program: under an emulator, localedef has another.
    static std::string byteOrder() {
        return __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ ? "--big-endian" : "--little-endian";
    }

    static std::string hex(unsigned number) {
        constexpr const char* digits = "0123456789abcdef";
        return {digits[number / 16], digits[number % 16]};
    }

    TemporaryFolder folder_;
    locale_t locale_{};
};

/// Sets the locale of the whole process, as a host does at its start.
class ProcessLocale {
public:
    explicit ProcessLocale(const char* name) {
        if (std::setlocale(LC_ALL, name) == nullptr) // NOLINT(concurrency-mt-unsafe)
            throw std::runtime_error("cannot set the locale");
    }
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_ALL, "C"); } // NOLINT(concurrency-mt-unsafe)
};

/// Sets the locale of this thread only.
class ThreadLocale {
public:
    explicit ThreadLocale(locale_t locale) : previous_(uselocale(locale)) {}
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;
    ~ThreadLocale() { uselocale(previous_); }

private:
    locale_t previous_;
};

} // namespace test

#endif
