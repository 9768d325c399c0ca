#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

struct DBusPendingCall;

namespace kelmar::test {

/// An object of a program on the accessibility bus.
struct BusObject {
    std::string program; ///< its name on the bus
    std::string path;

    friend bool operator==(const BusObject&, const BusObject&) = default;
};

/// What a reply holds, in its order, whatever arrays and structures it stands in.
struct BusReply {
    std::vector<std::string> texts; ///< paths too
    std::vector<std::int64_t> numbers;

    [[nodiscard]] std::string text() const { return texts.empty() ? "" : texts.front(); }

    [[nodiscard]] std::int64_t number() const { return numbers.empty() ? 0 : numbers.front(); }
};

/// A method call that was sent. Several that are sent before the first reply is waited for cost as
/// many wake-ups of either program as one.
class BusCall {
public:
    using Argument = std::variant<std::int32_t, std::uint32_t, std::string>;

    BusCall(const BusObject& receiver, const char* interface, const char* method,
            const std::vector<Argument>& arguments = {});

    /// Waits for the reply; an error's holds nothing. What else arrives meanwhile is dispatched.
    [[nodiscard]] BusReply reply() const;

    /// Reads a property.
    static BusCall property(const BusObject& owner, const char* interface, const char* name);

private:
    std::shared_ptr<DBusPendingCall> pending_;
};

} // namespace kelmar::test
