#include "tests/support/lines.hpp"

#include <fstream>
#include <istream>
#include <sstream>

namespace kelmar::test {

namespace {

std::vector<std::string> linesOf(std::istream& stream) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    return linesOf(stream);
}

std::vector<std::string> linesOfFile(const std::string& path) {
    std::ifstream file(path);
    return linesOf(file);
}

} // namespace kelmar::test
