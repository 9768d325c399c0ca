#pragma once

#include <utility>

#import <Foundation/Foundation.h>

namespace kelmar {

/// Owns one reference to an Objective-C object, or none (nil). The sources are compiled without
/// automatic reference counting, so an object that must outlive the current autorelease pool needs
/// an owner.
template <typename Object>
class Retained {
public:
    Retained() = default;

    /// Takes over the reference that the caller got from `alloc`, `new` or `copy`.
    static Retained adopt(Object* object) {
        Retained retained;
        retained.object_ = object;
        return retained;
    }

    /// Takes an additional reference.
    static Retained retain(Object* object) { return adopt([object retain]); }

    Retained(const Retained& other) : object_([other.object_ retain]) {}

    Retained(Retained&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    Retained& operator=(const Retained& other) {
        Retained copy(other);
        std::swap(object_, copy.object_);
        return *this;
    }

    Retained& operator=(Retained&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    ~Retained() { [object_ release]; }

    [[nodiscard]] Object* get() const { return object_; }

private:
    Object* object_ = nullptr;
};

} // namespace kelmar
