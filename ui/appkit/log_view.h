#pragma once

#include "ui/log_lines.hpp"

#include <string>

#import <AppKit/AppKit.h>

/// The log of a run: text that grows at its end, to be scrolled, selected and copied. It follows
/// its end until somebody scrolls away from it.
@interface KelmarLogView : NSScrollView {
    NSTextView* text_;
    kelmar::LogLines* shown_;
}

+ (instancetype)log;

/// Adds what is new of `log`. What was there stays as it is, with selection and place.
- (void)render:(const kelmar::LogLines&)log;

/// The accessible name.
- (void)setName:(const std::string&)name;

@end
