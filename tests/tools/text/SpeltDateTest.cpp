#include "tools/text/SpeltDate.h"

#include <gtest/gtest.h>

namespace {

TEST(SpeltDate, IsWhatAPersonTakesForADate) {
    for (const char* text : {"11/20/2026",
                             "20.11.2026",
                             "20.11.2026 10:15",
                             "1/2/26",
                             "26-1-2",
                             "2026/11/20",
                             "11/20/2026 10:15:00 AM",
                             "20 Nov 2026",
                             "Nov 20, 2026",
                             "Fri, 20 Nov 2026 10:15:00 GMT",
                             "20. listopada 2026.",
                             "20 de novembro de 2026",
                             "2026\u5E7411\u670820\u65E5",
                             "2026",
                             "2026-11",
                             "11/2026",
                             "2026-324",
                             "2026-W47",
                             "2026-W47-5",
                             "20261120",
                             "20112026",
                             "11202026",
                             "20261120101500",
                             "Nov 2026",
                             "spring 2026",
                             "29/02/2024"})
        EXPECT_EQ(kindOfSpeltDate(text), DateKind::Spelt) << text;
}

TEST(SpeltDate, IsNotReadWhereThereIsNone) {
    for (const char* text : {"", "n/a", "unknown", "-", "10:15", "12", "123456789", "Plan 99", "0",
                             "1763720000", "2025/2026", "12345.678.9"})
        EXPECT_EQ(kindOfSpeltDate(text), DateKind::None) << text;
}

TEST(SpeltDate, IsImpossibleWhereNoOrderMakesADate) {
    for (const char* text :
         {"30.02.2026", "02/30/2026", "32.11.2026", "13/13/2026", "2026/13/05", "00.00.0000",
          "29/02/2026", "99 Nov 2026", "20.11.2026 25:15", "20.11.2026 10:61"})
        EXPECT_EQ(kindOfSpeltDate(text), DateKind::Impossible) << text;
}

TEST(SpeltDate, IsNotRefusedInDigitsThatAreNotKnownHere) {
    EXPECT_EQ(kindOfSpeltDate("\u0662\u0660/\u0661\u0661"), DateKind::Spelt);
}

} // namespace
