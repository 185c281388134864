// The root page: its tools, the counts beside its lists, and its buttons.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"

using host::EventKind;
using support::Entries;
using support::propertyList;
using support::text;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *blacklist = "/var/mobile/Library/Preferences/zelvora.black.plist";
constexpr const char *defaultBlacklist = "/Library/Zelvora/Default/zelvora.black.plist";

Entries entries(int count) {
    Entries entries;
    for (int index = 0; index < count; ++index)
        entries[std::to_string(index)] = "";
    return entries;
}

class RootPages : public support::BundleTest {
protected:
    /// The text beside a link to the list that `listId` names; nil for a link without the property.
    static std::string countFor(NSString *listId) {
        PSSpecifier *link = [PSSpecifier emptyGroupSpecifier];
        [link setProperty:listId forKey:@"_custom"];
        NSString *count = [rootPage() getCustomCount:link];
        return count ? text(count) : "nothing";
    }
};

TEST_F(RootPages, RespringRestartsTheHomeScreen) {
    open();
    tapRightButton();
    EXPECT_EQ(person.question().type, "Sheet");
    EXPECT_EQ(person.question().label, "");
    EXPECT_THAT(person.buttons(), ElementsAre("Respring", "Cancel"));
    const host::Element sheet = person.question();
    EXPECT_EQ(sheet.all("Button").front()->text("role"), "destructive");
    person.answer("Respring");
    EXPECT_THAT(commands(), ElementsAre("killall SpringBoard"));
}

TEST_F(RootPages, CancellingTheToolsDoesNothing) {
    open();
    tapRightButton();
    person.answer("Cancel");
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(RootPages, PagesThatAreClosedTakeTheirSheetWithThem) {
    open();
    tapRightButton();
    host::closePages();
    EXPECT_EQ(person.question().type, "");
    EXPECT_EQ(person.title(), "Settings");
    EXPECT_THAT(commands(), IsEmpty());
    open();
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(RootPages, OtherSheetsRestartNothing) {
    open();
    UIActionSheet *sheet = [[[UIActionSheet alloc] initWithTitle:nil
                                                        delegate:nil
                                               cancelButtonTitle:@"Cancel"
                                          destructiveButtonTitle:@"Respring"
                                               otherButtonTitles:@"More", nil] autorelease];
    [rootPage() actionSheet:sheet clickedButtonAtIndex:0];
    [sheet setTag:10086];
    [rootPage() actionSheet:sheet clickedButtonAtIndex:1];
    [rootPage() actionSheet:sheet clickedButtonAtIndex:[sheet cancelButtonIndex]];
    EXPECT_THAT(commands(), IsEmpty());
    [rootPage() actionSheet:sheet clickedButtonAtIndex:0];
    EXPECT_THAT(commands(), ElementsAre("killall SpringBoard"));
}

// Eight by eight pixels, the header alone.
const std::string
    smallImage("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x08\0\0\0\x08\x08\x06\0\0\0\xC4\x0F\xBE\x8B", 33);

TEST_F(RootPages, CancellingASheetWithoutOtherButtonsRestartsNothing) {
    open();
    UIActionSheet *sheet = [[[UIActionSheet alloc] initWithTitle:nil
                                                        delegate:nil
                                               cancelButtonTitle:@"Cancel"
                                          destructiveButtonTitle:nil
                                               otherButtonTitles:nil] autorelease];
    [sheet setTag:10086];
    ASSERT_EQ([sheet cancelButtonIndex], 0);
    [rootPage() actionSheet:sheet clickedButtonAtIndex:0];
    [rootPage() actionSheet:nil clickedButtonAtIndex:0];
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(RootPages, TheToolsButtonShowsTheInstalledImage) {
    device.write("/Library/Zelvora/tools.png", smallImage);
    open();
    UIBarButtonItem *tools = [[rootPage() navigationItem] rightBarButtonItem];
    EXPECT_EQ([[tools image] size].width, 8);
    EXPECT_EQ([tools style], UIBarButtonItemStylePlain);
    EXPECT_EQ([tools target], rootPage());
    EXPECT_EQ(text(NSStringFromSelector([tools action])), "toolsButtonPressed:");
}

std::string superclassSaw;

void watchAppearance(id page, SEL, BOOL) {
    superclassSaw += [[page navigationItem] rightBarButtonItem] ? "a button " : "no button ";
}

TEST_F(RootPages, TheSuperclassHasItsTurnBeforeTheToolsButtonIsMade) {
    ZelvoraSettingsController *page = [[[classNamed("ZelvoraSettingsController") alloc] init] autorelease];
    host::replaceMethod([PSListController class], @selector(viewWillAppear:), IMP(watchAppearance));
    [page viewWillAppear:NO];
    [page viewWillAppear:NO];
    EXPECT_EQ(superclassSaw, "no button a button ");
}

TEST_F(RootPages, AButtonThatIsAlreadyThereIsLeftAlone) {
    load();
    ZelvoraSettingsController *page = [[[classNamed("ZelvoraSettingsController") alloc] init] autorelease];
    UIBarButtonItem *own = [[[UIBarButtonItem alloc] initWithTitle:@"Own"
                                                             style:UIBarButtonItemStylePlain
                                                            target:nil
                                                            action:NULL] autorelease];
    [[page navigationItem] setRightBarButtonItem:own];
    [page viewWillAppear:NO];
    EXPECT_EQ([[page navigationItem] rightBarButtonItem], own);
}

TEST_F(RootPages, TheToolsButtonIsMadeOnceAPage) {
    open();
    UIBarButtonItem *tools = [[rootPage() navigationItem] rightBarButtonItem];
    person.tap("Keypad");
    person.back();
    EXPECT_EQ([[rootPage() navigationItem] rightBarButtonItem], tools);
}

TEST_F(RootPages, WithoutItsImageTheToolsButtonStillOpensTheSheet) {
    device.remove("/Library/Zelvora/tools.png");
    open();
    EXPECT_EQ([[[rootPage() navigationItem] rightBarButtonItem] image], nil);
    tapRightButton();
    EXPECT_EQ(person.question().type, "Sheet");
    person.answer("Cancel");
}

TEST_F(RootPages, AListShowsHowManyEntriesItHas) {
    device.write(blacklist, propertyList(entries(3)));
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "3");
}

TEST_F(RootPages, ALongListShowsAllItsDigits) {
    device.write(blacklist, propertyList(entries(12345)));
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "12345");
}

TEST_F(RootPages, AListWithoutADocumentShowsNoCount) {
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "");
}

