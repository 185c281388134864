#include "UIKit/TextMeasure.h"

#include "UIKit/AdvanceWidths.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace host {
namespace {

/// Ascender, descender and leading of the text face together, in parts of the font size.
constexpr double kLineHeight = 1.193;
/// The bold cuts of letters beyond ASCII are about this much wider.
constexpr double kBoldFactor = 1.08;
constexpr double kEmoji = 1.25;
constexpr double kOtherScript = 0.6;

struct Range {
    char32_t first, last;
};

template<std::size_t N>
bool contains(const Range (&ranges)[N], char32_t c) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const Range &range) { return c >= range.first && c <= range.last; });
}

/// Combining marks, joiners, variation selectors and the skin tones that colour the emoji before them.
constexpr Range kNoWidth[] = {
    {0x0000, 0x001F}, {0x007F, 0x009F}, {0x00AD, 0x00AD}, {0x0300, 0x036F},   {0x0483, 0x0489},
    {0x0591, 0x05BD}, {0x064B, 0x065F}, {0x0E31, 0x0E31}, {0x0E34, 0x0E3A},   {0x0E47, 0x0E4E},
    {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x2064}, {0x20D0, 0x20FF},   {0x3099, 0x309A},
    {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}, {0x1F3FB, 0x1F3FF}, {0xE0000, 0xE01EF},
};

/// Ideographs, kana, hangul and full-width forms: one em each.
constexpr Range kWide[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xA960, 0xA97F}, {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF}, {0xFE30, 0xFE6F}, {0xFF01, 0xFF60}, {0xFFE0, 0xFFE6}, {0x20000, 0x3FFFD},
};

constexpr Range kEmojiRanges[] = {
    {0x231A, 0x231B}, {0x23E9, 0x23F3}, {0x2600, 0x27BF}, {0x2B05, 0x2B55}, {0x1F000, 0x1FAFF},
};

/// Dashes and signs that are an em wide in every cut.
constexpr Range kOneEm[] = {{0x2014, 0x2015}, {0x2026, 0x2026}, {0x2030, 0x2030}, {0x2116, 0x2122},
                            {0x2190, 0x21FF}, {0x2200, 0x22FF}, {0x2460, 0x25FF}, {0xFFFC, 0xFFFD}};

double bolder(double width, Weight weight) {
    return weight == Weight::bold ? width * kBoldFactor : width;
}

/// Quotation marks, dashes and other signs of U+2000 to U+206F.
double punctuationWidth(char32_t c) {
    if (c >= 0x2018 && c <= 0x201B)
        return 0.222;
    if (c == 0x2009 || c == 0x200A || c == 0x202F)
        return 0.2;
    if (c == 0x2003)
        return 1;
    return c == 0x2010 || c == 0x2011 || (c >= 0x201C && c <= 0x201F) || c >= 0x2032 ? 0.333 : 0.556;
}

double tableWidth(char32_t c, Weight weight) {
    if (c >= 0x20 && c <= 0x7E)
        return (weight == Weight::bold ? advance::latinBold : advance::latin)[c - 0x20] / 1000.0;
    if (c >= 0xA0 && c <= 0x17F)
        return bolder(advance::latinExtended[c - 0xA0] / 1000.0, weight);
    if (c >= 0x384 && c <= 0x3CE)
        return bolder(advance::greek[c - 0x384] / 1000.0, weight);
    if (c >= 0x400 && c <= 0x45F)
        return bolder(advance::cyrillic[c - 0x400] / 1000.0, weight);
    if (c >= 0x2000 && c <= 0x206F)
        return bolder(punctuationWidth(c), weight);
    return bolder(kOtherScript, weight);
}

/// Width of one character in parts of the font size.
double characterWidth(char32_t c, Weight weight) {
    if (c >= 0x20 && c <= 0x7E)
        return tableWidth(c, weight);
    if (contains(kNoWidth, c))
        return 0;
    if (contains(kWide, c) || contains(kOneEm, c) || (c >= 0xD800 && c <= 0xDFFF))
        return 1;
    if (c >= 0xFF61 && c <= 0xFFDC)
        return 0.5;
    if (contains(kEmojiRanges, c))
        return c >= 0x1F1E6 && c <= 0x1F1FF ? kEmoji / 2 : kEmoji; // two regional letters make one flag
    return tableWidth(c, weight);
}

