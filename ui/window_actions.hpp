#pragma once

#include "ui/page.hpp"

#include <functional>
#include <string>

namespace kelmar {

/// What the controls of the window ask for; all that a renderer gives back.
struct WindowActions {
    std::function<void(Action)> perform;
    std::function<void(bool all)> setDeleteAllData;
    std::function<void(const std::string& path, bool selected)> setSelected;
};

} // namespace kelmar
