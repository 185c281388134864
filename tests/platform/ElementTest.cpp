#include "host/Element.h"

#include <gtest/gtest.h>

namespace {

TEST(Element, AnAbsentAttributeReadsAsTheNeutralValue) {
    const host::Element element{.type = "Cell"};
    EXPECT_EQ(element.text("accessory"), "");
    EXPECT_EQ(element.amount("row"), 0);
    EXPECT_FALSE(element.flag("open"));
}

TEST(Element, AllFindsElementsOfATypeInDrawingOrder) {
    host::Element table{.type = "Table"};
    table.children.push_back({.type = "Cell", .label = "first"});
    table.children.push_back({.type = "StaticText", .label = "between"});
    table.children.push_back({.type = "Cell", .label = "second"});
    const auto cells = table.all("Cell");
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_EQ(cells[0]->label, "first");
    EXPECT_EQ(cells[1]->label, "second");
}

} // namespace
