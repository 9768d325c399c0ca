#include "admin/status_line.hpp"
#include "admin/status_tail.hpp"
#include "system/files/file_descriptor.hpp"
#include "system/text/utf8.hpp"
#include "tests/fuzz/require.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

using kelmar::fuzz::require;

namespace {

/// A file of this run's own.
const std::string& statusFile() {
    static const std::string path = [] {
        std::string name = "/tmp/kelmar-fuzz-XXXXXX";
        const kelmar::FileDescriptor file(::mkstemp(name.data()));
        require(file.isOpen());
        std::atexit([] { ::unlink(statusFile().c_str()); });
        return name;
    }();
    return path;
}

void append(std::string_view piece) {
    std::ofstream(statusFile(), std::ios::app | std::ios::binary)
        .write(piece.data(), static_cast<std::streamsize>(piece.size()));
}

/// What is true of every line that is taken apart.
void check(const std::string& line) {
    const std::optional<kelmar::StatusLine> parsed = kelmar::parseStatusLine(line);
    if (parsed) {
        require(line.find(parsed->subject) != std::string::npos);
        require(parsed->subject.find('\n') == std::string::npos);
        if (parsed->keyword == kelmar::StatusLine::Keyword::fail) {
            require(!parsed->reason.empty() && parsed->subject.find('\t') == std::string::npos);
        }
    }
}

} // namespace

/// The first byte says where the rest is cut in two; the tail is given the pieces one after the
/// other. The lines come out whole and in order, but for a character that the cut goes through.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t cut = std::min<std::size_t>(*data, text.size());
    require(::truncate(statusFile().c_str(), 0) == 0);
    std::vector<std::string> lines;
    append(text.substr(0, cut));
    kelmar::StatusTail tail(statusFile(),
                            [&lines](const std::string& line) { lines.push_back(line); });
    tail.start(); // reads at once, so the cut falls before, into or after the first read
    append(text.substr(cut));
    tail.stop();

    std::string all;
    for (const std::string& line : lines) {
        check(line);
        all += line + '\n';
    }
    const std::string whole =
        kelmar::decodeUtf8(text) + (text.empty() || text.ends_with('\n') ? "" : "\n");
    const std::string halves = kelmar::decodeUtf8(text.substr(0, cut)) +
                               kelmar::decodeUtf8(text.substr(cut)) +
                               (text.empty() || text.ends_with('\n') ? "" : "\n");
    require(all == whole || all == halves);
    require(tail.sawDone() == (("\n" + all).find("\nDONE") != std::string::npos));
    return 0;
}
