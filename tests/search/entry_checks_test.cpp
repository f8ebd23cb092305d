#include "search/entry_checks.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

using Alert = std::optional<std::string>;

const Alert numberOnly = "Please insert number only!";
const DecimalSeparators point{".", "."};
const DecimalSeparators comma{",", ","};
// The user switched the locale from "." to "," while the window was open.
const DecimalSeparators switched{".", ","};
// U+066B, the Arabic decimal separator: two bytes, and "." is its foreign separator.
const DecimalSeparators arabic{"\xD9\xAB", "\xD9\xAB"};

struct CheckCase {
    const char* text;
    DecimalSeparators separators;
    Alert typed;
    Alert finished;
};

TEST(EntryChecks, TypingNamesAForeignSeparatorFirstAndLeavingRefusesAnEmptyOrStrayText) {
    const CheckCase cases[] = {
        {"1.544", point, {}, {}},
        {"1,5", point, "Please use '.' as decimals!", numberOnly},
        {"1.5", comma, "Please use ',' as decimals!", numberOnly},
        {"1,5", comma, {}, {}},
        {"1.2.3", point, {}, {}}, // reading it as a number refuses it
        {"", point, {}, numberOnly},
        {"-1", point, numberOnly, numberOnly},
        {"1e5", point, numberOnly, numberOnly},
        // Typing follows the locale now; the message and leaving keep the window's separator.
        {"2,6", switched, {}, numberOnly},
        {"1.5", switched, "Please use '.' as decimals!", {}},
        {"1\u066B5", arabic, {}, {}},
        {"1.5", arabic, "Please use '\xD9\xAB' as decimals!", numberOnly},
        {"1,5", arabic, numberOnly, numberOnly},
        // Checked character by character, not byte by byte: another letter of the separator's
        // block, a broken byte.
        {"1\u066C5", arabic, numberOnly, numberOnly},
        {"\xFF", point, numberOnly, numberOnly},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(typedEntryAlert(c.text, c.separators), c.typed) << c.text;
        EXPECT_EQ(finishedEntryAlert(c.text, c.separators), c.finished) << c.text;
    }
}

struct ReadCase {
    const char* text;
    DecimalSeparators separators;
    std::optional<double> number;
};

TEST(EntryChecks, AnEntryIsReadInTheUsersNotationAsAWholeNumber) {
    const ReadCase cases[] = {
        {"1.544", point, 1.544},
        {"1,544", comma, 1.544},
        {"1,544", point, std::nullopt},
        {"5.", point, 5.0},
        {"1.5.4", point, std::nullopt},
        {"1\u066B5", arabic, 1.5},
        // Checked against the locale now, read with the window's separator: after a switch
        // only whole numbers survive both.
        {"1.5", switched, std::nullopt},
        {"15", switched, 15.0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(readEntryNumber(c.text, c.separators), c.number) << c.text;
    }
}

} // namespace
} // namespace velmora::test
