#pragma once

#import <AppKit/AppKit.h>

// Names that the Mac's reference has today for what GNUstep still knows by older ones.

constexpr auto NSBezelStyleRounded = NSRoundedBezelStyle;
constexpr auto NSBezelStyleDisclosure = NSDisclosureBezelStyle;

constexpr auto NSButtonTypeMomentaryChange = NSMomentaryChangeButton;
constexpr auto NSButtonTypeMomentaryPushIn = NSMomentaryPushInButton;
constexpr auto NSButtonTypePushOnPushOff = NSPushOnPushOffButton;
constexpr auto NSButtonTypeSwitch = NSSwitchButton;

constexpr auto NSCompositingOperationSourceOver = NSCompositeSourceOver;

constexpr NSUInteger NSEventModifierFlagCommand = NSCommandKeyMask;
constexpr NSUInteger NSEventModifierFlagOption = NSAlternateKeyMask;

constexpr auto NSEventTypeKeyDown = NSKeyDown;

constexpr auto NSProgressIndicatorStyleSpinning = NSProgressIndicatorSpinningStyle;
