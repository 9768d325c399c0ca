// Makes a sample Mac with everything of Kelmar in the folder that its one argument names.

#include "tests/support/mac_tree.hpp"

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: sample-mac FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        kelmar::test::MacTree(arguments[1]).everything();
    } catch (const std::exception& error) {
        std::cerr << "sample-mac: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
