#include "app/printing.hpp"

#include "system/process/standard_streams.hpp"
#include "system/text/harmless_text.hpp"

#include <unistd.h>

namespace kelmar {

bool print(const std::string& line) {
    return printLine(::isatty(STDOUT_FILENO) == 1 ? harmlessText(line) : line);
}

} // namespace kelmar
