#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/size_label.h"
#include "ui/window_actions.hpp"

/// One folder to be chosen: a check box with its name, what is in it, its size.
@interface KelmarFolderRow : KelmarFlippedView {
    const kelmar::WindowActions* actions_;
    std::string* path_; ///< its own bytes: a text would have lost some
    NSButton* check_;
    CGFloat nameWidth_; ///< of the whole name with its box
    CGFloat column_;    ///< the width of the names
    BOOL isChecked_;    ///< as the page says
    KelmarTextLabel* summary_;
    KelmarSizeLabel* size_;
}

/// `actions` outlive the row.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)rowWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::FolderRow&)row;

/// The width of the check box with the whole name, and the width of the column that it is given.
- (CGFloat)nameWidth;
- (void)setNameWidth:(CGFloat)width;

@end

/// The folders of one data root, under a line and a heading.
@interface KelmarFolderList : KelmarFlippedView {
    const kelmar::WindowActions* actions_;
    KelmarHairline* divider_;
    KelmarTextLabel* heading_;
    KelmarTextLabel* others_;
    NSMutableArray* rows_;
}

/// `actions` outlive the list.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)listWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::FolderList&)list;

/// The widest name, and the column of names; lists one below the other have one column.
- (CGFloat)nameWidth;
- (void)setNameWidth:(CGFloat)width;

@end
