#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelmar {

/// The lines of a log, which only grows, made harmless for display (`harmlessText`). Copying is
/// cheap, and a copy keeps its lines when the original grows: a page can hold the whole log without
/// copying its text for every new line. All copies of one log must be used on one thread.
class LogLines {
public:
    LogLines() = default;
    explicit LogLines(const std::vector<std::string>& lines);

    void append(std::string_view line);

    [[nodiscard]] std::size_t size() const { return count_; }

    [[nodiscard]] bool empty() const { return count_ == 0; }

    /// `index` is below `size`. The result is valid as long as any copy of the log exists.
    [[nodiscard]] std::string_view operator[](std::size_t index) const;

    /// Returns true if this log is `earlier`, with or without new lines: what was shown of
    /// `earlier` is still valid. Does not compare texts; returns false for two logs that were
    /// written separately or have diverged.
    [[nodiscard]] bool continues(const LogLines& earlier) const;

    /// The lines from `first` on, separated by line feeds.
    [[nodiscard]] std::string text(std::size_t first = 0) const;

    friend bool operator==(const LogLines& one, const LogLines& other);

private:
    /// A long log takes little more memory than its text: lines share blocks of storage.
    class Text;

    /// Shared by all copies; each sees only its first `count_` lines, which never change.
    std::shared_ptr<Text> lines_;
    std::size_t count_ = 0;
};

} // namespace kelmar
