#pragma once

#include "ui/page.hpp"

#include <string>
#include <utility>
#include <vector>

/// A page of every phase, as the program makes it out of what it publishes.
namespace kelmar::test {

Page scanningPage();
Page nothingFoundPage();

/// Both scopes, two roots of data, services, settings; all data chosen and measured.
Page readyPage();

/// The same after an attempt that was cancelled, with both notes in the footer.
Page noticePage();

/// The same with the lists of folders unfolded, one size still to come.
Page foldersPage();

Page confirmingPage();

Page workingPage(const LogLines& log = {}, bool unfolded = false);
Page finishedPage(const LogLines& log = {}, bool unfolded = false);
Page problemsPage(const LogLines& log = {}, bool unfolded = false);

/// All of them, by name.
std::vector<std::pair<std::string, Page>> everyPage();

} // namespace kelmar::test
