#include "tools/check/PlainXml.h"

#include <cstddef>
#include <random>
#include <string>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "tests/support/RandomPackage.h"
#include "tests/tools/check/SlippedPackage.h"
#include "tools/check/SecondReader.h"

namespace {

using namespace std::string_literals;

TEST(PlainXml, IsWhatPackagesAreWrittenIn) {
    for (
        const std::string& text :
        {"<a/>"s, " <a></a>\r\n"s, "<a b='1' c-2.d=\"'>\" >x > y\t<_b />z\n</a >"s,
         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b=\"S\u00e3o\">Jo\u00e3o \u5927 \U0001F33D</a>"s})
        EXPECT_TRUE(isPlainXml(text)) << text;
}

TEST(PlainXml, IsNothingThatAReaderOfXmlMayRefuse) {
    for (const std::string& text : {""s,
                                    "\0"s,
                                    "a"s,
                                    "<"s,
                                    "<a"s,
                                    "<a>"s,
                                    "<a>b"s,
                                    "<a b='"s,
                                    "a></a>"s,
                                    "</a>"s,
                                    "<a/>b"s,
                                    "b<a/>"s,
                                    "<a/><a/>"s,
                                    "<a>]]></a>"s,
                                    "<a>&amp;</a>"s,
                                    "<a b='&'/>"s,
                                    "<a b='<'/>"s,
                                    "<a b='1'c='1'/>"s,
                                    "<a b/>"s,
                                    "<a b=1/>"s,
                                    "<a b='1' b='1'/>"s,
                                    "<a b='1' c='1' d='1' e='1' f='1'/>"s,
                                    "<a b='1\"/>"s,
                                    "<1/>"s,
                                    "< a/>"s,
                                    "<a:b/>"s,
                                    "<\u00e9/>"s,
                                    "<a><!-- b --></a>"s,
                                    "<a><![CDATA[b]]></a>"s,
                                    "<!DOCTYPE a><a/>"s,
                                    "<a><?b?></a>"s,
                                    "\n<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>"s,
                                    "<?xml version=\"1.0\" encoding=\"latin1\"?><a/>"s,
                                    "\xEF\xBB\xBF<a/>"s,
                                    "<a>\x01</a>"s,
                                    "<a>\x7F</a>"s,
                                    "<a>\0</a>"s,
                                    "<a>\xE9</a>"s,
                                    "<a>\xC3</a>"s,
                                    "<a>\uFFFE</a>"s,
                                    "<a>\xED\xA0\x80</a>"s})
        EXPECT_FALSE(isPlainXml(text)) << text;
}

TEST(PlainXml, IsRefusedByNoReaderOfXmlWhenItsTagsMatch) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same in every run
    std::size_t plain = 0;
    std::size_t others = 0;
    for (int i = 0; i < 4000; ++i) {
        const std::string bytes =
            i % 2 == 0 ? test::slippedPackage(random)
                       : test::mutated("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b='1' "
                                       "c=\"d\">e<f/> <g>h</g></a>",
                                       random);
        if (!isPlainXml(bytes) || !pugi::xml_document().load_buffer(bytes.data(), bytes.size())) {
            ++others;
            continue;
        }
        ++plain;
        const SecondReading second = readAgain(bytes, pugi::encoding_utf8);
        ASSERT_FALSE(second.doctype) << bytes;
        ASSERT_FALSE(second.refusal) << second.refusal->reason << ": " << bytes;
    }
    EXPECT_GT(plain, 50U);
    EXPECT_GT(others, 500U);
}

} // namespace
