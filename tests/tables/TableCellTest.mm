#include "TableFixture.h"

#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UIImage.h>
#import <UIKit/UIImageView.h>
#import <UIKit/UILabel.h>

#include "host/Text.h"

namespace {

class TableCell : public TableTest {
protected:
    /// Shows one row with a cell of this style, texts "text" and "detail".
    UITableViewCell *cellOf(UITableViewCellStyle style, double width = 320) {
        fill(1);
        model->cellStyle = style;
        show(UITableViewStyleGrouped, width);
        UITableViewCell *cell = [table cellForRowAtIndexPath:path(0, 0)];
        cell.textLabel.text = @"text";
        cell.detailTextLabel.text = @"detail";
        [table layoutIfNeeded];
        return cell;
    }
    host::Element element() {
        const host::Element shown = tree();
        return *cell(shown, 0, 0);
    }
    host::Element part(const char *role) {
        const host::Element row = element();
        const host::Element *found =
            row.find([&](const host::Element &candidate) { return candidate.text("role") == role; });
        return found ? *found : host::Element{};
    }
};

/// A black image of 29 by 29 points, the size of an icon in a row.
UIImage *iconImage() {
    static const unsigned char png[] = {
        0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44,
        0x52, 0x00, 0x00, 0x00, 0x1d, 0x00, 0x00, 0x00, 0x1d, 0x08, 0x00, 0x00, 0x00, 0x00, 0x73,
        0xf8, 0x38, 0xd3, 0x00, 0x00, 0x00, 0x11, 0x49, 0x44, 0x41, 0x54, 0x78, 0xda, 0x63, 0x60,
        0x18, 0x05, 0xa3, 0x60, 0x14, 0xd0, 0x16, 0x00, 0x00, 0x03, 0x66, 0x00, 0x01, 0x59, 0x91,
        0x5e, 0xd0, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
    return [UIImage imageWithData:[NSData dataWithBytes:png length:sizeof png]];
}

double middle(const host::Rect &rect) {
    return rect.y + rect.height / 2;
}

TEST_F(TableCell, TheDefaultStyleHasNoDetail) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    EXPECT_EQ(cell.detailTextLabel, nil);
    EXPECT_EQ(cell.textLabel.font.pointSize, 17);
    const host::Element row = element();
    EXPECT_EQ(row.text("style"), "default");
    EXPECT_EQ(row.label, "text");
    EXPECT_EQ(row.value, "");
}

TEST_F(TableCell, ASubtitleStandsBelowTheTextIn12PointBlack) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleSubtitle);
    EXPECT_EQ(cell.textLabel.font.pointSize, 17);
    EXPECT_EQ(cell.detailTextLabel.font.pointSize, 12);
    EXPECT_EQ(element().value, "detail");
    const host::Element text = part("text"), detail = part("detail");
    EXPECT_EQ(detail.text("color"), "#000000");
    EXPECT_EQ(detail.rect.x, 15);
    EXPECT_GE(detail.rect.y, text.rect.y + text.rect.height);
    EXPECT_NEAR((text.rect.y + detail.rect.y + detail.rect.height) / 2, middle(element().rect), 0.5);
}

TEST_F(TableCell, WithoutADetailTheTextOfASubtitleCellStandsInTheMiddle) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleSubtitle);
    cell.detailTextLabel.text = nil;
    EXPECT_NEAR(middle(part("text").rect), middle(element().rect), 0.5);
    EXPECT_EQ(part("detail").type, "");
}

TEST_F(TableCell, Value1ShowsTheDetailAtTheRightIn17PointGray) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleValue1);
    EXPECT_EQ(cell.detailTextLabel.font.pointSize, 17);
    const host::Element detail = part("detail");
    EXPECT_EQ(detail.text("color"), "#8e8e93");
    EXPECT_EQ(detail.text("align"), "right");
    EXPECT_EQ(detail.rect.x + detail.rect.width, 320 - 15);
    EXPECT_EQ(element().text("style"), "value1");
}

