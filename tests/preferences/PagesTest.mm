// What taps on rows do: actions, child pages and the order in which they are made.
#include "preferences/PreferencesTest.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

/// What is sent to a page, in order.
std::vector<std::string> sent; // NOLINT: the runtime makes the pages, so they have nobody else to tell

} // namespace

/// Writes down what it is sent.
@interface WitnessPage : PSListController
@end

@implementation WitnessPage

- (instancetype)init {
    self = [super init];
    sent.push_back("init");
    return self;
}

- (void)setRootController:(PSRootController *)controller {
    sent.push_back(controller ? "root" : "no root");
    [super setRootController:controller];
}

- (void)setParentController:(UIViewController *)controller {
    sent.push_back("parent");
    [super setParentController:controller];
}

- (void)setSpecifier:(PSSpecifier *)specifier {
    sent.push_back("specifier");
    [super setSpecifier:specifier];
}

- (NSArray *)specifiers {
    sent.push_back("specifiers");
    if (!_specifiers)
        _specifiers = [[NSArray alloc] init];
    return _specifiers;
}

- (void)loadView {
    sent.push_back("view");
    [super loadView];
}

@end

namespace {

class Pages : public preferences::Test {
protected:
    PSListController *page = preferences::open("Jukebox");

    UIViewController *top() { return [[page navigationController] topViewController]; }

    /// Adds a link row to the page that opens the class.
    PSSpecifier *link(NSString *name, Class detail) {
        PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                          target:page
                                                             set:NULL
                                                             get:NULL
                                                          detail:detail
                                                            cell:PSLinkCell
                                                            edit:Nil];
        [page insertSpecifier:row atIndex:0];
        return row;
    }
};

TEST_F(Pages, AChildPageIsMadeInTheDocumentedOrder) {
    link(@"Witness", [WitnessPage class]);
    sent.clear();
    person.tap("Witness");
    ASSERT_GE(sent.size(), 6u);
    sent.resize(6);
    EXPECT_THAT(sent, ElementsAre("init", "root", "parent", "specifier", "view", "specifiers"));
}

TEST_F(Pages, AChildPageKnowsItsParentItsStackAndItsRow) {
    PSSpecifier *row = link(@"Witness", [WitnessPage class]);
    person.tap("Witness");
    PSViewController *child = static_cast<PSViewController *>(top());
    EXPECT_EQ([child parentController], page);
    EXPECT_EQ([child rootController], [page rootController]);
    EXPECT_NE([child rootController], nil);
    EXPECT_EQ([child specifier], row);
}

TEST_F(Pages, ContentSizeGoesThroughInit) {
    sent.clear();
    [[[WitnessPage alloc] initForContentSize:CGSizeMake(1, 1)] autorelease];
    EXPECT_THAT(sent, ElementsAre("init"));
}

TEST_F(Pages, APageThatIsLeftIsReleased) {
    link(@"Witness", [WitnessPage class]);
    person.tap("Witness");
    UIViewController *child = [top() retain];
    person.back();
    EXPECT_EQ([child retainCount], 1u);
    [child release];
}

TEST_F(Pages, TheLoadActionIsPerformedBeforeThePageIsMade) {
    person.tap("About");
    EXPECT_TRUE(person.sees("Prepared"));
    EXPECT_EQ(person.title(), "About Jukebox");
}

TEST_F(Pages, APageThatIsNoListWorksToo) {
    person.tap("About");
    EXPECT_FALSE([top() isKindOfClass:[PSListController class]]);
    person.back();
    EXPECT_EQ(top(), page);
}

TEST_F(Pages, ACustomControllerClassIsAPageClassToo) {
    person.tap("Custom Class");
    EXPECT_THAT(person.rows(), ElementsAre("Three bands"));
}

TEST_F(Pages, TheRowOfAPageMayBeSetAgain) {
    person.tap("Equalizer");
    PSListController *child = static_cast<PSListController *>(top());
    [child setSpecifier:[page specifierForID:@"Account"]];
    host::waitUntilIdle();
    EXPECT_EQ(person.title(), "Konto");
}

TEST_F(Pages, ALinkWithAnActionAndAPageDoesBoth) {
    person.tap("Extras");
    EXPECT_EQ(preferences::trace(), "extras prepared");
    EXPECT_EQ(person.title(), "Extras");
}

TEST_F(Pages, ALinkWithAnActionAloneStaysOnThePage) {
    person.tap("Website");
    EXPECT_EQ(top(), page);
    EXPECT_THAT(host::eventTexts(host::EventKind::url), ElementsAre("https://jukebox.example/"));
}

