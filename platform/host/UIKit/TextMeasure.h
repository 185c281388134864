// How much room text takes. An approximation by advance widths alone (no kerning), so that it errs on the
// side of too wide and too high.
#pragma once

#include <cstddef>
#include <string_view>

namespace host {

enum class Weight { regular, bold };

/// The part of a font that decides how much room its text takes.
struct Face {
    double points = 17;
    Weight weight = Weight::regular;
};

struct TextSize {
    double width = 0, height = 0;
};

/// Points from one base line to the next, in whole half points.
[[nodiscard]] double lineHeight(const Face &face);

/// Width of `text` on one line, in points; of the widest one where it holds line breaks.
[[nodiscard]] double textWidth(std::u16string_view text, const Face &face);

/// Lines that `text` takes when it is wrapped into `width` points: at spaces and hyphens, between ideographs,
/// inside a word only when the word alone is too wide. 0 for no text, never more than `atMost` unless that is
/// 0.
[[nodiscard]] std::size_t lineCount(std::u16string_view text, const Face &face, double width,
                                    std::size_t atMost = 0);

/// Size of `text` wrapped into `width` points, in whole half points; zero for no text.
[[nodiscard]] TextSize textSize(std::u16string_view text, const Face &face, double width,
                                std::size_t atMost = 0);

/// `value` rounded up to a pixel of a 2x screen.
[[nodiscard]] double upToHalfPoint(double value);

} // namespace host
