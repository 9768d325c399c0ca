#include "ui/page.hpp"

#include "ui/size_text.hpp"

namespace kelmar {

std::string Header::announcement() const {
    return title + (title.ends_with("…") ? " " : ". ") + subtitle;
}

std::string SizeText::text() const {
    return sizeText(bytes);
}

std::string SizeText::accessibleName() const {
    return of + ", " + text();
}

} // namespace kelmar
