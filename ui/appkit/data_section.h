#pragma once

#include "ui/appkit/push_button.h"
#include "ui/appkit/section.h"
#include "ui/appkit/size_label.h"

/// The switch for all data, what it comes to, and the folders to choose from.
@interface KelmarDataSection : KelmarSection {
    const kelmar::WindowActions* actions_;
    KelmarTextLabel* label_;
    KelmarSizeLabel* total_;
    NSSwitch* switch_;
    BOOL isOn_; ///< as the page says
    KelmarTextLabel* line_;
    KelmarPushButton* folders_;
    NSMutableArray* lists_;
}

/// `actions` outlive the section.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)sectionWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::DataSection&)section;

@end
