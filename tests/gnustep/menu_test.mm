#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/application_fixture.hpp"
#include "tests/gnustep/harness/input.hpp"
#include "ui/menu.hpp"

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;

class MainMenu : public test::Application {
protected:
    static std::string line(NSMenuItem* item) {
        if ([item isSeparatorItem]) {
            return "-";
        }
        const NSUInteger keys = [item keyEquivalentModifierMask];
        std::string line =
            plainText([item title]) + ", " + plainText(NSStringFromSelector([item action]));
        if ([[item keyEquivalent] length] > 0) {
            line += ", " + std::string((keys & NSAlternateKeyMask) != 0 ? "option " : "") +
                    ((keys & NSCommandKeyMask) != 0 ? "command " : "") +
                    plainText([item keyEquivalent]);
        }
        return line;
    }

    static NSMenu* menu(NSInteger index) { return [[[NSApp mainMenu] itemAtIndex:index] submenu]; }

    /// Without the windows, which the system adds.
    static Lines lines(NSInteger index) {
        Lines all;
        for (NSMenuItem* item in [menu(index) itemArray]) {
            if ([item target] == nil) {
                all.push_back(line(item));
            }
        }
        return all;
    }
};

TEST_F(MainMenu, IsTheTableAndNothingElse) {
    launch();
    ASSERT_EQ([[NSApp mainMenu] numberOfItems], 3);
    EXPECT_EQ(lines(0), (Lines{"About Kelmar Uninstaller, showAboutPanel:", "-",
                               "Hide Kelmar Uninstaller, hide:, command h",
                               "Hide Others, hideOtherApplications:, option command h",
                               "Show All, unhideAllApplications:", "-",
                               "Quit Kelmar Uninstaller, terminate:, command q"}));
    EXPECT_EQ(plainText([[[NSApp mainMenu] itemAtIndex:1] title]), "Edit");
    EXPECT_EQ(lines(1), (Lines{"Copy, copy:, command c", "Select All, selectAll:, command a"}));
    EXPECT_EQ(plainText([[[NSApp mainMenu] itemAtIndex:2] title]), "Window");
    EXPECT_EQ(lines(2), (Lines{"Minimize, performMiniaturize:, command m"}));
}

TEST_F(MainMenu, HasAnItemForEveryItemOfTheTable) {
    launch();
    const std::vector<Menu> table = mainMenu();
    ASSERT_EQ([[NSApp mainMenu] numberOfItems], static_cast<NSInteger>(table.size()));
    for (std::size_t index = 0; index < table.size(); ++index) {
        const auto& items = table[index].items;
        const Lines shown = lines(static_cast<NSInteger>(index));
        ASSERT_EQ(shown.size(), items.size());
        for (std::size_t each = 0; each < items.size(); ++each) {
            EXPECT_EQ(shown[each].substr(0, shown[each].find(',')),
                      items[each] ? items[each]->title : "-");
        }
    }
}

TEST_F(MainMenu, HasNoTargets) {
    launch();
    for (NSMenuItem* top in [[NSApp mainMenu] itemArray]) {
        for (NSMenuItem* item in [[top submenu] itemArray]) {
            const bool isWindow = [item target] == window();
            EXPECT_TRUE([item target] == nil || isWindow) << plainText([item title]);
        }
    }
}

TEST_F(MainMenu, ListsTheWindow) {
    launch();
    test::settle();
    EXPECT_EQ([NSApp windowsMenu], menu(2));
    EXPECT_NE([menu(2) indexOfItemWithTitle:@"Kelmar Uninstaller"], -1);
}

TEST_F(MainMenu, BearsTheNameOfTheApplication) {
    launch();
    EXPECT_EQ(plainText([[[NSApp mainMenu] itemAtIndex:0] title]), "Kelmar Uninstaller");
}

TEST_F(MainMenu, FindsWhoAnswersEveryItem) {
    launch();
    test::settle();
    for (NSMenuItem* top in [[NSApp mainMenu] itemArray]) {
        for (NSMenuItem* item in [[top submenu] itemArray]) {
            const SEL action = [item action];
            const bool isForText =
                sel_isEqual(action, @selector(copy:)) || sel_isEqual(action, @selector(selectAll:));
            if (![item isSeparatorItem]) {
                EXPECT_EQ([NSApp targetForAction:action] == nil, isForText)
                    << plainText([item title]) << " goes to "
                    << plainText([[NSApp targetForAction:action] description])
                    << ": text that has the focus answers, if any";
            }
        }
    }
}

/// The system asks whenever a menu is opened.
TEST_F(MainMenu, IsGreyWhereNothingAnswers) {
    launch();
    test::settle();
    for (NSMenuItem* top in [[NSApp mainMenu] itemArray]) {
        [[top submenu] update];
        for (NSMenuItem* item in [[top submenu] itemArray]) {
            const SEL action = [item action];
            const bool isForText =
                sel_isEqual(action, @selector(copy:)) || sel_isEqual(action, @selector(selectAll:));
            if (![item isSeparatorItem]) {
                EXPECT_EQ([item isEnabled] == NO, isForText) << plainText([item title]);
            }
        }
    }
    // As soon as there is text that has the focus, it answers.
    NSTextView* const text =
        [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
    [text setString:@"a line"];
    [content() addSubview:text];
    [window() makeFirstResponder:text];
    [text selectAll:nil];
    [menu(1) update];
    EXPECT_TRUE([[menu(1) itemAtIndex:0] isEnabled]);
    EXPECT_TRUE([[menu(1) itemAtIndex:1] isEnabled]);
}

} // namespace
} // namespace kelmar
