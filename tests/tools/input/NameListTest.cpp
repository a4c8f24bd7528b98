#include "tools/input/NameList.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

using Names = std::vector<std::string>;

namespace {

class ListOfNames : public testing::Test {
protected:
    Names names(const std::string& content, bool zeroEnds = false) {
        NameList list(folder_.write("list", content), zeroEnds);
        Names names;
        while (auto name = list.next())
            names.push_back(*name);
        failure_ = list.failure();
        return names;
    }

    test::TemporaryFolder folder_;
    std::string failure_;
};

TEST_F(ListOfNames, HoldsALineEach) {
    EXPECT_EQ(names("a.xml\nb c.xml\n [d]\n"), (Names{"a.xml", "b c.xml", " [d]"}));
    EXPECT_EQ(names("a.xml\n\nb.xml"), (Names{"a.xml", "b.xml"}));
    EXPECT_EQ(names(""), Names{});
    EXPECT_EQ(failure_, "");
}

TEST_F(ListOfNames, TakesLinesAsWindowsWritesThem) {
    EXPECT_EQ(names("\xEF\xBB\xBF"
                    "a.xml\r\n\r\n\xEF\xBB\xBF"
                    "b\r.xml\r\n"),
              (Names{"a.xml", "\xEF\xBB\xBF"
                              "b\r.xml"}));
}

TEST_F(ListOfNames, TakesAnythingBetweenZeroBytes) {
    using namespace std::string_literals;
    EXPECT_EQ(names("a\nb.xml\r\0\0\xEF\xBB\xBF\0c"s, true),
              (Names{"a\nb.xml\r", "\xEF\xBB\xBF", "c"}));
}

TEST_F(ListOfNames, EndsWhereALineHoldsAZeroByte) {
    using namespace std::string_literals;
    EXPECT_EQ(names("a\nb\0c\nd\n"s), Names{"a"});
    EXPECT_EQ(failure_, "holds a zero byte; for names that end with zero bytes give --null");
}

TEST_F(ListOfNames, IsEmptyForAFolder) {
    NameList list(folder_.path(""), false);
    EXPECT_EQ(list.next(), std::nullopt);
    EXPECT_EQ(list.failure(), "is a directory");
}

TEST_F(ListOfNames, RefusesAFileThatIsNotThere) {
    try {
        const NameList list(folder_.path("missing\n"), false);
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(error.what(), folder_.path("missing") + "\\n: not found");
    }
}

} // namespace
