#include "tests/sweep/points.hpp"

#include "tests/sweep/errors.hpp"

#include <cstring>
#include <set>
#include <tuple>

namespace kelmar::test {

std::string describe(const Point& point) {
    std::string thread;
    for (const int each : point.call.thread) {
        thread += (thread.empty() ? "" : ".") + std::to_string(each);
    }
    return nameOf(point.call) + " " + std::to_string(point.call.occurrence) + " of thread " +
           thread + " of " + point.call.executable + ": " +
           (point.verdict.kind == Verdict::Kind::kill ? "killed"
                                                      : std::strerror(point.verdict.error));
}

std::vector<Point> pointsOf(const std::vector<SystemCall>& calls, Verdict::Kind kind,
                            const std::string& path) {
    std::vector<Point> points;
    std::set<std::tuple<std::string, std::size_t, std::size_t, long>> seen;
    for (const SystemCall& call : calls) {
        // The length of its path tells a child of the program from a child of the script.
        if (call.executable != path &&
            !seen.insert({call.executable, call.thread.size(), call.index, call.number}).second) {
            continue;
        }
        if (kind == Verdict::Kind::kill) {
            points.push_back({call, {kind, 0}});
            continue;
        }
        for (const int error : errorsOf(call.number)) {
            points.push_back({call, {kind, error}});
        }
    }
    return points;
}

std::vector<Point> sample(const std::vector<Point>& points, std::size_t step) {
    std::vector<Point> some;
    for (std::size_t each = step / 2; each < points.size(); each += step) {
        some.push_back(points[each]);
    }
    return some;
}

} // namespace kelmar::test
