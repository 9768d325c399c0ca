#include "tests/support/private_mounts.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include <sched.h>
#include <sys/mount.h>

namespace kelmar::test {

PrivateMounts::PrivateMounts() {
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        throw std::system_error(errno, std::generic_category(), "no mount namespace of its own");
    }
}

PrivateMounts::~PrivateMounts() {
    while (!targets_.empty()) {
        if (::umount2(targets_.back().c_str(), MNT_DETACH) != 0) {
            std::cerr << "still mounted: " << targets_.back() << '\n';
            std::abort();
        }
        targets_.pop_back();
    }
}

void PrivateMounts::bind(const std::string& source, const std::string& target) {
    mount(source, target, nullptr, MS_BIND, nullptr);
}

void PrivateMounts::bindWithMounts(const std::string& source, const std::string& target) {
    mount(source, target, nullptr, MS_BIND | MS_REC, nullptr);
}

void PrivateMounts::add(const std::string& type, const std::string& target,
                        const std::string& options) {
    mount(type, target, type.c_str(), 0, options.c_str());
}

void PrivateMounts::mount(const std::string& source, const std::string& target, const char* type,
                          unsigned long flags, const char* options) {
    if (!std::filesystem::exists(target)) {
        std::filesystem::create_directories(target);
    }
    targets_.reserve(targets_.size() + 1); // nothing fails once it is mounted
    if (::mount(source.c_str(), target.c_str(), type, flags, options) != 0) {
        throw std::system_error(errno, std::generic_category(), "mount " + target);
    }
    targets_.push_back(target);
}

} // namespace kelmar::test