TEST_F(Pages, AButtonPerformsItsActionWithItsSpecifier) {
    person.tap("Rescan Library");
    EXPECT_EQ(preferences::trace(), "rescan");
    EXPECT_EQ(person.valueOf("Songs"), "1235");
}

TEST_F(Pages, AnActionNeedsNoArgument) {
    person.tap("Play Something");
    EXPECT_EQ(preferences::trace(), "playing");
}

TEST_F(Pages, ATappedButtonIsDeselectedAtOnce) {
    person.tap("Rescan Library");
    EXPECT_EQ([[page table] indexPathForSelectedRow], nil);
}

TEST_F(Pages, TheRowOfAChildPageIsDeselectedWhenThePageIsLeft) {
    person.tap("About");
    EXPECT_NE([[page table] indexPathForSelectedRow], nil);
    person.back();
    EXPECT_EQ([[page table] indexPathForSelectedRow], nil);
}

TEST_F(Pages, TheEditPaneIsReadFromTheItem) {
    EXPECT_TRUE([[[page specifierForID:@"About"] propertyForKey:@"pane"] isEqual:@"JBAboutPane"]);
    EXPECT_EQ([[page specifierForID:@"About"] editPaneClass], Nil);
}

TEST_F(Pages, APaneEditsTheValueOfItsRow) {
    person.tap("Account");
    EXPECT_EQ(person.valueOf("Dedication"), "To nobody");
    person.tap("Dedication");
    EXPECT_EQ(person.title(), "Dedication");
    EXPECT_EQ(person.field("To whom?").value, "To nobody");
    person.retype("To whom?", "To Ada");
    EXPECT_EQ(preferences::stored(preferences::account, "dedication"), nil);
    person.back();
    EXPECT_EQ(preferences::storedText(preferences::account, "dedication"), "To Ada");
    EXPECT_EQ(person.valueOf("Dedication"), "To Ada");
}

TEST_F(Pages, APaneThatIsLeftUnchangedStoresNothing) {
    person.tap("Account");
    person.tap("Dedication");
    person.back();
    EXPECT_EQ(preferences::stored(preferences::account, "dedication"), nil);
}

TEST_F(Pages, APaneKnowsItsRowAndItsPage) {
    person.tap("Account");
    person.tap("Dedication");
    PSDetailController *detail = static_cast<PSDetailController *>(top());
    EXPECT_EQ([[detail pane] preferenceSpecifier], [detail specifier]);
    EXPECT_EQ([[detail pane] viewController], detail);
}

TEST_F(Pages, AClassThatIsNoPaneGivesAnEmptyOne) {
    person.tap("Account");
    person.tap("Plain Pane");
    EXPECT_TRUE([[static_cast<PSDetailController *>(top()) pane] isMemberOfClass:[PSEditingPane class]]);
    EXPECT_TRUE(preferences::complained("JBStarsCell of row Plain Pane is no PSEditingPane"));
    person.back();
    EXPECT_EQ(person.title(), "Account");
}

TEST_F(Pages, AClassThatIsNotThereOpensAPageThatSaysSo) {
    person.tap("Nowhere");
    EXPECT_THAT(preferences::texts("footer"), ElementsAre("There is no class JBNowhereController."));
    person.back();
    EXPECT_EQ(person.title(), "Jukebox");
}

TEST_F(Pages, AClassThatIsNoPageOpensAPageThatSaysSo) {
    person.tap("No Page");
    EXPECT_THAT(preferences::texts("footer"), ElementsAre("The class JBStarsCell is no page of Settings."));
}

TEST_F(Pages, APageWhoseCodeFailsSaysSo) {
    person.tap("Fragile");
    EXPECT_EQ(person.title(), "Fragile");
    EXPECT_THAT(preferences::texts("footer"), ElementsAre(testing::HasSubstr("no specifiers today")));
}

TEST_F(Pages, ARowWithoutAPageOpensNone) {
    EXPECT_EQ([page controllerForSpecifier:[page specifierForID:@"Website"]], nil);
    [page showController:nil];
    EXPECT_EQ(top(), page);
}

TEST_F(Pages, LosingTheFocusEndsEditing) {
    person.tap("Account");
    person.type("Name", "Ada");
    [static_cast<PSListController *>(top()) loseFocus];
    host::waitUntilIdle();
    EXPECT_EQ(preferences::storedText(preferences::account, "name"), "Ada");
}

} // namespace
