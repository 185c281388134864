#include "Stage.h"

/// Writes down what a search bar tells.
@interface SearchDelegate : NSObject <UISearchBarDelegate> {
@public
    uikit::Trace told;
}
@end

@implementation SearchDelegate

- (void)searchBarTextDidBeginEditing:(UISearchBar *)bar {
    told.emplace_back("did begin");
}

- (void)searchBar:(UISearchBar *)bar textDidChange:(NSString *)text {
    told.push_back("changed to " + std::string([text UTF8String]));
}

- (void)searchBarSearchButtonClicked:(UISearchBar *)bar {
    told.emplace_back("search");
}

- (void)searchBarCancelButtonClicked:(UISearchBar *)bar {
    told.emplace_back("cancel");
    [bar resignFirstResponder];
}

- (void)searchBarTextDidEndEditing:(UISearchBar *)bar {
    told.emplace_back("did end");
}

@end

namespace {

using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;

class SearchBar : public uikit::Stage {
protected:
    SearchBar() {
        place(bar, 64, 320, 44);
        [bar setPlaceholder:@"Search"];
        [bar setDelegate:delegate];
    }

    UISearchBar *bar = [[[UISearchBar alloc] initWithFrame:CGRectZero] autorelease];
    SearchDelegate *delegate = [[[SearchDelegate alloc] init] autorelease];
};

TEST_F(SearchBar, TellsEachChangeAndTheSearchKey) {
    person.type("Search", "Bo");
    person.pressReturn();
    EXPECT_THAT(delegate->told, ElementsAre("did begin", "changed to B", "changed to Bo", "search"));
    EXPECT_TRUE([[bar text] isEqualToString:@"Bo"]);
    EXPECT_EQ(host::screen().all("SearchField").front()->value, "Bo");
}

TEST_F(SearchBar, ClearingTellsTheEmptyText) {
    person.type("Search", "B");
    EXPECT_EQ(host::perform({.kind = GestureKind::clear}), Outcome::done);
    EXPECT_EQ(delegate->told.back(), "changed to ");
}

TEST_F(SearchBar, ShowsACancelButtonWhenTold) {
    EXPECT_TRUE(host::screen().all("Button").empty());
    [bar setShowsCancelButton:YES animated:YES];
    (void)tap(bar);
    [bar becomeFirstResponder];
    person.tapButton("Cancel");
    EXPECT_THAT(delegate->told, ElementsAre("did begin", "cancel", "did end"));
    EXPECT_FALSE([bar isFirstResponder]);
}

} // namespace