TEST_F(TableCell, Value1WithAChevronEndsTenPointsBeforeIt) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleValue1);
    cell.accessoryType = UITableViewCellAccessoryDisclosureIndicator;
    const host::Element detail = part("detail");
    EXPECT_EQ(detail.rect.x + detail.rect.width, 320 - 15 - 8 - 10);
}

TEST_F(TableCell, ALongTextLeavesNoRoomForTheDetail) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleValue1);
    cell.textLabel.text = @"a text that is so long that it takes the whole width of the row and more";
    const host::Element text = part("text");
    EXPECT_LE(text.rect.x + text.rect.width, 305);
    [cell layoutIfNeeded];
    EXPECT_GE(cell.detailTextLabel.frame.size.width, 0);
}

TEST_F(TableCell, Value2PutsATintedLabelBeforeTheDetail) {
    cellOf(UITableViewCellStyleValue2);
    const host::Element text = part("text"), detail = part("detail");
    EXPECT_EQ(text.text("color"), "#007aff");
    EXPECT_EQ(text.text("align"), "right");
    EXPECT_GE(detail.rect.x, text.rect.x + text.rect.width);
}

TEST_F(TableCell, TextsStand15FromTheEdgeAnd20OnTheWidestPhone) {
    cellOf(UITableViewCellStyleDefault);
    EXPECT_EQ(part("text").rect.x, 15);
    EXPECT_EQ(element().amount("inset"), 15);
    [table release];
    cellOf(UITableViewCellStyleDefault, 414);
    EXPECT_EQ(part("text").rect.x, 20);
}

TEST_F(TableCell, AnImageTakesNoRoomUntilThereIsOne) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    EXPECT_NE(cell.imageView, nil);
    EXPECT_EQ(part("text").rect.x, 15);
    UIImage *image = iconImage();
    ASSERT_NE(image, nil);
    ASSERT_EQ(image.size.width, 29);
    cell.imageView.image = image;
    EXPECT_EQ(part("text").rect.x, 59);
    EXPECT_EQ(element().amount("inset"), 59);
    const host::Element row = element();
    ASSERT_EQ(row.all("Image").size(), 1u);
    EXPECT_EQ(row.all("Image")[0]->rect.x, 15);
    EXPECT_EQ(middle(row.all("Image")[0]->rect), middle(row.rect));
    cell.imageView.image = nil;
    EXPECT_EQ(part("text").rect.x, 15);
    EXPECT_TRUE(element().all("Image").empty());
}

TEST_F(TableCell, AnAccessoryViewTakesThePlaceOfTheType) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleSubtitle);
    cell.accessoryType = UITableViewCellAccessoryDisclosureIndicator;
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    label.text = @"mobile";
    [label sizeToFit];
    cell.accessoryView = label;
    const host::Element row = element();
    EXPECT_EQ(row.text("accessory"), "none");
    const host::Element accessory = part("accessory");
    EXPECT_EQ(accessory.label, "mobile");
    EXPECT_EQ(accessory.rect.x + accessory.rect.width, 305);
    EXPECT_NEAR(middle(accessory.rect), middle(row.rect), 0.5);
}

TEST_F(TableCell, AnAccessoryViewThatGrowsIsLaidOutAnewWhenTheRowIsShownAgain) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    cell.accessoryView = label;
    [table layoutIfNeeded];
    label.text = @"mobile";
    [label sizeToFit];
    [cell setNeedsLayout];
    EXPECT_EQ(part("accessory").rect.x + part("accessory").rect.width, 305);
    cell.accessoryView = nil;
    EXPECT_EQ(label.superview, nil);
}

