#pragma once

#include "tests/trace/trace.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace kelmar::test {

/// One thing that goes wrong in a run.
struct Point {
    SystemCall call;
    Verdict verdict;
};

/// A line for people, as "openat 3 of thread 1 of /usr/bin/rm: Permission denied".
std::string describe(const Point& point);

/// Every call of the recording with each of its errors (`Verdict::Kind::fail`), or every call once
/// (`kill`). What the program at `path` calls is all there. Of tools that it starts again and
/// again, as rm(1), a call that comes at the same place of several processes stands once, for the
/// first.
std::vector<Point> pointsOf(const std::vector<SystemCall>& calls, Verdict::Kind kind,
                            const std::string& path);

/// Every `step`th of them.
std::vector<Point> sample(const std::vector<Point>& points, std::size_t step);

} // namespace kelmar::test
