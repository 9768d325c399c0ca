#include "ui/log_lines.hpp"

#include "system/text/harmless_text.hpp"

#include <algorithm>

namespace kelmar {

class LogLines::Text {
public:
    Text() = default;

    /// Copies the first `count` lines of `other`.
    Text(const Text& other, std::size_t count) {
        for (std::size_t index = 0; index < count; ++index) {
            append(other[index]);
        }
    }

    [[nodiscard]] std::size_t size() const { return lines_.size(); }

    [[nodiscard]] std::string_view operator[](std::size_t index) const { return lines_[index]; }

    void append(std::string_view line) {
        if (line.size() > room_) {
            room_ = std::max(blockSize, line.size());
            // Blocks never move: lines point into them.
            blocks_.push_back(std::make_unique<char[]>(room_));
            free_ = blocks_.back().get();
        }
        std::copy(line.begin(), line.end(), free_);
        lines_.emplace_back(free_, line.size());
        free_ += line.size();
        room_ -= line.size();
    }

private:
    static constexpr std::size_t blockSize = 65'536;

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::vector<std::string_view> lines_;
    char* free_ = nullptr; ///< the free rest of the last block
    std::size_t room_ = 0;
};

LogLines::LogLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        append(line);
    }
}

void LogLines::append(std::string_view line) {
    if (!lines_) {
        lines_ = std::make_shared<Text>();
    } else if (lines_->size() != count_) {
        // Another copy has appended lines: copy on write.
        lines_ = std::make_shared<Text>(*lines_, count_);
    }
    lines_->append(harmlessText(line));
    ++count_;
}

std::string_view LogLines::operator[](std::size_t index) const {
    return (*lines_)[index];
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
    if (one.lines_ == other.lines_) {
        return true;
    }
    for (std::size_t index = 0; index < one.count_; ++index) {
        if (one[index] != other[index]) {
            return false;
        }
    }
    return true;
}

} // namespace kelmar
