#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelmar {

/// The lines of a record that only ever grows, as people may see them: names of files in a line
/// neither break it nor turn it round (`harmlessText`). A copy costs nothing and stays as it was
/// when the original grows, so that a page can hold a run's whole record without its text being
/// copied for every new line. All copies of one record belong to one thread.
class LogLines {
public:
    LogLines() = default;
    explicit LogLines(const std::vector<std::string>& lines);

    void append(std::string_view line);

    [[nodiscard]] std::size_t size() const { return count_; }

    [[nodiscard]] bool empty() const { return count_ == 0; }

    /// `index` is below `size`. What is returned stays as long as any copy of the record.
    [[nodiscard]] std::string_view operator[](std::size_t index) const;

    /// Whether this record is `earlier` grown longer, or still the same: what was shown of
    /// `earlier` still holds. Answered without looking at the text; of two records that were
    /// written separately, or that have parted since, the answer is no.
    [[nodiscard]] bool continues(const LogLines& earlier) const;

    /// The lines from `first` on, each but the last followed by a line feed.
    [[nodiscard]] std::string text(std::size_t first = 0) const;

    friend bool operator==(const LogLines& one, const LogLines& other);

private:
    /// A long record takes little more memory than its text: lines have no storage of their own.
    class Text;

    /// Shared by all copies; each sees its own first `count_` lines, which never change.
    std::shared_ptr<Text> lines_;
    std::size_t count_ = 0;
};

} // namespace kelmar
