#include "tools/output/ProgressLine.h"

#include <cstdio>
#include <memory>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace {

class ProgressLineOnTerminal : public testing::Test {
protected:
    ~ProgressLineOnTerminal() override {
        std::fclose(output_);
        std::fclose(messages_);
    }

    std::string messages() {
        std::string text(static_cast<std::size_t>(std::ftell(messages_)), '\0');
        std::rewind(messages_);
        text.resize(std::fread(text.data(), 1, text.size(), messages_));
        return text;
    }

    std::FILE* output_ = std::tmpfile();
    std::FILE* messages_ = std::tmpfile();
    Console terminal_{output_, messages_, Style(), true};
    Console file_{output_, messages_, Style(), false};
};

TEST_F(ProgressLineOnTerminal, ShowsTheFileAndHowMuchOfItIsDone) {
    ProgressLine progress(terminal_, std::chrono::seconds(0));
    progress.beginFile("a\n.xml");
    progress.advance(0.5); // too soon after the first
    terminal_.clearProgress();
    terminal_.clearProgress();
    EXPECT_EQ(messages(), "\rfile 1, 0 % of it: a\\n.xml\x1b[K\r\x1b[K");
}

TEST_F(ProgressLineOnTerminal, ShowsThePercentageOfTheFileTenTimesASecond) {
    ProgressLine progress(terminal_, std::chrono::seconds(0));
    progress.beginFile("a.xml");
    std::this_thread::sleep_for(std::chrono::milliseconds(101));
    progress.advance(0.254);
    std::this_thread::sleep_for(std::chrono::milliseconds(101));
    progress.advance(1);
    EXPECT_EQ(messages(), "\rfile 1, 0 % of it: a.xml\x1b[K"
                          "\rfile 1, 25 % of it: a.xml\x1b[K"
                          "\rfile 1, 100 % of it: a.xml\x1b[K");
}

TEST_F(ProgressLineOnTerminal, GivesWayToMessages) {
    ProgressLine progress(terminal_, std::chrono::seconds(0));
    progress.beginFile("a.xml");
    terminal_.complain("message");
    EXPECT_EQ(messages(), "\rfile 1, 0 % of it: a.xml\x1b[K\r\x1b[Kqenxml: message\n");
}

TEST_F(ProgressLineOnTerminal, ShowsNothingAtFirst) {
    ProgressLine progress(terminal_, std::chrono::hours(1));
    progress.beginFile("a.xml");
    progress.advance(0.5);
    EXPECT_EQ(messages(), "");
}

TEST_F(ProgressLineOnTerminal, ShowsNothingElsewhere) {
    ProgressLine progress(file_, std::chrono::seconds(0));
    progress.beginFile("a.xml");
    file_.clearProgress();
    EXPECT_EQ(messages(), "");
}

} // namespace
