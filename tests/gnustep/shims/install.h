#pragma once

#import <objc/objc.h>
#import <objc/runtime.h>

/// Puts the shims that change what GNUstep does, instead of adding to it, into their places.
/// Once, with a pool around it and the main thread's application made.
void KelmarInstallShims();

/// Lets `implementation` answer `selector` for objects of `owner`; gives back what did so far,
/// which may be a superclass's.
template <typename Function>
Function KelmarReplace(Class owner, SEL selector, Function implementation) {
    Method const method = class_getInstanceMethod(owner, selector);
    const IMP before = method_getImplementation(method);
    const IMP after = reinterpret_cast<IMP>(implementation);
    // Not class_replaceMethod: gcc's runtime replaces what is inherited in the superclass itself.
    if (!class_addMethod(owner, selector, after, method_getTypeEncoding(method))) {
        method_setImplementation(method, after);
    }
    return reinterpret_cast<Function>(before);
}
