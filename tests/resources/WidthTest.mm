// Texts that stand on one line fit the narrowest phone, in every language. The metrics are those of the
// phone's Settings, in points.
#include "Resources.h"

#include "host/SystemText.h"
#include "host/Text.h"
#include "UIKit/TextMeasure.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace resources;

constexpr double kScreen = 320, kMargin = 15, kGap = 8, kSwitch = 51, kIconAndGap = 44;
constexpr double kChevron = 10 + 8 + 15, kCheckmark = 8 + 14 + 15, kBackChevron = 8 + 13 + 6;
constexpr host::Face kText{17}, kHeader{13}, kSegment{13}, kBarTitle{17, host::Weight::bold};
constexpr host::Face kSheetButton{20};

/// Browsers and phones without the phone's font take another one, which may be a little wider.
constexpr double kReserve = 1.05;

double width(const std::string &text, const host::Face &face) {
    return kReserve * host::textWidth(host::utf16(host::string(text)), face);
}

/// The texts of a page, as a language shows them.
class Shown {
public:
    Shown(const std::string &language, const std::string &page)
        : _language(language), _page(page), _texts(table(language, page)) {}

    std::string operator()(const std::string &key) const {
        const auto found = _texts.find(key);
        return found == _texts.end() ? key : found->second;
    }

    std::string where(const std::string &key) const {
        return _language + ", " + _page + ": \"" + (*this)(key) + '"';
    }

private:
    std::string _language, _page;
    Table _texts;
};

/// Calls `check(item, shown)` for each item of each page in each language.
template<typename Check>
void forEachItem(const char *cell, Check check) {
    for (const auto &language : languages())
        for (const auto &name : pageNames()) {
            const Shown shown(language, name);
            for (const auto &item : itemsOf(name))
                if (text(item, "cell") == cell)
                    check(item, shown);
        }
}

double labelEnd(const Json &item, const Shown &shown) {
    const double start = kMargin + (item.contains("icon") ? kIconAndGap : 0);
    return start + width(shown(text(item, "label")), kText);
}

TEST(Widths, ASwitchStandsBesideItsLabel) {
    forEachItem("PSSwitchCell", [](const Json &item, const Shown &shown) {
        EXPECT_LE(labelEnd(item, shown) + kGap + kSwitch + kMargin, kScreen)
            << shown.where(text(item, "label"));
    });
}

TEST(Widths, AChoiceStandsBesideItsLabel) {
    forEachItem("PSLinkListCell", [](const Json &item, const Shown &shown) {
        if (!item.contains("validTitles"))
            return;
        for (const std::string title : item["validTitles"])
            EXPECT_LE(labelEnd(item, shown) + kGap + width(shown(title), kText) + kChevron, kScreen)
                << shown.where(text(item, "label")) << " with " << shown(title);
    });
}

TEST(Widths, AChoiceStandsBesideItsCheckmark) {
    forEachItem("PSLinkListCell", [](const Json &item, const Shown &shown) {
        if (!item.contains("validTitles"))
            return;
        for (const std::string title : item["validTitles"])
            EXPECT_LE(kMargin + width(shown(title), kText) + kCheckmark, kScreen) << shown.where(title);
    });
}

TEST(Widths, AFileNameOfTenLettersStandsBesideTheLabelOfACatalog) {
    forEachItem("PSLinkListCell", [](const Json &item, const Shown &shown) {
        if (item.contains("titlesDataSource"))
            EXPECT_LE(labelEnd(item, shown) + kGap + width("Zhuyin2015", kText) + kChevron, kScreen)
                << shown.where(text(item, "label"));
    });
}

TEST(Widths, ACountOfFiveDigitsStandsBesideTheLabelOfALink) {
    forEachItem("PSLinkCell", [](const Json &item, const Shown &shown) {
        EXPECT_LE(labelEnd(item, shown) + kGap + width("10000", kText) + kChevron, kScreen)
            << shown.where(text(item, "label"));
    });
}

TEST(Widths, AButtonIsNotCut) {
    forEachItem("PSButtonCell", [](const Json &item, const Shown &shown) {
        EXPECT_LE(labelEnd(item, shown) + kMargin, kScreen) << shown.where(text(item, "label"));
    });
}

TEST(Widths, AHeaderStandsOnOneLine) {
    forEachItem("PSGroupCell", [](const Json &item, const Shown &shown) {
        // Headers are shown in upper case, about a sixth wider than as written.
        const double header = width(shown(text(item, "label")), kHeader) * 7 / 6;
        EXPECT_LE(kMargin + header + kMargin, kScreen) << shown.where(text(item, "label"));
    });
}

