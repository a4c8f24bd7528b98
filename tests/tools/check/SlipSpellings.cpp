#include "tests/tools/check/SlipSpellings.h"

#include "tests/support/NumberSpellings.h"

namespace test::slip {

using namespace std::string_literals;

const Texts& numbers() {
    static const Texts all = {"0",         "12.5",      "-3",     "+5",  ".5",
                              "5.",        "1e3",       "-0.0",   " 7 ", "007.0",
                              "\n12\t",    "1.5E-2",    "1.0e+2", "42",  "135",
                              "1.000",     "-55.82690", "620",    "0.1", "0.30000000000000004",
                              "123456.789"};
    return all;
}

const Texts& integers() {
    static const Texts all = {"0", "1", "42", " 7 ", "+5", "007", "\n12\t", "-0", "2147483647"};
    return all;
}

const Texts& oddNumbers() {
    static const Texts all = [] {
        Texts texts = spellings();
        const Texts more = {"0x10",
                            "1.000,5",
                            "1\u00A0000",
                            "12\u00A0",
                            "\u0661\u0662",
                            "\uFF11\uFF12",
                            "15&#0;620",
                            "15&#;620",
                            "1<!-- -->5",
                            "1<![CDATA[5]]>",
                            "<![CDATA[15]]>",
                            "&#49;5",
                            "1&#x35;",
                            "1&five;",
                            "<b>15</b>",
                            "15<b/>",
                            "\u221215",
                            "1\u066B5",
                            "12 ha",
                            "<?x?>15",
                            "&#32;15",
                            "15&#10;",
                            "<!-- -->15",
                            "15<!-- -->",
                            "\u200B15",
                            "15\u200B",
                            "1&#8203;5",
                            "<![CDATA[]]>15",
                            "15<![CDATA[]]>",
                            "<![CDATA[]]>",
                            "&ha;",
                            "1&ha;",
                            "<b/>15",
                            "1&#46;5",
                            "1\n5",
                            "2026.0",
                            "<![CDATA[ ]]>15",
                            "1 &#53;",
                            "&#160;"};
        texts.insert(texts.end(), more.begin(), more.end());
        return texts;
    }();
    return all;
}

const Texts& texts() {
    static const Texts all = {"",
                              "Nord",
                              "S\u00FCd &amp; West",
                              "&#x53;&#252;d",
                              "<![CDATA[A & B < C]]>",
                              " Nord ",
                              "\n  Nord\r\n  west\r",
                              "&lt;Nord&gt; &quot;A&apos;",
                              "\u5317",
                              "\U0001F33E",
                              "Nord\u00A0west",
                              "&#x1F33E;",
                              "]]&gt;",
                              "\" '",
                              "e\u0301",
                              "&#38;amp;",
                              "a > b",
                              "<!-- c -->Nord",
                              "Nord<!-- c -->",
                              "  <![CDATA[Nord]]>\n",
                              "Nord&#10;west",
                              "\u0085Nord\u2028"};
    return all;
}

const Texts& oddTexts() {
    static const Texts all = {"Nord<!-- -->west",
                              "A & B",
                              "&foo;",
                              "Fazenda &ha; Ant\u00F4nio",
                              "&#0;",
                              "15&#0;620",
                              "&#xD800;",
                              "&#xD83C;&#xDF3E;",
                              "&#1;",
                              "&#xFFFF;",
                              "&#x110000;",
                              "&#4294967361;",
                              "Nord]]>west",
                              "a<b/>c",
                              "<b>Nord</b>",
                              "<![CDATA[a]]>b",
                              "a<![CDATA[b]]>",
                              "a<?pi?>b",
                              "\x01",
                              "\xFF",
                              "\xC3",
                              "\xC0\x80",
                              "\xED\xA0\xBD",
                              "&#32;",
                              "<![CDATA[ ]]>",
                              "<![CDATA[]]>",
                              "&amp",
                              "&AMP;",
                              "&#X41;",
                              "&#;",
                              "&#x;",
                              "&",
                              "&&amp;",
                              "& ;",
                              "&#38;",
                              "&nbsp;",
                              "\uFFFE",
                              "\uFEFFNord",
                              "\u00A0",
                              "\x7F",
                              "\u0080",
                              "&#x85;",
                              "&#x0D;Nord",
                              "<![CDATA[a]]><![CDATA[b]]>",
                              "a<!-- -->",
                              "<",
                              "a < b",
                              "<![CDATA[a]]]]><![CDATA[>]]>",
                              "\0"s,
                              "Nord\0west"s,
                              "%pe;",
                              "&#09;",
                              "\f",
                              "\xF4\x90\x80\x80",
                              "\u200B",
                              "&ha",
                              "<![CDATA[&ha;]]>",
                              "<![CDATA[&#0;]]>",
                              "a\x1B[31m",
                              "<![CDATA[]]>Nord",
                              "Nord<![CDATA[]]>",
                              "<b/>Nord",
                              "&#32;<![CDATA[Nord]]>",
                              "<![CDATA[Nord]]> west",
                              "Nord <![CDATA[ ]]>",
                              "<!-- --> Nord <?x?>",
                              "&ha;west",
                              "<![CDATA[Nord"};
    return all;
}

const Texts& oddBetween() {
    static const Texts all = {"x",
                              "&#32;",
                              "<![CDATA[ ]]>",
                              "<![CDATA[]]>",
                              "<!-- a -- b -->",
                              "<!-- a --->",
                              "<?xml version='1.0'?>",
                              "<?XML?>",
                              "<?"
                              "?>",
                              "<? x?>",
                              "<Remark/>",
                              "<Remark>x</Remark>",
                              "<Total>1</Total>",
                              "&ha;",
                              "]]>",
                              "\u00A0",
                              "\f",
                              "\0"s,
                              "<!DOCTYPE x>",
                              "&",
                              "&#0;",
                              "\uFEFF",
                              "<p:Total>1</p:Total>",
                              "<>",
                              "<!x>",
                              "<?pi",
                              "\x85",
                              "<!-- \x01 -->",
                              "<!-- \xFF -->",
                              "<?pi \x01?>",
                              "<!-- \xED\xA0\x80 -->"};
    return all;
}

const Texts& doctypes() {
    static const Texts all = {
        "<!DOCTYPE RecPackage>",
        "<!DOCTYPE RecPackage SYSTEM 'recpackage.dtd'>",
        "<!DOCTYPE RecPackage [<!ENTITY ha 'Hacienda'>]>",
        "<!DOCTYPE RecPackage [<!-- > ] ' \" -->]>",
        "<!DOCTYPE RecPackage [<?pi > ] ' ?>]>",
        "<!DOCTYPE RecPackage [<!ENTITY ha ']>'><!ENTITY hb \"<RecPackage/>\">]>",
        "<!DOCTYPE RecPackage PUBLIC '-//x' \"y>z\" []>",
        "<!DOCTYPE RecPackage[<!ATTLIST Rec xml:space (default|preserve) 'default'>] >",
        "<!DOCTYPE RecPackage [<!ATTLIST Season SeasonID NMTOKEN #REQUIRED>]>",
        "<!DOCTYPE RecPackage [<!ATTLIST Rec MgmtZoneID CDATA #IMPLIED>]>",
        "<!DOCTYPE RecPackage [<!ELEMENT RecPackage ANY><!NOTATION n SYSTEM 'n'>]>"};
    return all;
}

const Texts& oddDoctypes() {
    static const Texts all = {
        "<!DOCTYPE RecPackage [<!ATTLIST Rec MgmtZoneID CDATA "
        "'6a3d1f9e-84c7-4250-8eb3-c5f70a2d9b48'>]>",
        "<!DOCTYPE RecPackage [<!ATTLIST Season SeasonID CDATA '2026'>]>",
        "<!DOCTYPE RecPackage [<!ATTLIST Season SeasonID CDATA #FIXED '2026'>]>",
        "<!DOCTYPE RecPackage [<!ATTLIST Rec RecID ID #REQUIRED author CDATA 'x'>]>",
        "<!DOCTYPE RecPackage [<!ENTITY % pe SYSTEM 'x.dtd'>%pe;]>",
        "<!DOCTYPE RecPackage [<!ENTITY amp 'x'><!ENTITY lt 'y'>]>",
        "<!DOCTYPE RecPackage [<!ENTITY % pe \"<!ATTLIST Rec MgmtZoneID CDATA '1'>\">%pe;]>",
        "<!DOCTYPE RecPackage [<!ENTITY ha SYSTEM 'ha.txt'>]>",
        "<!DOCTYPE RecPackage [<!ENTITY ha '&ha;'>]>",
        "<!DOCTYPE RecPackage [<!ENTITY ha '<FarmName>x</FarmName>'>]>",
        "<!DOCTYPE>",
        "<!DOCTYPE RecPackage [x]>",
        "<!DOCTYPE RecPackage [<!FOO>]>",
        "<!DOCTYPE RecPackage [<![IGNORE[ x ]]>]>",
        "<!doctype RecPackage>",
        "<!DOCTYPE 1>",
        "<!DOCTYPE RecPackage><!DOCTYPE RecPackage>"};
    return all;
}

const Texts& declarations() {
    static const Texts all = {"<?xml version='1.0' encoding='E'?>",
                              "<?xml version=\"1.0\" encoding=\"E\"?>\n",
                              "<?xml version='1.0' encoding='E' standalone='yes'?>",
                              "<?xml version = '1.0'\n encoding = 'E' ?>\r\n"};
    return all;
}

const Texts& oddDeclarations() {
    static const Texts all = {"<?xml encoding='E'?>",
                              "<?xml encoding='E' version='1.0'?>",
                              "<?xml version='1.1' encoding='E'?>",
                              "<?xml version='2.0' encoding='E'?>",
                              "<?xml version='1.0' encoding='E' standalone='maybe'?>",
                              " <?xml version='1.0' encoding='E'?>",
                              "<!-- c --><?xml version='1.0' encoding='E'?>",
                              "<?xml version='1.0' encoding=E?>",
                              "<?xml version='1.0' encoding=''?>",
                              "<?XML version='1.0' encoding='E'?>",
                              "<?xml version='1.0' encoding='E'>",
                              "<?xml?>",
                              "<?xml version='1.0' encoding='E'?><?xml version='1.0'?>",
                              "<?xml version='1.0' standalone='no' encoding='E'?>",
                              "<?xml version='1.0'encoding='E'?>"};
    return all;
}

} // namespace test::slip
