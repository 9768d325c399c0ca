#pragma once

/// The window's texts outside of page and menu. Together with the page's sections, menu.cpp and
/// about.cpp these are all texts that people read in the window: a renderer holds none.
namespace kelmar::Texts {

constexpr const char* program = "Kelmar Uninstaller"; ///< also the window's title
constexpr const char* errorPrefix = "Kelmar Uninstaller: ";
constexpr const char* noDisplay =
    "Kelmar Uninstaller finds no display to open its window on. Use --scan to list what "
    "Kelmar has here, or --help for all options.";

} // namespace kelmar::Texts