TEST_F(RootPages, AnEmptyListShowsNoCount) {
    device.write(defaultBlacklist, propertyList(entries(2)));
    device.write(blacklist, propertyList({}));
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "");
}

TEST_F(RootPages, AListThatWasNeverChangedShowsTheCountOfItsDefaultCopy) {
    device.write(defaultBlacklist, propertyList(entries(2)));
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "2");
}

TEST_F(RootPages, AnUnreadableListShowsTheCountOfItsDefaultCopy) {
    device.write(defaultBlacklist, propertyList(entries(2)));
    device.write(blacklist, "garbage <<<");
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "2");
}

TEST_F(RootPages, AListOfWhichNoDocumentCanBeReadShowsNoCount) {
    device.write(defaultBlacklist, "<plist><array/></plist>");
    device.write(blacklist, "garbage <<<");
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "");
}

TEST_F(RootPages, EntriesOfAnyTypeAreCountedAtTheTopAlone) {
    device.write(blacklist, "<plist><dict><key>1</key><dict><key>a</key><true/><key>b</key><true/></dict>"
                            "<key>2</key><array/><key></key><false/></dict></plist>");
    open();
    EXPECT_EQ(person.valueOf("Blacklist"), "3");
}

TEST_F(RootPages, EveryListIsCountedByItsOwnDocument) {
    int count = 0;
    for (const std::string listId : {"area", "t9", "black", "white", "priority", "exclude"})
        device.write("/var/mobile/Library/Preferences/zelvora." + listId + ".plist",
                     propertyList(entries(++count)));
    open();
    count = 0;
    for (const char *row :
         {"Area Prefixes", "Keypad Codes", "Blacklist", "Whitelist", "Priority List", "Exclusion List"})
        EXPECT_EQ(person.valueOf(row), std::to_string(++count)) << row;
}

TEST_F(RootPages, ALinkWithoutAListShowsNoCount) {
    open();
    EXPECT_TRUE([[rootPage() getCustomCount:nil] isEqual:@""]);
    EXPECT_EQ(countFor(nil), "");
    EXPECT_EQ(countFor(@""), "");
    EXPECT_EQ(countFor(@"unknown"), "");
    EXPECT_EQ(countFor(@"calltime"), "");
}

TEST_F(RootPages, TheCountIsRenewedWhenTheListPageIsLeft) {
    open();
    person.tap("Blacklist");
    device.write(blacklist, propertyList(entries(12)));
    person.back();
    EXPECT_EQ(person.valueOf("Blacklist"), "12");
}

TEST_F(RootPages, SupportMailNamesTheSystemAndTheBuild) {
    open();
    host::setSystemVersion("7.1.2");
    person.tap("Email Us");
    EXPECT_THAT(host::eventTexts(EventKind::url),
                ElementsAre("mailto:support@zelvora.example?subject=Zelvora%20%5B7121A7%5D"));
}

TEST_F(RootPages, SupportMailNamesVersionsOfAnyLength) {
    open();
    for (const auto &[version, digits] :
         {std::pair("8.0", "80"), {"8.1.2", "812"}, {"10.3.3", "1033"}, {"9", "9"}}) {
        host::forgetEvents();
        host::setSystemVersion(version);
        [rootPage() emailAction:nil];
        EXPECT_THAT(host::eventTexts(EventKind::url),
                    ElementsAre("mailto:support@zelvora.example?subject=Zelvora%20%5B" + std::string(digits) +
                                "1A7%5D"));
    }
}

TEST_F(RootPages, TheMicroblogIsOpened) {
    open();
    person.tap("Zelvora on Weibo");
    EXPECT_THAT(host::eventTexts(EventKind::url), ElementsAre("https://microblog.example/zelvora"));
}

TEST_F(RootPages, TheDonationButtonsDoNothing) {
    open();
    host::forgetEvents();
    person.tap("Alipay");
    person.tap("PayPal");
    host::advance(10);
    EXPECT_TRUE(host::events().empty());
    EXPECT_EQ(person.question().type, "");
}

TEST_F(RootPages, ThePageIsThePrincipalClassOfTheBundle) {
    load();
    EXPECT_EQ([[NSBundle bundleWithPath:@ZV_BUNDLE_PATH] principalClass],
              classNamed("ZelvoraSettingsController"));
}

TEST_F(RootPages, TheSpecifiersAreLoadedOnceAndTheSameArrayIsReturned) {
    open();
    EXPECT_EQ([rootPage() specifiers], [rootPage() specifiers]);
    EXPECT_GT([[rootPage() specifiers] count], 10U);
}

TEST_F(RootPages, TheRowsActOnThePage) {
    open();
    for (PSSpecifier *row in [rootPage() specifiers])
        EXPECT_EQ([row target], rootPage()) << text([row name]);
}

} // namespace
