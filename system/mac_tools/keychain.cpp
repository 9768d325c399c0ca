#include "system/mac_tools/keychain.hpp"

#include "system/process/shell.hpp"

namespace kelmar::Keychain {

namespace {

bool succeeds(const char* verb, const std::string& service) {
    return Shell::run("/usr/bin/security", {verb, "-s", service}).status == 0;
}

} // namespace

bool hasItem(const std::string& service) {
    return succeeds("find-generic-password", service);
}

bool deleteItem(const std::string& service) {
    return succeeds("delete-generic-password", service);
}

} // namespace kelmar::Keychain
