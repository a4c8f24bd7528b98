#include "parser/Number.h"

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <new>

#include <locale.h> // NOLINT(modernize-deprecated-headers): strtod_l() and its locales are POSIX

namespace qenxml {

namespace {

/// The "C" locale, without touching that of the process or the thread.
class CLocale {
public:
    CLocale() : locale_(newlocale(LC_ALL_MASK, "C", locale_t{})) {
        if (locale_ == locale_t{})
            throw std::bad_alloc();
    }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;
    ~CLocale() { freelocale(locale_); }

    double toDouble(const char* text) const { return strtod_l(text, nullptr, locale_); }

private:
    locale_t locale_;
};

} // namespace

double numberFromText(const char* text) {
#ifdef __cpp_lib_to_chars
    // Plain decimal numbers, which is nearly all of them, take a quarter of the time this way.
    const char* const digits = text + (*text == '-' ? 1 : 0);
    if (*digits >= '0' && *digits <= '9') {
        const char* const end = text + std::strlen(text);
        double number = 0.0;
        const auto [stop, error] = std::from_chars(text, end, number);
        if (stop == end && error == std::errc())
            return number;
    }
#endif
    return CLocale().toDouble(text);
}

} // namespace qenxml
