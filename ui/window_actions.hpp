#pragma once

#include "ui/page.hpp"

#include <functional>
#include <string>

namespace kelmar {

/// What the window's controls request; the only output of a renderer.
struct WindowActions {
    std::function<void(Action)> perform;
    std::function<void(bool all)> setDeleteAllData;
    std::function<void(const std::string& path, bool selected)> setSelected;
};

} // namespace kelmar
