#include "tests/accessibility/bus_call.hpp"

#include <stdexcept>

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

constexpr int timeout = 60'000; ///< milliseconds

struct AppendTo {
    DBusMessageIter& end;

    void operator()(std::int32_t number) const {
        dbus_message_iter_append_basic(&end, DBUS_TYPE_INT32, &number);
    }

    void operator()(std::uint32_t number) const {
        dbus_message_iter_append_basic(&end, DBUS_TYPE_UINT32, &number);
    }

    void operator()(const std::string& text) const {
        const char* const start = text.c_str();
        dbus_message_iter_append_basic(&end, DBUS_TYPE_STRING, &start);
    }
};

/// Appends the values from `from` on to those of `reply`.
void collect(DBusMessageIter& from, BusReply& reply) {
    int type = DBUS_TYPE_INVALID;
    for (; (type = dbus_message_iter_get_arg_type(&from)) != DBUS_TYPE_INVALID;
         dbus_message_iter_next(&from)) {
        if (dbus_type_is_container(type) != FALSE) {
            DBusMessageIter inside;
            dbus_message_iter_recurse(&from, &inside);
            collect(inside, reply);
            continue;
        }
        DBusBasicValue value = {};
        dbus_message_iter_get_basic(&from, &value);
        if (type == DBUS_TYPE_STRING || type == DBUS_TYPE_OBJECT_PATH) {
            reply.texts.emplace_back(value.str);
        } else if (type == DBUS_TYPE_INT32) {
            reply.numbers.push_back(value.i32);
        } else {
            reply.numbers.push_back(value.u32); // a truth value as well
        }
    }
}

} // namespace

BusCall::BusCall(const BusObject& receiver, const char* interface, const char* method,
                 const std::vector<Argument>& arguments) {
    if (receiver.path.empty()) {
        return; // the empty object answers nothing
    }
    const std::unique_ptr<DBusMessage, decltype(&dbus_message_unref)> message(
        dbus_message_new_method_call(receiver.program.c_str(), receiver.path.c_str(), interface,
                                     method),
        dbus_message_unref);
    DBusMessageIter end;
    dbus_message_iter_init_append(message.get(), &end);
    for (const Argument& each : arguments) {
        std::visit(AppendTo{end}, each);
    }
    DBusPendingCall* pending = nullptr;
    dbus_connection_send_with_reply(atspi_get_a11y_bus(), message.get(), &pending, timeout);
    if (pending != nullptr) {
        pending_.reset(pending, dbus_pending_call_unref);
    }
}

BusCall BusCall::property(const BusObject& owner, const char* interface, const char* name) {
    return {owner, DBUS_INTERFACE_PROPERTIES, "Get", {std::string(interface), std::string(name)}};
}

BusReply BusCall::reply() const {
    BusReply reply;
    if (!pending_) {
        return reply;
    }
    // The program may be asking for something of this process's before it answers.
    while (dbus_pending_call_get_completed(pending_.get()) == FALSE &&
           dbus_connection_read_write_dispatch(atspi_get_a11y_bus(), timeout) != FALSE) {
    }
    const std::unique_ptr<DBusMessage, decltype(&dbus_message_unref)> message(
        dbus_pending_call_steal_reply(pending_.get()), dbus_message_unref);
    if (message && dbus_message_is_error(message.get(), DBUS_ERROR_LIMITS_EXCEEDED) != FALSE) {
        throw std::runtime_error("more calls at once than the accessibility bus allows");
    }
    DBusMessageIter begin;
    if (message && dbus_message_get_type(message.get()) != DBUS_MESSAGE_TYPE_ERROR &&
        dbus_message_iter_init(message.get(), &begin) != FALSE) {
        collect(begin, reply);
    }
    return reply;
}

} // namespace kelmar::test
