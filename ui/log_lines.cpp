#include "ui/log_lines.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kelmar {

LogLines::LogLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        append(line);
    }
}

void LogLines::append(std::string line) {
    if (!lines_) {
        lines_ = std::make_shared<std::vector<std::string>>();
    } else if (lines_->size() != count_) {
        // Another copy has grown: the two part here.
        lines_ = std::make_shared<std::vector<std::string>>(
            lines_->begin(), std::next(lines_->begin(), static_cast<std::ptrdiff_t>(count_)));
    }
    lines_->push_back(std::move(line));
    ++count_;
}

bool LogLines::continues(const LogLines& earlier) const {
    return earlier.empty() || (lines_ == earlier.lines_ && count_ >= earlier.count_);
}

std::string LogLines::text(std::size_t first) const {
    std::size_t length = 0;
    for (std::size_t index = first; index < count_; ++index) {
        length += (*this)[index].size() + 1;
    }
    std::string whole;
    whole.reserve(length);
    for (std::size_t index = first; index < count_; ++index) {
        if (index != first) {
            whole += '\n';
        }
        whole += (*this)[index];
    }
    return whole;
}

bool operator==(const LogLines& one, const LogLines& other) {
    if (one.count_ != other.count_) {
        return false;
    }
    if (one.lines_ == other.lines_ || one.empty()) {
        return true;
    }
    const auto count = static_cast<std::ptrdiff_t>(one.count_);
    return std::equal(one.lines_->begin(), std::next(one.lines_->begin(), count),
                      other.lines_->begin());
}

} // namespace kelmar
