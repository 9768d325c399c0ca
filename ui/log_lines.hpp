#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kelmar {

/// The lines of a record that only ever grows. A copy costs nothing and stays as it was when the
/// original grows, so that a page can hold a run's whole record without its text being copied for
/// every new line. All copies of one record belong to one thread.
class LogLines {
public:
    LogLines() = default;
    explicit LogLines(const std::vector<std::string>& lines);

    void append(std::string line);

    [[nodiscard]] std::size_t size() const { return count_; }

    [[nodiscard]] bool empty() const { return count_ == 0; }

    /// `index` is below `size`.
    [[nodiscard]] const std::string& operator[](std::size_t index) const {
        return (*lines_)[index];
    }

    /// Whether this record is `earlier` grown longer, or still the same: what was shown of
    /// `earlier` still holds. Answered without looking at the text; of two records that were
    /// written separately, or that have parted since, the answer is no.
    [[nodiscard]] bool continues(const LogLines& earlier) const;

    /// The lines from `first` on, each but the last followed by a line feed.
    [[nodiscard]] std::string text(std::size_t first = 0) const;

    friend bool operator==(const LogLines& one, const LogLines& other);

private:
    /// Shared by all copies; each sees its own first `count_` lines, which never change.
    std::shared_ptr<std::vector<std::string>> lines_;
    std::size_t count_ = 0;
};

} // namespace kelmar
