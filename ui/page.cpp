#include "ui/page.hpp"

#include "discovery/size_in_words.hpp"

namespace kelmar {

std::string Header::announcement() const {
    return title + (title.ends_with("…") ? " " : ". ") + subtitle;
}

std::string SizeText::text() const {
    return sizeInWords(bytes, "Measuring…");
}

std::string SizeText::accessibleName() const {
    return of + ", " + text();
}

} // namespace kelmar
