// Runs the built program again and again on a sample Mac and lets one system call fail, or kills
// everything at it, each time another:
//
//     sweep [--every N] [--program] [--call NAME] fail|kill scan|keep|delete
//
// With --program only the program's own calls are taken, else also those of what it starts; with
// --call only those of a name, as openat.

#include "tests/support/timeouts.hpp"
#include "tests/sweep/swept_mac.hpp"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kelmar::test {
namespace {

constexpr int skipped = 77;

struct Options {
    std::size_t step = 1;
    Follow follow = Follow::processes;
    Verdict::Kind kind = Verdict::Kind::fail;
    std::string call; ///< empty for all
    std::string request;
};

class Sweep {
public:
    explicit Sweep(Options options) : options_(std::move(options)) {
        SweptMac mac(options_.request);
        const Recording recording = record(mac.program(), options_.follow);
        std::vector<Point> all = pointsOf(recording.calls, options_.kind, mac.program().path);
        std::erase_if(all, [this](const Point& point) {
            return !options_.call.empty() && nameOf(point.call) != options_.call;
        });
        points_ = sample(all, options_.step);
        std::cout << recording.calls.size() << " calls, " << all.size() << " points, "
                  << points_.size() << " of them tried\n";
    }

    int run() {
        std::vector<std::thread> workers;
        for (unsigned each = 0; each < std::max(1U, std::thread::hardware_concurrency()); ++each) {
            workers.emplace_back([this] { work(); });
        }
        for (std::thread& worker : workers) {
            worker.join();
        }
        for (const auto& [executable, count] : came_) {
            std::cout << executable << ": " << count << '\n';
        }
        std::cout << missed_ << " did not come, " << wrong_ << " went wrong\n";
        return wrong_ == 0 && missed_ * 2 <= points_.size() ? EXIT_SUCCESS : EXIT_FAILURE;
    }

private:
    void work() {
        SweptMac mac(options_.request);
        while (true) {
            const std::size_t number = next_++;
            if (number >= points_.size()) {
                return;
            }
            attempt(mac, points_[number]);
        }
    }

    void attempt(SweptMac& mac, const Point& point) {
        mac.prepare();
        std::vector<std::string> complaints;
        bool came = true;
        try {
            const Struck struck = strike(mac.program(), options_.follow, point.call, point.verdict);
            came = struck.came;
            if (came) {
                complaints = mac.complaints(point, struck.end);
            }
        } catch (const std::exception& error) {
            complaints.emplace_back(error.what());
        }
        const std::scoped_lock lock(mutex_);
        missed_ += came ? 0U : 1U;
        came_[point.call.executable] += came ? 1U : 0U;
        wrong_ += complaints.empty() ? 0U : 1U;
        for (const std::string& each : complaints) {
            std::cerr << describe(point) << ": " << each << std::endl;
        }
    }

    const Options options_;
    std::vector<Point> points_;
    std::atomic<std::size_t> next_{0};
    std::mutex mutex_;
    std::map<std::string, std::size_t> came_;
    std::size_t missed_ = 0;
    std::size_t wrong_ = 0;
};

Options parse(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (words[at] == "--every") {
            options.step = std::stoul(words.at(++at));
        } else if (words[at] == "--call") {
            options.call = words.at(++at);
        } else if (words[at] == "--program") {
            options.follow = Follow::threads;
        } else if (words[at] == "fail" || words[at] == "kill") {
            options.kind = words[at] == "fail" ? Verdict::Kind::fail : Verdict::Kind::kill;
        } else {
            options.request = words[at];
        }
    }
    return options;
}

int sweep(const std::vector<std::string>& words) {
    if (isSanitized) {
        std::cout << "skipped: a sanitizer makes calls of its own, and expects them to succeed\n";
        return skipped;
    }
    if (const std::string reason = whyNoneFails(); !reason.empty()) {
        std::cout << "skipped: " << reason << '\n';
        return skipped;
    }
    return Sweep(parse(words)).run();
}

} // namespace
} // namespace kelmar::test

int main(int count, char** arguments) {
    try {
        return kelmar::test::sweep({arguments + 1, arguments + count});
    } catch (const std::exception& error) {
        std::cerr << "usage: sweep [--every N] [--program] [--call NAME] fail|kill "
                     "scan|keep|delete: "
                  << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
