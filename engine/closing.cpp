#include "discovery/app_identity.hpp"
#include "engine/uninstaller.hpp"
#include "system/files/files.hpp"
#include "system/mac_tools/launchctl.hpp"
#include "system/process/processes_under.hpp"
#include "system/process/running_applications.hpp"
#include "system/text/strings.hpp"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <iterator>

#include <unistd.h>

namespace kelmar {

namespace {

// Seconds.
constexpr double politeWait = 20;
constexpr double terminateWait = 10;
constexpr double forcedWait = 5;
constexpr double killWait = 3;

bool hasGone(pid_t process) {
    // EPERM: the process exists, but is somebody else's.
    return ::kill(process, 0) != 0 && errno != EPERM;
}

/// Signals held processes only: another process may have got the number of one that has ended.
void signalAll(const std::vector<HeldProcess>& processes, int signal) {
    for (const HeldProcess& process : processes) {
        static_cast<void>(process.signal(signal)); // the next wait shows whether it worked
    }
}

std::vector<pid_t> numbersOf(const std::vector<HeldProcess>& processes) {
    std::vector<pid_t> numbers;
    std::transform(processes.begin(), processes.end(), std::back_inserter(numbers),
                   [](const HeldProcess& process) { return process.number(); });
    return numbers;
}

} // namespace

bool Uninstaller::waitForExit(const std::vector<pid_t>& processes, double seconds) {
    constexpr useconds_t pause = 200'000; // microseconds
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::duration<double>(seconds);
    const auto allGone = [&processes] {
        return std::all_of(processes.begin(), processes.end(), hasGone);
    };
    while (Clock::now() < deadline) {
        if (allGone()) {
            return true;
        }
        ::usleep(pause);
    }
    return allGone();
}

void Uninstaller::quitKelmar() {
    if (paths.testRoot) {
        return;
    }
    const std::vector<RunningApplication> running = runningApplications(appIdentity(paths));
    if (running.empty() || ends()) {
        return;
    }
    std::vector<HeldProcess> held;
    std::vector<std::string> numbers;
    for (const RunningApplication& application : running) {
        held.push_back(application.process);
        numbers.push_back(std::to_string(application.process.number()));
    }
    const std::vector<pid_t> all = numbersOf(held);
    doing("Closing Kelmar");
    const auto accepted =
        std::count_if(running.begin(), running.end(),
                      [](const RunningApplication& one) { return one.terminate(); });
    if (accepted != 0 && waitForExit(all, politeWait)) {
        log("Closed Kelmar.");
        return;
    }
    signalAll(held, SIGTERM);
    if (waitForExit(all, terminateWait)) {
        log("Closed Kelmar (it did not answer the quit request).");
        return;
    }
    for (const RunningApplication& application : running) {
        static_cast<void>(application.forceTerminate()); // the next wait shows whether it worked
    }
    if (waitForExit(all, forcedWait)) {
        log("Forced Kelmar to close.");
        return;
    }
    log("Kelmar is still running (process " + joined(numbers, ", ") + ").");
}

void Uninstaller::stopServices() {
    if (paths.testRoot) {
        return;
    }
    for (const std::string& label : inventory.loadedServices) {
        if (ends()) {
            return;
        }
        doing("Stopping " + label);
        const std::optional<std::string> plist = Launchctl::propertyList(label);
        if (const std::optional<Launchctl::Complaint> complaint = Launchctl::stop(label)) {
            log("Could not stop " + label + ": " + complaint->message + " (exit " +
                std::to_string(complaint->status) + ")");
            continue;
        }
        log("Stopped " + label + ".");
        if (plist) {
            stoppedServices.push_back({label, *plist});
        }
    }
}

std::vector<pid_t> Uninstaller::processes(const std::vector<std::string>& folders) {
    return processesUnder(folders);
}

void Uninstaller::stopProcesses(const std::vector<std::string>& folders) {
    if (folders.empty()) {
        return;
    }
    const std::vector<HeldProcess> held = ownProcessesUnder(folders);
    if (held.empty() || ends()) {
        return;
    }
    const std::vector<pid_t> mine = numbersOf(held);
    doing("Stopping Kelmar's background processes");
    signalAll(held, SIGTERM);
    if (!waitForExit(mine, terminateWait)) {
        signalAll(held, SIGKILL);
    }
    waitForExit(mine, killWait);
    std::vector<std::string> shown;
    std::transform(folders.begin(), folders.end(), std::back_inserter(shown),
                   [this](const std::string& folder) { return paths.display(folder); });
    log("Stopped " + std::to_string(mine.size()) + " process(es) running from " +
        joined(shown, ", ") + ".");
}

void Uninstaller::restartStoppedServices() {
    for (const StoppedService& service : stoppedServices) {
        if (!exists(service.plist)) {
            continue; // removed meanwhile: there is nothing to start
        }
        const std::optional<std::string> complaint = Launchctl::start(service.plist);
        log(complaint ? "Could not start " + service.label + " again: " + *complaint
                      : "Started " + service.label + " again.");
    }
}

} // namespace kelmar
