#include "admin/apple_script_error.hpp"
#include "admin/prompt_process.hpp"
#include "admin/quoting.hpp"
#include "admin/script_request.hpp"
#include "system/files/user_folders.hpp"
#include "system/process/background_process.hpp"
#include "system/process/environment.hpp"
#include "system/process/processes.hpp"
#include "system/process/resources.hpp"
#include "system/process/retained_macos.hpp"
#include "system/process/thread_name.hpp"
#include "system/text/foundation_text_macos.hpp"
#include "system/text/path_text.hpp"

#include <cstdio>
#include <cstdlib>
#include <thread>

#include <sys/event.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar::PromptProcess {

namespace {

/// Compares files, not paths: the two processes may have been started through different paths.
bool isSameFile(const std::string& one, const std::string& other) {
    struct stat first {};

    struct stat second {};

    return ::stat(one.c_str(), &first) == 0 && ::stat(other.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// Anybody may start this program with any options, and people believe a prompt in its name. So
/// only the program itself may ask, and only for the script that it ships with. A process can turn
/// into this program (exec) after it has asked, so the request is checked as well: see
/// `reasonForRequest`.
bool isTrusted(const Request& request, pid_t parent) {
    const std::optional<std::string> mine = executablePath(::getpid());
    const std::optional<std::string> asking = executablePath(parent);
    const std::optional<std::string> script = resourcePath("uninstall-as-admin.sh");
    return mine && asking && script && isSameFile(*mine, *asking) &&
           isSameFile(*script, request.script);
}

/// The sentence of the prompt for `request`; absent if the request is refused.
std::optional<std::string> reasonFor(const Request& request, pid_t parent) {
    const Asker asker{standardised(homeFolder()), standardised(temporaryFolder())};
    return isTrusted(request, parent) ? reasonForRequest(request.arguments, asker) : std::nullopt;
}

/// Root's shell may inherit this environment, and bash(1) runs the file that BASH_ENV names before
/// the first line of any script. The one variable that stays names the asking user, as sudo(8)
/// does.
void leaveOnlyTheAskerInTheEnvironment() {
    clearEnvironment();
    ::setenv("SUDO_UID", std::to_string(::getuid()).c_str(), 1);
}

/// Ends this process when its parent ends: nobody would read the answer any more, so nothing may be
/// removed. kqueue(2) reports an error at once for a process that has already gone.
void endWith(pid_t parent) {
    nameThisThread("parent");

    struct kevent event {};

    EV_SET(&event, parent, EVFILT_PROC, EV_ADD | EV_ONESHOT, NOTE_EXIT, 0, nullptr);
    const int queue = ::kqueue();
    if (queue >= 0) {
        ::kevent(queue, &event, 1, &event, 1, nullptr);
    }
    ::_exit(EXIT_FAILURE);
}

AdministratorError errorIn(NSDictionary* information) {
    id const number = [information objectForKey:NSAppleScriptErrorNumber];
    id const message = [information objectForKey:NSAppleScriptErrorMessage];
    const bool isNumber = [number isKindOfClass:[NSNumber class]];
    const bool isText = [message isKindOfClass:[NSString class]];
    return administratorError(isNumber ? std::optional<std::int64_t>([number longLongValue])
                                       : std::nullopt,
                              isText ? std::optional(plainText(message)) : std::nullopt);
}

std::optional<AdministratorError> ask(const Request& request, const std::string& reason) {
    std::vector<std::string> words{"/bin/bash", request.script};
    words.insert(words.end(), request.arguments.begin(), request.arguments.end());
    NSString* const source = foundationText(administratorAppleScript(shellCommand(words), reason));
    const auto script =
        Retained<NSAppleScript>::adopt([[NSAppleScript alloc] initWithSource:source]);
    if (script.get() == nil || ![script.get() compileAndReturnError:NULL]) {
        return AdministratorError::failed("could not prepare the password prompt");
    }
    NSDictionary* error = nil;
    NSAppleEventDescriptor* const result = [script.get() executeAndReturnError:&error];
    // Foundation's convention: test the result; the error is valid only if the result is nil.
    return result != nil ? std::nullopt : std::optional(errorIn(error));
}

} // namespace

std::optional<int> run(const std::vector<std::string>& options) {
    const std::optional<Request> asked = request(options);
    if (!asked) {
        return std::nullopt;
    }
    becomeBackgroundProcess();
    // Read once. If the parent ends in between, no trusted process takes over its number.
    const pid_t parent = ::getppid();
    @autoreleasepool {
        const std::optional<std::string> reason = reasonFor(*asked, parent);
        std::optional<AdministratorError> error =
            AdministratorError::failed("could not prepare the password prompt");
        if (reason) {
            std::thread(endWith, parent).detach();
            leaveOnlyTheAskerInTheEnvironment();
            error = ask(*asked, *reason);
        }
        const std::string answer = report(asked->marker, error);
        std::fwrite(answer.data(), 1, answer.size(), stdout);
        std::fflush(stdout);
    }
    return EXIT_SUCCESS;
}

} // namespace kelmar::PromptProcess
