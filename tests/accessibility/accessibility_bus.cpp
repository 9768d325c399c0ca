#include "tests/accessibility/accessibility_bus.hpp"

#include "tests/support/timeouts.hpp"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <atspi/atspi.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

constexpr const char* bus = "/usr/bin/dbus-daemon";
constexpr const char* registry = "/usr/libexec/at-spi2-registryd";
constexpr const char* registryName = "org.a11y.atspi.Registry";

/// An abstract address, see unix(7): it can be reached from another root folder. Whoever comes is
/// let in without a name, since dbus-daemon(1) turns away users whom this machine doesn't know, and
/// may say anything to anybody. As on a session's bus, many calls may be under way at once.
std::string configuration() {
    return R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:abstract=kelmar-window-tests-)" +
           std::to_string(::getpid()) + R"(</listen>
  <auth>ANONYMOUS</auth>
  <allow_anonymous/>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
  </policy>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)";
}

void waitForName(const char* name) {
    DBusConnection* const connection = atspi_get_a11y_bus();
    for (const Deadline deadline; !deadline.hasPassed(); ::usleep(5'000)) {
        if (connection != nullptr && dbus_bus_name_has_owner(connection, name, nullptr) != FALSE) {
            return;
        }
    }
    throw std::runtime_error(std::string("nobody on the bus is called ") + name);
}

/// Programs ask their session for the address of the bus; this process answers for the session.
/// (They could be told in the environment, but Qt before 6.5 says nothing to a bus that it knows
/// from there.)
DBusHandlerResult answer(DBusConnection* connection, DBusMessage* question, void* address) {
    if (dbus_message_is_method_call(question, "org.a11y.Bus", "GetAddress") == FALSE) {
        return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
    }
    DBusMessage* const reply = dbus_message_new_method_return(question);
    const char* const text = static_cast<const std::string*>(address)->c_str();
    dbus_message_append_args(reply, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    dbus_connection_send(connection, reply, nullptr);
    dbus_message_unref(reply);
    return DBUS_HANDLER_RESULT_HANDLED;
}

void answerForTheSession(std::string& address) {
    DBusConnection* const connection = atspi_get_a11y_bus();
    static const DBusObjectPathVTable table{nullptr, answer, nullptr, nullptr, nullptr, nullptr};
    dbus_connection_register_object_path(connection, "/org/a11y/bus", &table, &address);
    dbus_bus_request_name(connection, "org.a11y.Bus", 0, nullptr);
}

} // namespace

std::optional<std::string> AccessibilityBus::skipReason() {
    for (const char* const needed : {bus, registry}) {
        if (::access(needed, X_OK) != 0) {
            return std::string("a screen reader needs ") + needed + ", which is not here";
        }
    }
    return std::nullopt;
}

AccessibilityBus& AccessibilityBus::instance() {
    static AccessibilityBus one;
    return one;
}

AccessibilityBus::AccessibilityBus() {
    const std::string file = folder_ / "bus.conf";
    std::ofstream(file) << configuration();
    bus_ = std::make_unique<BackgroundProgram>(
        bus,
        std::vector<std::string>{"--config-file=" + file, "--nofork",
                                 std::string("--print-address=") + BackgroundProgram::descriptor});
    address_ = bus_->firstLine();
    for (const char* const name : {"AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"}) {
        ::setenv(name, address_.c_str(), 1); // the library below asks for nothing else
    }
    registry_ = std::make_unique<BackgroundProgram>(registry, std::vector<std::string>{});
    waitForName(registryName);
    constexpr int milliseconds = 60'000;
    atspi_init();
    atspi_set_timeout(milliseconds, milliseconds);
    answerForTheSession(address_);
}

// NOLINTNEXTLINE(*-convert-member-functions-to-static): only an instance has made the bus
Accessible AccessibilityBus::program(pid_t process) const {
    dispatchEvents();
    const Accessible desktop(BusObject{registryName, "/org/a11y/atspi/accessible/root"});
    for (const Accessible& each : desktop.children()) {
        const BusCall owner({DBUS_SERVICE_DBUS, DBUS_PATH_DBUS}, DBUS_INTERFACE_DBUS,
                            "GetConnectionUnixProcessID", {each.object().program});
        if (owner.reply().number() == process) {
            return each;
        }
    }
    return {};
}

void AccessibilityBus::dispatchEvents() {
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
}

} // namespace kelmar::test
