#include "UIKit/TextMeasure.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr host::Face kText{17, host::Weight::regular};
constexpr host::Face kFooter{13, host::Weight::regular};

TEST(TextMeasure, NoTextTakesNoRoom) {
    EXPECT_EQ(host::textWidth(u"", kText), 0);
    EXPECT_EQ(host::lineCount(u"", kText, 100), 0u);
    EXPECT_EQ(host::textSize(u"", kText, 100).height, 0);
}

TEST(TextMeasure, LatinTextIsAsWideAsItsLetters) {
    EXPECT_NEAR(host::textWidth(u"Hello", kText), 17 * (0.722 + 0.556 + 0.222 + 0.222 + 0.556), 0.01);
    EXPECT_NEAR(host::textWidth(u"555-0100", kText), 17 * (7 * 0.556 + 0.333), 0.01);
}

TEST(TextMeasure, AccentsDoNotWidenALetter) {
    EXPECT_DOUBLE_EQ(host::textWidth(u"\u00E9", kText), host::textWidth(u"e", kText));
    EXPECT_DOUBLE_EQ(host::textWidth(u"e\u0301", kText), host::textWidth(u"e", kText));
}

TEST(TextMeasure, IdeographsKanaAndHangulAreOneEmWide) {
    EXPECT_DOUBLE_EQ(host::textWidth(u"黑名单", kText), 51);
    EXPECT_DOUBLE_EQ(host::textWidth(u"かな、", kText), 51);
    EXPECT_DOUBLE_EQ(host::textWidth(u"전화", kText), 34);
}

TEST(TextMeasure, BoldIsWiderThanRegular) {
    const host::Face bold{17, host::Weight::bold};
    for (const auto text : {u"Blacklist", u"Größe", u"Черный", u"Μαύρη"})
        EXPECT_GT(host::textWidth(text, bold), host::textWidth(text, kText));
}

TEST(TextMeasure, AnEmojiOfSeveralCodePointsIsOneSign) {
    const double one = host::textWidth(u"\U0001F44D", kText);
    EXPECT_DOUBLE_EQ(host::textWidth(u"\U0001F44D\U0001F3FD", kText), one);
    EXPECT_DOUBLE_EQ(host::textWidth(u"\U0001F1E9\U0001F1EA", kText), one);
    EXPECT_GE(one, 17);
}

TEST(TextMeasure, ALoneSurrogateIsMeasuredAsTheReplacementSign) {
    const char16_t text[] = {u'a', 0xD83D, 0};
    EXPECT_DOUBLE_EQ(host::textWidth(text, kText), 17 * 1.556);
    EXPECT_EQ(host::lineCount(text, kText, 100), 1u);
}

TEST(TextMeasure, LineHeightsAreThoseOfTheSystemFont) {
    EXPECT_EQ(host::lineHeight({17}), 20.5);
    EXPECT_EQ(host::lineHeight({14}), 17);
    EXPECT_EQ(host::lineHeight({13}), 16);
    EXPECT_EQ(host::lineHeight({12}), 14.5);
}

TEST(TextMeasure, TextThatFitsStaysOnOneLine) {
    const double width = host::textWidth(u"one two", kText);
    EXPECT_EQ(host::lineCount(u"one two", kText, width), 1u);
    EXPECT_EQ(host::lineCount(u"one two", kText, width - 1), 2u);
}

TEST(TextMeasure, SpacesAtTheEndOfALineHangOverItsEdge) {
    const double width = host::textWidth(u"one", kText);
    EXPECT_EQ(host::lineCount(u"one   two", kText, width + 1), 2u);
}

TEST(TextMeasure, AWordTooWideForTheLineIsCut) {
    const double letter = host::textWidth(u"m", kText);
    EXPECT_EQ(host::lineCount(u"mmmmmmmmmm", kText, letter * 4), 3u);
    EXPECT_EQ(host::lineCount(u"a mmmmmmmmmm", kText, letter * 4), 4u);
}

TEST(TextMeasure, ChineseBreaksBetweenAnyTwoIdeographs) {
    EXPECT_EQ(host::lineCount(u"一二三四五六七八九十", kText, 17 * 4), 3u);
}

TEST(TextMeasure, ClosingPunctuationDoesNotBeginALine) {
    EXPECT_EQ(host::lineCount(u"一二三四。", kText, 17 * 4), 2u);
    // The last ideograph goes to the second line together with its full stop.
    EXPECT_EQ(host::lineCount(u"一二三四。五六七", kText, 17 * 4), 3u);
}

TEST(TextMeasure, EveryLineBreakOfTheTextIsKept) {
    EXPECT_EQ(host::lineCount(u"a\nb\n\nc", kText, 100), 4u);
    EXPECT_EQ(host::lineCount(u"a\r\nb", kText, 100), 2u);
}

TEST(TextMeasure, TheNumberOfLinesCanBeLimited) {
    EXPECT_EQ(host::lineCount(u"a\nb\n\nc", kText, 100, 2), 2u);
    EXPECT_EQ(host::textSize(u"a\nb\n\nc", kText, 100, 1).height, 20.5);
}

TEST(TextMeasure, AWidthOfNothingStillEnds) {
    EXPECT_EQ(host::lineCount(u"abc", kText, 0), 3u);
    EXPECT_EQ(host::lineCount(u"abc", kText, -5), 3u);
}

struct Paragraph {
    const char16_t *text;
    double width;      ///< on one line, as Chromium lays it out in Liberation Sans at 13 pixels
    std::size_t lines; ///< wrapped into 290 pixels there
};

constexpr Paragraph kParagraphs[] = {
    {u"Calls from numbers on this list are rejected before the phone rings. The other side hears the busy "
     u"tone.",
     591.6, 3},
    {u"Записи вызовов хранятся в базе данных телефона и удаляются через указанное время, если не включено "
     u"расширение журнала.",
     784.1, 3},
    {u"Οι κλήσεις από αριθμούς σε αυτή τη λίστα απορρίπτονται πριν χτυπήσει το τηλέφωνο.", 494.1, 2},
    {u"Anrufe von Nummern dieser Liste werden abgewiesen, bevor das Telefon läutet; über größere Änderungen "
     u"benachrichtigt die Oberfläche.",
     791.1, 4},
    {u"Les appels des numéros de cette liste sont rejetés avant que le téléphone ne sonne. L’autre côté "
     u"entend "
     u"la tonalité d’occupation.",
     738.6, 3},
};

TEST(TextMeasure, ParagraphsAreAsWideAndAsHighAsABrowserMakesThem) {
    for (const Paragraph &paragraph : kParagraphs) {
        EXPECT_NEAR(host::textWidth(paragraph.text, kFooter), paragraph.width, paragraph.width * 0.01);
        EXPECT_GE(host::textWidth(paragraph.text, kFooter), paragraph.width);
        EXPECT_EQ(host::lineCount(paragraph.text, kFooter, 290), paragraph.lines);
    }
}

} // namespace
