#include "tools/text/UriPath.h"

#include <gtest/gtest.h>

namespace {

TEST(UriPath, StaysRelativeAsThePathIs) {
    EXPECT_EQ(uriOfPath("outgoing/a.xml"), "outgoing/a.xml");
    EXPECT_EQ(uriOfPath("../a.xml"), "../a.xml");
    EXPECT_EQ(uriOfPath("-"), "-");
    EXPECT_EQ(uriOfPath(""), "");
}

TEST(UriPath, HasASchemeWhenThePathIsAbsolute) {
    EXPECT_EQ(uriOfPath("/media/a.xml"), "file:///media/a.xml");
}

TEST(UriPath, EncodesWhatAUriMayNotHold) {
    EXPECT_EQ(uriOfPath("a b (1).xml"), "a%20b%20(1).xml");
    EXPECT_EQ(uriOfPath("C:a?b#c%d\\e"), "C%3Aa%3Fb%23c%25d%5Ce");
    EXPECT_EQ(uriOfPath("\u00e9"), "%C3%A9");
    EXPECT_EQ(uriOfPath("\xFF\n\""), "%FF%0A%22");
}

} // namespace
