#include "tools/findings/Explanation.h"

#include <string>

#include <gtest/gtest.h>

#include "tools/findings/ExplanationText.h"

namespace {

TEST(Explanation, IsTheEntryOfTheDocumentInPlainText) {
    const Explanation cutOff = explanationOf(codeNamed("number-empty").value());
    EXPECT_EQ(cutOff.cause, "An element for a number is empty and read as 0.");
    EXPECT_EQ(cutOff.example, "<TotalUOMID/>");
    EXPECT_EQ(cutOff.cure, "Write the number. When it is not known, leave the element out, unless "
                           "it is part of a product.");
}

TEST(Explanation, IsThereForEveryCodeWithoutMarkup) {
    for (const FindingKind& kind : findingKinds) {
        const Explanation explanation = explanationOf(codeNamed(kind.code).value());
        for (const std::string& text : {explanation.cause, explanation.example, explanation.cure}) {
            EXPECT_FALSE(text.empty()) << kind.code;
            EXPECT_EQ(text.find("]("), std::string::npos) << text;
            EXPECT_EQ(text.find("**"), std::string::npos) << text;
            EXPECT_EQ(text.find('\n'), std::string::npos) << text;
            EXPECT_EQ(text.find("##"), std::string::npos) << text;
        }
    }
}

TEST(Explanation, IsOfTheFirstAndTheLastEntryToo) {
    EXPECT_EQ(explanationOf(codeNamed("unreadable").value()).cure,
              "Look at the path and at the permissions of the file.");
    EXPECT_EQ(explanationOf(codeNamed("number-hexadecimal").value()).cure,
              "Write the number in decimal.");
}

TEST(Explanation, EndsBeforeTheNextHeading) {
    EXPECT_EQ(explanationOf(codeNamed("element-after-list").value()).cure.find("Warnings"),
              std::string::npos);
}

TEST(Explanation, NamesTheNearestCodeForANameThatIsNone) {
    EXPECT_EQ(codeNamed("empty-nam"), std::nullopt);
    EXPECT_EQ(describeWrongCode("empty-nam"),
              "\"empty-nam\" is no code of a finding; is empty-name meant?");
    EXPECT_EQ(describeWrongCode("xyz"), "\"xyz\" is no code of a finding");
    EXPECT_EQ(codeNamed("empty-name"), FindingCode::EmptyName);
    EXPECT_EQ(describeWrongCode("empty-name"), "");
}

TEST(ExplanationText, SaysWhatToDoInLinesThatFitATerminal) {
    EXPECT_EQ(explanationText(codeNamed("number-empty").value(), Style()),
              "number-empty (note): an element for a number is empty\n"
              "  cause    An element for a number is empty and read as 0.\n"
              "  example  <TotalUOMID/>\n"
              "  cure     Write the number. When it is not known, leave the element out, unless\n"
              "           it is part of a product.\n");
}

TEST(ExplanationText, IsAnObjectInJson) {
    EXPECT_EQ(explanationJson(codeNamed("number-empty").value()),
              R"({"code":"number-empty","severity":"note",)"
              R"("title":"an element for a number is empty",)"
              R"("cause":"An element for a number is empty and read as 0.",)"
              R"("example":"<TotalUOMID/>","cure":"Write the number. When it is not known, )"
              R"(leave the element out, unless it is part of a product."})");
}

} // namespace
