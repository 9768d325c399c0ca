#include "ui/about.hpp"

#include "ui/texts.hpp"

namespace kelmar {

About about() {
    return {"About Kelmar Uninstaller", Texts::program, "Version " KELMAR_VERSION};
}

} // namespace kelmar