TEST_F(TableCell, EveryAccessoryTypeHasItsName) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    const std::pair<UITableViewCellAccessoryType, const char *> names[] = {
        {UITableViewCellAccessoryNone, "none"},
        {UITableViewCellAccessoryDisclosureIndicator, "disclosure"},
        {UITableViewCellAccessoryDetailDisclosureButton, "detail-disclosure"},
        {UITableViewCellAccessoryCheckmark, "checkmark"},
        {UITableViewCellAccessoryDetailButton, "detail"},
    };
    for (const auto &[type, name] : names) {
        cell.accessoryType = type;
        EXPECT_EQ(element().text("accessory"), name);
    }
}

TEST_F(TableCell, ViewsOfTheContentAreParts) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectMake(100, 10, 50, 20)] autorelease];
    label.text = @"inside";
    [cell.contentView addSubview:label];
    const host::Element row = element();
    const host::Element *inside =
        row.find([](const host::Element &candidate) { return candidate.label == "inside"; });
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->rect, (host::Rect{100, row.rect.y + 10, 50, 20}));
}

TEST_F(TableCell, AnEmptyLabelIsNoElement) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleSubtitle);
    cell.textLabel.text = @"";
    EXPECT_EQ(part("text").type, "");
    EXPECT_EQ(element().label, "");
}

TEST_F(TableCell, IndentationMovesTheTexts) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    cell.indentationLevel = 2;
    EXPECT_EQ(part("text").rect.x, 35);
    cell.indentationWidth = 5;
    EXPECT_EQ(part("text").rect.x, 25);
    cell.indentationLevel = -3;
    EXPECT_EQ(part("text").rect.x, 15);
}

TEST_F(TableCell, TheSeparatorFollowsTheInsetThatIsSet) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    cell.separatorInset = UIEdgeInsetsMake(0, 0, 0, 0);
    EXPECT_EQ(element().amount("inset"), 0);
}

TEST_F(TableCell, TheTablesSeparatorInsetIsTakenOver) {
    fill(1);
    table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568)];
    table.separatorInset = UIEdgeInsetsMake(0, 30, 0, 0);
    table.dataSource = model;
    EXPECT_EQ(element().amount("inset"), 30);
}

TEST_F(TableCell, TheSelectedBackgroundShowsOnlyWhileSelected) {
    UITableViewCell *cell = cellOf(UITableViewCellStyleDefault);
    UIView *background = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    UIView *selected = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    cell.backgroundView = background;
    cell.selectedBackgroundView = selected;
    [cell layoutIfNeeded];
    EXPECT_FALSE(background.hidden);
    EXPECT_TRUE(selected.hidden);
    cell.selected = YES;
    [cell layoutIfNeeded];
    EXPECT_FALSE(selected.hidden);
    EXPECT_EQ(selected.frame.size.width, 320);
}

TEST_F(TableCell, InEditingModeTheContentMovesAsideForTheMinus) {
    cellOf(UITableViewCellStyleDefault);
    table.editing = YES;
    const host::Element row = element();
    const host::Element *minus = row.all("Button").at(0);
    EXPECT_EQ(minus->part, "minus");
    EXPECT_EQ(minus->number, row.number);
    EXPECT_EQ(minus->rect.x, 15);
    EXPECT_EQ(minus->rect.width, 22);
    EXPECT_EQ(part("text").rect.x, 15 + 38);
    EXPECT_EQ(row.amount("inset"), 15 + 38);
}

TEST_F(TableCell, TheReuseIdentifierIsACopy) {
    NSMutableString *identifier = [NSMutableString stringWithString:@"Cell"];
    UITableViewCell *cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                    reuseIdentifier:identifier] autorelease];
    [identifier appendString:@"s"];
    EXPECT_EQ(host::utf8(cell.reuseIdentifier), "Cell");
}

TEST_F(TableCell, PartsAreMadeOnlyWhenTheyAreAskedFor) {
    UITableViewCell *cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                                    reuseIdentifier:nil] autorelease];
    EXPECT_EQ([[cell.contentView subviews] count], 0u);
    EXPECT_EQ(cell.textLabel, cell.textLabel);
    EXPECT_EQ([[cell.contentView subviews] count], 1u);
}

} // namespace