TEST(Widths, ASegmentHoldsItsTitle) {
    forEachItem("PSSegmentCell", [](const Json &item, const Shown &shown) {
        const double segment = (kScreen - 2 * kMargin) / double(item["validTitles"].size());
        for (const std::string title : item["validTitles"])
            EXPECT_LE(width(shown(title), kSegment) + kGap, segment) << shown.where(title);
    });
}

TEST(Widths, ATextFieldHasRoomForItsPlaceholder) {
    forEachItem("PSEditTextCell", [](const Json &item, const Shown &shown) {
        const double placeholder = width(shown(text(item, "placeholder")), kText);
        EXPECT_LE(labelEnd(item, shown) + kGap + placeholder + kMargin, kScreen)
            << shown.where(text(item, "label"));
    });
}

/// A text of the bars that is the system's own.
std::string system(std::string_view english, const std::string &language) {
    return std::string(host::systemText(english, language));
}

/// Room for a title on a bar between what stands at its left and its right.
double roomForTitle(double left, double right) {
    return kScreen - left - right - 2 * kGap;
}

double barButton(const std::string &title, const host::Face &face) {
    return kMargin + width(title, face);
}

double backButton(const std::string &title) {
    return kBackChevron + width(title, kText);
}

TEST(Widths, TheTitleOfAListStandsBetweenBackAndEdit) {
    forEachItem("PSLinkCell", [](const Json &item, const Shown &shown) {
        if (!item.contains("detail"))
            return;
        const std::string language = shown.where("").substr(0, shown.where("").find(','));
        const Shown code(language, "Localizable");
        const double edit = std::max(barButton(code("Edit"), kBarTitle), barButton(code("Done"), kText));
        const bool editable = item.contains("_custom") && text(item, "_custom") != "calltime";
        EXPECT_LE(width(shown(text(item, "label")), kBarTitle),
                  roomForTitle(backButton("Zelvora"), editable ? edit : kMargin))
            << shown.where(text(item, "label"));
    });
}

TEST(Widths, TheTitleOfAChoiceStandsBesideBack) {
    forEachItem("PSLinkListCell", [](const Json &item, const Shown &shown) {
        EXPECT_LE(width(shown(text(item, "label")), kBarTitle), roomForTitle(backButton("Zelvora"), kMargin))
            << shown.where(text(item, "label"));
    });
}

TEST(Widths, TheTitleOfTheEditorStandsBetweenCancelAndSave) {
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        const double room = roomForTitle(barButton(system("Cancel", language), kText),
                                         barButton(system("Save", language), kBarTitle));
        for (const char *title : {"Add Area", "Edit Area", "Add Code Table", "Edit Code Table", "Add Number",
                                  "Edit Number", "Unit: Minutes"})
            EXPECT_LE(width(code(title), kBarTitle), room) << code.where(title);
    }
}

TEST(Widths, TheTitleOfAPickerStandsBesideDone) {
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        const double room = roomForTitle(kMargin, barButton(system("Done", language), kBarTitle));
        for (const char *title : {"Select Contacts", "Select Call History"})
            EXPECT_LE(width(code(title), kBarTitle), room) << code.where(title);
    }
}

TEST(Widths, AnActionRowStandsBesideItsChevron) {
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        for (const char *row :
             {"Add Area", "Add Code Table", "Add Number", "Select Contacts", "Select Call History"})
            EXPECT_LE(kMargin + width(code(row), kText) + kChevron, kScreen) << code.where(row);
    }
}

TEST(Widths, ACallTimeOfYearsStandsBesideItsChevron) {
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        const auto time = "1000 " + code("days") + " 23 " + code("hours") + " 59 " + code("minutes");
        EXPECT_LE(kMargin + width(time, kText) + kChevron, kScreen) << language << ": " << time;
    }
}

TEST(Widths, APlaceholderFitsTheField) {
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        for (const char *text :
             {"Area", "Prefix", "Character", "T9 Keyboard", "Name", "Phone Number", "minutes"})
            EXPECT_LE(width(code(text), kText), kScreen - 20) << code.where(text);
    }
}

TEST(Widths, ButtonsOfAlertsAndSheetsAreNotCut) {
    constexpr double alert = 270, sheet = kScreen - 16;
    for (const auto &language : languages()) {
        const Shown code(language, "Localizable");
        for (const char *button : {"Cancel", "OK"})
            EXPECT_LE(width(code(button), kBarTitle) + 2 * kGap, alert / 2) << code.where(button);
        for (const char *button : {"Cancel", "Respring"})
            EXPECT_LE(width(code(button), kSheetButton) + 2 * kGap, sheet) << code.where(button);
    }
}

} // namespace