/// Takes the next character off `rest`. A lone surrogate comes back as itself.
char32_t takeCharacter(std::u16string_view &rest) {
    const char32_t first = rest.front();
    rest.remove_prefix(1);
    const bool pair = first >= 0xD800 && first <= 0xDBFF && !rest.empty() && rest.front() >= 0xDC00 &&
                      rest.front() <= 0xDFFF;
    if (!pair)
        return first;
    const char32_t second = rest.front();
    rest.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

bool isLineBreak(char32_t c) {
    return c == '\n' || c == '\r' || c == 0x2028 || c == 0x2029 || c == 0x85;
}
bool isSpace(char32_t c) {
    return c == ' ' || c == '\t' || c == 0x3000 || (c >= 0x2000 && c <= 0x200A);
}

/// Closing punctuation of Chinese and Japanese, which does not begin a line.
bool keepsToTheLineBefore(char32_t c) {
    constexpr std::u32string_view closing = U"、。，．：；？！）」』】》〉〕］｝”’…ー々・,.:;?!)]}%";
    return closing.find(c) != std::u32string_view::npos;
}

bool standsAlone(char32_t c) {
    return contains(kWide, c) || contains(kEmojiRanges, c);
}

/// Lays out one character after the other and counts the lines.
class LineBreaker {
public:
    LineBreaker(const Face &face, double width) : m_face(face), m_width(width) {}

    void add(char32_t c) {
        const double width = characterWidth(c, m_face.weight) * m_face.points;
        if (isSpace(c))
            return addSpace(width);
        if ((standsAlone(c) || standsAlone(m_previous)) && !keepsToTheLineBefore(c))
            endWord();
        addToWord(width);
        m_previous = c;
        if (c == '-' || c == 0x2010 || c == 0x2013 || c == 0x2014)
            endWord();
    }

    void breakLine() {
        endWord();
        ++m_lines;
        m_line = 0;
        m_previous = 0;
    }

    std::size_t lines() const { return m_lines; }

private:
    /// Spaces at the end of a line hang over its edge.
    void addSpace(double width) {
        endWord();
        m_line += width;
        m_previous = 0;
    }

    void addToWord(double width) {
        if (m_line > 0 && m_line + m_word + width > m_width)
            wrap();
        if (m_line == 0 && m_word > 0 && m_word + width > m_width) {
            ++m_lines; // a word wider than the line is cut where the line ends
            m_word = 0;
        }
        m_word += width;
    }

    void wrap() {
        ++m_lines;
        m_line = 0;
    }

    void endWord() {
        m_line += m_word;
        m_word = 0;
    }

    const Face m_face;
    const double m_width;
    double m_line = 0; ///< points taken by finished words of this line
    double m_word = 0; ///< points taken by the word that is being laid out
    std::size_t m_lines = 1;
    char32_t m_previous = 0;
};

/// Carriage return and line feed together are one break.
char32_t takeCharacterOrBreak(std::u16string_view &rest) {
    const char32_t c = takeCharacter(rest);
    if (c == '\r' && !rest.empty() && rest.front() == '\n')
        rest.remove_prefix(1);
    return c;
}

} // namespace

double upToHalfPoint(double value) {
    return std::ceil(value * 2 - 1e-9) / 2;
}

double lineHeight(const Face &face) {
    return upToHalfPoint(face.points * kLineHeight);
}

double textWidth(std::u16string_view text, const Face &face) {
    double widest = 0, width = 0;
    while (!text.empty()) {
        const char32_t c = takeCharacter(text);
        width = isLineBreak(c) ? 0 : width + characterWidth(c, face.weight) * face.points;
        widest = std::max(widest, width);
    }
    return widest;
}

std::size_t lineCount(std::u16string_view text, const Face &face, double width, std::size_t atMost) {
    if (text.empty())
        return 0;
    LineBreaker breaker(face, width);
    while (!text.empty() && (atMost == 0 || breaker.lines() < atMost)) {
        const char32_t c = takeCharacterOrBreak(text);
        if (isLineBreak(c))
            breaker.breakLine();
        else
            breaker.add(c);
    }
    return breaker.lines();
}

TextSize textSize(std::u16string_view text, const Face &face, double width, std::size_t atMost) {
    const std::size_t lines = lineCount(text, face, width, atMost);
    if (lines == 0)
        return {};
    return {std::min(upToHalfPoint(textWidth(text, face)), width),
            static_cast<double>(lines) * lineHeight(face)};
}

} // namespace host
